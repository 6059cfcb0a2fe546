#include "forms/pages/Page.h"

#include "forms/Metrics.h"
#include "forms/Pictures.h"

#include <QPushButton>
#include <QToolButton>

namespace pelorin::forms {

namespace {

QAbstractButton* MakePush(QWidget& page, const QString& name)
{
    auto* button = new QPushButton(&page);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QAbstractButton* MakePicture(QWidget& page, const QString& name, const QString& picture)
{
    auto* button = new QToolButton(&page);
    button->setObjectName(name);
    button->setIcon(PictureIcon(picture));
    const int side = SmallSide(page);
    button->setIconSize(QSize(side, side));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

template <class Deed, class... Index>
QAbstractButton* Wire(QAbstractButton* button, const Deed& deed, Index... index)
{
    button->setEnabled(static_cast<bool>(deed));
    QObject::connect(
        button, &QAbstractButton::clicked, button, [&deed, index...] { Do(deed, index...); });
    return button;
}

} // namespace

QLabel* Page::AddHeading(const QString& name)
{
    auto* heading = new QLabel(this);
    heading->setObjectName(name);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    return heading;
}

QAbstractButton* Page::AddPush(const QString& name, const Deeds::Deed& deed)
{
    return Wire(MakePush(*this, name), deed);
}

QAbstractButton* Page::AddPush(const QString& name, const Deeds::IndexDeed& deed, int index)
{
    return Wire(MakePush(*this, name), deed, index);
}

QAbstractButton* Page::AddPicture(
    const QString& name, const QString& picture, const Deeds::Deed& deed)
{
    return Wire(MakePicture(*this, name, picture), deed);
}

QAbstractButton* Page::AddPicture(
    const QString& name, const QString& picture, const Deeds::IndexDeed& deed, int index)
{
    return Wire(MakePicture(*this, name, picture), deed, index);
}

} // namespace pelorin::forms
