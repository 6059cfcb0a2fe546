#include "forms/pages/InformationPage.h"

#include "forms/MediaPart.h"
#include "forms/MenuButton.h"
#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/OwnTexts.h"
#include "forms/PictureFile.h"
#include "forms/Pictures.h"
#include "forms/Texts.h"
#include "library/Drafts.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QTextCursor>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using shell::DetailsPanel;

namespace {

void ShowTitle(QLineEdit& box, const QString& text, bool anew)
{
    // A longer one that came from elsewhere is not to be cut by being shown.
    if (const int most = qMax(library::kMostTitle, static_cast<int>(text.size()));
        box.maxLength() != most) {
        box.setMaxLength(most); // which forgets what could be undone
    }
    if (anew) {
        box.setText(text);
        box.setCursorPosition(0);
    } else if (box.text() != text) {
        // As if typed, so that it can be undone.
        box.selectAll();
        box.insert(text);
    }
}

} // namespace

InformationPage::InformationPage(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : Page(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_listening(shown.screens.details.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap(*this));
    column->addLayout(BuildHead());
    column->addLayout(BuildGenres());
    column->addSpacing(Gap(*this));
    column->addLayout(BuildInfoHead());
    BuildInfo();
    column->addWidget(m_lblInfoNote);
    column->addWidget(m_txtInfo, 3);
    column->addSpacing(Gap(*this));
    m_media = new MediaPart(shown, deeds, this);
    column->addWidget(m_media, 3);
    Follow(DetailsPanel::Texts | DetailsPanel::Icon | DetailsPanel::Genres | DetailsPanel::Draft);
    auto* save = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this);
    save->setContext(Qt::WidgetWithChildrenShortcut);
    save->setAutoRepeat(false);
    connect(save, &QShortcut::activated, m_cmdSaveInfo, &QAbstractButton::click);
}

QLayout* InformationPage::BuildHead()
{
    auto* icons = new QVBoxLayout;
    m_cmdIcon = new QToolButton(this);
    m_cmdIcon->setObjectName(u"cmdIcon_0"_s);
    m_cmdIcon->setAutoRaise(true);
    m_cmdIcon->setFocusPolicy(Qt::TabFocus);
    // It shows the game's icon, so it is not greyed out while there is no command behind it.
    m_cmdIcon->setAttribute(Qt::WA_TransparentForMouseEvents, !m_deeds.cmdIcon_Click);
    const int side = qRound(SmallSide(*this) * 3.0);
    m_cmdIcon->setIconSize(QSize(side, side));
    connect(m_cmdIcon, &QToolButton::clicked, this, [this] { Do(m_deeds.cmdIcon_Click, 0); });
    icons->addWidget(m_cmdIcon, 0, Qt::AlignHCenter);
    icons->addWidget(
        AddPicture(u"cmdIcon_1"_s, u"program"_s, m_deeds.cmdIcon_Click, 1), 0, Qt::AlignHCenter);
    icons->addStretch();

    auto* titles = new QVBoxLayout;
    titles->setSpacing(Gap(*this) / 3);
    for (int i = 0; i < 2; ++i) {
        auto* caption = new QLabel(this);
        caption->setObjectName(u"lblTitle_%1"_s.arg(i));
        caption->setFont(Scaled(caption->font(), 0.9));
        auto* title = new QLineEdit(this);
        title->setObjectName(u"txtTitle_%1"_s.arg(i));
        title->installEventFilter(this);
        connect(title, &QLineEdit::textEdited, this, [this, i](const QString& text) {
            m_shown.screens.details.txtTitle[static_cast<std::size_t>(i)] = text;
            Do(m_deeds.Info_Change);
        });
        caption->setBuddy(title);
        titles->addWidget(caption);
        titles->addWidget(title);
        m_txtTitle[static_cast<std::size_t>(i)] = title;
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * Gap(*this));
    row->addLayout(icons);
    row->addLayout(titles, 1);
    return row;
}

QLayout* InformationPage::BuildInfoHead()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * Gap(*this));
    m_lblDraft = new QLabel(this);
    m_lblDraft->setObjectName(u"lblDraft"_s);
    m_cmdSaveInfo = AddPush(u"cmdSaveInfo"_s, m_deeds.cmdSaveInfo_Click);
    row->addWidget(AddHeading(u"lblInfo"_s));
    row->addStretch();
    row->addWidget(m_lblDraft);
    row->addWidget(m_cmdSaveInfo);
    return row;
}

void InformationPage::BuildInfo()
{
    m_lblInfoNote = new QLabel(this);
    m_lblInfoNote->setObjectName(u"lblInfoNote"_s);
    m_lblInfoNote->setWordWrap(true);
    m_txtInfo = new QPlainTextEdit(this);
    m_txtInfo->setObjectName(u"txtInfo"_s);
    m_txtInfo->setTabChangesFocus(true);
    m_txtInfo->installEventFilter(this);
    connect(m_txtInfo, &QPlainTextEdit::textChanged, this, [this] {
        if (m_showing) {
            return;
        }
        m_shown.screens.details.txtInfo = m_txtInfo->toPlainText().replace(u'\n', u"\r\n"_s);
        Do(m_deeds.Info_Change);
    });
}

