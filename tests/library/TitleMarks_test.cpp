#include "library/TitleMarks.h"

#include "LibraryFixture.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameEntry;
using library::GameFiles;
using library::MarkedTitle;
using library::MarkFacts;

namespace {

TEST(TitleMarks, InOrderAndMerged)
{
    const shell::LangTable lang = test::TestLang();
    const std::pair<MarkFacts, QString> cases[] = {
        {{}, u"Name"_s},
        {{true, false, 8, false}, u"Name [CD]"_s}, // no build mark without own options
        {{false, true, 0, false}, u"Name [편집]"_s},
        {{true, true, 0, false}, u"Name [CD, 편집]"_s},
        {{true, true, 8, true}, u"Name [CD, 편집, Windows] [압축]"_s},
        {{false, false, 0, true}, u"Name [압축]"_s},
    };
    for (const auto& [facts, title] : cases) {
        EXPECT_EQ(MarkedTitle(u"Name"_s, facts, lang), title);
    }
    const QStringList builds = test::Words(u"Win31KOR Win31ENG - Win98 ANEX86 SNES9X FUSION NP21 "
                                           "0.74_3DFX -"_s);
    for (int build = 9; build < 19; ++build) {
        const QString& mark = builds[build - 9];
        EXPECT_EQ(
            MarkedTitle(u"Name"_s, {false, true, static_cast<std::int16_t>(build), false}, lang),
            mark == u"-"_s ? u"Name [편집]"_s : u"Name [편집, %1]"_s.arg(mark));
    }
    EXPECT_EQ(MarkedTitle(u"A [x] [y]"_s, {true, false, 0, false}, lang), u"A [x, y, CD]"_s)
        << "brackets of the title's own merge too";
}

class ReadGameTest : public testing::Test {
protected:
    GameFiles List() const { return library::ListGame(m_library.places, u"Folder"_s); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
    shell::LangTable m_lang = test::TestLang();
    library::ReadingRules m_rules{m_lang, 3};
};

TEST_F(ReadGameTest, ABareFolderIsAGame)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    GameFiles files = List();
    library::Troubles troubles;
    const GameEntry entry = library::ReadGameFolder(files, 41, m_rules, troubles);
    EXPECT_EQ(entry.Folder, u"Folder"_s);
    EXPECT_EQ(entry.TitleK, u"Folder"_s);
    EXPECT_EQ(entry.TitleE, u"Folder"_s);
    EXPECT_EQ(entry.ListIndex, 42);
    EXPECT_EQ(entry.DosboxVersion, 3);
    EXPECT_EQ(entry.GenreK, u"기타"_s);
}

TEST_F(ReadGameTest, ReadsAllAndRefreshesTitlesOnly)
{
    m_root.WriteLines(u"Games/Folder/DosBox/info.txt"_s, {u"가\u0003B"_s});
    m_root.WriteLines(
        u"Games/Folder/DosBox/ExtraInfo.txt"_s, {u"M"_s, u"1990"_s, u"한국어"_s, u"KR"_s});
    m_root.WriteLines(u"Games/Folder/DosBox/edit.conf"_s, {u"ver"_s, u"12"_s});
    m_root.WriteLines(u"Games/Folder/DosBox/Extra.dat"_s, {u"@SHT"_s});
    m_root.MakeTree({u"Games/Folder/DosBox/cd.CONF"_s, u"Games/Folder/store.7z"_s});
    GameFiles files = List();
    library::Troubles troubles;
    GameEntry entry = library::ReadGameFolder(files, 0, m_rules, troubles);
    EXPECT_EQ(entry.TitleK, u"가 [CD, 편집, Win98] [압축]"_s);
    EXPECT_EQ(entry.TitleE, u"B [CD, 편집, Win98] [압축]"_s);
    EXPECT_EQ(entry.Maker, u"M"_s);
    EXPECT_EQ(entry.Release, u"1990"_s);
    EXPECT_EQ(entry.GameLanguage, u"한국어"_s);
    EXPECT_EQ(entry.Country, u"KR"_s);
    EXPECT_EQ(entry.DosboxVersion, 12);
    EXPECT_EQ(entry.GenreE, u"Shooter"_s);

    m_root.WriteLines(u"Games/Folder/DosBox/info.txt"_s, {u"새"_s});
    m_root.WriteLines(u"Games/Folder/DosBox/edit.conf"_s, {u"ver"_s, u"0"_s});
    m_root.WriteLines(u"Games/Folder/DosBox/ExtraInfo.txt"_s, {u"other"_s});
    library::RefreshEntry(entry, List(), m_rules);
    EXPECT_EQ(entry.TitleK, u"새 [CD, 편집] [압축]"_s);
    EXPECT_EQ(entry.TitleE, entry.TitleK);
    EXPECT_EQ(entry.DosboxVersion, 0);
    EXPECT_EQ(entry.Maker, u"M"_s);
}

} // namespace
