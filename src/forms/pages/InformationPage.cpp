#include "forms/pages/InformationPage.h"

#include "forms/MenuButton.h"
#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/Pictures.h"

#include <QGridLayout>
#include <QImageReader>
#include <QListView>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using shell::DetailsPanel;

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
    auto* infoHead = new QHBoxLayout;
    infoHead->addWidget(AddHeading(u"lblInfo"_s), 1);
    infoHead->addWidget(AddPush(u"cmdSaveInfo"_s, static_cast<bool>(deeds.cmdSaveInfo_Click)));
    column->addLayout(infoHead);
    m_txtInfo = new QPlainTextEdit(this);
    m_txtInfo->setObjectName(u"txtInfo"_s);
    m_txtInfo->setReadOnly(true);
    m_txtInfo->setTabChangesFocus(true);
    column->addWidget(m_txtInfo, 3);
    column->addSpacing(Gap(*this));
    column->addWidget(BuildMedia(), 3);
    Follow(DetailsPanel::Texts | DetailsPanel::Icon | DetailsPanel::Genres);
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
    QAbstractButton* const fromExe =
        AddPicture(u"cmdIcon_1"_s, u"program"_s, static_cast<bool>(m_deeds.cmdIcon_Click));
    connect(fromExe, &QAbstractButton::clicked, this, [this] { Do(m_deeds.cmdIcon_Click, 1); });
    icons->addWidget(m_cmdIcon, 0, Qt::AlignHCenter);
    icons->addWidget(fromExe, 0, Qt::AlignHCenter);
    icons->addStretch();

    auto* titles = new QVBoxLayout;
    titles->setSpacing(Gap(*this) / 3);
    for (int i = 0; i < 2; ++i) {
        auto* caption = new QLabel(this);
        caption->setObjectName(u"lblTitle_%1"_s.arg(i));
        caption->setFont(Scaled(caption->font(), 0.9));
        auto* title = new QLineEdit(this);
        title->setObjectName(u"txtTitle_%1"_s.arg(i));
        title->setReadOnly(true);
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

QWidget* InformationPage::BuildMedia()
{
    auto* media = new QWidget(this);
    auto* column = new QVBoxLayout(media);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* tabs = new QTabBar(media);
    tabs->setObjectName(u"TabStrip1"_s);
    tabs->setExpanding(false);
    tabs->setDrawBase(true);
    auto* lists = new QStackedWidget(media);
    for (const auto* name : {u"fileImages", u"fileAV", u"fileManual"}) {
        tabs->addTab(QString());
        auto* list = new QListView(lists);
        list->setObjectName(QString::fromUtf16(name));
        lists->addWidget(list);
    }
    connect(tabs, &QTabBar::currentChanged, lists, &QStackedWidget::setCurrentIndex);
    auto* pic1 = new QLabel(media);
    pic1->setObjectName(u"pic1"_s);
    pic1->setFrameShape(QFrame::StyledPanel);
    pic1->setAlignment(Qt::AlignCenter);
    pic1->setPixmap(
        PictureIcon(u"picture"_s)
            .pixmap(
                QSize(LargeSide(*this), LargeSide(*this)), devicePixelRatioF(), QIcon::Disabled));
    auto* row = new QHBoxLayout;
    row->setSpacing(Gap(*this));
    row->addWidget(lists, 2);
    row->addWidget(pic1, 3);
    column->addWidget(tabs);
    column->addLayout(row, 1);
    lists->setEnabled(false); // no command fills them yet
    return media;
}

void InformationPage::Follow(std::uint32_t changed)
{
    const DetailsPanel& details = m_shown.screens.details;
    if ((changed & DetailsPanel::Texts) != 0) {
        for (std::size_t i = 0; i < m_txtTitle.size(); ++i) {
            m_txtTitle[i]->setText(details.txtTitle[i]);
            m_txtTitle[i]->setCursorPosition(0);
        }
        m_txtInfo->setPlainText(details.txtInfo);
    }
    if ((changed & DetailsPanel::Genres) != 0) {
        m_lblGenreK->setText(shell::MenuTitle(details.lblGenreK));
        m_lblGenreE->setText(shell::MenuTitle(details.lblGenreE));
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

void InformationPage::ShowIcon()
{
    const QString& file = m_shown.screens.details.iconFile;
    QImage image;
    if (!file.isEmpty()) {
        QImageReader reader(file);
        // Told by its content: the file's name promises a JPEG, whatever it is.
        reader.setDecideFormatFromContent(true);
        reader.setAutoTransform(true);
        image = reader.read();
    }
    if (image.isNull()) {
        m_cmdIcon->setIcon(PictureIcon(u"game"_s));
        return;
    }
    const double ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(
        image.scaled(m_cmdIcon->iconSize() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    m_cmdIcon->setIcon(QIcon(pixmap));
}

} // namespace pelorin::forms
