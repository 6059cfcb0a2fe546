#pragma once

#include "forms/Deeds.h"
#include "forms/Shown.h"

#include <QAbstractButton>
#include <QLabel>
#include <QWidget>

namespace pelorin::forms {

/// A page of the right panel, built when it is first shown.
class Page : public QWidget {
public:
    using QWidget::QWidget;

    /// Takes the texts that the table of texts does not hold.
    virtual void TakeTexts() {}

protected:
    QLabel* AddHeading(const QString& name);
    /// A push button for a deed, which outlives the page; usable if the deed is set.
    QAbstractButton* AddPush(const QString& name, const Deeds::Deed& deed);
    QAbstractButton* AddPush(const QString& name, const Deeds::IndexDeed& deed, int index);
    /// A small one with a picture in the place of words.
    QAbstractButton* AddPicture(
        const QString& name, const QString& picture, const Deeds::Deed& deed);
    QAbstractButton* AddPicture(
        const QString& name, const QString& picture, const Deeds::IndexDeed& deed, int index);
};

} // namespace pelorin::forms