QLayout* InformationPage::BuildGenres()
{
    const auto build =
        [this](const QString& name, const Deeds::Menu& menu, const Deeds::IndexDeed& chosen) {
            auto* genre = new MenuButton(this);
            genre->setObjectName(name);
            genre->setToolButtonStyle(Qt::ToolButtonTextOnly);
            genre->setFocusPolicy(Qt::TabFocus);
            genre->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            GiveMenu(*genre, u"mnu"_s + name.mid(3), menu, chosen);
            return genre;
        };
    m_lblGenreK = build(u"lblGenreK"_s, m_deeds.mnuGenreK, m_deeds.mnuGenreK_Click);
    m_lblGenreE = build(u"lblGenreE"_s, m_deeds.mnuGenreE, m_deeds.mnuGenreE_Click);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap(*this));
    grid->setVerticalSpacing(Gap(*this) / 3);
    int column = 0;
    for (QToolButton* genre : {m_lblGenreK, m_lblGenreE}) {
        auto* caption = new QLabel(this);
        caption->setObjectName(column == 0 ? u"lblGenreTitleK"_s : u"lblGenreTitleE"_s);
        caption->setFont(Scaled(caption->font(), 0.9));
        caption->setBuddy(genre);
        grid->addWidget(caption, 0, column);
        grid->addWidget(genre, 1, column);
        grid->setColumnStretch(column, 1);
        ++column;
    }
    return grid;
}

void InformationPage::Follow(std::uint32_t changed)
{
    if ((changed & DetailsPanel::Texts) != 0) {
        ShowTexts();
    }
    if ((changed & DetailsPanel::Draft) != 0) {
        ShowDraft();
    }
    if ((changed & DetailsPanel::Genres) != 0) {
        ShowGenres();
    }
    if ((changed & DetailsPanel::Icon) != 0) {
        ShowIcon();
    }
    if ((changed & DetailsPanel::FocusTitle) != 0) {
        QLineEdit* const title = m_txtTitle[m_shown.settings.TitleLanguageKorean ? 0 : 1];
        title->setFocus();
        title->selectAll();
    }
}

/// A genre's button is known by what the genre is of, and tells all of what it may have to shorten.
void InformationPage::ShowGenres()
{
    const DetailsPanel& details = m_shown.screens.details;
    struct Row {
        QToolButton* button;
        const QString& genre;
        int caption;
    };
    for (const Row& row :
         {Row{m_lblGenreK, details.lblGenreK, 30}, Row{m_lblGenreE, details.lblGenreE, 13}}) {
        row.button->setText(shell::MenuTitle(row.genre));
        row.button->setAccessibleName(m_shown.lang[row.caption] + u": "_s + row.genre);
        row.button->setToolTip(AsToolTip(row.genre));
    }
}

void InformationPage::ShowTexts()
{
    const DetailsPanel& details = m_shown.screens.details;
    const bool another = m_folder != details.folder;
    m_folder = details.folder;
    m_showing = true;
    for (std::size_t i = 0; i < m_txtTitle.size(); ++i) {
        ShowTitle(*m_txtTitle[i], details.txtTitle[i], another);
    }
    QString text = details.txtInfo;
    text.replace(u"\r\n"_s, u"\n"_s);
    if (another) {
        m_txtInfo->setPlainText(text);
    } else if (m_txtInfo->toPlainText() != text) {
        // As if typed, so that it can be undone.
        QTextCursor cursor(m_txtInfo->document());
        cursor.select(QTextCursor::Document);
        cursor.insertText(text);
    }
    m_showing = false;
    ShowInfoState();
}

void InformationPage::ShowInfoState()
{
    const DetailsPanel& details = m_shown.screens.details;
    const library::InfoState state = details.savedInfo.state;
    const bool editable = m_deeds.Info_Change && library::MayEditInfo(details, m_shown.settings);
    m_cmdSaveInfo->setEnabled(editable && static_cast<bool>(m_deeds.cmdSaveInfo_Click));
    for (QLineEdit* title : m_txtTitle) {
        title->setReadOnly(!editable);
    }
    m_txtInfo->setReadOnly(!editable);
    m_lblInfoNote->setText(
        Own(m_shown.lang, state == library::InfoState::Cut ? kOwnInfoCut : kOwnInfoUnreadable));
    m_lblInfoNote->setVisible(state != library::InfoState::Whole);
}

void InformationPage::TakeTexts()
{
    ShowGenres();
    ShowInfoState();
    m_media->TakeTexts();
}

void InformationPage::ShowDraft()
{
    m_lblDraft->setVisible(m_shown.screens.details.draft);
}

bool InformationPage::eventFilter(QObject* watched, QEvent* event)
{
    const bool escape = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!escape) {
        return Page::eventFilter(watched, event);
    }
    const int box = watched == m_txtTitle[0] ? 0 : watched == m_txtTitle[1] ? 1 : 2;
    Do(m_deeds.Info_Esc, box);
    return true;
}

void InformationPage::ShowIcon()
{
    const QString& file = m_shown.screens.details.iconFile;
    const double ratio = devicePixelRatioF();
    const QSize side = m_cmdIcon->iconSize() * ratio;
    const QImage image = file.isEmpty() ? QImage() : ReadPicture(file, side * 4).image;
    if (image.isNull()) {
        m_cmdIcon->setIcon(PictureIcon(u"game"_s));
        return;
    }
    QPixmap pixmap =
        QPixmap::fromImage(image.scaled(side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    m_cmdIcon->setIcon(QIcon(pixmap));
}

} // namespace pelorin::forms
