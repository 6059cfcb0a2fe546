#pragma once

#include "dosboxconf/ConfigEditor.h"

#include <QAbstractItemView>
#include <QComboBox>

#include <functional>

class QLabel;

namespace pelorin::forms {

/// cmbConfig: lies over a row of lstConfig while a value is chosen. Escape, a scrolled list and the
/// loss of the keyboard make it go.
class ValueCombo : public QComboBox {
public:
    /// `list` has the rows. `chosen` and `left` are told of; the combo hides when its model says so.
    ValueCombo(
        QAbstractItemView& list, std::function<void(int index)> chosen, std::function<void()> left);

    /// `title`: what a screen reader calls it.
    void Show(const dosboxconf::OptionCombo& combo, const QString& title);

    void hidePopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QAbstractItemView& m_list;
    QLabel* m_caption = nullptr;
    std::function<void(int index)> m_chosen;
    std::function<void()> m_left;
};

} // namespace pelorin::forms
