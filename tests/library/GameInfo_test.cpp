#include "library/GameInfo.h"

#include "LibraryFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using library::GameFiles;
using library::GenreForm;
using library::InfoText;
using library::Titles;
using library::Troubles;

namespace {

class GameInfoTest : public testing::Test {
protected:
    GameFiles List() const { return library::ListGame(m_library.places, u"Folder"_s); }
    void Put(const QString& name, const QString& text)
    {
        m_root.WriteText(u"Games/Folder/DosBox/"_s + name, text);
    }
    QString Get(const QString& name) { return m_root.ReadText(u"Games/Folder/DosBox/"_s + name); }

    test::LibraryFolder m_library;
    test::TestFolder& m_root = m_library.root;
};

TEST_F(GameInfoTest, TitlesOfAFirstLine)
{
    struct Case {
        QString line;
        QString first;
        QString second;
    };
    const std::vector<Case> cases{
        {u"한글\u0003English"_s, u"한글"_s, u"English"_s},
        {u"한글"_s, u"한글"_s, u"한글"_s},
        {u"A\u0003B\u0003C"_s, u"A"_s, u"B"_s},
        {u"A\u0003"_s, u"A"_s, QString()},
        {u"\u0003B"_s, QString(), u"B"_s},
        {u" A \u0003 B "_s, u" A "_s, u" B "_s},
        {u"\u0003"_s, u"Folder"_s, u"Folder"_s},
        {u"  \u0003 \u0003"_s, u"Folder"_s, u"Folder"_s},
        {QString(), u"Folder"_s, u"Folder"_s},
        {u"A\u0001\u0002B\u0003C\u0001"_s, u"AB"_s, u"C"_s},
        {u"\t"_s, u"\t"_s, u"\t"_s}, // only blanks count as nothing
    };
    for (const Case& c : cases) {
        Put(u"info.txt"_s, c.line + u"\r\nmore\u0003lines"_s);
        const Titles titles = library::ReadTitles(List());
        EXPECT_EQ(titles.first, c.first) << c.line.toStdString();
        EXPECT_EQ(titles.second, c.second) << c.line.toStdString();
    }
}

TEST_F(GameInfoTest, WithoutAFileTheCatalogueTakesTheFolderAndTheBoxesAreEmpty)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    EXPECT_EQ(library::ReadTitles(List()).second, u"Folder"_s);
    EXPECT_EQ(library::ReadInfo(List()).titles.first, QString());

    Put(u"info.txt"_s, QString());
    EXPECT_EQ(library::ReadTitles(List()).first, u"Folder"_s);
    EXPECT_EQ(library::ReadInfo(List()).titles.first, QString());
}

TEST_F(GameInfoTest, BoxesTrimALoneTitleOnly)
{
    Put(u"info.txt"_s, u"  Alone "_s);
    EXPECT_EQ(library::ReadInfo(List()).titles.first, u"Alone"_s);
    EXPECT_EQ(library::ReadInfo(List()).titles.second, u"Alone"_s);
    Put(u"info.txt"_s, u" A \u0003 B\u0003C\nline 1\n\nline 3"_s);
    const InfoText info = library::ReadInfo(List());
    EXPECT_EQ(info.titles.first, u" A "_s);
    EXPECT_EQ(info.titles.second, u" B"_s);
    EXPECT_EQ(info.description, u"line 1\r\n\r\nline 3"_s);
}

TEST_F(GameInfoTest, InfoGoesThereAndBack)
{
    m_root.MakeFolder(u"Games/Folder"_s);
    struct Case {
        InfoText info;
        QString file;
    };
    const std::vector<Case> cases{
        {{{u"가"_s, u"B"_s}, QString()}, u"가\u0003B\r\n"_s},
        {{{u"가"_s, u"B"_s}, u"one\ntwo\n"_s}, u"가\u0003B\r\none\r\ntwo\r\n\r\n"_s},
        {{{u"a\u0003\u0001\nb"_s, QString()}, u"\r\nx\ry"_s}, u"ab\u0003\r\n\r\nx\r\ny\r\n"_s},
        {{{QString(), QString()}, QString()}, u"\u0003\r\n"_s},
    };
    for (const Case& c : cases) {
        GameFiles files = List();
        ASSERT_TRUE(library::WriteInfo(files, {c.info}));
        EXPECT_TRUE(files.HasMetaFile(u"info.txt"_s));
        EXPECT_EQ(Get(u"info.txt"_s), c.file);
        QString lines = c.info.description;
        lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', u"\r\n"_s);
        EXPECT_EQ(library::ReadInfo(List()).description, lines);
    }
}

