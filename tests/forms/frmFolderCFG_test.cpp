#include "forms/frmFolderCFG.h"

#include "WindowFixture.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace pelorin::test {

TEST(FolderCfgForm, ShowsAndWritesItsModelAndStaysOpenUntilTheRootsAreAccepted)
{
    shell::FolderCfg boxes;
    boxes.txtGames = u"/games"_s;
    boxes.txtExport = u"/export"_s;
    QStringList did;
    bool accepts = false;
    const auto note = [&did](const QString& what) {
        return [&did, what](shell::Root root) {
            did << what + (root == shell::Root::Games ? u" games"_s : u" export"_s);
        };
    };
    forms::frmFolderCFG form(
        boxes, NumberedLanguage(), {note(u"path"_s), note(u"default"_s), note(u"open"_s), [&] {
                                        return accepts;
                                    }});
    form.show();
    EXPECT_EQ(form.windowTitle(), u"E196"_s);
    auto* games = form.findChild<QLineEdit*>(u"txtGames"_s);
    EXPECT_EQ(games->text(), u"/games"_s);
    // All of it is selected when the dialog opens, so that typing replaces it.
    QTest::keyClicks(games, u"/new"_s);
    EXPECT_EQ(boxes.txtGames, u"/new"_s);
    boxes.txtExport = u"/other"_s;
    boxes.changed.Tell(shell::FolderCfg::All);
    EXPECT_EQ(form.findChild<QLineEdit*>(u"txtExport"_s)->text(), u"/other"_s);

    const auto press = [&form](const QString& name) {
        form.findChild<QPushButton*>(name)->click();
    };
    for (const QString& name :
         {u"cmdGamesPath"_s, u"cmdExportPath"_s, u"cmdExportDefault"_s, u"cmdGamesOpen"_s}) {
        press(name);
    }
    EXPECT_EQ(
        did,
        (QStringList{u"path games"_s, u"path export"_s, u"default export"_s, u"open games"_s}));
    press(u"cmdOk"_s);
    EXPECT_TRUE(form.isVisible());
    accepts = true;
    press(u"cmdOk"_s);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.result(), QDialog::Accepted);
}

} // namespace pelorin::test
