#include "dosboxconf/private/StoredConf.h"

#include "platform/Numbers.h"

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

constexpr int kOldGroups = 11;

struct LayoutShape {
    int firstLine; // of the values
    int groups;
    int items;
};

LayoutShape ShapeOf(ConfLayout layout)
{
    switch (layout) {
    case ConfLayout::Current: return {1, kGroups, kItems};
    case ConfLayout::Groups21: return {1, kOldGroups, 21};
    case ConfLayout::Groups11: break;
    }
    return {0, kOldGroups, 11};
}

ConfLayout LayoutOf(const QStringList& lines)
{
    if (lines.isEmpty() || lines.first() == u"ver.15.02.01"_s) {
        return ConfLayout::Current;
    }
    return lines.first() == u"ver.10.11.21"_s ? ConfLayout::Groups21 : ConfLayout::Groups11;
}

} // namespace

StoredConf ParseConf(const QStringList& lines)
{
    StoredConf conf;
    conf.layout = LayoutOf(lines);
    const LayoutShape shape = ShapeOf(conf.layout);
    qsizetype line = shape.firstLine;
    for (int group = 0; group < shape.groups; ++group) {
        for (int item = 0; item < shape.items; ++item) {
            conf.values[OptionGrid::Index(Cell{group, item})] =
                platform::IntegerPrefix(lines.value(line));
            ++line;
        }
    }
    conf.whole = lines.size() >= line;
    return conf;
}

QStringList PrintConf(const Selection& table)
{
    QStringList lines{u"ver.15.02.01"_s};
    lines.reserve(1 + kCells);
    for (int group = 0; group < kGroups; ++group) {
        for (int item = 0; item < kItems; ++item) {
            lines << QString::number(table[OptionGrid::Index(Cell{group, item})]);
        }
    }
    return lines;
}

} // namespace pelorin::dosboxconf
