#pragma once

#include "library/IconImages.h"
#include "library/ScanProgress.h"
#include "shell/LangTable.h"
#include "shell/Places.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace pelorin::test {

/// A language file with the marks and phase words in it; every other entry is its number.
inline shell::LangTable TestLang()
{
    using namespace Qt::StringLiterals;
    QStringList lines;
    for (int i = 1; i <= shell::kLastEntry; ++i) {
        lines << QString::number(i);
    }
    const auto set = [&](int entry, const QString& text) { lines[entry - 1] = text; };
    set(24, u"%"_s);
    set(54, u"[Windows]"_s);
    set(63, u"[Win31ENG]"_s);
    set(163, u"[CD]"_s);
    set(164, u"[편집]"_s);
    set(165, u"[Win31KOR]"_s);
    set(239, u"[Win98]"_s);
    set(257, u" [압축]"_s);
    set(284, u"[ANEX86]"_s);
    set(285, u"[SNES9X]"_s);
    set(286, u"[FUSION]"_s);
    set(300, u"[NP21]"_s);
    set(339, u"[0.74_3DFX]"_s);
    return shell::LangTable::FromLines(lines).Take();
}

/// Writes down what a job tells, and does what a test wants done meanwhile.
class RecordedProgress : public library::ScanProgress {
public:
    struct Told {
        library::Phase phase = library::Phase::Preparing;
        int value = 0;
        int percent = 0;
        friend bool operator==(const Told&, const Told&) = default;
    };
    std::vector<Told> begun; // value is the maximum
    std::vector<Told> steps;
    std::function<bool(const Told&)> onStep = [](const Told&) { return true; };
    int breaths = 0;

    void Begin(library::Phase phase, int maximum) override
    {
        begun.push_back(Told{phase, maximum, 0});
    }
    bool Step(library::Phase phase, int value, int percent) override
    {
        steps.push_back({phase, value, percent});
        return onStep(steps.back());
    }
    bool Breathe() override
    {
        ++breaths;
        return true;
    }
};

/// An AppDir with the games root "Games" in it.
struct LibraryFolder {
    TestFolder root;
    shell::Places places{root.Path(), root.Path(QStringLiteral("Games")), QString()};

    LibraryFolder() { root.MakeFolder(QStringLiteral("Games")); }
};

/// A picture that tells icons apart: every pixel differs from that of another number.
inline library::IconPixels NumberedIcon(int number)
{
    library::IconPixels icon = library::PlainIcon(
        library::kLargeIcon,
        static_cast<std::uint8_t>(number & 0xff),
        static_cast<std::uint8_t>(number >> 8),
        77);
    icon.bgr[0] = 1; // and the corners from each other
    icon.bgr[icon.bgr.size() - 1] = 2;
    return icon;
}

} // namespace pelorin::test
