#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QAbstractButton>
#include <QStatusBar>

#include <array>
#include <cstdint>

namespace pelorin::forms {

/// A panel of the status bar: a line of text, shortened in its middle where it is too long, that
/// may be clicked.
class StatusPanel : public QAbstractButton {
public:
    explicit StatusPanel(QWidget* parent = nullptr);

    /// Shows the text, and the whole of it as a tool tip where it is shortened.
    void Show(const QString& text);
    void SetClickable(bool clickable);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect TextRect() const;
    bool m_clickable = false;
};

/// SBDirectory.
class StatusPanels : public QStatusBar {
public:
    StatusPanels(const Shown& shown, const Deeds& deeds, QWidget* parent = nullptr);

private:
    void ShowTexts();
    void ShowNotes();
    void TellNotes();

    Shown m_shown;
    std::array<StatusPanel*, 4> m_panels{};
    Listening m_listening;
};

} // namespace pelorin::forms
