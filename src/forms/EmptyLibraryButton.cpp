#include "forms/EmptyLibraryButton.h"

#include "forms/Metrics.h"

using namespace Qt::StringLiterals;

namespace pelorin::forms {

EmptyLibraryButton::EmptyLibraryButton(const Deeds& deeds, QWidget* parent)
    : QPushButton(parent)
{
    setObjectName(u"cmdFolderCFG_Empty"_s);
    connect(this, &QPushButton::clicked, this, [&deeds] { Do(deeds.cmdFolderCFG_Click); });
    hide();
}

void EmptyLibraryButton::Place(const QRect& area)
{
    m_area = area;
    if (isHidden()) {
        return;
    }
    QRect place(QPoint(0, 0), sizeHint());
    place.moveCenter(area.center());
    place.moveTop(area.top() + area.height() / 3 + Lines(*this, 6));
    setGeometry(place);
}

void EmptyLibraryButton::SetShown(bool shown)
{
    const bool comes = shown && isHidden();
    setVisible(shown);
    Place(m_area);
    if (comes) {
        setFocus(); // what had the keyboard rests
    }
}

} // namespace pelorin::forms
