#include "dosboxconf/ConfDefaults.h"
#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionTable.h"
#include "fuzz/Harness.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const QString path = installation.InApp(u"option.dat"_s);
    fuzz::FuzzInstallation::Write(path, fuzz::BytesOf(data, size));

    auto table = dosboxconf::ReadOptionTable(path);
    if (!table) {
        fuzz::Require(table.Failure().text.contains(path), "an error names the file");
        return 0;
    }
    dosboxconf::OptionGrid& grid = table.Value();
    fuzz::Require(grid.GroupCaption.size() <= dosboxconf::kGroups, "groups have a bound");
    dosboxconf::SetFactoryDefaults(grid);
    for (int group = 0; group < dosboxconf::kGroups; ++group) {
        for (int item = 0; item < dosboxconf::kItems; ++item) {
            const dosboxconf::Cell cell{group, item};
            fuzz::Require(grid.Values(cell).size() <= dosboxconf::kValues, "values have a bound");
            dosboxconf::ShownValue(grid, cell, grid.Selected(cell));
        }
    }
    return 0;
}
