#include "finding/BuildGameList.h"

#include <gmock/gmock.h>

#include <numeric>
#include <random>

using namespace Qt::StringLiterals;
using namespace pelorin;
using finding::GameItem;
using finding::GameList;
using finding::ListOutcome;
using finding::TitleOrder;
using library::GameEntries;
using library::GameEntry;
using testing::ElementsAre;

namespace {

GameEntry Game(const QString& folder, const QString& titleK, const QString& titleE = QString())
{
    GameEntry entry;
    entry.Folder = folder;
    entry.TitleK = titleK;
    entry.TitleE = titleE;
    return entry;
}

class BuildGameListTest : public testing::Test {
protected:
    BuildGameListTest()
    {
        m_list.changed.SetListener([this](std::uint32_t bits) { m_told.push_back(bits); });
    }
    void Number()
    {
        for (std::size_t i = 0; i < m_catalogue.size(); ++i) {
            m_catalogue[i].ListIndex = static_cast<std::int16_t>(i + 1);
        }
    }
    ListOutcome Build(const QString& term = QString())
    {
        std::vector<int> whole(m_catalogue.size());
        std::iota(whole.begin(), whole.end(), 0);
        return Build(whole, term);
    }
    ListOutcome Build(const finding::FilterIndex& index, const QString& term = QString())
    {
        Number();
        m_told.clear();
        TitleOrder& order = m_korean ? m_orderK : m_orderE;
        const finding::ListSource source{m_catalogue, m_builds, m_korean, term, u" [압축]"_s};
        finding::BuildGameList(m_list, order, source, index);
        return m_list.outcome;
    }
    QStringList Column(std::size_t column = 0) const
    {
        QStringList texts;
        for (const GameItem& item : m_list.items) {
            texts << item.text[column];
        }
        return texts;
    }

    GameEntries m_catalogue;
    QStringList m_builds{u"0.74"_s, u"Windows"_s};
    bool m_korean = true;
    TitleOrder m_orderK{QLocale(QLocale::Korean), true};
    TitleOrder m_orderE{QLocale(QLocale::English), false};
    GameList m_list;
    std::vector<std::uint32_t> m_told;
};

TEST_F(BuildGameListTest, ARowOfTheTitleLanguage)
{
    GameEntry entry = Game(u"Folder"_s, u"가"_s, u"B"_s);
    entry.GenreK = u"액션"_s;
    entry.GenreE = u"Action"_s;
    entry.DosboxVersion = 1;
    entry.Maker = u"M"_s;
    entry.Release = u"R"_s;
    entry.GameLanguage = u"L"_s;
    entry.Country = u"C"_s;
    m_catalogue = {Game(u"other"_s, u"나"_s, u"Z"_s), entry};
    EXPECT_EQ(Build(), ListOutcome::Items);
    EXPECT_THAT(
        m_list.items[0].text,
        ElementsAre(u"가"_s, u"액션"_s, u"Folder"_s, u"Windows"_s, u"M"_s, u"R"_s, u"L"_s, u"C"_s));
    EXPECT_EQ(m_list.items[0].Tag(), u"액션"_s);
    EXPECT_EQ(m_list.items[0].listIndex, 2);
    EXPECT_EQ(m_list.selected, 0);
    EXPECT_THAT(m_list.selectedRows, ElementsAre(0));
    EXPECT_THAT(m_told, ElementsAre(GameList::Reset | GameList::Selection)) << "one reset";

    m_korean = false;
    Build();
    EXPECT_EQ(m_list.items[0].text[0], u"B"_s);
    EXPECT_EQ(m_list.items[0].text[1], u"Action"_s);
}

TEST_F(BuildGameListTest, BuildsOutsideTheListAreEmpty)
{
    m_catalogue = {Game(u"a"_s, u"a"_s), Game(u"b"_s, u"b"_s), Game(u"c"_s, u"c"_s)};
    m_catalogue[0].DosboxVersion = -1;
    m_catalogue[1].DosboxVersion = 2;
    EXPECT_EQ(Build(), ListOutcome::Items);
    EXPECT_THAT(Column(3), ElementsAre(QString(), QString(), u"0.74"_s));
}

TEST_F(BuildGameListTest, ByTitleThenByFolder)
{
    m_catalogue = {
        Game(u"f2"_s, u"나비"_s),
        Game(u"z"_s, u"zebra"_s),
        Game(u"b"_s, u"Same"_s),
        Game(u"a"_s, u"Same"_s),
        Game(u"f1"_s, u"가나"_s),
        Game(u"y"_s, u"apple"_s),
        Game(u"x"_s, u"Banana"_s),
        Game(u"mm"_s, QString()), // shown and sorted by its folder
    };
    Build();
    EXPECT_THAT(
        Column(2), ElementsAre(u"f1"_s, u"f2"_s, u"y"_s, u"x"_s, u"mm"_s, u"a"_s, u"b"_s, u"z"_s));
    EXPECT_EQ(m_list.items[4].text[0], u"mm"_s);
}

TEST_F(BuildGameListTest, SearchIgnoresBlanksAndCase)
{
    m_catalogue = {
        Game(u"1"_s, u"Red Alert"_s),
        Game(u"2"_s, u"redalert 2 [압축]"_s),
        Game(u"3"_s, u"Credal"_s),
        Game(u"red"_s, QString()), // no title: its folder is not searched
        Game(u"5"_s, u"삼국 지"_s),
    };
    EXPECT_EQ(Build(u"RED a l"_s), ListOutcome::Items);
    EXPECT_THAT(Column(2), ElementsAre(u"3"_s, u"1"_s, u"2"_s));
    Build(u"국지"_s);
    EXPECT_THAT(Column(2), ElementsAre(u"5"_s));
    Build(u"[압축]"_s);
    EXPECT_THAT(Column(2), ElementsAre(u"2"_s));
    Build(u"   "_s);
    EXPECT_EQ(m_list.items.size(), 5U);
    EXPECT_EQ(Build(u"no such"_s), ListOutcome::NoSearchHit);
    EXPECT_EQ(m_list.selected, -1);
    EXPECT_TRUE(m_list.selectedRows.empty());
}

TEST_F(BuildGameListTest, FiltersThatPassNothingAreTold)
{
    m_catalogue = {Game(u"1"_s, u"a"_s), Game(u"2"_s, u"b"_s), Game(u"3"_s, u"c"_s)};
    EXPECT_EQ(Build(std::vector<int>{0, 2}), ListOutcome::Items);
    EXPECT_THAT(Column(2), ElementsAre(u"1"_s, u"3"_s));
    EXPECT_EQ(Build(std::nullopt), ListOutcome::NoFilterHit);
    EXPECT_TRUE(m_list.items.empty());
    EXPECT_EQ(m_list.selected, -1);
    EXPECT_THAT(m_told, ElementsAre(GameList::Reset | GameList::Selection));
    m_catalogue.clear();
    EXPECT_EQ(Build(), ListOutcome::NoGames);
}

TEST_F(BuildGameListTest, AFolderThatStandsTwiceIsShownOnce)
{
    m_catalogue = {Game(u"1"_s, u"b"_s), Game(u"2"_s, u"c"_s), Game(u"1"_s, u"a"_s)};
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"b"_s, u"c"_s)) << "the first one";
    m_catalogue.erase(m_catalogue.begin());
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"a"_s, u"c"_s));
}

