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

class MediaPart;

/// picInfo(0): titles, genres, icon, description and media of the game on hand.
class InformationPage : public Page {
public:
    InformationPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void TakeTexts() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* BuildHead();
    QLayout* BuildGenres();
    QLayout* BuildInfoHead();
    void BuildInfo();
    void ShowGenres();
    void ShowTexts();
    void ShowInfoState();
    void ShowDraft();
    void Follow(std::uint32_t changed);
    void ShowIcon();

    Shown m_shown;
    const Deeds& m_deeds;
    std::array<QLineEdit*, 2> m_txtTitle{};
    QToolButton* m_lblGenreK = nullptr;
    QToolButton* m_lblGenreE = nullptr;
    QToolButton* m_cmdIcon = nullptr;
    MediaPart* m_media = nullptr;
    QPlainTextEdit* m_txtInfo = nullptr;
    QLabel* m_lblDraft = nullptr;
    QLabel* m_lblInfoNote = nullptr;
    QAbstractButton* m_cmdSaveInfo = nullptr;
    QString m_folder;       // whose texts the boxes hold
    bool m_showing = false; // the program changes the boxes, not the user
    Listening m_listening;
};

} // namespace pelorin::forms
