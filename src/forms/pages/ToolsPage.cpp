#include "forms/pages/ToolsPage.h"

#include "forms/Metrics.h"
#include "forms/Texts.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace pelorin::forms {

namespace {

constexpr int kToolColumns = 2;

} // namespace

ToolsPage::ToolsPage(const Deeds& deeds, QWidget* parent)
    : Page(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Gap(*this));
    grid->addWidget(AddHeading(u"lblTools"_s), 0, 0, 1, kToolColumns);
    constexpr int kRows = (kTools + kToolColumns - 1) / kToolColumns;
    for (int i = 0; i < kTools; ++i) {
        grid->addWidget(
            AddPush(u"cmdDownloadTools_%1"_s.arg(i), deeds.cmdDownloadTools_Click, i),
            1 + i % kRows,
            i / kRows);
    }
    grid->setRowStretch(kRows + 1, 1);
}

} // namespace pelorin::forms
