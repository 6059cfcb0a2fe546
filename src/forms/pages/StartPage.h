#pragma once

#include "forms/Listening.h"
#include "forms/TextListModel.h"
#include "forms/pages/Page.h"

#include <QCheckBox>
#include <QToolButton>

#include <cstdint>

namespace pelorin::forms {

/// picInfo(1): the game's start commands, the files that it could start, its CD.
class StartPage : public Page {
public:
    StartPage(const Shown& shown, const Deeds& deeds, QWidget* parent);

    void TakeTexts() override;

private:
    QLayout* BuildCommands();
    QWidget* BuildCd();
    QLayout* BuildCdHead();
    QLayout* BuildCdFoot();
    QCheckBox* AddCheck(const QString& name, const Deeds::CheckDeed& deed);
    void FollowStart(std::uint32_t changed);
    void FollowCd();

    Shown m_shown;
    const Deeds& m_deeds;
    RowList* m_lstAutoexec = nullptr;
    RowList* m_fileEXE = nullptr;
    QAbstractButton* m_cmdAddEmpty = nullptr;
    QCheckBox* m_chkCD = nullptr;
    QWidget* m_picCD = nullptr;
    RowList* m_lstCD = nullptr;
    QCheckBox* m_chkMountCD = nullptr;
    Listening m_startListening;
    Listening m_cdListening;
};

} // namespace pelorin::forms
