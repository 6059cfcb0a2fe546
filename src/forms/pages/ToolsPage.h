#pragma once

#include "forms/pages/Page.h"

namespace pelorin::forms {

/// picInfo(5): one button for each tool pack.
class ToolsPage : public Page {
public:
    ToolsPage(const Deeds& deeds, QWidget* parent);
};

} // namespace pelorin::forms
