#include "forms/pages/Page.h"

#include "forms/Metrics.h"
#include "forms/Pictures.h"

#include <QPushButton>
#include <QToolButton>

namespace pelorin::forms {

QLabel* Page::AddHeading(const QString& name)
{
    auto* heading = new QLabel(this);
    heading->setObjectName(name);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    return heading;
}

QAbstractButton* Page::AddPush(const QString& name, bool enabled)
{
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setEnabled(enabled);
    return button;
}

QAbstractButton* Page::AddPicture(const QString& name, const QString& picture, bool enabled)
{
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(PictureIcon(picture));
    const int side = SmallSide(*this);
    button->setIconSize(QSize(side, side));
    button->setFocusPolicy(Qt::TabFocus);
    button->setEnabled(enabled);
    return button;
}

} // namespace pelorin::forms
