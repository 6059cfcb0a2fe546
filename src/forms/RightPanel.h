#pragma once

#include "forms/Deeds.h"
#include "forms/PageRail.h"
#include "forms/Shown.h"
#include "forms/pages/Page.h"

#include <QStackedWidget>

#include <array>

namespace pelorin::forms {

/// picBack(1): tabInfo and its pages, in a fixed width. A page is built when it is first shown.
class RightPanel : public QWidget {
public:
    RightPanel(const Shown& shown, const Deeds& deeds, QWidget* parent = nullptr);

    /// Shows the page of frame.tabInfo.
    void ShowTab();
    void TakeTexts();
    PageRail* Rail() const { return m_rail; }

private:
    static constexpr int kPages = 6;

    Page* MakePage(int number);
    void BuildRail();
    /// The page's controls follow tabInfo.
    void OrderTabs(Page& page);

    Shown m_shown;
    const Deeds& m_deeds;
    PageRail* m_rail;
    QStackedWidget* m_stack;
    std::array<Page*, kPages> m_pages{}; // by the number of picInfo; null until shown
};

} // namespace pelorin::forms
