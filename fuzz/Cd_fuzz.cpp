#include "dosboxconf/CdFile.h"
#include "dosboxconf/CdPanel.h"
#include "fuzz/Harness.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

/// What a user may do with what was read.
void Click(dosboxconf::CdPanel& panel, std::uint8_t deeds, const QStringList& images)
{
    const QString placeholder = u"."_s;
    const bool checked = (deeds & 1) != 0;
    switch (deeds / 2 % 4) {
    case 0: dosboxconf::ChkCdClicked(panel, checked, images, placeholder); break;
    case 1: dosboxconf::ChooseCdMode(panel, checked ? 1 : 0, images, placeholder); break;
    case 2: dosboxconf::ChkMountCdClicked(panel, checked, images, placeholder); break;
    default: dosboxconf::ResetCdPanel(panel); break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    fuzz::FuzzInstallation::Write(installation.InMeta(u"CD/one.iso"_s), QByteArray("1"));
    fuzz::FuzzInstallation::Write(installation.InMeta(u"CD.conf"_s), fuzz::BytesOf(data, size));

    const dosboxconf::CdFacts facts = dosboxconf::ReadCdFacts(places, u"Star"_s);
    fuzz::Require(facts.hasConf, "the file is there");
    fuzz::Require(facts.CdMountMode == 0 || facts.CdMountMode == 1, "there are two modes");
    dosboxconf::CdPanel panel;
    dosboxconf::FillCdList(panel, facts, u"."_s);
    fuzz::Require(dosboxconf::SaveCdConf(places, u"Star"_s, panel).Ok(), "it can be saved");

    const dosboxconf::CdFacts again = dosboxconf::ReadCdFacts(places, u"Star"_s);
    dosboxconf::CdPanel second;
    dosboxconf::FillCdList(second, again, u"."_s);
    fuzz::Require(second.lstCD == panel.lstCD, "the list reads the same");
    if (size > 0) {
        Click(second, data[size - 1], again.images);
        fuzz::Require(dosboxconf::SaveCdConf(places, u"Star"_s, second).Ok(), "it can be saved");
    }
    return 0;
}
