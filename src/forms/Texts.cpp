#include "forms/Texts.h"

#include "forms/OwnTexts.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMultiHash>
#include <QTabBar>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

enum class Kind {
    Caption, // what stands on it
    ToolTip, // and what a screen reader calls it, if no caption stands on it
    Name,    // what a screen reader calls it
    Hint,    // what an empty box shows
};

struct ControlText {
    const char16_t* control = u"";
    Kind kind = Kind::Caption;
    OwnEntry text;
};

constexpr OwnEntry Entry(int number)
{
    return {number, u""};
}

constexpr ControlText kTexts[] = {
    // The toolbar.
    {u"cmdRun_0", Kind::Caption, kOwnRun},
    {u"cmdRun_0", Kind::ToolTip, Entry(10)},
    {u"cmdRun_1", Kind::ToolTip, kOwnMoreRuns},
    {u"cmdRefresh", Kind::ToolTip, Entry(17)},
    {u"optViewmode_0", Kind::ToolTip, Entry(8)},
    {u"optViewmode_1", Kind::ToolTip, Entry(9)},
    {u"optViewmode_2", Kind::ToolTip, Entry(301)},
    {u"optViewmode_3", Kind::ToolTip, Entry(302)},
    {u"Picture2", Kind::ToolTip, Entry(36)},
    {u"txtFind", Kind::Hint, kOwnFindHint},
    {u"txtFind", Kind::Name, kOwnFindHint},
    {u"cmdFind", Kind::ToolTip, Entry(33)},
    {u"picAddGame", Kind::Caption, kOwnAddGame},
    {u"picAddGame", Kind::ToolTip, Entry(34)},
    {u"TreeView1", Kind::Name, kOwnFilter},
    {u"tabInfo", Kind::Name, kOwnPages},
    // The information page.
    {u"lblTitle_0", Kind::Caption, kOwnTitleK},
    {u"lblTitle_1", Kind::Caption, kOwnTitleE},
    {u"lblGenreTitleK", Kind::Caption, Entry(30)},
    {u"lblGenreTitleE", Kind::Caption, Entry(13)},
    {u"lblInfo", Kind::Caption, Entry(29)},
    {u"lblDraft", Kind::Caption, kOwnDraft},
    {u"txtInfo", Kind::Name, Entry(29)},
    {u"cmdIcon_0", Kind::ToolTip, Entry(25)},
    {u"cmdIcon_1", Kind::ToolTip, Entry(62)},
    {u"cmdSaveInfo", Kind::Caption, Entry(58)},
    {u"TabStrip1", Kind::Name, kOwnMedia},
    {u"fileImages", Kind::Name, Entry(26)},
    {u"fileAV", Kind::Name, Entry(27)},
    {u"fileManual", Kind::Name, Entry(28)},
    {u"pic1", Kind::Name, kOwnPicture},
    // The start page.
    {u"lblAutoexec", Kind::Caption, Entry(19)},
    {u"lstAutoexec", Kind::Name, Entry(19)},
    {u"cmdAddExec", Kind::Caption, Entry(59)},
    {u"cmdDelete", Kind::ToolTip, Entry(61)},
    {u"cmdUp", Kind::ToolTip, Entry(64)},
    {u"cmdDown", Kind::ToolTip, Entry(65)},
    {u"cmdSaveExec", Kind::Caption, Entry(66)},
    {u"lblEXE", Kind::Caption, kOwnRunnable},
    {u"fileEXE", Kind::Name, kOwnRunnable},
    {u"chkCD", Kind::Caption, Entry(53)},
    {u"lstCD", Kind::Name, kOwnCdImages},
    {u"chkMountCD", Kind::Caption, Entry(55)},
    {u"cmdCD", Kind::Caption, Entry(56)},
    {u"cmdSaveCD", Kind::Caption, Entry(57)},
    // The configuration page.
    {u"lblConfigSub", Kind::Caption, kOwnGroup},
    {u"cmbConfigSub", Kind::Name, kOwnGroup},
    {u"lstConfigTitle", Kind::Name, kOwnOptions},
    {u"lstConfig", Kind::Name, kOwnValues},
    {u"lstEdit_0", Kind::Name, kOwnDifferentGroups},
    {u"lstEdit_1", Kind::Name, kOwnDifferentOptions},
    {u"lstEdit_2", Kind::Name, kOwnDifferentValues},
    {u"lblConfigMessage", Kind::Caption, Entry(318)},
    {u"txtDesc", Kind::Name, Entry(29)},
    {u"txtPreview", Kind::Name, kOwnPreview},
    {u"cmdSaveConfig", Kind::Caption, Entry(75)},
    {u"cmdOpenPreset", Kind::Caption, Entry(76)},
    {u"cmdSavePreset", Kind::Caption, Entry(77)},
    // The settings page.
    {u"lblPlacement", Kind::Caption, kOwnPlacement},
    {u"lblDosboxPos_0", Kind::Caption, Entry(234)},
    {u"lblDosboxPos_1", Kind::Caption, Entry(235)},
    {u"txtDosboxPos_0", Kind::Name, Entry(234)},
    {u"txtDosboxPos_1", Kind::Name, Entry(235)},
    {u"cmdSetPos", Kind::Caption, Entry(232)},
    {u"cmdRememberPos", Kind::Caption, Entry(233)},
    {u"cmdMoveDosbox_0", Kind::ToolTip, Entry(64)},
    {u"cmdMoveDosbox_1", Kind::ToolTip, kOwnLeft},
    {u"cmdMoveDosbox_2", Kind::ToolTip, kOwnRight},
    {u"cmdMoveDosbox_3", Kind::ToolTip, Entry(65)},
    {u"chkDosboxMove", Kind::Caption, Entry(231)},
    {u"lblDosboxMove", Kind::Caption, kOwnDelay},
    {u"cmbDosboxMove", Kind::Name, kOwnDelay},
    {u"lblUpkeep", Kind::Caption, kOwnUpkeep},
    {u"cmdCompact", Kind::Caption, Entry(236)},
    {u"cmdFolderCFG", Kind::Caption, Entry(237)},
    {u"cmdFolderCFG_Empty", Kind::Caption, Entry(237)},
    {u"cmdUpdate", Kind::Caption, Entry(298)},
    {u"lblKeys", Kind::Caption, kOwnKeys},
    // frmFolderCFG.
    {u"fraGames", Kind::Caption, Entry(197)},
    {u"txtGames", Kind::Name, Entry(197)},
    {u"cmdGamesPath", Kind::Caption, Entry(201)},
    {u"cmdGamesDefault", Kind::Caption, Entry(199)},
    {u"cmdGamesOpen", Kind::Caption, Entry(200)},
    {u"fraExport", Kind::Caption, Entry(198)},
    {u"txtExport", Kind::Name, Entry(198)},
    {u"cmdExportPath", Kind::Caption, Entry(201)},
    {u"cmdExportDefault", Kind::Caption, Entry(199)},
    {u"cmdExportOpen", Kind::Caption, Entry(200)},
    // The tools page.
    {u"lblTools", Kind::Caption, Entry(325)},
};

