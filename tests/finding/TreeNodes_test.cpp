#include "finding/TreeNodes.h"

#include "shell/LangTable.h"

#include <gmock/gmock.h>

#include <random>

using namespace Qt::StringLiterals;
using namespace pelorin;
using finding::Category;
using finding::ChildTexts;
using finding::FilterRoot;
using finding::FilterTree;
using library::GameEntries;
using library::GameEntry;
using testing::ElementsAre;

namespace {

shell::LangTable NumberedLang()
{
    QStringList lines;
    for (int i = 1; i <= shell::kLastEntry; ++i) {
        lines << QString::number(i);
    }
    return shell::LangTable::FromLines(lines).Take();
}

class TreeNodesTest : public testing::Test {
protected:
    TreeNodesTest()
    {
        m_tree.changed.SetListener([this](std::uint32_t bits) { m_told.push_back(bits); });
    }
    void Build(const QStringList& builds = {})
    {
        finding::BuildTreeSkeleton(m_tree, NumberedLang(), builds);
    }

    FilterTree m_tree;
    std::vector<std::uint32_t> m_told;
};

TEST_F(TreeNodesTest, TenRootsInOrder)
{
    Build();
    QStringList roots;
    for (const FilterRoot& root : m_tree.roots) {
        EXPECT_EQ(static_cast<qsizetype>(root.category), roots.size());
        roots << root.text;
    }
    EXPECT_THAT(
        roots,
        ElementsAre(
            u"30"_s,
            u"13"_s,
            u"31"_s,
            u"32"_s,
            u"40"_s,
            u"295"_s,
            u"307"_s,
            u"308"_s,
            u"309"_s,
            u"310"_s));
    EXPECT_THAT(m_told, ElementsAre(FilterTree::Nodes));
}

TEST_F(TreeNodesTest, FixedChildren)
{
    Build({u"0.74"_s, u"Windows"_s, u"  "_s, u"behind the blank"_s});
    const FilterRoot& ganada = *m_tree.Root(Category::Initial);
    EXPECT_EQ(
        ChildTexts(m_tree, Category::Initial).join(u' '),
        u"ㄱ ㄴ ㄷ ㄹ ㅁ ㅂ ㅅ ㅇ ㅈ ㅊ ㅋ ㅌ ㅍ ㅎ 123 ABC ~!@#"_s);
    EXPECT_EQ(ganada.children[0].key, u"findganada_ㄱ"_s);
    EXPECT_EQ(ganada.children[16].key, u"findganada_~!@#"_s);
    const FilterRoot& alphabet = *m_tree.Root(Category::Letter);
    ASSERT_EQ(alphabet.children.size(), 28U);
    EXPECT_EQ(alphabet.children[25].key, u"findalphabet_Z"_s);
    EXPECT_EQ(alphabet.children[26].text, u"123"_s);
    const FilterRoot& store = *m_tree.Root(Category::Store);
    ASSERT_EQ(store.children.size(), 2U);
    EXPECT_EQ(store.children[0].key, u"findstore_no"_s);
    EXPECT_EQ(store.children[0].text, u"41"_s);
    EXPECT_EQ(store.children[1].key, u"findstore_yes"_s);
    EXPECT_THAT(ChildTexts(m_tree, Category::Build), ElementsAre(u"0.74"_s, u"Windows"_s));
    EXPECT_EQ(m_tree.Root(Category::Build)->children[1].key, u"findexecuter_Windows"_s);

    QStringList many(150, u"build"_s);
    Build(many);
    EXPECT_EQ(m_tree.Root(Category::Build)->children.size(), 101U);
}

TEST_F(TreeNodesTest, ARebuildDropsChecksAndKeepsWhatStandsOpen)
{
    Build();
    m_tree.Root(Category::Initial)->expanded = true;
    m_tree.Root(Category::Initial)->children[3].checked = true;
    Build();
    EXPECT_TRUE(m_tree.Root(Category::Initial)->expanded);
    EXPECT_FALSE(m_tree.Root(Category::GenreK)->expanded);
    EXPECT_FALSE(m_tree.Root(Category::Initial)->children[3].checked);
}

/// The order by definition: each new value is put before the first smaller one of a falling list,
/// which is then read from its end.
QStringList ByInsertion(const GameEntries& catalogue, QString GameEntry::*field)
{
    const auto below = [](const QString& a, const QString& b) {
        return std::lexicographical_compare(
            a.begin(), a.end(), b.begin(), b.end(), [](QChar x, QChar y) {
                return x.unicode() < y.unicode();
            });
    };
    QStringList falling;
    for (const GameEntry& entry : catalogue) {
        const QString& value = entry.*field;
        if (falling.contains(value)) {
            continue;
        }
        int at = 0;
        while (at < falling.size() && !below(falling[at], value)) {
            ++at;
        }
        falling.insert(at, value);
    }
    QStringList rising;
    for (const QString& value : falling) {
        if (!QString(value).remove(u' ').isEmpty()) {
            rising.prepend(value);
        }
    }
    return rising;
}

TEST_F(TreeNodesTest, ValuesRiseByCode)
{
    const QStringList values{
        u"RPG"_s,
        u""_s,
        u"rpg"_s,
        u"한"_s,
        u"RPG "_s,
        u"Action"_s,
        u"   "_s,
        u"\t"_s,
        u"ㄱ"_s,
        u"RPG"_s,
        u" RPG"_s,
        u"\U0001F600"_s, // two codes below those of U+FFxx
        u"\uFF21"_s,
        u"한"_s};
    GameEntries catalogue;
    for (const QString& value : values) {
        GameEntry entry;
        entry.Maker = value;
        catalogue.push_back(entry);
    }
    Build();
    m_told.clear();
    finding::RefillValueNodes(m_tree, library::Catalogue(catalogue));
    EXPECT_EQ(ChildTexts(m_tree, Category::Maker), ByInsertion(catalogue, &GameEntry::Maker));
    EXPECT_THAT(
        ChildTexts(m_tree, Category::Maker),
        ElementsAre(
            u"\t"_s,
            u" RPG"_s,
            u"Action"_s,
            u"RPG"_s,
            u"RPG "_s,
            u"rpg"_s,
            u"ㄱ"_s,
            u"한"_s,
            u"\U0001F600"_s,
            u"\uFF21"_s));
    EXPECT_THAT(m_told, ElementsAre(FilterTree::Nodes)) << "told once";
}

TEST_F(TreeNodesTest, EachCategoryReadsItsFieldAndStartsUnchecked)
{
    GameEntry entry;
    entry.GenreK = u"gk"_s;
    entry.GenreE = u"ge"_s;
    entry.Maker = u"maker"_s;
    entry.Release = u"1990"_s;
    entry.GameLanguage = u"Korean"_s;
    entry.Country = u"KR"_s;
    Build({u"0.74"_s});
    for (int round = 0; round < 2; ++round) {
        finding::RefillValueNodes(m_tree, library::Catalogue({entry}));
        const std::vector<std::pair<Category, QString>> keys{
            {Category::GenreK, u"findgenrek_gk"_s},
            {Category::GenreE, u"findgenree_ge"_s},
            {Category::Maker, u"findpublisher_maker"_s},
            {Category::Release, u"findlanguage_1990"_s},
            {Category::GameLanguage, u"findreleased_Korean"_s},
            {Category::Country, u"findcountry_KR"_s},
        };
        for (const auto& [category, key] : keys) {
            std::vector<finding::FilterNode>& children = m_tree.Root(category)->children;
            ASSERT_EQ(children.size(), 1U) << key.toStdString();
            EXPECT_EQ(children[0].key, key);
            EXPECT_FALSE(children[0].checked);
            children[0].checked = true;
        }
        EXPECT_EQ(ChildTexts(m_tree, Category::Build).size(), 1) << "stays";
    }
}

// Nodes that stay are kept from one filling to the next, which must never show.
TEST_F(TreeNodesTest, ARefilledTreeIsThatOfAFreshOne)
{
    std::mt19937 random(1109);
    const auto pick = [&](int below) {
        return std::uniform_int_distribution<int>(0, below - 1)(random);
    };
    Build();
    for (int round = 0; round < 200; ++round) {
        GameEntries games(static_cast<std::size_t>(pick(8)));
        for (GameEntry& game : games) {
            game.Maker = QString(1, QChar(u" abcdefg"[pick(8)]));
        }
        finding::RefillValueNodes(m_tree, library::Catalogue(games));
        std::vector<finding::FilterNode>& children = m_tree.Root(Category::Maker)->children;
        ASSERT_EQ(ChildTexts(m_tree, Category::Maker), ByInsertion(games, &GameEntry::Maker));
        for (finding::FilterNode& node : children) {
            ASSERT_EQ(node.key, u"findpublisher_"_s + node.text);
            ASSERT_FALSE(node.checked);
            node.checked = pick(2) == 0;
        }
    }
}

TEST(ValueNodes, WithoutATreeNothingHappens)
{
    FilterTree tree;
    finding::RefillValueNodes(tree, library::Catalogue(GameEntries(3)));
    EXPECT_TRUE(tree.roots.empty());
    EXPECT_TRUE(ChildTexts(tree, Category::Maker).isEmpty());
}

} // namespace
