#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>

#include <functional>

namespace pelorin::forms {

/// Texts of a screen model for Qt's views.
class TextListModel : public QAbstractListModel {
public:
    /// `rows` outlives the model.
    explicit TextListModel(const QStringList& rows, QObject* parent = nullptr)
        : QAbstractListModel(parent)
        , m_rows(rows)
    {}

    void Reset()
    {
        beginResetModel();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const QStringList& m_rows;
};

/// A one-column list over a screen model's texts and its selected row. The user's row is written
/// into the model; ShowRows and ShowRow take over what the program has put there.
class RowList : public QListView {
public:
    /// Both outlive the list.
    RowList(const QStringList& rows, int& row, QWidget* parent = nullptr);

    void ShowRows();
    void ShowRow();
    /// A double click on a row, or Enter.
    void SetActivated(std::function<void(int row)> activated)
    {
        m_activated = std::move(activated);
    }
    /// The user went to another row.
    void SetRowChosen(std::function<void(int row)> chosen) { m_chosen = std::move(chosen); }
    /// The Delete key, once a press.
    void SetDeleted(std::function<void(int row)> deleted) { m_deleted = std::move(deleted); }
    /// The right button or the menu key, with the place of the screen for a menu.
    void SetMenu(std::function<void(QPoint position)> menu) { m_menu = std::move(menu); }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    TextListModel m_model;
    int& m_row;
    bool m_showing = false; // the program changes the list, not the user
    std::function<void(int row)> m_activated;
    std::function<void(int row)> m_chosen;
    std::function<void(int row)> m_deleted;
    std::function<void(QPoint position)> m_menu;
};

} // namespace pelorin::forms
