#include "forms/TextListModel.h"

#include "forms/Texts.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace pelorin::forms {

int TextListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TextListModel::data(const QModelIndex& index, int role) const
{
    const bool shown = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!shown || index.row() < 0 || index.row() >= m_rows.size()) {
        return {};
    }
    const QString& text = m_rows[index.row()];
    return role == Qt::ToolTipRole ? AsToolTip(text) : text;
}

RowList::RowList(const QStringList& rows, int& row, QWidget* parent)
    : QListView(parent)
    , m_model(rows)
    , m_row(row)
{
    // Taking the model tells of a current row that is none.
    m_showing = true;
    setModel(&m_model);
    m_showing = false;
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    connect(this, &QListView::doubleClicked, this, [this](const QModelIndex& index) {
        if (m_activated) {
            m_activated(index.row());
        }
    });
    ShowRows();
}

void RowList::ShowRows()
{
    m_showing = true;
    m_model.Reset();
    m_showing = false;
    ShowRow();
}

void RowList::ShowRow()
{
    m_showing = true;
    setCurrentIndex(m_model.index(m_row, 0));
    m_showing = false;
}

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (m_showing) {
        return;
    }
    m_row = current.row();
    if (m_chosen) {
        m_chosen(m_row);
    }
}

void RowList::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && m_activated && currentIndex().isValid()) {
        if (!event->isAutoRepeat()) {
            m_activated(currentIndex().row());
        }
        return;
    }
    if (event->key() == Qt::Key_Delete && m_deleted && currentIndex().isValid()) {
        if (!event->isAutoRepeat()) {
            m_deleted(currentIndex().row());
        }
        return;
    }
    QListView::keyPressEvent(event);
}

void RowList::contextMenuEvent(QContextMenuEvent* event)
{
    if (!m_menu) {
        QListView::contextMenuEvent(event);
        return;
    }
    const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
    m_menu(
        keyboard ? viewport()->mapToGlobal(visualRect(currentIndex()).center())
                 : event->globalPos());
}

} // namespace pelorin::forms
