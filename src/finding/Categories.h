#pragma once

#include "library/GameEntry.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <optional>

namespace pelorin::finding {

/// The categories of the tree, in its order.
enum class Category {
    GenreK,
    GenreE,
    Initial,
    Letter,
    Store,
    Build,
    Maker,
    Release,
    GameLanguage,
    Country,
};

struct CategoryRow {
    Category category = Category::GenreK;
    QStringView key;                   // what the keys of its children are made of
    int captionEntry = 0;              // text of the language file
    std::optional<library::Fact> fact; // whose values its children are; none: they are fixed
};

// "language" holds the times of release and "released" the languages: the keys are crossed, the
// captions are those of the contents.
inline constexpr std::array<CategoryRow, 10> kCategories{{
    {Category::GenreK, u"genrek", 30, library::Fact::GenreK},
    {Category::GenreE, u"genree", 13, library::Fact::GenreE},
    {Category::Initial, u"ganada", 31, std::nullopt},
    {Category::Letter, u"alphabet", 32, std::nullopt},
    {Category::Store, u"store", 40, std::nullopt},
    {Category::Build, u"executer", 295, std::nullopt},
    {Category::Maker, u"publisher", 307, library::Fact::Maker},
    {Category::Release, u"language", 308, library::Fact::Release},
    {Category::GameLanguage, u"released", 309, library::Fact::GameLanguage},
    {Category::Country, u"country", 310, library::Fact::Country},
}};

static_assert(
    [] {
        for (std::size_t i = 0; i < kCategories.size(); ++i) {
            if (kCategories[i].category != static_cast<Category>(i)) {
                return false;
            }
        }
        return true;
    }(),
    "RowOf looks a category up by its number");

constexpr const CategoryRow& RowOf(Category category)
{
    return kCategories[static_cast<std::size_t>(category)];
}

} // namespace pelorin::finding
