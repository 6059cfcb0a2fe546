#include "dosboxconf/ConfCompose.h"

#include "dosboxconf/Builds.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using platform::HostPath;
using platform::HostText;

constexpr auto kEnd = "\r\n"_L1;

enum class PseudoKey { None, Log, Volume, LastVolume, Glide };

/// Keys of <INDEX> rows that write no line of their own.
PseudoKey PseudoKeyOf(const QString& key)
{
    struct Row {
        QStringView key;
        PseudoKey pseudo = PseudoKey::None;
    };
    static constexpr Row kRows[] = {
        {u"log", PseudoKey::Log},
        {u"MASTER", PseudoKey::Volume},
        {u"SPKR", PseudoKey::Volume},
        {u"GUS", PseudoKey::Volume},
        {u"SB", PseudoKey::Volume},
        {u"FM", PseudoKey::Volume},
        {u"MT32", PseudoKey::LastVolume},
        {u"glide", PseudoKey::Glide},
    };
    const auto* hit = std::find_if(
        std::begin(kRows), std::end(kRows), [&](const Row& r) { return key == r.key; });
    return hit == std::end(kRows) ? PseudoKey::None : hit->pseudo;
}

/// The sections up to [ipx], from the grid.
class SectionWriter {
public:
    SectionWriter(const RunFacts& facts, const OptionGrid& grid, ConfText& out)
        : m_facts(facts)
        , m_grid(grid)
        , m_out(out)
    {}

    void Write()
    {
        m_out.mixerLine = u"MIXER "_s;
        for (int group = 1; group < kGroups; ++group) {
            if (!m_grid.Key(Cell{group, 0}).isEmpty()) {
                m_out.text.Text(u'[' + m_grid.GroupCaption.value(group) + u']' + kEnd);
            }
            m_skipNext = false;
            for (int item = 0; item < kItems; ++item) {
                WriteRow(Cell{group, item});
            }
            m_out.text.Text(kEnd);
        }
    }

private:
    void WriteRow(Cell cell)
    {
        if (std::exchange(m_skipNext, false) || m_grid.Key(cell).isEmpty()) {
            return;
        }
        const QString& key = m_grid.Key(cell);
        switch (m_grid.Kind(cell)) {
        case OptionKind::Index: WriteIndex(cell); break;
        case OptionKind::Capture:
        case OptionKind::DocPath: WritePath(key, m_facts.metaDir); break;
        case OptionKind::None: WriteValue(key, m_grid.ValueText(cell, 0)); break;
        case OptionKind::CpuCycle: WriteCycles(key, m_grid.Selected(cell)); break;
        case OptionKind::Text: WriteValue(key, QString::number(m_grid.Selected(cell))); break;
        case OptionKind::LogFile:
            WritePath(key, m_facts.exportRoot.Below(m_facts.safeTitle + u".txt"_s));
            break;
        case OptionKind::GusUltra:
            m_out.text.Text(key + u" = "_s + m_grid.ValueText(cell, 0) + kEnd);
            break;
        case OptionKind::Mapper: WritePath(key, MapperFile(m_grid.SelectedText(cell))); break;
        case OptionKind::SavePath:
        case OptionKind::Other: break;
        }
    }

    void WriteIndex(Cell cell)
    {
        const QString& key = m_grid.Key(cell);
        const QString value = m_grid.SelectedText(cell);
        switch (PseudoKeyOf(key)) {
        case PseudoKey::None: WriteValue(key, value); break;
        case PseudoKey::Log: SwitchLogging(value != u"false"_s); break;
        case PseudoKey::Volume: m_out.mixerLine += key + u' ' + value + u' '; break;
        case PseudoKey::LastVolume: m_out.mixerLine += key + u' ' + value; break;
        case PseudoKey::Glide: m_out.glideOn = m_out.glideOn || value == u"true"_s; break;
        }
    }

    /// The row behind `log` names the log file. A log is of no use when the window is gone with
    /// the error, so logging overrides the stored waitonerror, which stands in a group before.
    void SwitchLogging(bool on)
    {
        m_skipNext = !on;
        if (on) {
            m_out.text.ReplaceText(u"waitonerror=false"_s, u"waitonerror=true"_s);
        }
    }

    void WriteCycles(const QString& key, std::int32_t selected)
    {
        if (m_facts.request.build == kWin98) {
            WriteValue(key, u"max 105%"_s);
        } else if (const QString cycles = CyclesText(selected); !cycles.isEmpty()) {
            WriteValue(key, cycles);
        }
    }

    HostPath MapperFile(const QString& name) const
    {
        return name == u"mapper_user.txt"_s
                   ? m_facts.ownMapper
                   : m_facts.mapperFolder.Below(name, m_facts.mapperFiles.Find(name));
    }

