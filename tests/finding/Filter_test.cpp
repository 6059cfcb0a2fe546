#include "finding/CheckMarks.h"
#include "finding/ClassifyInitial.h"
#include "finding/FilterIndex.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using finding::Category;
using finding::FilterNode;
using finding::FilterRoot;
using finding::FilterTree;
using library::GameEntries;
using library::GameEntry;
using testing::ElementsAre;
using testing::Optional;

namespace {

TEST(ClassifyInitial, EveryEdgeOfTheTable)
{
    struct Row {
        char16_t first = 0;
        char16_t last = 0;
        QStringView bucket;
    };
    const Row rows[] = {
        {0xA9B4, 0xA9B4, u"기타"},  {0xA9B5, 0xABFF, u"ㄱ"}, // the 587 codes before the first syllable
        {u'가', u'깋', u"ㄱ"},      {u'까', u'낗', u"ㄱ"},     {u'나', u'닣', u"ㄴ"},
        {u'다', u'딯', u"ㄷ"},      {u'따', u'띻', u"ㄷ"},     {u'라', u'맇', u"ㄹ"},
        {u'마', u'밓', u"ㅁ"},      {u'바', u'빟', u"ㅂ"},     {u'빠', u'삫', u"ㅂ"},
        {u'사', u'싷', u"ㅅ"},      {u'싸', u'앃', u"ㅅ"},     {u'아', u'잏', u"ㅇ"},
        {u'자', u'짛', u"ㅈ"},      {u'짜', u'찧', u"ㅈ"},     {u'차', u'칳', u"ㅊ"},
        {u'카', u'킿', u"ㅋ"},      {u'타', u'팋', u"ㅌ"},     {u'파', u'핗', u"ㅍ"},
        {u'하', u'힣', u"ㅎ"},      {0xD7A4, 0xFFFF, u"기타"}, // and full-width letters
        {u'0', u'9', u"123"},       {u'A', u'Z', u"ABC"},      {u'a', u'z', u"ABC"},
        {u'/', u'/', u"기타"},      {u':', u'@', u"기타"},     {u'[', u'`', u"기타"},
        {u'{', u'\u00FF', u"기타"}, {0x3130, 0x3130, u"기타"}, {u'ㄱ', u'ㄳ', u"ㄱ"},
        {u'ㄴ', u'ㄶ', u"ㄴ"},      {u'ㄷ', u'ㄸ', u"ㄷ"},     {u'ㄹ', u'ㅀ', u"ㄹ"},
        {u'ㅁ', u'ㅁ', u"ㅁ"},      {u'ㅂ', u'ㅄ', u"ㅂ"},     {u'ㅅ', u'ㅆ', u"ㅅ"},
        {u'ㅇ', u'ㅇ', u"ㅇ"},      {u'ㅈ', u'ㅉ', u"ㅈ"},     {u'ㅊ', u'ㅊ', u"ㅊ"},
        {u'ㅋ', u'ㅋ', u"ㅋ"},      {u'ㅌ', u'ㅌ', u"ㅌ"},     {u'ㅍ', u'ㅍ', u"ㅍ"},
        {u'ㅎ', u'ㅎ', u"ㅎ"},      {u'ㅏ', 0xA700, u"기타"},
    };
    for (const Row& row : rows) {
        for (int code = row.first; code <= row.last; ++code) {
            const QChar text[] = {QChar(code), u'가'};
            ASSERT_EQ(finding::ClassifyInitial(QStringView(text, 2)), row.bucket)
                << std::hex << code;
        }
    }
    EXPECT_EQ(finding::ClassifyInitial(QStringView()), QStringView());
}

FilterRoot RootOf(Category category, const QStringList& texts, const QList<int>& checked = {})
{
    const QString key = finding::RowOf(category).key.toString();
    FilterRoot root{category, u"caption"_s, {}};
    for (const QString& text : texts) {
        root.children.push_back(FilterNode{u"find"_s + key + u'_' + text, text});
    }
    for (const int child : checked) {
        root.children[static_cast<std::size_t>(child)].checked = true;
    }
    return root;
}

TEST(CategoryActive, OnlyWhenItsMarksAreMixed)
{
    const QStringList two{u"a"_s, u"b"_s};
    EXPECT_FALSE(IsCategoryActive(RootOf(Category::Maker, {})));
    EXPECT_FALSE(IsCategoryActive(RootOf(Category::Maker, {u"a"_s}, {0})))
        << "a single child never filters";
    EXPECT_FALSE(IsCategoryActive(RootOf(Category::Maker, two)));
    EXPECT_TRUE(IsCategoryActive(RootOf(Category::Maker, two, {0})));
    EXPECT_TRUE(IsCategoryActive(RootOf(Category::Maker, two, {1})));
    EXPECT_FALSE(IsCategoryActive(RootOf(Category::Maker, two, {0, 1})))
        << "all checked filter nothing";
}

GameEntry Game(const QString& titleK, const QString& titleE = QString())
{
    GameEntry entry;
    entry.TitleK = titleK;
    entry.TitleE = titleE;
    return entry;
}

class FilterIndexTest : public testing::Test {
protected:
    finding::FilterIndex Build(const std::vector<FilterRoot>& roots)
    {
        m_tree.roots = roots;
        return BuildFilterIndex(
            m_tree, {m_catalogue, m_builds, m_korean, u"not a filter"_s, u" [압축]"_s});
    }

