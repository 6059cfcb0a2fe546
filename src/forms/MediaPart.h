#pragma once

#include "forms/Deeds.h"
#include "forms/Listening.h"
#include "forms/Shown.h"
#include "forms/TextListModel.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QWidget>

#include <array>
#include <cstdint>

namespace pelorin::forms {

class PictureView;

/// TabStrip1 with the lists of pictures, recordings and manuals, and pic1 beside them.
class MediaPart : public QWidget {
public:
    MediaPart(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void TakeTexts();

private:
    void BuildTabs();
    void BuildLists();
    RowList* BuildList(int tab);
    void BuildPicture();
    void Follow(std::uint32_t changed);
    void ShowTab();
    void ShowPicture();
    void PopupMenuOf(int tab, QPoint position);

    Shown m_shown;
    const Deeds& m_deeds;
    QTabBar* m_tabs;
    QStackedWidget* m_stack;
    PictureView* m_pic1;
    std::array<RowList*, 3> m_lists{}; // by tab - 1
    Listening m_listening;
};

} // namespace pelorin::forms
