#include "shell/LauncherCfg.h"

#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::Error;
using platform::ErrorKind;
using platform::Outcome;
using platform::Wording;

namespace {

constexpr QChar kWidthMark(1);

/// Hands out the lines in order and remembers the first fault; a line behind the end is empty.
class LineReader {
public:
    LineReader(const QStringList& lines, const QString& name)
        : m_lines(lines)
        , m_name(name)
    {}

    bool AtEnd() const { return m_next >= m_lines.size(); }
    const std::optional<Wording>& Fault() const { return m_fault; }

    QString Next()
    {
        ++m_next;
        if (m_next > m_lines.size()) {
            Blame(Wording{493, u"<1>: line <2>: missing"_s, {}});
            return QString();
        }
        return m_lines[m_next - 1];
    }

    /// The numeric value of a part of the line that Next gave last.
    double Number(const QString& text)
    {
        const double value = platform::NumericPrefix(text);
        if (!(std::abs(value) <= std::numeric_limits<float>::max())) {
            Blame(Wording{494, u"<1>: line <2>: a number that is too large"_s, {}});
            return 0;
        }
        return value;
    }

    int Choice(int lowest, int highest)
    {
        const int choice = platform::RoundHalfEven(Number(Next()));
        if (choice < lowest || choice > highest) {
            Blame(Wording{
                495,
                u"<1>: line <2>: <3> is not among <4> to <5>"_s,
                {QString::number(choice), QString::number(lowest), QString::number(highest)}});
        }
        return choice;
    }

    /// The file's name and the line's number are put before the values.
    void Blame(Wording reason)
    {
        if (!m_fault) {
            reason.values = QStringList{m_name, QString::number(m_next)} + reason.values;
            m_fault = reason;
        }
    }

private:
    const QStringList& m_lines;
    const QString& m_name;
    qsizetype m_next = 0;
    std::optional<Wording> m_fault;
};

void ReadWindow(LineReader& in, LauncherCfg& cfg)
{
    const double left = in.Number(in.Next());
    const QString top = in.Next();
    if (left == 0) {
        cfg.state = MainFrame::State::Maximized;
        in.Next();
        return;
    }
    cfg.state = MainFrame::State::Normal;
    cfg.left = left;
    cfg.top = in.Number(top);
    const QString size = in.Next();
    const qsizetype comma = size.indexOf(u',');
    if (comma >= 0) {
        cfg.width = std::max(0.0, in.Number(size.left(comma)));
        cfg.height = std::max(0.0, in.Number(size.mid(comma + 1)));
    }
}

void ReadWidths(LineReader& in, LauncherCfg& cfg)
{
    const QStringList widths = in.Next().split(kWidthMark);
    if (widths.size() < finding::kColumns) {
        in.Blame(Wording{
            496,
            u"<1>: line <2>: <3> column widths, <4> are needed"_s,
            {QString::number(widths.size()), QString::number(finding::kColumns)}});
        return;
    }
    for (std::size_t i = 0; i < cfg.columnWidths.size(); ++i) {
        cfg.columnWidths[i] = std::max(0.0, in.Number(widths[static_cast<qsizetype>(i)]));
    }
}

QString WidthsText(const std::array<double, finding::kColumns>& widths)
{
    QStringList texts;
    for (const double width : widths) {
        texts << platform::NumberText(width);
    }
    return texts.join(kWidthMark);
}

QStringList WindowLines(const LauncherCfg& cfg)
{
    if (cfg.state == MainFrame::State::Minimized) {
        return {};
    }
    if (cfg.state == MainFrame::State::Maximized) {
        return {u"0"_s, u"0"_s, u"0"_s};
    }
    // A left edge of 0 would be read as a maximized window; a fifteenth of a pixel is not seen.
    const QString left = platform::NumberText(cfg.left);
    const bool atZero = platform::NumericPrefix(left) == 0;
    return {
        atZero ? u"1"_s : left,
        platform::NumberText(cfg.top),
        platform::NumberText(cfg.width) + u',' + platform::NumberText(cfg.height)};
}

QString OneLine(QString text)
{
    return text.remove(u'\r').remove(u'\n');
}

} // namespace

Outcome<LauncherCfg> ParseLauncherCfg(const QStringList& lines, const QString& name)
{
    LauncherCfg cfg;
    LineReader in(lines, name);
    cfg.view = in.Choice(0, 3);
    ReadWindow(in, cfg);
    in.Next();
    if (!in.AtEnd()) {
        cfg.gamesRoot = in.Next();
        cfg.exportRoot = in.Next();
    }
    if (!in.AtEnd()) {
        in.Next();
    }
    // The two oldest forms end here. One that goes on has all four lines: the short form of a
    // minimized window hasn't, and is told from an old one by that.
    cfg.txtDosboxPos = {u"0"_s, u"0"_s};
    if (!in.AtEnd()) {
        cfg.txtDosboxPos[0] = in.Next();
        cfg.txtDosboxPos[1] = in.Next();
        cfg.chkDosboxMove = platform::RoundHalfEven(in.Number(in.Next())) != 0;
        cfg.cmbDosboxMove = in.Choice(-1, kMoveDelays - 1);
    }
    if (!in.AtEnd()) {
        ReadWidths(in, cfg);
    }
    cfg.titleLanguageKorean = in.AtEnd() || in.Next() == u"0"_s;
    if (in.Fault()) {
        return Error::Worded(ErrorKind::Malformed, *in.Fault());
    }
    return cfg;
}

QStringList LauncherCfgLines(const LauncherCfg& cfg)
{
    return QStringList{QString::number(cfg.view)} + WindowLines(cfg) +
           QStringList{
               u"0"_s,
               cfg.gamesRoot,
               cfg.exportRoot,
               u"0"_s,
               OneLine(cfg.txtDosboxPos[0]),
               OneLine(cfg.txtDosboxPos[1]),
               cfg.chkDosboxMove ? u"1"_s : u"0"_s,
               QString::number(cfg.cmbDosboxMove),
               WidthsText(cfg.columnWidths),
               cfg.titleLanguageKorean ? u"0"_s : u"1"_s};
}

QStringList DefaultCfgLines(const QString& gamesRoot, const QString& exportRoot)
{
    return {
        u"1"_s,
        u"100"_s,
        u"100"_s,
        u"0"_s,
        u"0"_s,
        gamesRoot,
        exportRoot,
        u"0"_s,
        u"100"_s,
        u"100"_s,
        u"0"_s,
        u"4"_s,
        WidthsText(kDefaultColumnWidths)};
}

} // namespace pelorin::shell
