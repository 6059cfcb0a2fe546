#include "finding/FilterCommands.h"
#include "finding/TreeNodes.h"
#include "support/Installation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using finding::Category;
using finding::View;
using test::Installation;

namespace {

/// A started program over four games, of which two are Korean.
class Filter : public testing::Test {
protected:
    Filter()
    {
        for (const QString& game : {u"Alpha"_s, u"Beta"_s, u"가지"_s, u"나비"_s}) {
            m_app.AddGame(game);
        }
        m_launcher = m_app.Start();
        m_launcher->screens.list.changed.SetListener([this](std::uint32_t bits) {
            m_told.push_back(bits);
            m_viewThen = m_launcher->screens.list.view;
        });
    }

    finding::NodePlace Node(Category category, const QString& text) const
    {
        const QStringList texts = finding::ChildTexts(m_launcher->screens.tree, category);
        return {category, static_cast<int>(texts.indexOf(text))};
    }
    QStringList Titles() const
    {
        QStringList titles;
        for (const finding::GameItem& item : m_launcher->screens.list.items) {
            titles << item.text[0];
        }
        return titles;
    }
    void Search(const QString& term)
    {
        m_launcher->screens.search.txtFind = term;
        finding::cmdFind_Click(*m_launcher);
    }
    QString Count() const { return m_launcher->screens.status.count.section(u' ', -3); }
    const QString& Caption() const { return m_launcher->screens.frame.caption; }

    Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
    std::vector<std::uint32_t> m_told;
    View m_viewThen = View::Details;
};

} // namespace

TEST_F(Filter, ACheckShowsTheFirstGameThatPassesAndAClickTakesItOff)
{
    m_launcher->screens.list.view = View::LargeIcons;
    const finding::NodePlace nieun = Node(Category::Initial, u"ㄴ"_s);
    finding::TreeView1_NodeCheck(*m_launcher, nieun, true);
    EXPECT_EQ(Titles(), QStringList{u"나비"_s});
    EXPECT_EQ(m_launcher->current.CurrentFolder, u"나비"_s);
    EXPECT_EQ(m_launcher->screens.details.folder, u"나비"_s);
    EXPECT_EQ(Count(), u"1 / 4"_s);
    using finding::GameList;
    ASSERT_EQ(m_told.size(), 1U) << "one repaint";
    EXPECT_EQ(m_told[0] & (GameList::Reset | GameList::Focus), GameList::Reset | GameList::Focus);
    EXPECT_EQ(m_viewThen, View::LargeIcons) << "back when it is shown";

    // The search applies on top of the mark.
    Search(u"a"_s);
    EXPECT_EQ(Titles(), QStringList());
    finding::TreeView1_NodeClick(*m_launcher, nieun);
    EXPECT_EQ(Titles(), (QStringList{u"Alpha"_s, u"Beta"_s}));
    EXPECT_EQ(m_launcher->current.CurrentFolder, u"Alpha"_s);

    // A category without children moves nothing.
    m_told.clear();
    m_launcher->screens.tree.Root(Category::Country)->children.clear();
    finding::TreeView1_NodeClick(*m_launcher, {Category::Country});
    finding::TreeView1_NodeCheck(*m_launcher, {Category::Country}, true);
    EXPECT_TRUE(m_told.empty());
    EXPECT_TRUE(m_launcher->screens.tree.Root(Category::Country)->checked);
}

