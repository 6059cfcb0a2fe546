#pragma once

#include <QDialog>
#include <QString>

namespace pelorin::forms {

/// A long report to read: its text and one button.
class frmOutput : public QDialog {
public:
    struct Words {
        QString OutputTitle;
        QString OutputText;
        QString cmdOk;
    };
    explicit frmOutput(const Words& words, QWidget* parent = nullptr);
};

} // namespace pelorin::forms
