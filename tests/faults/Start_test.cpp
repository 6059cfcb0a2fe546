#include "faults/FaultsFixture.h"
#include "shell/LifecycleCommands.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

/// Does something to a file's lines; none of them left means that the file goes.
using Spoil = void (*)(QStringList& lines);

struct Row {
    const char* name;
    QString file;
    Spoil spoil;
    QString told; // behind the path
};

void SpoilFile(const Installation& app, const Row& row)
{
    QStringList lines = app.folder.ReadLines(row.file);
    row.spoil(lines);
    if (lines.isEmpty()) {
        EXPECT_TRUE(QFile::remove(app.folder.Path(row.file)));
    } else {
        app.folder.WriteLines(row.file, lines);
    }
}

TEST(StartFaults, LanguageOrOptionsMissingShortOrWithAFaultInARow)
{
    const QString language = u"Language.dat"_s;
    const QString options = u"option.dat"_s;
    const Row rows[] = {
        {"no language", language, [](auto& lines) { lines.clear(); }, u"line 1: "_s},
        {"short language", language, [](auto& lines) { lines.resize(338); }, u"line 339: "_s},
        {"no options", options, [](auto& lines) { lines.clear(); }, u"line 1: "_s},
        {"no end", options, [](auto& lines) { lines.resize(5); }, u"line 5: "_s},
        {"no bar", options, [](auto& lines) { lines[2].remove(u'|'); }, u"line 3: "_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Installation app;
        SpoilFile(app, row);
        const auto before = FilesOf(app.folder);
        const auto launcher = app.NewLauncher();
        const platform::Done loaded = shell::Form_Load(*launcher);
        ASSERT_FALSE(loaded);
        EXPECT_PRED2(Holds, ErrorOf(loaded), app.folder.Path(row.file) + u": "_s + row.told);
        EXPECT_EQ(FilesOf(app.folder), before);
    }
}

} // namespace
