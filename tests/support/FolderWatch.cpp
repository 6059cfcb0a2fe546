#include "support/FolderWatch.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace pelorin::test {

FolderWatch::FolderWatch(const QStringList& folders)
    : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    for (const QString& folder : folders) {
        const int watch = inotify_add_watch(
            m_descriptor, QFile::encodeName(folder).constData(), IN_OPEN | IN_ONLYDIR);
        EXPECT_GE(watch, 0) << folder.toStdString();
        m_folders.insert(watch, folder);
    }
}

FolderWatch::~FolderWatch()
{
    close(m_descriptor);
}

QStringList FolderWatch::Opened() const
{
    QStringList opened;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t size = read(m_descriptor, buffer.data(), buffer.size());
        if (size <= 0) {
            return opened;
        }
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
            at += static_cast<ssize_t>(sizeof *event + event->len);
            const bool listing = (event->mask & IN_ISDIR) != 0;
            // A watched folder in a watched one is told twice; it counts where it is itself.
            if (listing && event->len == 0) {
                opened << m_folders.value(event->wd) + u'/';
            } else if (!listing) {
                opened << m_folders.value(event->wd) + u'/' +
                              QFile::decodeName(static_cast<const char*>(event->name));
            }
        }
    }
}

} // namespace pelorin::test
