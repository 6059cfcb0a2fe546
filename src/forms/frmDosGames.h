#pragma once

#include "forms/Deeds.h"
#include "forms/Shown.h"

#include <QMainWindow>

#include <memory>
#include <optional>

namespace pelorin::forms {

/// The main window. It shows the screen models and hands what the user does to the deeds; it holds
/// no rule. It shows itself when the frame's model tells Show.
class frmDosGames : public QMainWindow {
public:
    /// Both outlive the window. The deeds are asked for at construction which of them are set.
    frmDosGames(const Shown& shown, const Deeds& deeds);
    ~frmDosGames() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Shown m_shown;
    const Deeds& m_deeds;
};

} // namespace pelorin::forms