constexpr int kFirstToolEntry = 326;

void Give(QWidget& widget, Kind kind, const QString& text)
{
    switch (kind) {
    case Kind::Caption:
        if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
            button->setText(text);
        } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
            label->setText(text);
        } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
            group->setTitle(text);
        }
        break;
    case Kind::ToolTip: {
        widget.setToolTip(text);
        const auto* button = qobject_cast<QAbstractButton*>(&widget);
        if (button == nullptr || button->text().isEmpty()) {
            widget.setAccessibleName(text);
        }
        break;
    }
    case Kind::Name: widget.setAccessibleName(Heading(text)); break;
    case Kind::Hint:
        if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
            box->setPlaceholderText(text);
        }
        break;
    }
}

using NamedWidgets = QMultiHash<QString, QWidget*>;

NamedWidgets NamedBelow(const QWidget& root)
{
    NamedWidgets widgets;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (const QString name = widget->objectName(); !name.isEmpty()) {
            widgets.insert(name, widget);
        }
    }
    return widgets;
}

void GiveNamed(const NamedWidgets& widgets, const QString& name, Kind kind, const QString& text)
{
    const auto [first, last] = widgets.equal_range(name);
    for (auto widget = first; widget != last; ++widget) {
        Give(**widget, kind, text);
    }
}

void GiveTabs(
    QWidget& root, const QString& name, const QList<int>& entries, const shell::LangTable& lang)
{
    auto* tabs = root.findChild<QTabBar*>(name);
    for (int i = 0; tabs != nullptr && i < qMin(tabs->count(), int(entries.size())); ++i) {
        tabs->setTabText(i, lang[entries[i]]);
        tabs->setTabToolTip(i, lang[entries[i]]);
    }
}

} // namespace

QString AsToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? u"<qt>"_s + text.toHtmlEscaped() + u"</qt>"_s : text;
}

QString Heading(const QString& text)
{
    QString plain = text.trimmed();
    while (plain.endsWith(u':') || plain.endsWith(u' ')) {
        plain.chop(1);
    }
    return plain;
}

void ApplyTexts(QWidget& root, const shell::LangTable& lang)
{
    const NamedWidgets widgets = NamedBelow(root);
    for (const ControlText& text : kTexts) {
        GiveNamed(widgets, QString::fromUtf16(text.control), text.kind, Own(lang, text.text));
    }
    for (int i = 0; i < kKeyPairs; ++i) {
        const bool last = i == kKeyPairs - 1;
        GiveNamed(
            widgets, u"lblKeyTitle_%1"_s.arg(i), Kind::Caption, lang[last ? 230 : 86 + 2 * i]);
        GiveNamed(widgets, u"lblkey_%1"_s.arg(i), Kind::Caption, lang[last ? 248 : 87 + 2 * i]);
    }
    for (int i = 0; i < kTools; ++i) {
        GiveNamed(
            widgets, u"cmdDownloadTools_%1"_s.arg(i), Kind::Caption, lang[kFirstToolEntry + i]);
    }
    GiveTabs(root, u"tabInfo"_s, {18, 19, 20, 21, 22, 256}, lang);
    GiveTabs(root, u"TabStrip1"_s, {26, 27, 28}, lang);
}

} // namespace pelorin::forms
