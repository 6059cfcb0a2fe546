#include "real/RealInstallation.h"

#include <QDir>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

using Faults = RealTest;

TEST_F(Faults, WhatCantBeReadAtTheStartGivesABoxStandardErrorAndStatusOne)
{
    struct Row {
        QString file;
        void (*spoil)(const QString& path);
        QByteArray told; // behind the path
    };
    const Row rows[] = {
        {u"Language.dat"_s, [](const QString& path) { QFile::remove(path); }, ": line 1: "},
        {u"Language.dat"_s, [](const QString& path) { QFile::resize(path, 8); }, ": line 2: "},
        {u"option.dat"_s, [](const QString& path) { QFile::resize(path, 40); }, ": line 3: "},
        {u"recent.sav"_s, [](const QString& path) { QDir().mkpath(path); }, ": "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.file + QString::fromLatin1(row.told)));
        const TestFolder app;
        Stage(app, m_session);
        row.spoil(app.Path(row.file));
        const QStringList before = app.Tree();
        RunProgram pelorin(app.Path(u"Pelorin"_s), {}, PlainEnvironment(m_session));
        const auto box = m_person.WaitForWindow(u"^Pelorin$"_s, kStepMs);
        ASSERT_TRUE(box.has_value()) << pelorin.Output().toStdString();
        ASSERT_TRUE(m_person.Activate(*box, kStepMs));
        EXPECT_FALSE(m_person.FindWindow(MainWindow()));
        m_person.Key(u"Return"_s);
        ASSERT_TRUE(pelorin.WaitForEnd(kStepMs));
        EXPECT_EQ(pelorin.ExitCode(), 1);
        EXPECT_TRUE(pelorin.Output().contains(app.Path(row.file).toUtf8() + row.told))
            << pelorin.Output().toStdString();
        EXPECT_EQ(app.Tree(), before);
    }
}

TEST_F(Faults, ReadOnlyAppDirStartsAndAsksAtExit)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "mounting needs root";
    }
    const TestFolder app;
    const TestFolder place;
    Stage(app, m_session);
    // The disk is seen by the program alone, which takes the place of the shell.
    const QString script = u"mount -t tmpfs -o size=256m none \"$2\" && cp -r \"$1/.\" \"$2\" && "
                           "mount -o remount,ro \"$2\" && exec \"$2/Pelorin\""_s;
    RunProgram pelorin(
        u"unshare"_s,
        {u"--mount"_s, u"sh"_s, u"-c"_s, script, u"sh"_s, app.Path(), place.Path()},
        PlainEnvironment(m_session));
    const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return pelorin.Output().contains("/Default.conf: Read-only file system"); }, kStepMs))
        << pelorin.Output().toStdString();

    const QString box = u"^펠로린$"_s;
    const auto answer = [&](const QString& key) {
        m_person.Close(*window);
        const auto question = m_person.WaitForWindow(box, kStepMs);
        ASSERT_TRUE(question.has_value()) << pelorin.Output().toStdString();
        ASSERT_TRUE(m_person.Activate(*question, kStepMs));
        m_person.Key(key);
    };
    answer(u"Escape"_s);
    ASSERT_TRUE(m_person.WaitUntilGone(box, kStepMs));
    EXPECT_TRUE(pelorin.IsRunning());
    EXPECT_TRUE(m_person.FindWindow(MainWindow())) << "the window stays";
    answer(u"Return"_s);
    ASSERT_TRUE(pelorin.WaitForEnd(kStepMs));
    EXPECT_EQ(pelorin.ExitCode(), 0) << pelorin.Output().toStdString();
}

} // namespace
