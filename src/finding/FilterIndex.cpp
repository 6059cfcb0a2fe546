#include "finding/FilterIndex.h"

#include "finding/ClassifyInitial.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>

using namespace Qt::StringLiterals;

namespace pelorin::finding {

namespace {

using library::GameEntry;

/// Whether a game passes a category.
using Test = std::function<bool(const GameEntry& entry)>;

/// The texts of the category's checked children.
QStringList CheckedTexts(const FilterRoot& root)
{
    QStringList texts;
    for (const FilterNode& node : root.children) {
        if (node.checked) {
            texts << node.text;
        }
    }
    return texts;
}

Test ByFact(const FilterRoot& root)
{
    const library::Fact fact = *RowOf(root.category).fact;
    return [texts = CheckedTexts(root), field = FieldOf(fact)](const GameEntry& entry) {
        return texts.contains(entry.*field);
    };
}

Test ByInitial(const FilterRoot& root, const ListSource& source)
{
    std::vector<QStringView> buckets;
    for (const QString& text : CheckedTexts(root)) {
        buckets.push_back(ClassifyInitial(text));
    }
    return [buckets, korean = source.TitleLanguageKorean](const GameEntry& entry) {
        const QStringView bucket = ClassifyInitial(TitleOf(entry, korean));
        return std::find(buckets.begin(), buckets.end(), bucket) != buckets.end();
    };
}

/// By the first character alone: here the node of digits passes titles with a 1, and the one of
/// signs those with a tilde.
Test ByLetter(const FilterRoot& root, const ListSource& source)
{
    QString letters;
    for (const QString& text : CheckedTexts(root)) {
        letters += text.left(1).toUpper();
    }
    return [letters, korean = source.TitleLanguageKorean](const GameEntry& entry) {
        const QString& title = TitleOf(entry, korean);
        return !title.isEmpty() && letters.contains(title.front().toUpper());
    };
}

Test ByBuild(const FilterRoot& root, const ListSource& source)
{
    const QStringList texts = CheckedTexts(root);
    std::vector<bool> passes;
    for (const QString& name : source.buildNames) {
        passes.push_back(texts.contains(name));
    }
    return [passes](const GameEntry& entry) {
        const auto build = static_cast<std::size_t>(entry.DosboxVersion);
        return build < passes.size() && passes[build];
    };
}

/// The node for games that are not stored is the one that passes stored ones, and the other way
/// round; their captions say what they do.
Test ByStoreMark(const FilterRoot& root, const ListSource& source)
{
    const auto checked = [&](const QString& key) {
        return std::any_of(root.children.begin(), root.children.end(), [&](const FilterNode& node) {
            return node.checked && node.key == key;
        });
    };
    return [stored = checked(u"findstore_no"_s),
            unstored = checked(u"findstore_yes"_s),
            mark = source.storeMark,
            korean = source.TitleLanguageKorean](const GameEntry& entry) {
        return TitleHasStoreMark(TitleOf(entry, korean), mark) ? stored : unstored;
    };
}

// In the order in which they narrow the index down; it decides which games the builds judge.
constexpr std::array<Category, kCategories.size()> kNarrowing{
    Category::GenreK,
    Category::GenreE,
    Category::Initial,
    Category::Letter,
    Category::Build,
    Category::Store,
    Category::Maker,
    Category::Release,
    Category::GameLanguage,
    Category::Country,
};

Test TestOf(const FilterRoot& root, const ListSource& source)
{
    switch (root.category) {
    case Category::Initial: return ByInitial(root, source);
    case Category::Letter: return ByLetter(root, source);
    case Category::Store: return ByStoreMark(root, source);
    case Category::Build: return ByBuild(root, source);
    default: return ByFact(root);
    }
}

bool BuildOutOfBounds(const GameEntry& entry)
{
    return entry.DosboxVersion < 0 || entry.DosboxVersion >= kMostBuilds;
}

} // namespace

bool IsCategoryActive(const FilterRoot& root)
{
    return std::any_of(root.children.begin(), root.children.end(), [&](const FilterNode& node) {
        return node.checked != root.children.front().checked;
    });
}

bool TitleHasStoreMark(const QString& title, const QString& storeMark)
{
    return title.contains(storeMark);
}

FilterIndex BuildFilterIndex(const FilterTree& tree, const ListSource& source)
{
    const library::GamesView catalogue = source.catalogue;
    const auto entryAt = [&](int position) -> const GameEntry& {
        return catalogue[static_cast<std::size_t>(position)];
    };
    const auto outOfBounds = [&](int position) { return BuildOutOfBounds(entryAt(position)); };
    std::vector<int> index(catalogue.size());
    std::iota(index.begin(), index.end(), 0);
    for (const Category category : kNarrowing) {
        const FilterRoot* const root = tree.Root(category);
        if (root == nullptr || !IsCategoryActive(*root)) {
            continue;
        }
        if (category == Category::Build && std::any_of(index.begin(), index.end(), outOfBounds)) {
            return std::nullopt;
        }
        const Test passes = TestOf(*root, source);
        const auto dropped = [&](int position) { return !passes(entryAt(position)); };
        index.erase(std::remove_if(index.begin(), index.end(), dropped), index.end());
        if (index.empty()) {
            return std::nullopt;
        }
    }
    return index;
}

} // namespace pelorin::finding
