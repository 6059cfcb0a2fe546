#pragma once

#include <QString>
#include <QStringList>

namespace pelorin::platform {

enum class Buttons { Ok, OkCancel, YesNo, SaveDiscardCancel };
enum class BoxIcon { None, Information, Question, Exclamation };
enum class Answer { Ok, Cancel, Yes, No, Save, Discard };

struct MessageBox {
    QString text;
    QString title;
    Buttons buttons = Buttons::Ok;
    BoxIcon icon = BoxIcon::None;
    bool noByDefault = false; // Enter answers with the last button, which takes no step
};

/// A dialog for a file.
struct FileDialog {
    QString title;
    QString folder;      // where it starts; a native path
    QStringList filters; // "Preset files (*.conf)"; the first one is chosen
};

/// Asks people. Each call shows a modal dialog and comes back with the answer; window events run
/// meanwhile. Never called under a RedrawLock.
class Prompts {
public:
    virtual ~Prompts() = default;

    /// A closed box is Cancel where there is such a button, No for YesNo, Ok for Ok.
    virtual Answer Ask(const MessageBox& box) = 0;
    /// Empty when cancelled.
    virtual QString InputText(
        const QString& prompt, const QString& title, const QString& preset) = 0;
    /// A native folder path, empty when cancelled.
    virtual QString ChooseFolder(const QString& title, const QString& start) = 0;
    /// The native path of an existing file, empty when cancelled.
    virtual QString OpenFile(const FileDialog& dialog) = 0;
    /// The native path of a file to be written, empty when cancelled. An existing one is asked about.
    /// A name without an ending gets that of the filter chosen.
    virtual QString SaveFile(const FileDialog& dialog) = 0;
    /// A long report to read, with one button.
    virtual void ShowReport(const QString& title, const QString& text) = 0;
};

} // namespace pelorin::platform
