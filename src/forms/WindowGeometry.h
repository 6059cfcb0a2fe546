#pragma once

#include "shell/Screens.h"

#include <QWidget>

#include <optional>

namespace pelorin::forms {

/// Keeps the main window and the frame's model in step. The model has the window with its frame,
/// in form units; the toolkit has it without.
class WindowGeometry {
public:
    WindowGeometry(QWidget& window, shell::MainFrame& frame)
        : m_window(window)
        , m_frame(frame)
    {}

    /// Places the window as the model says; a model without a size leaves the designed one.
    void Apply();
    /// Opens the window in the model's state.
    void Show();
    /// Writes the model: the window was moved, resized, maximized ...
    void Remember();

private:
    QSize FrameSize() const;
    void FitFrame();

    QWidget& m_window;
    shell::MainFrame& m_frame;
    std::optional<QSize> m_wanted; // outer size, until the frame is known
};

} // namespace pelorin::forms
