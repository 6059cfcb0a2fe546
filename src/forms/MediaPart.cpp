#include "forms/MediaPart.h"

#include "forms/Menus.h"
#include "forms/Metrics.h"
#include "forms/PictureView.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

using library::MediaPanel;

namespace {

struct MediaList {
    const char16_t* name;
    const char16_t* menuName;
    library::FileList MediaPanel::*list;
    Deeds::Menu Deeds::*menu;
    Deeds::IndexDeed Deeds::*chosen;
    Deeds::Deed Deeds::*remove;
    std::uint32_t bit;
};

/// Tab t is kLists[t - 1].
constexpr std::array<MediaList, 3> kLists{{
    {u"fileImages",
     u"mnuPic",
     &MediaPanel::fileImages,
     &Deeds::mnuPic,
     &Deeds::mnuPic_Click,
     &Deeds::fileImages_Delete,
     MediaPanel::Images},
    {u"fileAV",
     u"mnuAV",
     &MediaPanel::fileAV,
     &Deeds::mnuAV,
     &Deeds::mnuAV_Click,
     &Deeds::fileAV_Delete,
     MediaPanel::Recordings},
    {u"fileManual",
     u"mnuManual",
     &MediaPanel::fileManual,
     &Deeds::mnuManual,
     &Deeds::mnuManual_Click,
     &Deeds::fileManual_Delete,
     MediaPanel::Manuals},
}};

constexpr int kPictureTab = 1;
constexpr int kOpen = 0;

} // namespace

MediaPart::MediaPart(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QWidget(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_tabs(new QTabBar(this))
    , m_stack(new QStackedWidget(this))
    , m_pic1(new PictureView(shown.lang, this))
    , m_listening(shown.screens.media.changed, [this](std::uint32_t changed) { Follow(changed); })
{
    BuildTabs();
    BuildLists();
    BuildPicture();
    auto* row = new QHBoxLayout;
    row->setSpacing(Gap(*this));
    row->addWidget(m_stack, 2);
    row->addWidget(m_pic1, 3);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addLayout(row, 1);
    ShowTab();
    ShowPicture();
}

void MediaPart::BuildTabs()
{
    m_tabs->setObjectName(u"TabStrip1"_s);
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(true);
    for (std::size_t i = 0; i < kLists.size(); ++i) {
        m_tabs->addTab(QString());
    }
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
        m_shown.screens.media.TabStrip1 = index + 1;
        m_stack->setCurrentIndex(index);
    });
}

void MediaPart::BuildLists()
{
    for (int tab = 1; tab <= static_cast<int>(kLists.size()); ++tab) {
        RowList* const list = BuildList(tab);
        m_stack->addWidget(list);
        m_lists[static_cast<std::size_t>(tab - 1)] = list;
    }
    m_lists[kPictureTab - 1]->SetRowChosen([this](int) { ShowPicture(); });
}

RowList* MediaPart::BuildList(int tab)
{
    const MediaList& kind = kLists[static_cast<std::size_t>(tab - 1)];
    library::FileList& files = m_shown.screens.media.*kind.list;
    auto* list = new RowList(files.files, files.row, m_stack);
    list->setObjectName(QString::fromUtf16(kind.name));
    list->SetActivated([this, &kind](int) { Do(m_deeds.*kind.chosen, kOpen); });
    list->SetDeleted([this, &kind](int) { Do(m_deeds.*kind.remove); });
    list->SetMenu([this, tab](QPoint position) { PopupMenuOf(tab, position); });
    return list;
}

void MediaPart::BuildPicture()
{
    m_pic1->setObjectName(u"pic1"_s);
    m_pic1->SetClicked([this] { Do(m_deeds.pic1_Click); });
    m_pic1->SetMenu([this](QPoint position) { PopupMenuOf(kPictureTab, position); });
}

void MediaPart::PopupMenuOf(int tab, QPoint position)
{
    const MediaList& kind = kLists[static_cast<std::size_t>(tab - 1)];
    const Deeds::Menu& menu = m_deeds.*kind.menu;
    const shell::MenuModel model = menu ? menu() : shell::MenuModel{};
    if (!model.empty()) {
        PopupMenu(*this, QString::fromUtf16(kind.menuName), model, m_deeds.*kind.chosen, position);
    }
}

void MediaPart::Follow(std::uint32_t changed)
{
    for (std::size_t i = 0; i < kLists.size(); ++i) {
        if ((changed & kLists[i].bit) != 0) {
            m_lists[i]->ShowRows();
        }
    }
    if ((changed & MediaPanel::ImageRow) != 0) {
        m_lists[kPictureTab - 1]->ShowRow();
    }
    if ((changed & (MediaPanel::Images | MediaPanel::ImageRow)) != 0) {
        ShowPicture();
    }
    if ((changed & MediaPanel::Tab) != 0) {
        ShowTab();
    }
}

void MediaPart::ShowTab()
{
    m_tabs->setCurrentIndex(m_shown.screens.media.TabStrip1 - 1);
}

void MediaPart::ShowPicture()
{
    m_pic1->Show(m_shown.screens.media.fileImages.SelectedPath());
}

void MediaPart::TakeTexts()
{
    m_pic1->TakeTexts();
}

} // namespace pelorin::forms
