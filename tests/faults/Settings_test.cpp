#include "faults/FaultsFixture.h"
#include "shell/LifecycleCommands.h"
#include "support/StandardError.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

/// Settings of a user who has moved the games and the window; the root is there.
QStringList UsersSettings(const Installation& app)
{
    const QString games = app.folder.Path(u"내 게임"_s);
    const QString lines =
        u"3|150|300|15000,9000|0|%1|%1|0|10|20|1|2|100#100#100#100#100#100#100#100|1"_s.arg(games);
    return QString(lines).replace(u'#', u'\u0001').split(u'|');
}

/// An installation that has been used: nothing is missing, and there is a game in the user's root.
class SettingsFaults : public testing::Test {
protected:
    SettingsFaults()
    {
        m_app.AddGame(u"기본"_s);
        m_app.folder.MakeTree({u"내 게임/별/GO.EXE"_s});
        m_app.Start();
        m_app.folder.WriteLines(u"Launcher.cfg"_s, UsersSettings(m_app));
    }
    QByteArray Cfg() const { return m_app.folder.ReadRaw(u"Launcher.cfg"_s); }
    QByteArray Backup() const { return m_app.folder.ReadRaw(u"Launcher.cfg.bak"_s); }

    Installation m_app;
};

TEST_F(SettingsFaults, LauncherCfgDamaged)
{
    struct Row {
        const char* name;
        void (*spoil)(QStringList& lines);
        QString line;
    };
    const Row rows[] = {
        {"cut off", [](auto& lines) { lines.resize(9); }, u"10번째 줄"_s},
        {"no such view", [](auto& lines) { lines[0] = u"9"_s; }, u"1번째 줄"_s},
        {"a number without end", [](auto& lines) { lines[2] = QString(400, u'9'); }, u"3번째 줄"_s},
        {"seven widths", [](auto& lines) { lines[12].chop(4); }, u"13번째 줄"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QStringList lines = UsersSettings(m_app);
        row.spoil(lines);
        m_app.folder.WriteLines(u"Launcher.cfg"_s, lines);
        const QByteArray damaged = Cfg();
        StandardError errors;
        const auto launcher = m_app.Start();
        const QString told = m_app.folder.Path(u"Launcher.cfg"_s) + u" : "_s + row.line;
        EXPECT_PRED2(Holds, Notes(*launcher), told);
        EXPECT_PRED2(Holds, Notes(*launcher), u"Launcher.cfg.bak"_s);
        EXPECT_TRUE(errors.Text().contains(told.toUtf8()));
        EXPECT_EQ(Backup(), damaged);
        EXPECT_EQ(launcher->places.gamesRoot, m_app.folder.Path(u"Games"_s));
        EXPECT_EQ(m_app.folder.ReadLines(u"Launcher.cfg"_s)[5], m_app.folder.Path(u"Games"_s));
        EXPECT_TRUE(shell::Form_Unload(*launcher));
        EXPECT_EQ(Backup(), damaged);
    }
}

TEST_F(SettingsFaults, SecondErrorInTheSettings)
{
    struct Row {
        const char* name;
        QString gone;    // a file or folder
        QString blocked; // what stands there then; a slash behind a folder
        QString told;
    };
    const Row rows[] = {
        {"unreadable recent list", u"recent.sav"_s, u"recent.sav/inside"_s, u"recent.sav"_s},
        {"a file for a folder", u"preset"_s, u"preset"_s, u"preset"_s},
    };
    m_app.folder.WriteLines(u"Launcher.cfg"_s, {u"damaged"_s});
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QString path = m_app.folder.Path(row.gone);
        ASSERT_TRUE(QFile::remove(path) || QDir(path).removeRecursively());
        m_app.folder.MakeTree({row.blocked});
        const auto before = FilesOf(m_app.folder);
        const auto launcher = m_app.NewLauncher();
        const platform::Done loaded = shell::Form_Load(*launcher);
        ASSERT_FALSE(loaded);
        EXPECT_TRUE(loaded.Failure().text.startsWith(m_app.folder.Path(row.told) + u": "_s))
            << loaded.Failure().text.toStdString();
        EXPECT_EQ(FilesOf(m_app.folder), before);
        QDir(path).removeRecursively();
    }
}

TEST_F(SettingsFaults, ARootThatIsGone)
{
    const QByteArray before = Cfg();
    ASSERT_TRUE(QDir().rename(m_app.folder.Path(u"내 게임"_s), m_app.folder.Path(u"뺀 디스크"_s)));
    const auto launcher = m_app.Start();
    EXPECT_EQ(launcher->places.gamesRoot, m_app.folder.Path(u"Games"_s));
    EXPECT_EQ(launcher->places.exportRoot, m_app.folder.Path(u"Export"_s));
    EXPECT_EQ(Notes(*launcher).count(m_app.folder.Path(u"내 게임"_s)), 2) << "one for each root";
    EXPECT_EQ(launcher->screens.list.view, finding::View::Details) << "the rest is kept";
    EXPECT_EQ(Backup(), before);
    ASSERT_TRUE(shell::Form_Unload(*launcher));
    EXPECT_EQ(m_app.folder.ReadLines(u"Launcher.cfg"_s)[5], m_app.folder.Path(u"Games"_s));
    EXPECT_EQ(Backup(), before);
}

} // namespace
