#pragma once

#include "finding/GameList.h"
#include "library/IconSheet.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QIcon>

#include <cstdint>

namespace pelorin::forms {

/// GameList for Qt's views: a row a game, a column a fact. It holds no content but the pixmaps of
/// icons that were painted.
class GameListModel : public QAbstractTableModel {
public:
    /// Both outlive the model.
    GameListModel(
        const finding::GameList& list, const library::IconSheet& icons, QObject* parent = nullptr);

    /// Passes on which parts of the list have changed.
    void Follow(std::uint32_t changed);
    /// The side that icons are painted at, in logical pixels.
    void SetIconSize(int side, double devicePixelRatio);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QIcon Icon(int listIndex) const;

    const finding::GameList& m_list;
    const library::IconSheet& m_icons;
    int m_side = library::kSmallIcon;
    double m_ratio = 1.0;
    mutable QCache<int, QIcon> m_painted; // by listIndex; cost in bytes
};

} // namespace pelorin::forms
