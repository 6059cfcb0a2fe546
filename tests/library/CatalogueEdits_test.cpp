#include "library/CatalogueEdits.h"

#include "LibraryFixture.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::Catalogue;
using library::IconSheet;

namespace {

struct Three {
    Catalogue catalogue;
    IconSheet icons;

    Three()
    {
        for (const QString& folder : {u"long name"_s, u"name"_s, u"other"_s}) {
            library::GameEntry entry;
            entry.Folder = folder;
            entry.ListIndex = static_cast<std::int16_t>(catalogue.size() + 1);
            icons.Append(test::NumberedIcon(entry.ListIndex));
            catalogue.push_back(entry);
        }
    }
};

TEST(CatalogueEdits, FindsByNameAndBySuffix)
{
    const Three three;
    EXPECT_EQ(library::PositionOf(three.catalogue, u"name"_s), 1);
    EXPECT_EQ(library::PositionBySuffix(three.catalogue, u"name"_s), 0);
    EXPECT_EQ(library::PositionOf(three.catalogue, u"NAME"_s), -1);
    EXPECT_EQ(library::PositionBySuffix(three.catalogue, QString()), -1);
}

TEST(CatalogueEdits, RemovalClosesTheGap)
{
    Three three;
    ASSERT_TRUE(library::RemoveFromCatalogue(three.catalogue, three.icons, {u"name"_s}));
    ASSERT_EQ(three.catalogue.size(), 2U);
    ASSERT_EQ(three.icons.Count(), 2);
    EXPECT_EQ(three.catalogue[1].Folder, u"other"_s);
    EXPECT_EQ(three.catalogue[1].ListIndex, 2);
    EXPECT_EQ(three.icons.Large(1).bgr, test::NumberedIcon(3).bgr);
    EXPECT_FALSE(library::RemoveFromCatalogue(three.catalogue, three.icons, {u"name"_s}));
    library::RemoveFromCatalogue(three.catalogue, three.icons, {u"other"_s, u"long name"_s});
    EXPECT_TRUE(three.catalogue.empty());
    EXPECT_TRUE(three.icons.IsEmpty());
}

TEST(CatalogueEdits, AGameThatStandsTwiceGoesTwice)
{
    Three three;
    three.catalogue[2].Folder = u"long name"_s;
    ASSERT_TRUE(library::RemoveFromCatalogue(three.catalogue, three.icons, {u"long name"_s}));
    ASSERT_EQ(three.catalogue.size(), 1U);
    ASSERT_EQ(three.icons.Count(), 1);
    EXPECT_EQ(three.catalogue[0].ListIndex, 1);
    EXPECT_EQ(three.icons.Large(0).bgr, test::NumberedIcon(2).bgr);
}

} // namespace
