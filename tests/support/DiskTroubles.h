#pragma once

#include "support/TestFolder.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

// What stands in the way of file work: rights, full disks, other disks.

namespace pelorin::test {

inline constexpr uid_t kNobody = 65534;

/// Runs the scope as an ordinary user, who then owns the folder and all in it, since root may do
/// what a mode forbids.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const TestFolder& folder)
    {
        if (geteuid() != 0) {
            return;
        }
        GiveAway(folder.TemporaryFolder());
        GiveAway(folder.Path());
        for (const QString& entry : folder.Tree()) {
            GiveAway(folder.Path(entry));
        }
        m_changed = seteuid(kNobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_changed) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static void GiveAway(const QString& path)
    {
        EXPECT_EQ(lchown(QFile::encodeName(path).constData(), kNobody, kNobody), 0);
    }
    bool m_changed = false;
};

/// No file may grow beyond `bytes` within the scope: what a full disk looks like to a program.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit small{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~SmallFiles()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_before), 0);
        std::signal(SIGXFSZ, m_signal);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int) = nullptr;
};

/// A disk of its own in the place of a folder, which only this process sees: it can run full and
/// be made read-only, for root as well. Others than root mount in a user namespace of their own; where
/// the system allows none, the test is skipped.
class PrivateDisk {
public:
    PrivateDisk(const QString& folder, const QByteArray& size)
        : m_folder(QFile::encodeName(folder))
    {
        const QByteArray options = "mode=755,size=" + size;
        m_isMounted = MayMount() &&
                      mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      mount("none", m_folder.constData(), "tmpfs", 0, options.constData()) == 0;
    }
    ~PrivateDisk()
    {
        if (m_isMounted) {
            EXPECT_EQ(umount2(m_folder.constData(), MNT_DETACH), 0);
        }
    }
    PrivateDisk(const PrivateDisk&) = delete;
    PrivateDisk& operator=(const PrivateDisk&) = delete;

    bool IsMounted() const { return m_isMounted; }
    void MakeReadOnly(bool readOnly = true) const
    {
        const unsigned long flags = readOnly ? MS_REMOUNT | MS_RDONLY : MS_REMOUNT;
        EXPECT_EQ(mount(nullptr, m_folder.constData(), nullptr, flags, nullptr), 0);
    }
    /// Leaves no byte free.
    void Fill() const
    {
        QFile file(Filler());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(4096, 'x')) == 4096) {}
    }
    /// Of a full disk. Whole blocks of 4,096 bytes are given back.
    void FreeBytes(qint64 bytes) const
    {
        EXPECT_TRUE(QFile::resize(Filler(), QFile(Filler()).size() - bytes));
    }
    void Free() const { EXPECT_TRUE(QFile::remove(Filler())); }

private:
    static bool MayMount()
    {
        if (unshare(CLONE_NEWNS) == 0) {
            return true;
        }
        const QByteArray user = QByteArray::number(geteuid());
        const QByteArray group = QByteArray::number(getegid());
        return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && Tell("setgroups", "deny") &&
               Tell("uid_map", user + ' ' + user + " 1") &&
               Tell("gid_map", group + ' ' + group + " 1");
    }
    static bool Tell(const char* file, const QByteArray& text)
    {
        QFile proc(QStringLiteral("/proc/self/") + QString::fromLatin1(file));
        return proc.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
               proc.write(text) == text.size();
    }
    QString Filler() const { return QFile::decodeName(m_folder) + QStringLiteral("/filler"); }

    QByteArray m_folder;
    bool m_isMounted = false;
};

/// A temporary folder on another file system than TestFolder's, where there is one.
class OtherDisk {
public:
    OtherDisk()
        : m_folder(QStringLiteral("/dev/shm/pelorin-XXXXXX"))
    {}
    bool IsOther(const TestFolder& than) const
    {
        return m_folder.isValid() && DeviceOf(m_folder.path()) != DeviceOf(than.Path());
    }
    QString Path(const QString& relative) const { return m_folder.filePath(relative); }

private:
    static dev_t DeviceOf(const QString& path)
    {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        return status.st_dev;
    }
    QTemporaryDir m_folder;
};

inline void SetMode(const QString& path, mode_t mode)
{
    EXPECT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
}

} // namespace pelorin::test
