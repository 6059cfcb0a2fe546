#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace pelorin::forms {

/// picProgress, in the middle of the list.
class ProgressOverlay : public QFrame {
public:
    ProgressOverlay(const Shown& shown, QWidget* parent);
    /// Takes its place over `area`, in the parent's coordinates.
    void Place(const QRect& area);

private:
    void Follow();
    void ShowStep();

    shell::ProgressPanel& m_model;
    QLabel* m_lblProgress;
    QProgressBar* m_pbProgress;
    QTimer m_frame; // runs until the next step is worth painting
    QRect m_area;
    Listening m_listening;
};

/// picMessage, in the middle of the list. Its text blinks in fixed colours, so it has a light
/// ground of its own whatever the palette is.
class NoticeOverlay : public QFrame {
public:
    NoticeOverlay(const Shown& shown, const Deeds& deeds, QWidget* parent);
    void Place(const QRect& area);
    void TakeTexts(const shell::LangTable& lang);

private:
    void BuildBatch(const Deeds& deeds);
    void Follow();
    void FollowBatch();

    shell::BusyNotice& m_model;
    QLabel* m_lblMessage;
    QLabel* m_second;
    QLabel* m_label3 = nullptr;
    QLabel* m_label4 = nullptr;
    QProgressBar* m_progressBar1 = nullptr;
    QPushButton* m_command1 = nullptr;
    QRect m_area;
    Listening m_listening;
};

} // namespace pelorin::forms
