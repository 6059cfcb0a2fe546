#pragma once

#include "forms/Listening.h"
#include "forms/pages/Page.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include <array>
#include <cstdint>

namespace pelorin::forms {

/// picInfo(0): titles, genres, icon, description and media of the game on hand.
class InformationPage : public Page {
public:
    InformationPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

private:
    QLayout* BuildHead();
    QLayout* BuildGenres();
    QWidget* BuildMedia();
    void Follow(std::uint32_t changed);
    void ShowIcon();

    Shown m_shown;
    const Deeds& m_deeds;
    std::array<QLineEdit*, 2> m_txtTitle{};
    QToolButton* m_lblGenreK = nullptr;
    QToolButton* m_lblGenreE = nullptr;
    QToolButton* m_cmdIcon = nullptr;
    QPlainTextEdit* m_txtInfo = nullptr;
    Listening m_listening;
};

} // namespace pelorin::forms
