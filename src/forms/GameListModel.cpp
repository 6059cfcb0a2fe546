#include "forms/GameListModel.h"

#include "forms/Pictures.h"
#include "forms/Texts.h"

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

constexpr int kIconBytes = 24 * 1024 * 1024;
constexpr int kReleaseColumn = 5;

} // namespace

GameListModel::GameListModel(
    const finding::GameList& list, const library::IconSheet& icons, QObject* parent)
    : QAbstractTableModel(parent)
    , m_list(list)
    , m_icons(icons)
    , m_painted(kIconBytes)
{}

void GameListModel::Follow(std::uint32_t changed)
{
    if ((changed & (finding::GameList::Reset | finding::GameList::Icons)) != 0) {
        m_painted.clear();
    }
    if ((changed & finding::GameList::Reset) != 0) {
        beginResetModel();
        endResetModel();
        return;
    }
    if ((changed & (finding::GameList::Rows | finding::GameList::Icons)) != 0 && rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, finding::kColumns - 1));
    }
    if ((changed & finding::GameList::Columns) != 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, finding::kColumns - 1);
    }
}

void GameListModel::SetIconSize(int side, double devicePixelRatio)
{
    if (side != m_side || !qFuzzyCompare(devicePixelRatio, m_ratio)) {
        m_side = side;
        m_ratio = devicePixelRatio;
        m_painted.clear();
    }
}

int GameListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.items.size());
}

int GameListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : finding::kColumns;
}

QVariant GameListModel::data(const QModelIndex& index, int role) const
{
    // The list may have lost rows that the views have not been told of yet.
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= finding::kColumns) {
        return {};
    }
    const finding::GameItem& item = m_list.items[static_cast<std::size_t>(index.row())];
    const QString& text = item.text[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole: return text;
    case Qt::ToolTipRole: return text.isEmpty() ? QVariant() : AsToolTip(text);
    case Qt::DecorationRole:
        return index.column() == 0 ? QVariant(Icon(item.listIndex)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == kReleaseColumn ? QVariant(Qt::AlignCenter) : QVariant();
    default: return {};
    }
}

Qt::ItemFlags GameListModel::flags(const QModelIndex& index) const
{
    // Nothing is edited here, but Qt's views switch the input method off for rows that can't be, and
    // then nobody types Hangul ahead.
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable | Qt::ItemNeverHasChildren : flags;
}

QVariant GameListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool known = orientation == Qt::Horizontal && section >= 0 && section < finding::kColumns;
    if (!known || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const QString& caption = m_list.columnCaptions[static_cast<std::size_t>(section)];
    // A narrow column cuts it; and the key that sorts by it.
    return role == Qt::DisplayRole ? caption : u"%1 (Ctrl+%2)"_s.arg(caption).arg(section + 1);
}

QIcon GameListModel::Icon(int listIndex) const
{
    if (listIndex < 1 || listIndex > m_icons.Count()) {
        return {};
    }
    if (const QIcon* known = m_painted.object(listIndex)) {
        return *known;
    }
    // The small icons are made for 16 dots; where there are more, the large one has more to show.
    const int dots = qRound(m_side * m_ratio);
    const library::IconPixels& icon =
        dots <= library::kSmallIcon ? m_icons.Small(listIndex - 1) : m_icons.Large(listIndex - 1);
    const QPixmap pixmap = IconPixmap(icon, m_side, m_ratio);
    QIcon shown(pixmap);
    // A selected game's icon keeps its colours.
    shown.addPixmap(pixmap, QIcon::Selected);
    m_painted.insert(listIndex, new QIcon(shown), qsizetype{4} * dots * dots);
    return shown;
}

} // namespace pelorin::forms
