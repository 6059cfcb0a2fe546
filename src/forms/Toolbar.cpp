#include "forms/Toolbar.h"

#include "forms/MenuButton.h"
#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/OwnTexts.h"
#include "forms/Pictures.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

/// cmdOpenFolder has five tool tips, one line each.
constexpr std::array<int, 5> kOpenFolderEntries{11, 12, 14, 15, 16};

} // namespace

Toolbar::Toolbar(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QWidget(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_row(new QHBoxLayout(this))
    , m_listening(shown.screens.search.changed, [this](std::uint32_t c) { FollowSearch(c); })
{
    const int gap = Gap(*this);
    m_row->setContentsMargins(gap, gap, gap, gap);
    m_row->setSpacing(gap / 3);
    AddRunButtons();
    AddGap();
    m_cmdOpenFolder = AddMenuButton(u"cmdOpenFolder"_s, u"folder"_s);
    GiveMenu(*m_cmdOpenFolder, u"mnuFolder"_s, deeds.mnuFolder, deeds.mnuFolder_Click);
    AddButton(u"cmdRefresh"_s, u"refresh"_s, deeds.cmdRefresh_Click);
    AddGap();
    AddViewButtons();
    AddGap();
    m_picture2 = AddButton(u"Picture2"_s, u"title-korean"_s, deeds.Picture2_Click);
    AddGap();
    AddFind();
    AddGap();
    m_addGamePlace = new QWidget(this);
    m_row->addWidget(m_addGamePlace);
    m_cmdVespra = AddButton(u"cmdVespra"_s, u"site-korean"_s, deeds.cmdVespra_Click);
    m_row->addStretch();
    ShowViewMode();
    ShowTitlePicture();
}

void Toolbar::Dress(QToolButton& button, const QString& name, const QString& picture)
{
    button.setObjectName(name);
    button.setIcon(PictureIcon(picture));
    const int side = SmallSide(*this);
    button.setIconSize(QSize(side, side));
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::TabFocus);
    m_row->addWidget(&button);
}

QToolButton* Toolbar::AddButton(
    const QString& name, const QString& picture, const Deeds::Deed& deed)
{
    auto* button = new QToolButton(this);
    Dress(*button, name, picture);
    button->setEnabled(static_cast<bool>(deed));
    // A click leaves the keyboard with the box, and its last syllable with the input method.
    connect(button, &QToolButton::pressed, this, [] { QGuiApplication::inputMethod()->commit(); });
    connect(button, &QToolButton::clicked, this, [deed] { Do(deed); });
    return button;
}

QToolButton* Toolbar::AddMenuButton(const QString& name, const QString& picture)
{
    auto* button = new MenuButton(this);
    Dress(*button, name, picture);
    return button;
}

void Toolbar::AddRunButtons()
{
    QToolButton* const run = AddButton(u"cmdRun_0"_s, u"run"_s, m_deeds.cmdRun_Click);
    run->setAutoRaise(false);
    run->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QFont bold = run->font();
    bold.setBold(true);
    run->setFont(bold);
    // Its picture is the icon of a game that has none.
    QToolButton* const more = AddMenuButton(u"cmdRun_1"_s, u"game"_s);
    more->setAutoRaise(false);
    GiveMenu(*more, u"mnuRun"_s, m_deeds.mnuRun, m_deeds.mnuRun_Click);
    // Both are one thing to the eye.
    run->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    more->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void Toolbar::AddViewButtons()
{
    constexpr std::array<const char16_t*, 4> kPictures{
        u"view-large", u"view-small", u"view-list", u"view-details"};
    for (int i = 0; i < 4; ++i) {
        QToolButton* const option = AddButton(
            u"optViewmode_%1"_s.arg(i),
            QString::fromUtf16(kPictures[static_cast<std::size_t>(i)]),
            {});
        option->setCheckable(true);
        option->setEnabled(static_cast<bool>(m_deeds.optViewmode_Click));
        m_optViewmode.addButton(option, i);
    }
    connect(&m_optViewmode, &QButtonGroup::idClicked, this, [this](int id) {
        Do(m_deeds.optViewmode_Click, static_cast<finding::View>(id));
    });
}

void Toolbar::AddFind()
{
    m_txtFind = new QLineEdit(this);
    m_txtFind->setObjectName(u"txtFind"_s);
    m_txtFind->setFixedWidth(Ems(*this, 11));
    m_txtFind->setText(m_shown.screens.search.txtFind);
    m_txtFind->installEventFilter(this);
    connect(m_txtFind, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_shown.screens.search.txtFind = text;
    });
    m_row->addWidget(m_txtFind);
    m_cmdFind = AddButton(u"cmdFind"_s, u"find"_s, m_deeds.cmdFind_Click);
    m_cmdFind->installEventFilter(this);
    m_txtFind->setEnabled(m_cmdFind->isEnabled());
}

void Toolbar::AddGap()
{
    m_row->addSpacing(2 * Gap(*this));
}

void Toolbar::FollowSearch(std::uint32_t changed)
{
    const QString& term = m_shown.screens.search.txtFind;
    if ((changed & finding::SearchBox::Text) != 0 && m_txtFind->text() != term) {
        m_txtFind->setText(term);
    }
    if ((changed & finding::SearchBox::Focus) != 0) {
        m_txtFind->setFocus();
    }
}

bool Toolbar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        m_pressed = 0;
    }
    if (event->type() == QEvent::KeyPress) {
        m_pressed = static_cast<QKeyEvent*>(event)->key();
    }
    if (event->type() == QEvent::KeyRelease) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        // A release whose press closed a menu or a box over the window is not meant for the search.
        if (!key.isAutoRepeat() && key.key() == m_pressed) {
            m_pressed = 0;
            KeyReleased(watched == m_txtFind, key.key());
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Toolbar::KeyReleased(bool inBox, int key) const
{
    if (inBox && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        Do(m_deeds.cmdFind_Click);
    }
    if (key == Qt::Key_Escape) {
        Do(inBox ? m_deeds.txtFind_Esc : m_deeds.cmdFind_Esc);
    }
}

int Toolbar::VespraLeft() const
{
    m_row->invalidate();
    return m_row->minimumSize().width() - m_row->contentsMargins().right() -
           m_cmdVespra->sizeHint().width();
}

void Toolbar::ShowViewMode()
{
    m_optViewmode.button(static_cast<int>(m_shown.screens.list.view))->setChecked(true);
}

void Toolbar::ShowTitlePicture()
{
    const bool korean = m_shown.settings.TitleLanguageKorean;
    m_picture2->setIcon(PictureIcon(korean ? u"title-korean"_s : u"title-english"_s));
}

void Toolbar::ShowSite()
{
    const bool hasSite = m_shown.screens.frame.hasSite;
    m_cmdVespra->setEnabled(hasSite && m_deeds.cmdVespra_Click);
    const QString name = Own(m_shown.lang, kOwnSite);
    m_cmdVespra->setAccessibleName(name);
    m_cmdVespra->setToolTip(hasSite ? name : Own(m_shown.lang, kOwnNoSite));
}

void Toolbar::TakeTexts()
{
    QStringList lines;
    for (const int entry : kOpenFolderEntries) {
        lines << m_shown.lang[entry];
    }
    m_cmdOpenFolder->setToolTip(lines.join(u'\n'));
    m_cmdOpenFolder->setAccessibleName(lines.front());
    m_cmdVespra->setIcon(
        PictureIcon(m_shown.lang.IsKorean() ? u"site-korean"_s : u"site-english"_s));
    m_cmdVespra->setText(m_shown.lang[0]);
    m_cmdVespra->setToolButtonStyle(
        m_shown.lang[0].isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    ShowSite();
}

} // namespace pelorin::forms
