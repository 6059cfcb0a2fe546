#include "real/RealInstallation.h"
#include "real/RecordingOpener.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

const QString kName = u"별 헤는 밤 (Star) [1]"_s;

/// The window over the sample games.
class ListCommands : public RealTest {
protected:
    void SetUp() override
    {
        RealTest::SetUp();
        Stage(m_app, m_session);
    }
    /// It is up and shows its first game.
    void Start()
    {
        m_pelorin = std::make_unique<RunProgram>(
            m_app.Path(u"Pelorin"_s), QStringList(), PlainEnvironment(m_session));
        const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
        ASSERT_TRUE(window && m_person.Activate(*window, kStepMs))
            << m_pelorin->Output().toStdString();
        m_window = *window;
        ASSERT_TRUE(Shows(u"별 헤는 밤"_s)) << Title();
    }
    QString Title() const { return m_person.Title(m_window); }
    bool Shows(const QString& title) const
    {
        return QTest::qWaitFor([&] { return Title().startsWith(title); }, kStepMs);
    }

    const TestFolder m_app{u"내 펠로린 100% [1]"_s};
    std::unique_ptr<RunProgram> m_pelorin;
    Xdotool::WindowId m_window;
};

TEST_F(ListCommands, AGameGoesToTheTrashByKeysAlone)
{
    Start();
    const QStringList before = m_app.Tree(u"Games/"_s + kName);
    ASSERT_FALSE(before.isEmpty());

    const QString question = u"^게임 삭제$"_s;
    m_person.Key(u"Delete"_s);
    ASSERT_TRUE(m_person.WaitForWindow(question, kStepMs).has_value());
    m_person.Key(u"Return"_s); // No stands first in the keyboard's way
    ASSERT_TRUE(m_person.WaitUntilGone(question, kStepMs));
    EXPECT_TRUE(m_app.Exists(u"Games/"_s + kName));

    ASSERT_TRUE(m_person.Activate(m_window, kStepMs));
    m_person.Key(u"Delete"_s);
    ASSERT_TRUE(m_person.WaitForWindow(question, kStepMs).has_value());
    m_person.Key(u"Tab"_s);
    m_person.Key(u"space"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_app.Exists(u"Games/"_s + kName); }, kStepMs));
    const TestFolder& home = m_session.Home().Folder();
    EXPECT_EQ(home.Tree(u".local/share/Trash/files/"_s + kName), before);
    const QByteArray info = home.ReadRaw(u".local/share/Trash/info/%1.trashinfo"_s.arg(kName));
    EXPECT_TRUE(info.contains("%20%28Star%29%20%5B1%5D\nDeletionDate=")) << info.toStdString();
    // The next game is shown, and the list that is saved knows the deleted one no more.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QString title = Title();
            return title.contains(u" : ["_s) && !title.startsWith(u"별 헤는 밤"_s);
        },
        kStepMs));
    m_person.Close(m_window);
    ASSERT_TRUE(m_pelorin->WaitForEnd(kStepMs));
    EXPECT_FALSE(m_app.ReadText(u"Gamelist.lst"_s).contains(kName));
}

TEST_F(ListCommands, GamesAreFoundBySearchAndTreeByKeysAlone)
{
    Start();
    m_person.Key(u"F3"_s);
    m_person.Type(u"독 대"_s); // blanks don't count
    m_person.Key(u"Return"_s);
    EXPECT_TRUE(Shows(u"장독대"_s)) << Title();
    m_person.Key(u"F3"_s);
    m_person.Key(u"Escape"_s);
    EXPECT_TRUE(Shows(u"별 헤는 밤"_s)) << Title();
    // From the list back to the tree: its first category, and there its first value.
    m_person.Key(u"shift+Tab"_s);
    m_person.Key(u"Home"_s);
    m_person.Key(u"Right"_s);
    m_person.Key(u"Down"_s);
    m_person.Key(u"space"_s);
    EXPECT_TRUE(Shows(u"빛의 그림첩"_s)) << Title();
}

TEST_F(ListCommands, AColumnsEdgeIsDraggedAndTheWindowMadeLarger)
{
    Start();
    const auto at = [&](int x, int y) { return m_person.Corner(m_window) + QPoint(x, y); };
    m_person.Click(at(279, 17)); // the view with columns
    const QSize larger(1200, 800);
    m_person.Resize(m_window, larger);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return m_person.Geometry(m_window).size() == larger; }, kStepMs));
    // The first column is as wide as the settings of a new installation have it.
    constexpr int kListLeft = 149;
    constexpr int kFirstWidth = 300;
    constexpr int kHeaderMiddle = 47;
    const QPoint edge = at(kListLeft + kFirstWidth - 1, kHeaderMiddle);
    m_person.Drag(edge, edge + QPoint(60, 0));
    m_person.Close(m_window);
    ASSERT_TRUE(m_pelorin->WaitForEnd(kStepMs));
    const QStringList settings = m_app.ReadLines(u"Launcher.cfg"_s);
    EXPECT_TRUE(settings.filter(u"5400"_s).size() == 1) << settings.join(u' ');
    EXPECT_EQ(settings.filter(u"18000,"_s).size() + settings.filter(u"18030,"_s).size(), 1)
        << settings.join(u' ');
}

TEST_F(ListCommands, TheMenuKeysOpenTheGamesFolderWithTheDesktopsProgram)
{
    const RecordingOpener opener(m_session.Home(), m_session.Environment());
    Start();
    // Below four ways to start the game: to open its folder, to explore it, to open its settings.
    struct Row {
        const char16_t* menuKey;
        int downs;
        QString opens;
    };
    const QString game = m_app.Path(u"Games/"_s + kName);
    const Row rows[] = {{u"Menu", 5, game}, {u"shift+F10", 7, game + u"/DOSBOX"_s}};
    for (const Row& row : rows) {
        m_person.Key(QString::fromUtf16(row.menuKey));
        for (int i = 0; i < row.downs; ++i) {
            m_person.Key(u"Down"_s);
        }
        m_person.Key(u"Return"_s);
        EXPECT_EQ(opener.Take(), row.opens) << m_pelorin->Output().toStdString();
    }
}

} // namespace
