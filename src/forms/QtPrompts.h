#pragma once

#include "platform/Prompts.h"

#include <QPointer>
#include <QWidget>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::forms {

struct OwnEntry;

/// Shows real dialogs, over the main window once there is one.
class QtPrompts : public platform::Prompts {
public:
    /// The words of the buttons; `lang` outlives the prompts. Without it they are English.
    void SetLanguage(const shell::LangTable& lang) { m_lang = &lang; }
    void SetParent(QWidget* parent) { m_parent = parent; }

    platform::Answer Ask(const platform::MessageBox& box) override;
    QString InputText(const QString& prompt, const QString& title, const QString& preset) override;
    QString ChooseFolder(const QString& title, const QString& start) override;
    QString OpenFile(const platform::FileDialog& asked) override;
    QString SaveFile(const platform::FileDialog& asked) override;
    void ShowReport(const QString& title, const QString& text) override;

private:
    QString Words(const OwnEntry& own) const;
    QWidget* Parent() const;

    const shell::LangTable* m_lang = nullptr;
    QPointer<QWidget> m_parent;
};

} // namespace pelorin::forms
