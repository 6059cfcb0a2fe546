#include "shell/LangTable.h"

#include "shell/WindowTitle.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using shell::LangTable;

namespace {

QStringList Lines(int count, const QString& name)
{
    QStringList lines{name};
    for (int entry = 2; entry <= count; ++entry) {
        lines << u"text %1"_s.arg(entry);
    }
    return lines;
}

LangTable TableOf(const QStringList& lines)
{
    return LangTable::FromLines(lines).Take();
}

TEST(LangTable, KeepsLinesAsTheyStandButForLineBreaksAndPlaceholders)
{
    QStringList lines = Lines(342, u"Pelorin"_s);
    lines[1] = u"<2> and <1>, <1>; <3>"_s;
    lines[9] = u"one\\n\\ntwo\\n"_s;
    lines[10] = u"a\\b\\"_s;
    lines[256] = u" [stored] "_s;
    lines[340] = QString();
    const LangTable lang = TableOf(lines);
    const std::pair<int, QString> entries[] = {
        {-1, QString()},
        {10, u"one\r\n\r\ntwo\r\n"_s},
        {11, u"a\\b\\"_s},
        {257, u" [stored] "_s},
        {339, u"text 339"_s},
        {343, QString()},
    };
    for (const auto& [entry, text] : entries) {
        EXPECT_EQ(lang[entry], text) << entry;
    }
    EXPECT_EQ(lang.Text(2, {u"a"_s, u"b"_s}), u"b and a, a; <3>"_s);
    // A value that holds a later placeholder is filled again, one that holds an earlier is not.
    EXPECT_EQ(lang.Text(2, {u"<2>"_s, u"<1>"_s}), u"<1> and <1>, <1>; <3>"_s);
    EXPECT_EQ(lang.Text(2, {u"$1\\1"_s, u"x"_s, u"&"_s}), u"x and $1\\1, $1\\1; &"_s);
    EXPECT_EQ(lang.OwnText(340, u"english"_s), u"text 340"_s);
    EXPECT_EQ(lang.OwnText(341, u"english"_s), u"english"_s) << "an empty line";
    EXPECT_EQ(lang.OwnText(343, u"english"_s), u"english"_s) << "a missing one";
}

TEST(LangTable, TheExactNameTellsTheLanguage)
{
    for (const QString& name : {u"펠로린"_s, u"펠로린 "_s, u" 펠로린"_s, u"Pelorin"_s, QString()}) {
        const bool korean = name == u"펠로린"_s;
        const LangTable lang = TableOf(Lines(shell::kLastEntry, name));
        EXPECT_EQ(lang.IsKorean(), korean) << name;
        EXPECT_EQ(
            shell::BuildWindowTitle(u"17020304"_s, lang),
            u"[%1 Ver.17.02.03.04] by %2"_s.arg(name, korean ? u"베스프라"_s : u"mirel55"_s));
    }
}

TEST(LangTable, AFaultInTheFileIsToldWithItsLine)
{
    const test::TestFolder folder;
    const QString path = folder.Path(u"Language.dat"_s);
    const QByteArray whole = Lines(341, u"펠로린"_s).join(u"\r\n"_s).toUtf8();
    const auto damaged = [&](const char* line) { return QByteArray(whole).replace(line, "\xb0 "); };
    const std::pair<QByteArray, QString> cases[] = {
        {whole.left(whole.indexOf("text 339")), u"line 339: missing, 339 lines are needed"_s},
        {QByteArray(), u"line 1: missing, 339 lines are needed"_s},
        {damaged("text 12\r"), u"line 12: bytes that are no text in code page 949"_s},
        {damaged("text 339"), u"line 339: bytes that are no text in code page 949"_s},
        {damaged("text 341"), QString()}, // has a stand-in
    };
    for (const auto& [bytes, told] : cases) {
        folder.WriteRaw(u"Language.dat"_s, QByteArray(bytes).replace("펠로린", "Pelorin"));
        const auto lang = shell::ReadLanguageFile(path);
        EXPECT_EQ(test::ErrorOf(lang), told.isEmpty() ? told : path + u": "_s + told);
    }
    const auto missing = shell::ReadLanguageFile(folder.Path(u"none"_s));
    EXPECT_EQ(test::KindOf(missing), platform::ErrorKind::NotFound);
    EXPECT_EQ(test::ErrorOf(missing), folder.Path(u"none"_s) + u": line 1: the file is missing"_s);
}

} // namespace
