#include "forms/FilterTreeView.h"

#include "forms/CellDelegate.h"
#include "forms/Metrics.h"

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

QVariant FilterTreeModel::data(const QModelIndex& index, int role) const
{
    if (const finding::FilterNode* node = Node(index)) {
        switch (role) {
        case Qt::DisplayRole: return node->text;
        case Qt::CheckStateRole: return node->checked ? Qt::Checked : Qt::Unchecked;
        default: return {};
        }
    }
    const auto row = static_cast<std::size_t>(index.row());
    const bool root = index.isValid() && index.internalId() == kRootId && row < m_tree.roots.size();
    return root && role == Qt::DisplayRole ? QVariant(m_tree.roots[row].text) : QVariant();
}

bool FilterTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || Node(index) == nullptr) {
        return false;
    }
    // By value: the deed may rebuild the tree.
    const QString key = m_tree.roots[static_cast<std::size_t>(index.internalId() - 1)].key;
    Do(m_deeds.TreeView1_NodeCheck, key, index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags FilterTreeModel::flags(const QModelIndex& index) const
{
    if (Node(index) == nullptr) {
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    }
    const Qt::ItemFlags checkable = Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren;
    return m_deeds.TreeView1_NodeCheck ? checkable | Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                       : checkable;
}

FilterTreeView::FilterTreeView(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QTreeView(parent)
    , m_tree(shown.screens.tree)
    , m_model(m_tree, deeds)
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
    ShowExpanded();
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
