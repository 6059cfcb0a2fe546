#include "forms/RightPanel.h"

#include "forms/Metrics.h"
#include "forms/Pictures.h"
#include "forms/Texts.h"
#include "forms/pages/ConfigPage.h"
#include "forms/pages/InformationPage.h"
#include "forms/pages/SettingsPage.h"
#include "forms/pages/StartPage.h"
#include "forms/pages/ToolsPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

constexpr double kPageEms = 28;
/// What the smallest height of the window has beside tabInfo and the status bar: 135 form units.
constexpr int kOverRail = 9;

struct Tab {
    const char16_t* picture;
    int page; // picInfo's number
};

/// Tab t is kTabs[t - 1]. The tabs of the global and the game's settings share a page.
constexpr std::array<Tab, 6> kTabs{{
    {u"page-info", 0},
    {u"page-start", 1},
    {u"page-global", 2},
    {u"page-game", 2},
    {u"page-settings", 4},
    {u"page-tools", 5},
}};

} // namespace

RightPanel::RightPanel(const Shown& shown, const Deeds& deeds, QWidget* parent)
    : QWidget(parent)
    , m_shown(shown)
    , m_deeds(deeds)
    , m_rail(new PageRail(this))
    , m_stack(new QStackedWidget(this))
{
    setObjectName(u"picBack_1"_s);
    BuildRail();
    const int gap = Gap(*this);
    auto* pages = new QVBoxLayout;
    pages->setContentsMargins(0, 2 * gap, 0, 2 * gap);
    pages->addWidget(m_stack);
    auto* rail = new QVBoxLayout;
    rail->setContentsMargins(0, kOverRail, 0, 0);
    rail->addWidget(m_rail);
    rail->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * gap, 0, gap, 0);
    row->setSpacing(gap);
    row->addLayout(pages, 1);
    row->addLayout(rail);
    setFixedWidth(Ems(*this, kPageEms) + m_rail->sizeHint().width() + 4 * gap);
    ShowTab();
}

void RightPanel::BuildRail()
{
    m_rail->setObjectName(u"tabInfo"_s);
    for (const Tab& tab : kTabs) {
        m_rail->addTab(PictureIcon(QString::fromUtf16(tab.picture)), QString());
    }
    connect(m_rail, &QTabBar::currentChanged, this, [this](int index) {
        const int tab = index + 1;
        if (tab == m_shown.screens.frame.tabInfo) {
            return;
        }
        m_shown.screens.frame.tabInfo = tab;
        ShowTab();
        Do(m_deeds.tabInfo_Click, tab);
    });
}

Page* RightPanel::MakePage(int number)
{
    switch (number) {
    case 0: return new InformationPage(m_shown, m_deeds, m_stack);
    case 1: return new StartPage(m_shown, m_deeds, m_stack);
    case 2: return new ConfigPage(m_shown, m_deeds, m_stack);
    case 4: return new SettingsPage(m_shown, m_deeds, m_stack);
    default: return new ToolsPage(m_deeds, m_stack);
    }
}

void RightPanel::ShowTab()
{
    const int tab = qBound(1, m_shown.screens.frame.tabInfo, int(kTabs.size()));
    const int number = kTabs[static_cast<std::size_t>(tab - 1)].page;
    Page*& page = m_pages[static_cast<std::size_t>(number)];
    if (page == nullptr) {
        page = MakePage(number);
        page->setObjectName(u"picInfo_%1"_s.arg(number));
        m_stack->addWidget(page);
        if (m_shown.lang.IsLoaded()) {
            ApplyTexts(*page, m_shown.lang);
            page->TakeTexts();
        }
        OrderTabs(*page);
    }
    m_stack->setCurrentWidget(page);
    m_rail->setCurrentIndex(tab - 1);
}

void RightPanel::OrderTabs(Page& page)
{
    // What is made later stands at the end of the window's tab order, behind the status bar.
    QList<QWidget*> stops;
    for (QWidget* widget = page.nextInFocusChain(); widget != &page;
         widget = widget->nextInFocusChain()) {
        if (page.isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            stops << widget;
        }
    }
    QWidget* last = m_rail;
    for (QWidget* widget : stops) {
        setTabOrder(last, widget);
        last = widget;
    }
}

void RightPanel::TakeTexts()
{
    for (Page* page : m_pages) {
        if (page != nullptr) {
            page->TakeTexts();
        }
    }
}

} // namespace pelorin::forms
