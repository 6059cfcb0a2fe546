#include "forms/FilterTreeView.h"

#include "forms/CellDelegate.h"
#include "forms/Metrics.h"
#include "forms/Texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using finding::FilterTree;

namespace {

// What an index points at is told by its number: 0 for a category, else its category's row plus 1.
constexpr quintptr kRootId = 0;

quintptr IdBelow(int rootRow)
{
    return static_cast<quintptr>(rootRow) + 1;
}

} // namespace

FilterTreeModel::FilterTreeModel(const FilterTree& tree, const Deeds& deeds, QObject* parent)
    : QAbstractItemModel(parent)
    , m_tree(tree)
    , m_deeds(deeds)
{}

void FilterTreeModel::Follow(std::uint32_t changed)
{
    if ((changed & FilterTree::Nodes) != 0) {
        beginResetModel();
        endResetModel();
        return;
    }
    for (int root = 0; root < rowCount(); ++root) {
        const QModelIndex parent = index(root, 0);
        const int children = rowCount(parent);
        Q_EMIT dataChanged(parent, parent, {Qt::CheckStateRole, Qt::FontRole});
        if (children > 0) {
            Q_EMIT dataChanged(
                index(0, 0, parent), index(children - 1, 0, parent), {Qt::CheckStateRole});
        }
    }
}

QModelIndex FilterTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || row >= rowCount(parent) || column != 0) {
        return {};
    }
    return createIndex(row, column, parent.isValid() ? IdBelow(parent.row()) : kRootId);
}

QModelIndex FilterTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kRootId) {
        return {};
    }
    return createIndex(static_cast<int>(index.internalId() - 1), 0, kRootId);
}

int FilterTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return static_cast<int>(m_tree.roots.size());
    }
    const auto row = static_cast<std::size_t>(parent.row());
    const bool root = parent.internalId() == kRootId && row < m_tree.roots.size();
    return root ? static_cast<int>(m_tree.roots[row].children.size()) : 0;
}

int FilterTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

const finding::FilterRoot* FilterTreeModel::Root(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const bool root = index.isValid() && index.internalId() == kRootId && row < m_tree.roots.size();
    return root ? &m_tree.roots[row] : nullptr;
}

const finding::FilterNode* FilterTreeModel::Node(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kRootId) {
        return nullptr;
    }
    const auto root = static_cast<std::size_t>(index.internalId() - 1);
    const auto row = static_cast<std::size_t>(index.row());
    const bool there = root < m_tree.roots.size() && row < m_tree.roots[root].children.size();
    return there ? &m_tree.roots[root].children[row] : nullptr;
}

std::optional<finding::NodePlace> FilterTreeModel::PlaceOf(const QModelIndex& index) const
{
    if (const finding::FilterRoot* root = Root(index)) {
        return finding::NodePlace{root->category};
    }
    if (Node(index) == nullptr) {
        return std::nullopt;
    }
    const auto root = static_cast<std::size_t>(index.internalId() - 1);
    return finding::NodePlace{m_tree.roots[root].category, index.row()};
}

QVariant FilterTreeModel::data(const QModelIndex& index, int role) const
{
    if (const finding::FilterRoot* root = Root(index)) {
        return RootData(*root, role);
    }
    const finding::FilterNode* const node = Node(index);
    if (node == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole: return node->text;
    case Qt::ToolTipRole: return AsToolTip(node->text);
    case Qt::CheckStateRole: return node->checked ? Qt::Checked : Qt::Unchecked;
    default: return {};
    }
}

QVariant FilterTreeModel::RootData(const finding::FilterRoot& root, int role) const
{
    switch (role) {
    case Qt::DisplayRole: return root.text;
    case Qt::CheckStateRole: return root.checked ? Qt::Checked : Qt::Unchecked;
    case Qt::FontRole: {
        // Seen also while it is folded: a mark stands below it.
        const bool marked =
            std::any_of(root.children.begin(), root.children.end(), [](const auto& node) {
                return node.checked;
            });
        QFont bold;
        bold.setBold(true);
        return marked ? QVariant(bold) : QVariant();
    }
    default: return {};
    }
}

bool FilterTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const std::optional<finding::NodePlace> place = PlaceOf(index);
    if (role != Qt::CheckStateRole || !place) {
        return false;
    }
    m_toggled = true;
    Do(m_deeds.TreeView1_NodeCheck, *place, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags FilterTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = Qt::ItemIsUserCheckable;
    flags.setFlag(Qt::ItemNeverHasChildren, Node(index) != nullptr);
    // A category can be unfolded whether or not there is a command.
    if (Root(index) != nullptr || m_deeds.TreeView1_NodeCheck) {
        flags |= Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    }
    return flags;
}

FilterTreeView::FilterTreeView(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QTreeView(parent)
    , m_tree(shown.screens.tree)
    , m_model(m_tree, deeds)
    , m_deeds(deeds)
    , m_listening(m_tree.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    setObjectName(u"TreeView1"_s);
    setModel(&m_model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new CellDelegate(this));
    setIndentation(Ems(*this, 1.4));
    setExpandsOnDoubleClick(true);
    const auto keep = [this](const QModelIndex& index, bool expanded) {
        m_tree.roots[static_cast<std::size_t>(index.row())].expanded = expanded;
    };
    connect(this, &QTreeView::expanded, this, [keep](const QModelIndex& i) { keep(i, true); });
    connect(this, &QTreeView::collapsed, this, [keep](const QModelIndex& i) { keep(i, false); });
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& i) { LabelClicked(i); });
    ShowExpanded();
}

void FilterTreeView::mousePressEvent(QMouseEvent* event)
{
    m_secondClick = false;
    m_model.TakeToggled();
    QTreeView::mousePressEvent(event);
}

void FilterTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_secondClick = true;
    m_model.TakeToggled();
    QTreeView::mouseDoubleClickEvent(event);
}

/// Qt tells a click on the box as well, right after the box was toggled.
void FilterTreeView::LabelClicked(const QModelIndex& index)
{
    // A double click unfolds a category and marks a child once.
    const std::optional<finding::NodePlace> place = m_model.PlaceOf(index);
    if (!m_model.TakeToggled() && !m_secondClick && place) {
        Do(m_deeds.TreeView1_NodeClick, *place);
    }
}

void FilterTreeView::Follow(std::uint32_t changed)
{
    m_model.Follow(changed);
    if ((changed & FilterTree::Nodes) != 0) {
        ShowExpanded();
    }
}

void FilterTreeView::ShowExpanded()
{
    for (int root = 0; root < m_model.rowCount(); ++root) {
        if (m_tree.roots[static_cast<std::size_t>(root)].expanded) {
            setExpanded(m_model.index(root, 0), true);
        }
    }
}

} // namespace pelorin::forms
