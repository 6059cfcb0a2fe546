#include "library/Catalogue.h"

#include "LibraryFixture.h"
#include "library/IconSheet.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::Catalogue;
using library::GameEntry;
using library::IconSheet;

namespace {

struct Three {
    Catalogue catalogue;
    IconSheet icons;

    void Remove(const QSet<QString>& folders) { icons.Remove(catalogue.Remove(folders)); }

    Three()
    {
        for (const QString& folder : {u"long name"_s, u"name"_s, u"other"_s}) {
            library::GameEntry entry;
            entry.Folder = folder;
            entry.ListIndex = static_cast<std::int16_t>(catalogue.size() + 1);
            icons.Append(test::NumberedIcon(entry.ListIndex));
            catalogue.Append(entry);
        }
    }
};

TEST(CatalogueTest, FindsByNameAndBySuffix)
{
    const Three three;
    EXPECT_EQ(library::PositionOf(three.catalogue, u"name"_s), 1);
    EXPECT_EQ(library::PositionBySuffix(three.catalogue, u"name"_s), 0);
    EXPECT_EQ(library::PositionOf(three.catalogue, u"NAME"_s), -1);
    EXPECT_EQ(library::PositionBySuffix(three.catalogue, QString()), -1);
}

TEST(CatalogueTest, RemovalClosesTheGap)
{
    Three three;
    three.Remove({u"name"_s});
    ASSERT_EQ(three.catalogue.size(), 2U);
    ASSERT_EQ(three.icons.Count(), 2);
    EXPECT_EQ(three.catalogue[1].Folder, u"other"_s);
    EXPECT_EQ(three.catalogue[1].ListIndex, 2);
    EXPECT_EQ(three.icons.Large(1).bgr, test::NumberedIcon(3).bgr);
    three.Remove({u"name"_s});
    EXPECT_EQ(three.catalogue.size(), 2U);
    three.Remove({u"other"_s, u"long name"_s});
    EXPECT_TRUE(three.catalogue.empty());
    EXPECT_EQ(three.icons.Count(), 0);
}

TEST(CatalogueTest, AGameThatStandsTwiceGoesTwice)
{
    Three three;
    three.catalogue.Edit(2, [](GameEntry& entry) { entry.Folder = u"long name"_s; });
    three.Remove({u"long name"_s});
    ASSERT_EQ(three.catalogue.size(), 1U);
    ASSERT_EQ(three.icons.Count(), 1);
    EXPECT_EQ(three.catalogue[0].ListIndex, 1);
    EXPECT_EQ(three.icons.Large(0).bgr, test::NumberedIcon(2).bgr);
}

// What is counted along with each change is what a count of all games gives.
TEST(CatalogueTest, TheValuesFollowEveryChange)
{
    std::mt19937 random(2026);
    const auto pick = [&](int below) {
        return std::uniform_int_distribution<int>(0, below - 1)(random);
    };
    const auto game = [&](int number) {
        GameEntry entry;
        entry.Folder = QString::number(number);
        for (QString GameEntry::*fact : library::kSharedFacts) {
            entry.*fact = QString(pick(3), QChar(u'a' + static_cast<char16_t>(pick(2))));
        }
        return entry;
    };
    Catalogue kept(library::GameEntries{game(0), game(1), game(2)});
    for (int round = 0; round < 300; ++round) {
        const int size = static_cast<int>(kept.size());
        if (const int deed = pick(3); deed == 0 || size == 0) {
            kept.Append(game(pick(20)));
        } else if (deed == 1) {
            kept.Edit(pick(size), [&](GameEntry& entry) { entry = game(pick(20)); });
        } else {
            kept.Remove({QString::number(pick(20))});
        }
        const Catalogue fresh(library::GameEntries(kept.begin(), kept.end()));
        for (std::size_t i = 0; i < library::kSharedFacts.size(); ++i) {
            const auto fact = static_cast<library::Fact>(i);
            ASSERT_EQ(kept.Values(fact), fresh.Values(fact)) << "round " << round;
        }
    }
}

} // namespace