    FilterTree m_tree;
    GameEntries m_catalogue;
    QStringList m_builds{u"0.74"_s, u"Windows"_s};
    bool m_korean = true;
};

TEST_F(FilterIndexTest, EachCategoryReadsItsFieldExactly)
{
    const std::pair<Category, QString GameEntry::*> fields[] = {
        {Category::GenreK, &GameEntry::GenreK},
        {Category::GenreE, &GameEntry::GenreE},
        {Category::Maker, &GameEntry::Maker},
        {Category::Release, &GameEntry::Release},
        {Category::GameLanguage, &GameEntry::GameLanguage},
        {Category::Country, &GameEntry::Country},
    };
    for (const auto& [category, field] : fields) {
        m_catalogue = {{}, {}, {}, {}};
        m_catalogue[1].*field = u"Value"_s;
        m_catalogue[2].*field = u"value"_s;
        m_catalogue[3].*field = u"Value "_s;
        const FilterRoot root = RootOf(category, {u"Value"_s, u"Value "_s, u"value"_s}, {0});
        EXPECT_THAT(Build({root}), Optional(ElementsAre(1))) << static_cast<int>(category);
    }
}

TEST_F(FilterIndexTest, TitlesByInitialByLetterAndByStoreMark)
{
    m_catalogue = {
        Game(u"까치 [압축]"_s, u"zebra"_s),
        Game(u"2048"_s, u"1942"_s),
        Game(u"1942"_s, u"2048"_s),
        Game(u"apple"_s, u"~tilde"_s),
        Game(u"[x]"_s, u"Apple [압축]"_s),
        Game(QString(), QString()),
        Game(u"~tilde"_s, u"?"_s)};
    const QStringList initials{u"ㄱ"_s, u"123"_s, u"ABC"_s, u"~!@#"_s};
    const QStringList letters{u"A"_s, u"Z"_s, u"123"_s, u"~!@#"_s};
    const QStringList store{u"no"_s, u"yes"_s};
    struct Row {
        FilterRoot root;
        std::vector<int> korean;
        std::vector<int> english;
    };
    const Row rows[] = {
        {RootOf(Category::Initial, initials, {0}), {0}, {}},
        {RootOf(Category::Initial, initials, {1}), {1, 2}, {1, 2}},
        {RootOf(Category::Initial, initials, {2}), {3}, {0, 4}},
        {RootOf(Category::Initial, initials, {3}), {4, 6}, {3, 6}},
        {RootOf(Category::Initial, initials, {0, 2}), {0, 3}, {0, 4}},
        {RootOf(Category::Letter, letters, {0}), {3}, {4}},
        {RootOf(Category::Letter, letters, {1}), {}, {0}},
        {RootOf(Category::Letter, letters, {2}), {2}, {1}},
        {RootOf(Category::Letter, letters, {3}), {6}, {3}},
        {RootOf(Category::Store, store, {0}), {0}, {4}},
        {RootOf(Category::Store, store, {1}), {1, 2, 3, 4, 5, 6}, {0, 1, 2, 3, 5, 6}},
    };
    for (const Row& row : rows) {
        for (const bool korean : {true, false}) {
            m_korean = korean;
            const std::vector<int>& expected = korean ? row.korean : row.english;
            const finding::FilterIndex index = Build({row.root});
            EXPECT_EQ(index.value_or(std::vector<int>{}), expected)
                << static_cast<int>(row.root.category);
            EXPECT_EQ(index.has_value(), !expected.empty()) << "none at all ends the rebuild";
        }
    }
}

TEST_F(FilterIndexTest, CategoriesCombineByAndAndABuildOutOfBoundsEndsIt)
{
    m_catalogue = {Game(u"가"_s), Game(u"나"_s), Game(u"가나"_s), Game(u"다"_s)};
    m_catalogue[0].DosboxVersion = 1;
    m_catalogue[1].DosboxVersion = 101;
    m_catalogue[2].DosboxVersion = 0;
    m_catalogue[3].DosboxVersion = 100; // in the bounds, without a name
    const FilterRoot initial = RootOf(Category::Initial, {u"ㄱ"_s, u"ㄴ"_s, u"ㄷ"_s}, {0});
    const FilterRoot build = RootOf(Category::Build, m_builds, {1});
    EXPECT_THAT(Build({}), Optional(ElementsAre(0, 1, 2, 3)));
    EXPECT_THAT(Build({initial}), Optional(ElementsAre(0, 2)));
    EXPECT_EQ(Build({build}), std::nullopt);
    EXPECT_THAT(Build({build, initial}), Optional(ElementsAre(0))) << "it was dropped before";
    m_catalogue[1].DosboxVersion = -1;
    EXPECT_EQ(Build({build}), std::nullopt);
    m_catalogue[1].DosboxVersion = 1;
    EXPECT_THAT(Build({build}), Optional(ElementsAre(0, 1)));
    m_catalogue.clear();
    EXPECT_THAT(Build({}), Optional(ElementsAre())) << "an empty Catalogue is no miss of a filter";
    EXPECT_EQ(Build({initial}), std::nullopt);
}

TEST(CheckMarks, BothEventsByNodeText)
{
    enum Event { On, Off, Click };
    struct Row {
        const char* what;
        Event event;
        int child;      // -1: the root, -2: the root without children, 9: none such
        QString before; // marks of the root and its children "caption", "a", "b", "a"
        QString after;
        bool refreshes;
    };
    const Row rows[] = {
        {"box on", On, 1, u"-----"_s, u"--x--"_s, true},
        {"box on, another was", On, 2, u"--x--"_s, u"---x-"_s, true},
        {"box on, its twin was", On, 1, u"----x"_s, u"--x-x"_s, true},
        {"box off", Off, 2, u"---x-"_s, u"-----"_s, true},
        {"root on keeps its name alike", On, -1, u"-xx--"_s, u"xx---"_s, true},
        {"root off", Off, -1, u"x-x--"_s, u"-----"_s, true},
        {"childless root on", On, -2, u"-"_s, u"x"_s, false},
        {"childless root off", Off, -2, u"x"_s, u"-"_s, false},
        {"label of an unchecked one", Click, 2, u"-xx--"_s, u"---x-"_s, true},
        {"label of a checked one clears", Click, 2, u"---x-"_s, u"-----"_s, true},
        {"label, its twin stays", Click, 1, u"--x-x"_s, u"----x"_s, true},
        {"root's label clears all", Click, -1, u"xxxxx"_s, u"-----"_s, true},
        {"childless root's label", Click, -2, u"x"_s, u"-"_s, false},
        {"a node that is gone", On, 9, u"--x--"_s, u"--x--"_s, false},
        {"its label", Click, 9, u"--x--"_s, u"--x--"_s, false},
    };
    for (const Row& row : rows) {
        FilterTree tree;
        const bool childless = row.child == -2;
        const QStringList texts{u"caption"_s, u"a"_s, u"b"_s, u"a"_s};
        tree.roots = {
            RootOf(Category::GenreK, texts, {1}),
            RootOf(Category::Maker, childless ? QStringList() : texts)};
        FilterRoot& root = tree.roots[1];
        const auto marks = [&] {
            QString text(root.checked ? u'x' : u'-');
            for (const FilterNode& node : root.children) {
                text += node.checked ? u'x' : u'-';
            }
            return text;
        };
        root.checked = row.before[0] == u'x';
        for (std::size_t i = 0; i < root.children.size(); ++i) {
            root.children[i].checked = row.before[static_cast<qsizetype>(i) + 1] == u'x';
        }
        const finding::NodePlace place{Category::Maker, qMax(row.child, -1)};
        EXPECT_EQ(
            row.event == Click ? ClickNode(tree, place) : ToggleNode(tree, place, row.event == On),
            row.refreshes)
            << row.what;
        EXPECT_EQ(marks(), row.after) << row.what;
        EXPECT_TRUE(tree.roots[0].children[1].checked) << "another category is left alone";
    }
}

} // namespace
