#include "running/GuestCommand.h"

#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin::running;

TEST(GuestCommandTest, TellsWhatALineHasToFindFromWhatItPassesOn)
{
    struct Case {
        QString line;
        QStringList needed;
        QStringList passedOn;
    };
    const Case cases[] = {
        {u""_s, {}, {}},
        {u"play.exe /s -x 1"_s, {}, {}},
        {u"게임.exe"_s, {u"게임.exe"_s}, {}},
        {u"@ 게임.exe"_s, {u"게임.exe"_s}, {}},
        {u"GAMES\\놀이\\play.exe"_s, {u"GAMES\\놀이\\play.exe"_s}, {}},
        {u"café.bat"_s, {u"café.bat"_s}, {}},
        {u"play.exe 지도.dat \"둘 셋\""_s, {}, {u"지도.dat"_s, u"둘 셋"_s}},
        {u"CALL 시작.bat 하나"_s, {u"시작.bat"_s}, {u"하나"_s}},
        {u"call loadfix -32 게임.exe"_s, {u"게임.exe"_s}, {}},
        {u"lh 마우스.com"_s, {u"마우스.com"_s}, {}},
        {u"call"_s, {}, {}},
        {u"-"_s, {}, {}},
        {u"-별.exe"_s, {u"-별.exe"_s}, {}},
        {u"call echo 안녕"_s, {}, {}},
        {u"cd 자료"_s, {u"자료"_s}, {}},
        {u"CD\\자료"_s, {u"\\자료"_s}, {}},
        {u"cd.."_s, {}, {}},
        {u"mount d \"/home/나/둘째 판\" -t cdrom"_s, {u"/home/나/둘째 판"_s}, {}},
        {u"imgmount e 하나.iso 둘.iso -t iso"_s, {u"하나.iso"_s, u"둘.iso"_s}, {}},
        {u"boot 디스크.img"_s, {u"디스크.img"_s}, {}},
        {u"echo 안녕하세요"_s, {}, {}},
        {u"@ECHO.안녕"_s, {}, {}},
        {u"rem 게임.exe"_s, {}, {}},
        {u"set 이름=별"_s, {}, {}},
        {u":시작"_s, {}, {}},
        {u"goto 시작"_s, {}, {}},
        {u"if exist 저장.dat play.exe"_s, {}, {u"저장.dat"_s}},
        {u"copy 저장.dat c:\\"_s, {}, {u"저장.dat"_s}},
        {u"echoes.exe 별"_s, {}, {u"별"_s}},
        {u"mountain.exe 산"_s, {}, {u"산"_s}},
        {u"call.exe 별"_s, {}, {u"별"_s}},
        {u"play/이름"_s, {}, {u"/이름"_s}},
    };
    for (const Case& c : cases) {
        const UnopenableNames names = UnopenableNamesIn(c.line);
        EXPECT_EQ(names.needed, c.needed) << c.line;
        EXPECT_EQ(names.passedOn, c.passedOn) << c.line;
    }
}