TEST_F(BuildGameListTest, ByAnotherColumnAndDownwards)
{
    m_catalogue = {Game(u"1"_s, u"a"_s), Game(u"2"_s, u"b"_s), Game(u"3"_s, u"c"_s)};
    m_catalogue[0].Maker = u"Zeta"_s;
    m_catalogue[1].Maker = u"alpha"_s;
    m_catalogue[2].Maker = u"Zeta"_s;
    m_list.sort = {4, false};
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"b"_s, u"a"_s, u"c"_s));
    m_list.sort = {4, true};
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"a"_s, u"c"_s, u"b"_s)) << "equal ones still by title";
    m_list.sort = {0, true};
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"c"_s, u"b"_s, u"a"_s));
    // What is kept of a column's order follows the texts.
    m_list.sort = {4, false};
    m_catalogue[1].Maker = u"Zulu"_s;
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"a"_s, u"c"_s, u"b"_s));
    Build(std::vector<int>{1, 2});
    EXPECT_THAT(Column(), ElementsAre(u"c"_s, u"b"_s));
    m_list.sort = {99, false};
    Build();
    EXPECT_THAT(Column(), ElementsAre(u"a"_s, u"b"_s, u"c"_s));
}

// What is kept from one rebuild to the next must never show: after any change of the Catalogue the
// order is that of a new TitleOrder.
TEST(TitleOrderTest, FollowsEveryChangeOfTheCatalogue)
{
    std::mt19937 random(4711);
    const auto pick = [&](std::size_t below) {
        return std::uniform_int_distribution<std::size_t>(0, below - 1)(random);
    };
    const auto title = [&] { return QString(QChar(u'a' + static_cast<char16_t>(pick(6)))); };
    const QLocale locale(QLocale::English);
    TitleOrder kept(locale, true);
    GameEntries catalogue;
    int made = 0;
    for (int round = 0; round < 400; ++round) {
        const std::size_t deed = pick(4);
        if (deed == 0 || catalogue.size() < 3) {
            const auto at = static_cast<std::ptrdiff_t>(pick(catalogue.size() + 1));
            catalogue.insert(catalogue.begin() + at, Game(QString::number(made++ % 40), title()));
        } else if (deed == 1) {
            catalogue.erase(
                catalogue.begin() + static_cast<std::ptrdiff_t>(pick(catalogue.size())));
        } else if (deed == 2) {
            catalogue[pick(catalogue.size())].TitleK = pick(5) == 0 ? QString() : title();
        } else {
            std::swap(catalogue[pick(catalogue.size())], catalogue[pick(catalogue.size())]);
        }
        TitleOrder fresh(locale, true);
        ASSERT_EQ(kept.Sorted(catalogue), fresh.Sorted(catalogue)) << "round " << round;
        const auto some = static_cast<int>(pick(catalogue.size()));
        ASSERT_EQ(kept.SearchText(some), fresh.SearchText(some));
    }
}

TEST(TitleOrderTest, HangulComesFirstInKoreanOnly)
{
    const GameEntries catalogue{Game(u"1"_s, u"apple"_s), Game(u"2"_s, u"가"_s)};
    TitleOrder korean(QLocale(QLocale::Korean), true);
    EXPECT_THAT(korean.Sorted(catalogue), ElementsAre(1, 0));
    TitleOrder english(QLocale(QLocale::English), true);
    EXPECT_THAT(english.Sorted(catalogue), ElementsAre(0, 1));
}

} // namespace
