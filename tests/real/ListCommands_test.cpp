#include "real/RealInstallation.h"
#include "real/RecordingOpener.h"
#include "support/TestFolder.h"
#include "support/XSession.h"
#include "support/Xdotool.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

constexpr int kStepMs = 10'000;
const QString kName = u"별 헤는 밤 (Star) [1]"_s;

/// The window is up and shows the game.
std::optional<Xdotool::WindowId> Started(const Xdotool& person)
{
    const auto window = person.WaitForWindow(u"펠로린 Ver\\."_s, kStepMs);
    const bool shown =
        window && person.Activate(*window, kStepMs) &&
        QTest::qWaitFor([&] { return person.Title(*window).startsWith(u"별 헤는 밤"_s); }, kStepMs);
    return shown ? window : std::nullopt;
}

TEST(ListCommands, AGameGoesToTheTrashByKeysAlone)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const TestFolder app(u"내 펠로린 100% [1]"_s);
    Stage(app, session);
    RunProgram pelorin(app.Path(u"Pelorin"_s), {}, PlainEnvironment(session));
    const Xdotool person(session);
    const auto window = Started(person);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    const QStringList before = app.Tree(u"Games/"_s + kName);
    ASSERT_FALSE(before.isEmpty());

    const QString question = u"^게임 삭제$"_s;
    person.Key(u"Delete"_s);
    ASSERT_TRUE(person.WaitForWindow(question, kStepMs).has_value());
    person.Key(u"Return"_s); // No stands first in the keyboard's way
    ASSERT_TRUE(person.WaitUntilGone(question, kStepMs));
    EXPECT_TRUE(app.Exists(u"Games/"_s + kName));

    ASSERT_TRUE(person.Activate(*window, kStepMs));
    person.Key(u"Delete"_s);
    ASSERT_TRUE(person.WaitForWindow(question, kStepMs).has_value());
    person.Key(u"Tab"_s);
    person.Key(u"space"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !app.Exists(u"Games/"_s + kName); }, kStepMs));
    const TestFolder& home = session.Home().Folder();
    EXPECT_EQ(home.Tree(u".local/share/Trash/files/"_s + kName), before);
    const QByteArray info = home.ReadRaw(u".local/share/Trash/info/%1.trashinfo"_s.arg(kName));
    EXPECT_TRUE(info.contains("%20%28Star%29%20%5B1%5D\nDeletionDate=")) << info.toStdString();
    // The next game is shown, and the list that is saved knows the deleted one no more.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QString title = person.Title(*window);
            return title.contains(u" : ["_s) && !title.startsWith(u"별 헤는 밤"_s);
        },
        kStepMs));
    person.Close(*window);
    ASSERT_TRUE(pelorin.WaitForEnd(kStepMs));
    EXPECT_FALSE(app.ReadText(u"Gamelist.lst"_s).contains(kName));
}

TEST(ListCommands, GamesAreFoundBySearchAndTreeByKeysAlone)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const TestFolder app(u"내 펠로린 100% [1]"_s);
    Stage(app, session);
    RunProgram pelorin(app.Path(u"Pelorin"_s), {}, PlainEnvironment(session));
    const Xdotool person(session);
    const auto window = Started(person);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    const auto shows = [&](const QString& title) {
        return QTest::qWaitFor([&] { return person.Title(*window).startsWith(title); }, kStepMs);
    };
    person.Key(u"F3"_s);
    person.Type(u"독 대"_s); // blanks don't count
    person.Key(u"Return"_s);
    EXPECT_TRUE(shows(u"장독대"_s)) << person.Title(*window);
    person.Key(u"F3"_s);
    person.Key(u"Escape"_s);
    EXPECT_TRUE(shows(u"별 헤는 밤"_s)) << person.Title(*window);
    // From the list back to the tree: its first category, and there its first value.
    person.Key(u"shift+Tab"_s);
    person.Key(u"Home"_s);
    person.Key(u"Right"_s);
    person.Key(u"Down"_s);
    person.Key(u"space"_s);
    EXPECT_TRUE(shows(u"빛의 그림첩"_s)) << person.Title(*window);
}

TEST(ListCommands, TheMenuKeysOpenTheGamesFolderWithTheDesktopsProgram)
{
    const XSession session;
    ASSERT_TRUE(session.IsUp());
    const RecordingOpener opener(session.Home(), session.Environment());
    const TestFolder app(u"내 펠로린 100% [1]"_s);
    Stage(app, session);
    RunProgram pelorin(app.Path(u"Pelorin"_s), {}, PlainEnvironment(session));
    const Xdotool person(session);
    const auto window = Started(person);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    // Below four ways to start the game: to open its folder, to explore it, to open its settings.
    struct Row {
        const char16_t* menuKey;
        int downs;
        QString opens;
    };
    const QString game = app.Path(u"Games/"_s + kName);
    const Row rows[] = {{u"Menu", 5, game}, {u"shift+F10", 7, game + u"/DOSBOX"_s}};
    for (const Row& row : rows) {
        person.Key(QString::fromUtf16(row.menuKey));
        for (int i = 0; i < row.downs; ++i) {
            person.Key(u"Down"_s);
        }
        person.Key(u"Return"_s);
        EXPECT_EQ(opener.Take(), row.opens) << pelorin.Output().toStdString();
    }
}

} // namespace