TEST_F(Filter, AnEmptyFilterResultEndsInSilenceAndAnEmptySearchTells)
{
    const QString caption = Caption();
    ASSERT_NE(caption, m_launcher->WindowTitle);
    finding::TreeView1_NodeCheck(*m_launcher, Node(Category::Initial, u"ㅎ"_s), true);
    EXPECT_EQ(Titles(), QStringList());
    EXPECT_EQ(m_launcher->screens.list.outcome, finding::ListOutcome::NoFilterHit);
    EXPECT_EQ(Count(), u"4 / 4"_s) << "what it showed";
    EXPECT_EQ(Caption(), caption);
    EXPECT_TRUE(m_launcher->screens.frame.picBack0Enabled);
    finding::TreeView1_NodeClick(*m_launcher, {Category::Initial});
    EXPECT_EQ(Titles().size(), 4);

    m_launcher->screens.frame.picBack0Enabled = false;
    Search(u"no such"_s);
    EXPECT_EQ(Titles(), QStringList());
    EXPECT_EQ(Count(), u"0 / 4"_s);
    EXPECT_EQ(Caption(), m_launcher->WindowTitle);
    EXPECT_EQ(m_launcher->screens.details.folder, u"가지"_s) << "the panel keeps its game";
    EXPECT_FALSE(m_launcher->screens.frame.picBack0Enabled) << "no item, no enabling";
    Search(u"  "_s);
    EXPECT_EQ(Titles().size(), 4);
    EXPECT_TRUE(m_launcher->screens.frame.picBack0Enabled);
}

TEST_F(Filter, EscEmptiesTheBoxAndOnTheButtonShowsTheCurrentGameInAnyCase)
{
    for (const bool onButton : {false, true}) {
        SCOPED_TRACE(onButton);
        Search(u"beta"_s);
        EXPECT_EQ(m_launcher->current.CurrentFolder, u"Beta"_s);
        // With a mark that passes nothing the list stays empty.
        m_launcher->screens.tree.Root(Category::Initial)->children[13].checked = true;
        m_launcher->screens.frame.caption = u"stale"_s;
        onButton ? finding::cmdFind_Esc(*m_launcher) : finding::txtFind_Esc(*m_launcher);
        EXPECT_EQ(m_launcher->screens.search.txtFind, QString());
        EXPECT_EQ(Titles(), QStringList());
        EXPECT_EQ(m_launcher->current.CurrentFolder, u"Beta"_s);
        EXPECT_EQ(Caption().startsWith(u"Beta : ["_s), onButton);
        m_launcher->screens.tree.Root(Category::Initial)->children[13].checked = false;
    }
    Search(u"beta"_s);
    finding::txtFind_Esc(*m_launcher);
    EXPECT_EQ(m_launcher->current.CurrentFolder, u"가지"_s);
    m_told.clear();
    finding::txtFind_Esc(*m_launcher);
    EXPECT_EQ(m_told.size(), 1U) << "an empty box rebuilds all the same";
}

TEST_F(Filter, TheBoxTakesTheKeyboardWhileTheListIsHidden)
{
    std::uint32_t box = 0;
    m_launcher->screens.search.changed.SetListener([&](std::uint32_t bits) { box |= bits; });
    m_launcher->screens.list.visible = false;
    Search(u"no such"_s);
    EXPECT_EQ(box, 0U);
    Search(u"a"_s);
    EXPECT_EQ(box, finding::SearchBox::Focus);
    EXPECT_EQ(m_told.back() & finding::GameList::Focus, 0U);
}

TEST_F(Filter, StoredGamesAndTheOtherTitlesAreFound)
{
    library::Catalogue& catalogue = m_launcher->catalogue;
    catalogue.Edit(1, [&](auto& entry) { entry.TitleK += m_launcher->lang[257]; });
    catalogue.Edit(2, [&](auto& entry) { entry.TitleE = u"Eggplant"_s; });
    finding::TreeView1_NodeCheck(*m_launcher, {Category::Store, 0}, true);
    EXPECT_EQ(Titles(), QStringList{u"Beta"_s + m_launcher->lang[257]});
    finding::TreeView1_NodeCheck(*m_launcher, {Category::Store, 1}, true);
    EXPECT_EQ(Titles().size(), 3);
    finding::TreeView1_NodeClick(*m_launcher, {Category::Store});
    // The title language decides, from the next rebuild on.
    m_launcher->settings.TitleLanguageKorean = false;
    Search(u"egg"_s);
    EXPECT_EQ(Titles(), QStringList{u"Eggplant"_s});
}
