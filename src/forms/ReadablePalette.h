#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

class QApplication;

namespace pelorin::forms {

/// What lines and pictures need to stand out from their ground.
inline constexpr double kLineContrast = 3;

/// `colour` with as little of `other` in it as gives it this contrast (1 to 21) to the ground, as far
/// as `other` has it.
QColor Contrasting(
    const QColor& colour, const QColor& other, const QColor& ground, double contrast);

/// The palette with what many of them leave too faint made readable: the texts of disabled controls,
/// the hints in empty boxes and what is selected. A palette made readable stays as it is.
QPalette MadeReadable(QPalette palette);

/// Keeps the application's palette readable as long as it stands, also when the desktop turns from
/// light to dark.
class ReadablePalette : public QObject {
public:
    /// Outlived by the application.
    explicit ReadablePalette(QApplication& application);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Apply();

    bool m_applying = false;
};

} // namespace pelorin::forms
