#include "library/FolderName.h"

#include "LibraryFixture.h"
#include "library/DeleteQuestion.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

TEST(FolderName, WhatIsTypedIsCleaned)
{
    struct Row {
        const char16_t* typed;
        const char16_t* name;
    };
    const Row rows[] = {
        {u"별 헤는 밤", u"별 헤는 밤"},
        {u"a\\b|c\"d:e/f?g*h", u"abcdefgh"},
        {u"<Star> <<1>>", u"(Star) ((1))"},
        {u"Star: the game", u"Star the game"},
        {u"  leading", u"  leading"},
        {u"R&D 100% 'x' [1] ~$#!", u"R&D 100% 'x' [1] ~$#!"},
        {u"a\tb\nc", u"abc"},
        {u"../../etc", u"....etc"},
        {u"/", u""},
        {u"", u""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(
            library::CleanFolderName(QString::fromUtf16(row.typed)), QString::fromUtf16(row.name));
    }
    EXPECT_EQ(library::CleanFolderName(QString(QChar(u'\0')) + u'a'), u"a"_s);
}

TEST(FolderName, SomeNamesAreRefused)
{
    for (const QString& name : {u"a"_s, u" a"_s, u"a.b"_s, u"가"_s, u"CON"_s, u"100%"_s}) {
        EXPECT_TRUE(library::MayNameFolder(name)) << name.toStdString();
    }
    for (const QString& name :
         {QString(),
          u"."_s,
          u".."_s,
          u"...."_s,
          u"a."_s,
          u"a "_s,
          u" "_s,
          u"a\u00a0"_s,
          u".a"_s,
          u"a/b"_s,
          u"a\u0001b"_s,
          u"a\u0085"_s}) {
        EXPECT_FALSE(library::MayNameFolder(name)) << name.toStdString();
    }
}

TEST(DeleteQuestion, NamesTheFirstGamesAndWhatLiesInThem)
{
    const shell::LangTable lang = test::TestLang();
    EXPECT_EQ(
        library::DeleteQuestion({u"별"_s}, {3, 2048, true}, lang),
        u"Move this game to the recycle bin?\n\n별\n\nFiles: 3, size: 2.0 kB"_s);
    QStringList names;
    for (int i = 1; i <= 1010; ++i) {
        names << u"G%1"_s.arg(i);
    }
    const QString many = library::DeleteQuestion(names, {12345, 0, false}, lang);
    EXPECT_TRUE(many.startsWith(u"Move these 1,010 games to the recycle bin?\n\nG1\nG2\n"_s));
    EXPECT_TRUE(
        many.endsWith(u"G10\nand 1,000 more\n\nFiles: more than 12,345, size: more than 0 bytes"_s))
        << many.toStdString();

    EXPECT_EQ(library::NameForDeletion(u"별"_s, u"별"_s), u"별"_s);
    EXPECT_NE(library::NameForDeletion(u"별"_s, u"a"_s), library::NameForDeletion(u"별"_s, u"b"_s));
    EXPECT_LT(library::NameForDeletion(QString(500, u'a'), QString(250, u'b')).size(), 140);
}

} // namespace