TEST_F(GameInfoTest, WhatWasNotTouchedIsKeptByteByByte)
{
    struct Case {
        QByteArray file;
        bool titles;
        bool description;
        QByteArray written;
    };
    const QByteArray utf8 = QStringLiteral("제목").toUtf8();
    const std::vector<Case> cases{
        {"Alone\nb\rc", false, false, "Alone\nb\rc"},
        {"Alone\nb\rc", true, false, "A\3B\r\nb\rc"},
        {"Alone\nb\rc", false, true, "Alone\nnew\r\n"},
        {"A \3B\3third", false, true, "A \3B\3third\r\nnew\r\n"},
        {"A\3B\3third", true, false, "A\3B\r\n"},
        {utf8 + "\r\n" + utf8 + "\xff", true, false, "A\3B\r\n" + utf8 + "\xff"},
        {utf8 + "\r\n\r\n", false, true, utf8 + "\r\nnew\r\n"},
        {QByteArray("a\0b\r\nc\0\0\r\n", 10), true, false, QByteArray("A\3B\r\nc\0\0\r\n", 10)},
        {"", false, true, "A\3B\r\nnew\r\n"},
        {QByteArray(), false, false, "A\3B\r\n"}, // no file: the titles make one
    };
    for (const Case& c : cases) {
        const QString path = u"Games/Folder/DosBox/info.txt"_s;
        QFile::remove(m_root.Path(path));
        m_root.MakeFolder(u"Games/Folder/DosBox"_s);
        if (!c.file.isNull()) {
            m_root.WriteRaw(path, c.file);
        }
        GameFiles files = List();
        const InfoText text{{u"A"_s, u"B"_s}, u"new"_s};
        ASSERT_TRUE(library::WriteInfo(files, {text, c.titles, c.description}));
        EXPECT_EQ(m_root.ReadRaw(path), c.written) << c.file.toStdString();
    }
}

TEST_F(GameInfoTest, ATextWithNulsIsReadWhole)
{
    m_root.WriteRaw(u"Games/Folder/DosBox/info.txt"_s, QByteArray("a\0b\3c\nd\0\0e", 10));
    const InfoText info = library::ReadInfo(List());
    EXPECT_EQ(info.titles.first, u"a\0b"_s);
    EXPECT_EQ(info.description, u"d\0\0e"_s);
    GameFiles files = List();
    ASSERT_TRUE(library::WriteInfo(files, {info, false, true}));
    EXPECT_EQ(
        m_root.ReadRaw(u"Games/Folder/DosBox/info.txt"_s), QByteArray("a\0b\3c\nd\0\0e\r\n", 12));
}

TEST_F(GameInfoTest, AFileTooLargeToEditIsShownCutAndNeverWrittenOver)
{
    const QByteArray line = QByteArray("Title\3Titel\r\n");
    const std::vector<std::pair<QByteArray, library::InfoState>> cases{
        {line + QByteArray(library::kMostInfo - line.size(), 'x'), library::InfoState::Whole},
        {line + QByteArray(library::kMostInfo - line.size() + 1, 'x'), library::InfoState::Cut},
        {QByteArray(qsizetype{50} * 1024 * 1024, 'x'),
         library::InfoState::Cut}, // without a line end
        {QByteArray(library::kMostTitleLine + 1, 'x') + "\r\nmore", library::InfoState::Cut},
    };
    for (const auto& [bytes, state] : cases) {
        const QString path = u"Games/Folder/DosBox/info.txt"_s;
        m_root.WriteRaw(path, bytes);
        GameFiles files = List();
        const InfoText info = library::ReadInfo(files);
        EXPECT_EQ(info.state, state) << bytes.size();
        EXPECT_LE(info.description.size() + info.titles.first.size(), library::kMostInfo);
        EXPECT_LE(library::ReadTitles(files).first.size(), platform::kMostOfFirstLines);
        if (state == library::InfoState::Cut) {
            const platform::Done refused = library::WriteInfo(files, {info, true, true});
            ASSERT_FALSE(refused);
            EXPECT_EQ(refused.Failure().kind, platform::ErrorKind::Refused);
            EXPECT_TRUE(m_root.ReadRaw(path) == bytes) << bytes.size();
        }
    }
    // A folder in its place can't be read either.
    QFile::remove(m_root.Path(u"Games/Folder/DosBox/info.txt"_s));
    m_root.MakeLink(u"Games/Folder/DosBox/info.txt"_s, u"/proc/self/mem"_s);
    GameFiles files = List();
    EXPECT_EQ(library::ReadInfo(files).state, library::InfoState::Unreadable);
    EXPECT_FALSE(library::WriteInfo(files, {}));
}

