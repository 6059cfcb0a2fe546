#include "finding/TreeNodes.h"

#include "shell/LangTable.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace pelorin::finding {

namespace {

using library::GameEntry;

struct RootRow {
    QStringView key;
    int captionEntry = 0;
};

constexpr std::array<RootRow, 10> kRoots{{
    {u"genrek", 30},
    {u"genree", 13},
    {u"ganada", 31},
    {u"alphabet", 32},
    {u"store", 40},
    {u"executer", 295},
    {u"publisher", 307},
    {u"language", 308},
    {u"released", 309},
    {u"country", 310},
}};

struct ValueCategory {
    QStringView key;
    QString GameEntry::*field = nullptr;
};

// "language" holds the times of release and "released" the languages: the keys are crossed, the
// captions are those of the contents.
constexpr std::array<ValueCategory, 6> kValueCategories{{
    {u"genrek", &GameEntry::GenreK},
    {u"genree", &GameEntry::GenreE},
    {u"publisher", &GameEntry::Maker},
    {u"language", &GameEntry::Release},
    {u"released", &GameEntry::GameLanguage},
    {u"country", &GameEntry::Country},
}};

constexpr QStringView kInitials = u"ㄱㄴㄷㄹㅁㅂㅅㅇㅈㅊㅋㅌㅍㅎ";

/// What a child's key begins with; a word of the child's own follows.
QString KeyPrefix(QStringView rootKey)
{
    return u"find"_s + rootKey.toString() + u'_';
}

void AddChildren(FilterTree& tree, QStringView rootKey, const QStringList& texts)
{
    FilterRoot* root = tree.Root(rootKey.toString());
    const QString prefix = KeyPrefix(rootKey);
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
    const QString prefix = KeyPrefix(root.key);
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
    for (const RootRow& row : kRoots) {
        const QString key = row.key.toString();
        const FilterRoot* former = tree.Root(key);
        roots.push_back(FilterRoot{
            key, lang[row.captionEntry], {}, false, former != nullptr && former->expanded});
    }
    tree.roots = std::move(roots);

    AddChildren(tree, u"ganada", SingleCharacters(kInitials));
    AddChildren(tree, u"ganada", {u"123"_s, u"ABC"_s, u"~!@#"_s});
    AddChildren(tree, u"alphabet", SingleCharacters(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
    AddChildren(tree, u"alphabet", {u"123"_s, u"~!@#"_s});
    const QString store = KeyPrefix(u"store");
    tree.Root(u"store"_s)->children = {
        FilterNode{store + u"no"_s, lang[41]}, FilterNode{store + u"yes"_s, lang[42]}};
    const QStringList possible = buildNames.mid(0, kMostBuilds);
    const auto end = std::find_if(possible.begin(), possible.end(), IsBlankValue);
    AddChildren(tree, u"executer", QStringList(possible.begin(), end));
    tree.changed.Tell(FilterTree::Nodes);
}

void RefillValueNodes(FilterTree& tree, const library::Catalogue& catalogue)
{
    for (const ValueCategory& category : kValueCategories) {
        FilterRoot* root = tree.Root(category.key.toString());
        if (root == nullptr) {
            continue;
        }
        FillValues(*root, catalogue.Values(category.field));
    }
    tree.changed.Tell(FilterTree::Nodes);
}

QStringList ChildTexts(const FilterTree& tree, const QString& rootKey)
{
    QStringList texts;
    if (const FilterRoot* root = tree.Root(rootKey)) {
        for (const FilterNode& node : root->children) {
            texts << node.text;
        }
    }
    return texts;
}

} // namespace pelorin::finding
