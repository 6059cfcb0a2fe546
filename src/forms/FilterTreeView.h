#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QAbstractItemModel>
#include <QMouseEvent>
#include <QTreeView>

#include <cstdint>
#include <optional>
#include <utility>

namespace pelorin::forms {

/// FilterTree for a Qt view: categories, and below each its values with check marks.
class FilterTreeModel : public QAbstractItemModel {
public:
    /// Both outlive the model.
    FilterTreeModel(const finding::FilterTree& tree, const Deeds& deeds, QObject* parent = nullptr);

    void Follow(std::uint32_t changed);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// The user's check mark: it is the deed that writes the tree.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    std::optional<finding::NodePlace> PlaceOf(const QModelIndex& index) const;
    /// Whether a box was toggled since the last question.
    bool TakeToggled() { return std::exchange(m_toggled, false); }

private:
    const finding::FilterRoot* Root(const QModelIndex& index) const;
    const finding::FilterNode* Node(const QModelIndex& index) const;
    QVariant RootData(const finding::FilterRoot& root, int role) const;

    const finding::FilterTree& m_tree;
    const Deeds& m_deeds;
    bool m_toggled = false;
};

/// TreeView1.
class FilterTreeView : public QTreeView {
public:
    FilterTreeView(const Shown& shown, const Deeds& deeds, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Follow(std::uint32_t changed);
    void ShowExpanded();
    void LabelClicked(const QModelIndex& index);

    finding::FilterTree& m_tree;
    FilterTreeModel m_model;
    const Deeds& m_deeds;
    bool m_secondClick = false; // the press was that of a double click
    Listening m_listening;
};

} // namespace pelorin::forms