TEST_F(GameInfoTest, TextThatWouldBeLostIsRefusedUnlessAccepted)
{
    Put(u"INFO.TXT"_s, u"old"_s);
    GameFiles files = List();
    const InfoText info{{u"Café"_s, u"Ж"_s}, u"naïve"_s};
    EXPECT_EQ(library::LostInInfo({info}), u"éï"_s);
    const platform::Done refused = library::WriteInfo(files, {info});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.Failure().kind, platform::ErrorKind::Unencodable);
    EXPECT_EQ(Get(u"INFO.TXT"_s), u"old"_s);

    ASSERT_TRUE(library::WriteInfo(files, {info}, library::Loss::Accept));
    EXPECT_EQ(Get(u"INFO.TXT"_s), u"Caf?\u0003Ж\r\nna?ve\r\n"_s);
    EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/info.txt"_s)) << "no twin of another case";
}

TEST_F(GameInfoTest, FactsMayBeShort)
{
    Put(u"ExtraInfo.txt"_s, u"Maker\n\u00011990"_s);
    const library::Facts facts = library::ReadFacts(List());
    EXPECT_EQ(facts.Maker, u"Maker"_s);
    EXPECT_EQ(facts.Release, u"1990"_s);
    EXPECT_EQ(facts.GameLanguage, QString());
    EXPECT_EQ(facts.Country, QString());

    GameFiles files = List();
    ASSERT_TRUE(library::WriteFacts(files, {u"M"_s, u"R"_s, u"L"_s, u"C\r\nD"_s}));
    EXPECT_EQ(Get(u"ExtraInfo.txt"_s), u"M\r\nR\r\nL\r\nCD\r\n"_s);
    ASSERT_TRUE(library::DeleteFacts(files));
    EXPECT_FALSE(files.HasMetaFile(u"ExtraInfo.txt"_s));
    EXPECT_TRUE(library::DeleteFacts(files)) << "nothing to delete";
}

TEST_F(GameInfoTest, MissingGenresAreWritten)
{
    Put(u"genrek.DAT"_s, QString()); // there, though empty
    GameFiles files = List();
    Troubles troubles;
    const library::Genres genres = library::ReadGenres(files, GenreForm::Scan, troubles);
    EXPECT_EQ(genres.korean, QString());
    EXPECT_EQ(genres.english, u"ETC"_s);
    EXPECT_EQ(Get(u"GenreE.dat"_s), u"ETC\r\n"_s);
    EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/GenreK.dat"_s));
    EXPECT_TRUE(files.HasMetaFile(u"GenreE.dat"_s));
    EXPECT_EQ(troubles.count, 0);
}

