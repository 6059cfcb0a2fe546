#include "dosboxconf/RunFacts.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::ConfRequest;
using dosboxconf::RunFacts;

// What is composed of these facts is compared byte for byte in running/GoldenText_test.cpp.

namespace {

TEST(RunFactsTest, ATitleLosesWhatNoFileNameMayHold)
{
    EXPECT_EQ(dosboxconf::SafeTitle(u"A/B: C?"_s), u"AB C"_s);
    EXPECT_EQ(dosboxconf::SafeTitle(u"\\|:\"<>/?*"_s), QString());
    EXPECT_EQ(dosboxconf::SafeTitle(u"별 [CD, 편집] 100%"_s), u"별 [CD, 편집] 100%"_s);
}

TEST(RunFactsTest, NamesKeepTheFormatsSpellingInTheReferenceAndTheirOwnInTheNativeForm)
{
    const test::TestFolder folder;
    folder.MakeAll(u"app/DOS/util/ app/DOS/gus/ app/Mapper/MAPPER.txt games/Bare/"_s);
    folder.MakeAll(u"games/Star/DOSBOX/cd/ games/Star/DOSBOX/Mapper.TXT"_s);
    const shell::Places places{
        folder.Path(u"app"_s), folder.Path(u"games"_s), folder.Path(u"export"_s)};
    ConfRequest request;
    request.folder = u"Star"_s;
    const RunFacts star = LoadRunFacts(places, request);
    const QString games = u"Z:"_s + QString(places.gamesRoot).replace(u'/', u'\\');
    EXPECT_EQ(star.metaDir.reference, games + u"\\Star\\dosbox"_s);
    EXPECT_EQ(star.metaDir.native, folder.Path(u"games/Star/DOSBOX"_s));
    EXPECT_EQ(star.cdFolder.reference, games + u"\\Star\\dosbox\\CD"_s);
    EXPECT_EQ(star.cdFolder.native, folder.Path(u"games/Star/DOSBOX/cd"_s));
    EXPECT_EQ(star.ownMapper.native, folder.Path(u"games/Star/DOSBOX/Mapper.TXT"_s));
    EXPECT_EQ(star.mapperFolder.native, folder.Path(u"app/Mapper"_s));
    EXPECT_EQ(star.utilities.reference, u"..\\..\\Dos\\Util"_s);
    EXPECT_EQ(star.utilities.native, u"../../DOS/util"_s);
    EXPECT_EQ(star.gravis.reference, u"..\\..\\DOS\\GUS"_s);
    EXPECT_EQ(star.gravis.native, u"../../DOS/gus"_s);

    request.folder = u"Bare"_s;
    EXPECT_EQ(LoadRunFacts(places, request).metaDir.native, folder.Path(u"games/Bare/DosBox"_s));
}

} // namespace
