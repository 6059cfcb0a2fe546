#pragma once

#include "forms/Deeds.h"

#include <QPushButton>

namespace pelorin::forms {

/// The way to the folders while a library is empty: both panels rest then, and with them the page
/// that has cmdFolderCFG. Stands over the list, below the words for its emptiness.
class EmptyLibraryButton : public QPushButton {
public:
    EmptyLibraryButton(const Deeds& deeds, QWidget* parent);
    /// Takes its place over `area`, in the parent's coordinates.
    void Place(const QRect& area);
    void SetShown(bool shown);

private:
    QRect m_area;
};

} // namespace pelorin::forms
