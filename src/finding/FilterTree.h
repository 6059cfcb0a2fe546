#pragma once

#include "platform/Notifier.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace pelorin::finding {

/// Builds that can be filtered by; games of others are out of bounds.
constexpr int kMostBuilds = 101;

/// A child of a category, with a check mark.
struct FilterNode {
    QString key; // prefix and value ("findgenrek_" and the genre)
    QString text;
    bool checked = false;
};

struct FilterRoot {
    QString key; // "genrek", "genree", "ganada" ...
    QString text;
    std::vector<FilterNode> children;
    bool checked = false;  // filters nothing; its box clears the category
    bool expanded = false; // written by the form
};

/// A node's place.
struct NodePlace {
    QString rootKey;
    int child = -1; // place below its category; -1: the category itself
};

/// What TreeView1 holds: ten categories in a fixed order.
struct FilterTree {
    enum Changed : std::uint32_t { Nodes = 1, Checks = 2 };

    std::vector<FilterRoot> roots;

    platform::Notifier changed;

    /// nullptr if there is no such category.
    FilterRoot* Root(const QString& key);
    const FilterRoot* Root(const QString& key) const;
};

/// The search box beside it.
struct SearchBox {
    enum Changed : std::uint32_t { Text = 1, Focus = 2 };

    QString txtFind;

    platform::Notifier changed;
};

} // namespace pelorin::finding
