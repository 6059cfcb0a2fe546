#pragma once

#include "forms/Listening.h"
#include "shell/RootFolders.h"

#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>

#include <array>
#include <functional>

namespace pelorin::shell {
class LangTable;
struct FolderCfg;
} // namespace pelorin::shell

namespace pelorin::forms {

/// What the user does in frmFolderCFG. Each is set.
struct FolderCfgDeeds {
    using RootDeed = std::function<void(shell::Root root)>;

    RootDeed cmdPath_Click; // cmdGamesPath, cmdExportPath
    RootDeed cmdDefault_Click;
    RootDeed cmdOpen_Click;
    std::function<bool()> cmdOk_Click; // false keeps the dialog open
};

/// The two root folders: a box each, with a folder dialog, the default, and a look into the folder.
class frmFolderCFG : public QDialog {
public:
    frmFolderCFG(
        shell::FolderCfg& boxes,
        const shell::LangTable& lang,
        FolderCfgDeeds deeds,
        QWidget* parent = nullptr);

private:
    QGroupBox* BuildRoot(shell::Root root, const QString& name, QString& text);
    QLayout* BuildEnd(const shell::LangTable& lang);
    void NameButtons();
    void Follow();

    shell::FolderCfg& m_boxes;
    FolderCfgDeeds m_deeds;
    std::array<QGroupBox*, 2> m_frames{};
    std::array<QLineEdit*, 2> m_texts{}; // games, export
    Listening m_listening;
};

} // namespace pelorin::forms
