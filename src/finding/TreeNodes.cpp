#include "finding/TreeNodes.h"

#include "shell/LangTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::finding {

namespace {

constexpr QStringView kInitials = u"ㄱㄴㄷㄹㅁㅂㅅㅇㅈㅊㅋㅌㅍㅎ";

/// What a child's key begins with; a word of the child's own follows.
QString KeyPrefix(Category category)
{
    return u"find"_s + RowOf(category).key.toString() + u'_';
}

void AddChildren(FilterTree& tree, Category category, const QStringList& texts)
{
    FilterRoot* root = tree.Root(category);
    const QString prefix = KeyPrefix(category);
    for (const QString& text : texts) {
        root->children.push_back(FilterNode{prefix + text, text, false});
    }
}

QStringList SingleCharacters(QStringView characters)
{
    QStringList texts;
    for (const QChar c : characters) {
        texts << QString(c);
    }
    return texts;
}

/// A node for each value, unchecked. Both come in one order, and after a change of one game nearly
/// all nodes are those that stood there: their texts stay where they are.
void FillValues(FilterRoot& root, const library::ValueCounts& values)
{
    const QString prefix = KeyPrefix(root.category);
    std::vector<FilterNode> former = std::move(root.children);
    root.children.clear();
    root.children.reserve(values.size());
    auto old = former.begin();
    for (const auto& [value, games] : values) {
        if (IsBlankValue(value)) {
            continue;
        }
        while (old != former.end() && old->text != value && old->text < value) {
            ++old;
        }
        if (old != former.end() && old->text == value) {
            old->checked = false;
            root.children.push_back(std::move(*old++));
        } else {
            root.children.push_back(FilterNode{prefix + value, value, false});
        }
    }
}

} // namespace

bool IsBlankValue(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c == u' '; });
}

void BuildTreeSkeleton(
    FilterTree& tree, const shell::LangTable& lang, const QStringList& buildNames)
{
    std::vector<FilterRoot> roots;
    for (const CategoryRow& row : kCategories) {
        const FilterRoot* former = tree.Root(row.category);
        roots.push_back(FilterRoot{
            row.category,
            lang[row.captionEntry],
            {},
            false,
            former != nullptr && former->expanded});
    }
    tree.roots = std::move(roots);

    AddChildren(tree, Category::Initial, SingleCharacters(kInitials));
    AddChildren(tree, Category::Initial, {u"123"_s, u"ABC"_s, u"~!@#"_s});
    AddChildren(tree, Category::Letter, SingleCharacters(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    AddChildren(tree, Category::Letter, {u"123"_s, u"~!@#"_s});
    const QString store = KeyPrefix(Category::Store);
    tree.Root(Category::Store)->children = {
        FilterNode{store + u"no"_s, lang[41]}, FilterNode{store + u"yes"_s, lang[42]}};
    const QStringList possible = buildNames.mid(0, kMostBuilds);
    const auto end = std::find_if(possible.begin(), possible.end(), IsBlankValue);
    AddChildren(tree, Category::Build, QStringList(possible.begin(), end));
    tree.changed.Tell(FilterTree::Nodes);
}

void RefillValueNodes(FilterTree& tree, const library::Catalogue& catalogue)
{
    for (const CategoryRow& row : kCategories) {
        FilterRoot* const root = tree.Root(row.category);
        if (root != nullptr && row.fact) {
            FillValues(*root, catalogue.Values(*row.fact));
        }
    }
    tree.changed.Tell(FilterTree::Nodes);
}

QStringList ChildTexts(const FilterTree& tree, Category category)
{
    QStringList texts;
    if (const FilterRoot* root = tree.Root(category)) {
        for (const FilterNode& node : root->children) {
            texts << node.text;
        }
    }
    return texts;
}

} // namespace pelorin::finding
