#pragma once

#include <QStyledItemDelegate>

namespace pelorin::forms {

/// Gives rows some air, and icons a cell of one size, which the selection then fills.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// An empty size: rows as wide as their text.
    void SetCell(QSize cell) { m_cell = cell; }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        if (!m_cell.isEmpty()) {
            return m_cell;
        }
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const int height = option.fontMetrics.height();
        return {size.width() + height / 2, qMax(size.height(), height + height / 2)};
    }

private:
    QSize m_cell;
};

} // namespace pelorin::forms
