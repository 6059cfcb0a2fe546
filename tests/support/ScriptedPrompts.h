#pragma once

#include "platform/Prompts.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

namespace pelorin::test {

/// Stands for the person before the screen. Answers are given in the order scripted; a question
/// that finds no answer, an answer of the wrong kind and answers left over at the end fail the
/// test. Boxes with nothing but OK and reports are recorded and need no answer.
class ScriptedPrompts : public platform::Prompts {
public:
    enum class Kind { Box, Input, Folder, Report };
    struct Question {
        Kind kind = Kind::Box;
        QString text;
        QString title;
        QString preset; // of an input, or where a folder dialog starts
        platform::Buttons buttons = platform::Buttons::Ok;
        platform::BoxIcon icon = platform::BoxIcon::None;
        bool noByDefault = false;
    };

    ~ScriptedPrompts() override;

    /// `whileOpen` runs while the question stands: a second click, a timer, the end of a program.
    void WillAnswer(platform::Answer answer, std::function<void()> whileOpen = nullptr);
    /// Empty is a cancelled box.
    void WillType(const QString& text, std::function<void()> whileOpen = nullptr);
    void WillChoose(const QString& folder, std::function<void()> whileOpen = nullptr);

    /// All that was shown, in order.
    const std::vector<Question>& Asked() const { return m_asked; }
    QStringList Texts() const;
    void Forget() { m_asked.clear(); }

    platform::Answer Ask(const platform::MessageBox& box) override;
    QString InputText(const QString& prompt, const QString& title, const QString& preset) override;
    QString ChooseFolder(const QString& title, const QString& start) override;
    void ShowReport(const QString& title, const QString& text) override;

private:
    struct Reply {
        Kind kind = Kind::Box;
        platform::Answer answer = platform::Answer::Cancel;
        QString text;
        std::function<void()> whileOpen;
    };
    Reply Next(Kind kind, const QString& question);

    std::deque<Reply> m_replies;
    std::vector<Question> m_asked;
};

} // namespace pelorin::test
