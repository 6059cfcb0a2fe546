#include "platform/HostText.h"

#include "platform/TextFile.h"
#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin::platform;

namespace {

TEST(HostText, PrintsBothForms)
{
    const HostPath game = HostPathOf(u"/opt/게임/100%"_s);
    HostText text;
    text.Text(u"[autoexec]\r\nmount c \""_s).BatchPath(game).Text(u"\"\r\n한글="_s);
    text.Path(game.Below(u"DosBox/Save"_s, u"dosbox/SAVE"_s));

    EXPECT_EQ(
        text.Print(PathForm::Windows),
        "[autoexec]\r\nmount c \"Z:\\opt\\\xb0\xd4\xc0\xd3\\100%\"\r\n\xc7\xd1\xb1\xdb="
        "Z:\\opt\\\xb0\xd4\xc0\xd3\\100%\\DosBox\\Save");
    // Guest text stays in code page 949 beside paths in the file system's encoding.
    EXPECT_EQ(
        text.Print(PathForm::Posix),
        "[autoexec]\r\nmount c \"/opt/게임/100%%\"\r\n\xc7\xd1\xb1\xdb="
        "/opt/게임/100%/dosbox/SAVE");
    EXPECT_EQ(
        text.Preview(PathForm::Posix),
        u"[autoexec]\r\nmount c \"/opt/게임/100%%\"\r\n한글=/opt/게임/100%/dosbox/SAVE"_s);
}

TEST(HostText, TellsWhatAFormLoses)
{
    HostText text;
    text.Text(u"echo é"_s).Path(HostPathOf(u"/games/日😀"_s));
    EXPECT_EQ(text.Lost(PathForm::Windows), u"é😀"_s);
    EXPECT_EQ(text.Lost(PathForm::Posix), u"é"_s);
    EXPECT_TRUE(text.Print(PathForm::Posix).startsWith("echo ?/games/"));
    EXPECT_EQ(text.Preview(PathForm::Posix), u"echo ?/games/日😀"_s);
    EXPECT_EQ(text.Preview(PathForm::Windows), DecodeCp949(text.Print(PathForm::Windows)));
}

TEST(HostText, AppendsAndReplacesInGuestTextOnly)
{
    HostText text;
    text.Text(QString());
    EXPECT_TRUE(text.IsEmpty());
    HostText tail;
    tail.Text(u"ME> "_s).Path(HostPathOf(u"/<GAME>"_s)).Text(u" <GAME>"_s);
    text.Append(HostText()).Text(u"x <GA"_s).Append(tail).Append(tail);
    text.ReplaceText(u"<GAME>"_s, u"star"_s);
    EXPECT_EQ(text.Preview(PathForm::Windows), u"x star Z:\\<GAME> starME> Z:\\<GAME> star"_s);
}

} // namespace
