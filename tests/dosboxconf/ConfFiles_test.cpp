#include "dosboxconf/ConfFilesTest.h"

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

ConfFilesTest::ConfFilesTest()
{
    folder.MakeTree({u"app/"_s, u"games/Star/DosBox/"_s, u"games/Bare/"_s});
    const QString table = u"\n@Tlauncher\n"
                          "Build|version;0.74_SVN|0.74|Windows;<INDEX>\n"
                          "Window|DirectX;false|true;<INDEX>\n"
                          "Menu|Menu;false|true;<INDEX>\n"
                          "\n@Tsdl\n"
                          "Lock|autolock;false|true;<INDEX>\n"
                          "Sensitivity|sensitivity;0|1|2|3|4|5|6|7|8|9|10;<INDEX>\n"
                          "Priority|priority;0|1|2|3|4|5|6|7|8|9|10|11;<INDEX>\n"
                          "Map|mapperfile;a.txt|b.txt;<MAPPER>\n"
                          "Wait|waitonerror;false|true;<INDEX>\n"
                          "Overscan|overscan;0;<TEXT>\n"
                          "\n@Tcpu\n"
                          "Cycles|cycles;-;<CPUCYCLE>\n"
                          "multi|multiscan;0;<TEXT>\n"
                          "double|doublescan;0;<TEXT>\n"
                          "\n@Tmixer\n"
                          "Rate|rate;0|1|2|3|4|5;<INDEX>\n"
                          "Sample rate|samplerate;0|1|2|3;<INDEX>\n"
                          "MASTER|MASTER;50|100;<INDEX>\n"
                          "Time|timeout;0;<TEXT>\n"
                          "New|newkey;0;<TEXT>\n"
                          "\n@Tdrives\n"
                          "ide 0|gusbase;0|1;<INDEX>\n"
                          "fdc 0|gusirq;0|1;<INDEX>\n"
                          "glide|output;0|1|2|3|4|5;<INDEX>\n"
                          "Blaster|sbtype;0|1|2|3|4;<INDEX>\n"
                          "end"_s;
    grid = ParseOptionTable(table, u"table"_s).Take();
}

QStringList ConfFilesTest::Current(Values values)
{
    QStringList lines(kLines, u"0"_s);
    lines[0] = u"ver.15.02.01"_s;
    for (const auto& [cell, value] : values) {
        lines[LineOf(cell)] = value;
    }
    return lines;
}

QStringList ConfFilesTest::Old(bool marked, Values values)
{
    const qsizetype items = marked ? 21 : 11;
    QStringList lines(11 * items, u"0"_s);
    for (const auto& [cell, value] : values) {
        lines[cell.group * items + cell.item] = value;
    }
    if (marked) {
        lines.prepend(u"ver.10.11.21"_s);
    }
    return lines;
}

} // namespace pelorin::dosboxconf
