#include "fuzz/Harness.h"
#include "library/GameInfo.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

// The first byte says which of a metadata folder's texts the others are; the rest is not there.

namespace {

void CheckInfo(library::GameFiles& files)
{
    const library::Titles titles = library::ReadTitles(files);
    fuzz::Require(library::CleanField(titles.first) == titles.first, "titles are clean fields");
    fuzz::Require(library::CleanField(titles.second) == titles.second, "titles are clean fields");

    const library::InfoText info = library::ReadInfo(files);
    const bool keepable = library::LostInInfo({info}).isEmpty();
    fuzz::Require(library::WriteInfo(files, {info}).Ok() == keepable, "nothing is lost in silence");
    if (!keepable) {
        fuzz::Require(
            library::WriteInfo(files, {info}, library::Loss::Accept).Ok(), "or with a yes");
        return;
    }
    const library::InfoText again = library::ReadInfo(files);
    fuzz::Require(
        again.titles.first == info.titles.first && again.titles.second == info.titles.second,
        "titles read the same");
    fuzz::Require(again.description == info.description, "the description reads the same");
}

void CheckGenres(library::GameFiles& files, library::GenreForm form)
{
    library::Troubles troubles;
    const library::Genres genres = library::ReadGenres(files, form, troubles);
    fuzz::Require(!files.HasMetaFile(u"Extra.dat"_s), "the old genre file is replaced");
    const library::Genres again = library::ReadGenres(files, form, troubles);
    fuzz::Require(troubles.count == 0, "the folder can be written");
    fuzz::Require(
        again.korean == genres.korean && again.english == genres.english, "genres read the same");
}

void CheckFacts(library::GameFiles& files)
{
    const library::Facts facts = library::ReadFacts(files);
    if (!library::WriteFacts(files, facts)) {
        return; // characters that code page 949 can't keep
    }
    const library::Facts again = library::ReadFacts(files);
    fuzz::Require(
        again.Maker == facts.Maker && again.Release == facts.Release &&
            again.GameLanguage == facts.GameLanguage && again.Country == facts.Country,
        "facts read the same");
    fuzz::Require(library::DeleteFacts(files).Ok(), "facts can be deleted");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    if (size == 0) {
        return 0;
    }
    for (const library::EntryFile& file : library::kEntryFiles) {
        fuzz::FuzzInstallation::Remove(installation.InMeta(file.name.toString()));
    }
    const QStringView name = library::kEntryFiles[data[0] % library::kEntryFiles.size()].name;
    fuzz::FuzzInstallation::Write(
        installation.InMeta(name.toString()), fuzz::BytesOf(data + 1, size - 1));

    library::GameFiles files = installation.Star();
    library::ReadBuild(files, 3);
    CheckInfo(files);
    CheckFacts(files);
    CheckGenres(files, size % 2 == 0 ? library::GenreForm::Scan : library::GenreForm::Panel);
    return 0;
}
