#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QApplication;

namespace pelorin::forms {

/// Draws a line around the list, tree or text that has the focus. Other controls show theirs by
/// themselves; these don't, and nobody who works by keys alone could tell where they are.
class FocusRing : public QObject {
public:
    /// Outlived by the application.
    explicit FocusRing(QApplication& application);
    ~FocusRing() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void StandAround(QWidget* focused);

    QPointer<QWidget> m_ring;
};

} // namespace pelorin::forms
