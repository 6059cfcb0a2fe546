#include "platform/ProgramHost.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

class ProgramHostTest : public testing::Test {
protected:
    void SetUp() override { m_folder.MakeAll(u"app/DOSBox/0.74_SVN/ bin/ work/"_s); }
    ProgramHost Host() const
    {
        return ProgramHost(
            m_folder.Path(u"app"_s), {u"."_s, u"relative"_s, m_folder.Path(u"bin"_s)});
    }
    /// What is started, relative to the test's folder, with its leading arguments; or the error.
    QString Found(const Outcome<HostProgram>& host) const
    {
        if (!host) {
            return u"missing: "_s + host.Failure().text;
        }
        QStringList parts = QStringList(host.Value().program) + host.Value().leading;
        return parts.replaceInStrings(m_folder.Path() + u'/', QString()).join(u' ') +
               (host.Value().pathForm == PathForm::Windows ? u" (Windows)"_s : QString());
    }
    QString Find(const QString& program) const { return Found(Host().Find(program)); }
    void ExpectTrouble(const QString& program, const QString& told) const
    {
        const QString found = Find(program);
        EXPECT_TRUE(found.startsWith(u"missing: ") && found.contains(told)) << found;
    }

    TestFolder m_folder;
};

TEST_F(ProgramHostTest, NativeProgramBesideThenWineThenAnErrorThatNamesIt)
{
    const QString dosbox = u"DOSBox\\0.74_SVN\\dosbox.exe"_s;
    ExpectTrouble(dosbox, u"Neither "_s);
    ExpectTrouble(u"DOSBox\\None\\dosbox.exe"_s, u"DOSBox/None"_s);
    m_folder.MakeLink(u"app/DOSBox/0.74_SVN/dosbox"_s, u"/no/such/dosbox"_s);
    ExpectTrouble(dosbox, u"is a link to /no/such/dosbox, which is missing."_s);
    QFile::remove(m_folder.Path(u"app/DOSBox/0.74_SVN/dosbox"_s));

    m_folder.WriteRaw(u"app/DOSBox/0.74_SVN/DOSBox.exe"_s, "MZ");
    ExpectTrouble(dosbox, u"/DOSBox.exe is a Windows program, and Wine"_s);
    m_folder.WriteScript(u"bin/wine64"_s, QString());
    EXPECT_EQ(Find(dosbox), u"bin/wine64 app/DOSBox/0.74_SVN/DOSBox.exe (Windows)"_s);
    m_folder.WriteScript(u"bin/wine"_s, QString());
    EXPECT_EQ(Find(dosbox), u"bin/wine app/DOSBox/0.74_SVN/DOSBox.exe (Windows)"_s);

    m_folder.WriteScript(u"app/DOSBox/0.74_SVN/DosBox"_s, QString());
    for (const QString& name :
         {dosbox,
          u"dosbox/0.74_svn/DOSBOX.EXE"_s,
          m_folder.Path(u"app/dosbox/0.74_svn/dosbox.exe"_s)}) {
        EXPECT_EQ(Find(name), u"app/DOSBox/0.74_SVN/DosBox"_s);
    }
    EXPECT_TRUE(Host().Find(dosbox).Value().environment.isEmpty());

    // The debugger wants a terminal.
    m_folder.WriteScript(u"app/DOSBox/0.74_SVN/dosbox-debug"_s, QString());
    const auto debugger = Host().Find(u"DOSBox\\0.74_SVN\\dosbox_debug.exe"_s);
    EXPECT_EQ(Found(debugger), u"app/DOSBox/0.74_SVN/dosbox-debug"_s);
    const auto request =
        debugger.Value().Request({u"-nolog"_s}, m_folder.Path(), ShowState::Minimized);
    EXPECT_EQ(request.arguments, QStringList{u"-nolog"_s});
    EXPECT_EQ(request.environment.value(u"TERM"_s), u"dumb"_s);
    EXPECT_EQ(request.show, ShowState::Minimized);
}

TEST_F(ProgramHostTest, WhatLiesBesideMustBeAProgram)
{
    m_folder.WriteScript(u"bin/wine"_s, QString());
    m_folder.MakeAll(u"games/Star/STAR.EXE games/Star/star/ games/Moon/MOON.EXE"_s);
    EXPECT_EQ(
        Find(m_folder.Path(u"games/Star/Star.exe"_s)), u"bin/wine games/Star/STAR.EXE (Windows)"_s);
    m_folder.WriteRaw(u"games/Moon/moon"_s, "a game's data, executable on a disk without rights");
    QFile::setPermissions(m_folder.Path(u"games/Moon/moon"_s), QFile::ReadOwner | QFile::ExeOwner);
    const auto moon = Host().Find(m_folder.Path(u"games/Moon/MOON.EXE"_s));
    EXPECT_EQ(Found(moon), u"bin/wine games/Moon/MOON.EXE (Windows)"_s);
    EXPECT_EQ(
        moon.Value().Request({u"/w"_s}, m_folder.Path()).arguments,
        (QStringList{m_folder.Path(u"games/Moon/MOON.EXE"_s), u"/w"_s}));

    m_folder.WriteRaw(u"app/tool"_s, "#!/bin/sh\n");
    ExpectTrouble(u"tool.exe"_s, u"app/tool is not a program"_s);
    m_folder.WriteRaw(u"app/readme.txt"_s, "text");
    ExpectTrouble(u"readme.txt"_s, QString());
    m_folder.WriteScript(u"app/update.sh"_s, QString());
    EXPECT_EQ(Find(u"update.sh"_s), u"app/update.sh"_s);
}

TEST_F(ProgramHostTest, ToolsBesideUsThenOnTheSearchPathNeverInTheWorkingFolder)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.Path(u"work"_s)));
    m_folder.WriteScript(u"work/7z"_s, QString());
    m_folder.WriteScript(u"work/relative/7z"_s, QString());
    const auto found = [this](const QString& name) { return Found(Host().FindTool(name)); };
    EXPECT_TRUE(found(u"7z.exe"_s).startsWith(u"missing: "));
    for (const QString& name : Words(u"bin/7za bin/7z bin/7zz app/7za"_s)) {
        m_folder.WriteScript(name, QString());
        EXPECT_EQ(found(u"7z.exe"_s), name);
    }
    m_folder.MakeAll(u"app/7z/ app/7zz"_s); // a folder, and a file that is no program
    EXPECT_EQ(found(u"7z.exe"_s), u"app/7za"_s);

    m_folder.WriteScript(u"app/urldownloader"_s, QString());
    EXPECT_EQ(found(u"UrlDownloader.exe"_s), u"app/urldownloader"_s);
    for (const QString& name : {u"../bin/7z"_s, u"bin\\7z.exe"_s, u".."_s, QString()}) {
        EXPECT_EQ(KindOf(Host().FindTool(name)), ErrorKind::Refused) << name;
    }
    QDir::setCurrent(before);
}

} // namespace
