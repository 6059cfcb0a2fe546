#include "dosboxconf/CdPanel.h"

namespace pelorin::dosboxconf {

namespace {

void ShowImages(CdPanel& panel, const QStringList& images)
{
    panel.lstCD = images;
    panel.row = -1;
}

void ShowPlaceholder(CdPanel& panel, const QString& placeholder)
{
    panel.lstCD = QStringList{placeholder};
    panel.row = -1;
}

} // namespace

void FillCdList(CdPanel& panel, const CdFacts& facts, const QString& placeholder)
{
    ShowImages(panel, {});
    if (facts.hasFolder && !facts.hasConf) {
        panel.chkCD = false;
    } else if (facts.hasFolder) {
        panel.chkCD = true;
        panel.chkMountCD = facts.chkMountCD;
        panel.CdMountMode = facts.CdMountMode;
        if (panel.CdMountMode != 0) {
            ShowImages(panel, facts.images);
        } else {
            ShowPlaceholder(panel, placeholder);
        }
    }
    if (facts.hasFolder) {
        panel.picCDVisible = panel.chkCD;
        panel.edited = false;
    }
    panel.changed.Tell(CdPanel::All);
}

void ResetCdPanel(CdPanel& panel)
{
    panel.chkCD = false;
    panel.picCDVisible = false;
    panel.chkMountCD = false;
    panel.CdMountMode = 0;
    panel.edited = false;
    ShowImages(panel, {});
}

void ChkCdClicked(
    CdPanel& panel, bool checked, const QStringList& images, const QString& placeholder)
{
    panel.chkCD = checked;
    panel.picCDVisible = checked;
    panel.edited = true;
    if (checked) {
        panel.chkMountCD = false;
        panel.CdMountMode = images.isEmpty() ? 0 : 1;
        if (images.isEmpty()) {
            ShowPlaceholder(panel, placeholder);
        } else {
            ShowImages(panel, images);
        }
    }
    panel.changed.Tell(CdPanel::All);
}

void ChooseCdMode(CdPanel& panel, int mode, const QStringList& images, const QString& placeholder)
{
    panel.CdMountMode = mode == 0 ? 0 : 1;
    panel.edited = true;
    if (mode == 0) {
        ShowPlaceholder(panel, placeholder);
    } else {
        ShowImages(panel, images);
    }
    panel.changed.Tell(CdPanel::All);
}

void ChkMountCdClicked(
    CdPanel& panel, bool checked, const QStringList& images, const QString& placeholder)
{
    panel.chkMountCD = checked;
    panel.edited = true;
    if (checked) {
        ChooseCdMode(panel, 1, images, placeholder);
    } else {
        panel.changed.Tell(CdPanel::All);
    }
}

} // namespace pelorin::dosboxconf
