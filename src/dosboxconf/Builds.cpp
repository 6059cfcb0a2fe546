#include "dosboxconf/Builds.h"

#include <algorithm>
#include <iterator>

namespace pelorin::dosboxconf {

BuildKind KindOf(const QString& build)
{
    struct Row {
        QStringView build;
        BuildKind kind = BuildKind::Dosbox;
    };
    static constexpr Row kRows[] = {
        {u"Win31KOR", BuildKind::GuestWindows},
        {u"Win31ENG", BuildKind::GuestWindows},
        {kWin98, BuildKind::GuestWindows},
        {u"Win98_LCD", BuildKind::Windows98Lcd},
        {u"Windows", BuildKind::Windows},
        {u"ANEX86", BuildKind::OtherEmulator},
        {u"SNES9X", BuildKind::OtherEmulator},
        {u"FUSION", BuildKind::OtherEmulator},
        {u"NP21", BuildKind::OtherEmulator},
        {u"M88", BuildKind::OtherEmulator},
    };
    const auto* const hit = std::find_if(
        std::begin(kRows), std::end(kRows), [&](const Row& row) { return row.build == build; });
    return hit == std::end(kRows) ? BuildKind::Dosbox : hit->kind;
}

} // namespace pelorin::dosboxconf
