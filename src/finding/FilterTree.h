#pragma once

#include "finding/Categories.h"
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
    Category category = Category::GenreK;
    QString text;
    std::vector<FilterNode> children;
    bool checked = false;  // filters nothing; its box clears the category
    bool expanded = false; // written by the form
};

/// A node's place.
struct NodePlace {
    Category category = Category::GenreK;
    int child = -1; // place below its category; -1: the category itself
};

/// What TreeView1 holds: the categories in their order; none before it is built.
struct FilterTree {
    enum Changed : std::uint32_t { Nodes = 1, Checks = 2 };

    std::vector<FilterRoot> roots;

    platform::Notifier changed;

    /// nullptr before it is built.
    FilterRoot* Root(Category category);
    const FilterRoot* Root(Category category) const;
};

/// The search box beside it.
struct SearchBox {
    enum Changed : std::uint32_t { Text = 1, Focus = 2 };

    QString txtFind;

    platform::Notifier changed;
};

} // namespace pelorin::finding