    void WriteValue(const QString& key, const QString& value)
    {
        m_out.text.Text(key + u'=' + value + kEnd);
    }

    void WritePath(const QString& key, const HostPath& path)
    {
        m_out.text.Text(key + u'=').Path(path).Text(kEnd);
    }

    const RunFacts& m_facts;
    const OptionGrid& m_grid;
    ConfText& m_out;
    bool m_skipNext = false;
};

void WriteEnvironment(const RunFacts& facts, const QString& mixerLine, HostText& text)
{
    text.Text(u"[autoexec]\r\n"
              "SET SOUND=X:\\SB16\r\n"
              "SET MIDI=SYNTH:1 MAP:E\r\n"
              "SET GAMEROOT="_s)
        .BatchPath(facts.gameDir)
        .Text(u"\r\nMount x "_s)
        .BatchPath(facts.utilities)
        .Text(u"\r\nPATH X:\\MDIR;Y:\\ULTRASND;Z:\\\r\n"
              "X:\\SB16\\DIAGNOSE /S\r\n"
              "X:\\SB16\\MIXERSET /P /Q\r\n"_s)
        .Text(mixerLine + u"\r\nMount c \""_s);
    // The quotation mark of the whole library is never closed; the emulator takes it so.
    if (facts.request.mountRoot) {
        text.BatchPath(facts.gamesRoot);
    } else {
        text.BatchPath(facts.gameDir).Text(u"\""_s);
    }
    text.Text(u"\r\nMount Y "_s)
        .BatchPath(facts.gravis)
        .Text(u"\r\nSET PROPATS=Y:\\PPL161\r\n"
              "c:"_s);
}

HostText QuotedImage(const RunFacts& facts, const QString& image)
{
    HostText text;
    text.Text(u" \""_s).BatchPath(facts.cdFolder.Below(image)).Text(u"\""_s);
    return text;
}

/// One imgmount line. Several images on one drive are swapped by the emulator.
void WriteImageMount(const RunFacts& facts, QChar letter, const QStringList& images, HostText& text)
{
    const bool win98 = IsWin98Family(facts.request.build);
    text.Text(u"\r\nimgmount "_s + letter + (win98 ? QString() : u":"_s));
    for (const QString& image : images) {
        text.Append(QuotedImage(facts, image));
    }
    text.Text(u" -t iso"_s);
    if (win98) {
        // Windows 98 sees a drive only at a place on its two controllers; the hard disks take the
        // first, which leaves two.
        const QString place = letter == u'E' ? u"2m"_s : letter == u'F' ? u"2s"_s : QString();
        text.Text(u" -fs iso -ide "_s + place);
    }
    text.Text(kEnd);
}

void WriteCd(const RunFacts& facts, HostText& text)
{
    const CdChoice& cd = facts.request.cd;
    const bool win98 = IsWin98Family(facts.request.build);
    if (!cd.chkCD) {
        return;
    }
    QChar letter = win98 ? u'E' : u'D';
    if (cd.CdMountMode == 0) {
        if (!win98) {
            text.Text(u"\r\nMount "_s + letter + u": \""_s)
                .BatchPath(facts.gameDir)
                .Text(u"\" -t cdrom"_s);
        }
    } else if (!cd.chkMountCD) {
        if (!cd.lstCD.isEmpty()) {
            WriteImageMount(facts, letter, cd.lstCD, text);
        }
    } else {
        for (const QString& image : cd.lstCD) {
            WriteImageMount(facts, letter, {image}, text);
            letter = QChar(letter.unicode() + 1);
        }
    }
}

void WriteNetwork(const ConfRequest& request, HostText& text)
{
    if (!request.ipx) {
        return;
    }
    QString command = u"startserver"_s;
    if (!request.ipxAddress.isEmpty()) {
        command = u"connect "_s + request.ipxAddress;
    } else if (request.serverPort != kIpxPort) {
        command += u' ' + QString::number(request.serverPort);
    }
    text.Text(u"\r\nipxnet "_s + command + kEnd);
}

} // namespace

ConfText ComposeDosboxConf(const RunFacts& facts, const OptionGrid& grid)
{
    ConfText out;
    SectionWriter(facts, grid, out).Write();
    out.text.Text(u"[ipx]\r\nipx="_s + (facts.request.ipx ? u"true"_s : u"false"_s) + kEnd + kEnd);
    WriteEnvironment(facts, out.mixerLine, out.text);
    WriteCd(facts, out.text);
    WriteNetwork(facts.request, out.text);
    return out;
}

} // namespace pelorin::dosboxconf
