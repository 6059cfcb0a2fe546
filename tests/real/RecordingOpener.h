#pragma once

#include "support/IsolatedHome.h"
#include "support/RunProgram.h"

#include <QFile>
#include <QProcessEnvironment>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

namespace pelorin::test {

/// The program that the desktop of a test's home opens folders, texts and addresses with. It writes
/// down what it was given.
class RecordingOpener {
public:
    RecordingOpener(const IsolatedHome& home, const QProcessEnvironment& environment)
        : m_home(home.Folder())
    {
        m_home.WriteScript(
            QStringLiteral("opener"),
            QStringLiteral("printf '%s' \"$1\" > \"$HOME/opened.new\"\n"
                           "mv \"$HOME/opened.new\" \"$HOME/opened\"\n"));
        m_home.WriteRaw(
            QStringLiteral(".local/share/applications/opener.desktop"),
            "[Desktop Entry]\nType=Application\nName=Opener\nExec=" +
                m_home.Path(QStringLiteral("opener")).toUtf8() + " %f\n");
        m_home.MakeFolder(QStringLiteral(".config"));
        for (const char* type : {"inode/directory", "text/plain", "x-scheme-handler/https"}) {
            const ToolResult registered = RunTool(
                QStringLiteral("xdg-mime"),
                {QStringLiteral("default"),
                 QStringLiteral("opener.desktop"),
                 QString::fromLatin1(type)},
                environment);
            EXPECT_EQ(registered.exitCode, 0) << registered.errors.toStdString();
        }
    }

    /// What was opened next; "nothing" when that takes too long.
    QString Take() const
    {
        constexpr int kPatienceMs = 20'000;
        const QString record = QStringLiteral("opened");
        if (!QTest::qWaitFor([&] { return m_home.Exists(record); }, kPatienceMs)) {
            return QStringLiteral("nothing");
        }
        QString what = QString::fromUtf8(m_home.ReadRaw(record));
        QFile::remove(m_home.Path(record));
        return what;
    }

private:
    const TestFolder& m_home;
};

} // namespace pelorin::test