TEST_F(GameInfoTest, OldGenreCodes)
{
    struct Case {
        QString code;
        QString korean;
        QString atScan;
        QString inPanel;
    };
    const std::vector<Case> cases{
        {u"@ACT"_s, u"액션/아케이드"_s, u"Action/Arcade"_s, u"Action/Arcade"_s},
        {u"@FGT"_s, u"대전/액션"_s, u"Fighting/Action"_s, u"Fighting/Action"_s},
        {u"@ADV"_s, u"어드벤처"_s, u"Adventure"_s, u"Adventure"_s},
        {u"@RPG"_s, u"롤플레잉"_s, u"RPG"_s, u"RPG"_s},
        {u"@SHT"_s, u"슈팅"_s, u"Shooter"_s, u"Shooting"_s},
        {u"@SPT"_s, u"스포츠/레이싱"_s, u"Sports/Racing"_s, u"Sports/Racing"_s},
        {u"@PUZ"_s, u"보드/퍼즐"_s, u"Board/Puzzle"_s, u"Board/Puzzle"_s},
        {u"@SLG"_s, u"시뮬레이션"_s, u"Simulation"_s, u"Simulation"_s},
        {u"@sht"_s, u"기타"_s, u"ETC"_s, u"ETC"_s},
        {QString(), u"기타"_s, u"ETC"_s, u"ETC"_s},
    };
    for (const Case& c : cases) {
        for (const GenreForm form : {GenreForm::Scan, GenreForm::Panel}) {
            Put(u"EXTRA.DAT"_s, c.code + u"\r\n"_s);
            Put(u"GenreK.dat"_s, u"before\r\n"_s);
            GameFiles files = List();
            Troubles troubles;
            const library::Genres genres = library::ReadGenres(files, form, troubles);
            const QString& english = form == GenreForm::Scan ? c.atScan : c.inPanel;
            EXPECT_EQ(genres.korean, c.korean);
            EXPECT_EQ(genres.english, english);
            EXPECT_EQ(Get(u"GenreK.dat"_s), c.korean + u"\r\n"_s);
            EXPECT_EQ(Get(u"GenreE.dat"_s), english + u"\r\n"_s);
            EXPECT_FALSE(m_root.Exists(u"Games/Folder/DosBox/EXTRA.DAT"_s));
            EXPECT_FALSE(files.HasMetaFile(u"Extra.dat"_s));
        }
    }
}

TEST_F(GameInfoTest, TheOldCodeStaysWhenItsGenreCantBeWritten)
{
    Put(u"Extra.dat"_s, u"@RPG"_s);
    m_root.MakeFolder(u"Games/Folder/DosBox/GenreE.dat"_s); // a folder in the way
    GameFiles files = List();
    Troubles troubles;
    EXPECT_EQ(library::ReadGenres(files, GenreForm::Scan, troubles).english, u"RPG"_s);
    EXPECT_EQ(Get(u"Extra.dat"_s), u"@RPG"_s);
    EXPECT_EQ(troubles.count, 1);
}

TEST_F(GameInfoTest, NothingIsWrittenWhereNothingWasListed)
{
    m_root.MakeFolder(u"Games/Folder/DosBox"_s);
    GameFiles files = List();
    files.meta = platform::Listing(); // as when its rights forbid listing it
    Troubles troubles;
    EXPECT_EQ(library::ReadGenres(files, GenreForm::Scan, troubles).korean, u"기타"_s);
    EXPECT_EQ(m_root.Tree(u"Games/Folder/DosBox"_s), QStringList());
}

TEST_F(GameInfoTest, ADanglingLinkIsNotWrittenThrough)
{
    m_root.MakeFolder(u"Games/Folder/DosBox"_s);
    m_root.MakeLink(u"Games/Folder/DosBox/GenreK.dat"_s, m_root.Path(u"elsewhere"_s));
    GameFiles files = List();
    Troubles troubles;
    EXPECT_EQ(library::ReadGenres(files, GenreForm::Scan, troubles).korean, u"기타"_s);
    EXPECT_FALSE(m_root.Exists(u"elsewhere"_s));
    EXPECT_EQ(troubles.count, 1);
}

TEST_F(GameInfoTest, BuildIsLineTwoOfTheGamesOwnOptions)
{
    m_root.MakeFolder(u"Games/Folder/DosBox"_s);
    EXPECT_EQ(library::ReadBuild(List(), 5), 5);
    const std::vector<std::pair<QString, int>> cases{
        {u"ver\r\n12\r\n99"_s, 12},
        {u"ver\r\n 9abc"_s, 9},
        {u"ver\r\n-1"_s, -1},
        {u"ver\r\nx"_s, 0},
        {u"ver"_s, 0},
        {QString(), 0},
        {u"ver\r\n70000"_s, 32767},
    };
    for (const auto& [text, build] : cases) {
        Put(u"EDIT.conf"_s, text);
        EXPECT_EQ(library::ReadBuild(List(), 5), build) << text.toStdString();
    }
}

} // namespace
