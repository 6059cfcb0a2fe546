#pragma once

#include "platform/Prompts.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace pelorin::test {

/// Stands for the person before the screen. Answers are given in the order scripted; a question
/// that finds no answer, an answer of the wrong kind and answers left over at the end fail the
/// test. Boxes with nothing but OK and reports are recorded and need no answer.
class ScriptedPrompts : public platform::Prompts {
public:
    enum class Kind { Box, Input, Folder, Open, Save, Report };
    struct Question {
        Kind kind = Kind::Box;
        QString text;
        QString title;
        QString preset; // of an input, or where a folder dialog starts
        platform::Buttons buttons = platform::Buttons::Ok;
        platform::BoxIcon icon = platform::BoxIcon::None;
        bool noByDefault = false;
    };

    ~ScriptedPrompts() override
    {
        EXPECT_TRUE(m_replies.empty())
            << m_replies.size() << " scripted answers were not asked for";
    }

    /// `whileOpen` runs while the question stands: a second click, a timer, the end of a program.
    void WillAnswer(platform::Answer answer, std::function<void()> whileOpen = nullptr)
    {
        m_replies.push_back({Kind::Box, answer, QString(), std::move(whileOpen)});
    }
    /// Empty is a cancelled box.
    void WillType(const QString& text, std::function<void()> whileOpen = nullptr)
    {
        m_replies.push_back({Kind::Input, platform::Answer::Ok, text, std::move(whileOpen)});
    }
    void WillChoose(const QString& folder, std::function<void()> whileOpen = nullptr)
    {
        m_replies.push_back({Kind::Folder, platform::Answer::Ok, folder, std::move(whileOpen)});
    }
    void WillOpen(const QString& file, std::function<void()> whileOpen = nullptr)
    {
        m_replies.push_back({Kind::Open, platform::Answer::Ok, file, std::move(whileOpen)});
    }
    void WillSave(const QString& file, std::function<void()> whileOpen = nullptr)
    {
        m_replies.push_back({Kind::Save, platform::Answer::Ok, file, std::move(whileOpen)});
    }

    /// All that was shown, in order.
    const std::vector<Question>& Asked() const { return m_asked; }
    QStringList Texts() const
    {
        QStringList texts;
        for (const Question& question : m_asked) {
            texts << question.text;
        }
        return texts;
    }
    void Forget() { m_asked.clear(); }

    platform::Answer Ask(const platform::MessageBox& box) override
    {
        using platform::Answer;
        using platform::Buttons;
        m_asked.push_back(
            {Kind::Box, box.text, box.title, QString(), box.buttons, box.icon, box.noByDefault});
        // A box with one button may have an answer of its own, for what happens under it.
        const bool scripted = !m_replies.empty() && m_replies.front().kind == Kind::Box &&
                              m_replies.front().answer == Answer::Ok;
        if (box.buttons == Buttons::Ok && !scripted) {
            return Answer::Ok;
        }
        const Answer answer = Next(Kind::Box, box.text).answer;
        EXPECT_TRUE(Fits(answer, box.buttons)) << "no such button: " << qPrintable(box.text);
        return answer;
    }
    QString InputText(const QString& prompt, const QString& title, const QString& preset) override
    {
        m_asked.push_back({Kind::Input, prompt, title, preset});
        return Next(Kind::Input, prompt).text;
    }
    QString ChooseFolder(const QString& title, const QString& start) override
    {
        m_asked.push_back({Kind::Folder, QString(), title, start});
        return Next(Kind::Folder, title).text;
    }
    QString OpenFile(const platform::FileDialog& dialog) override
    {
        m_asked.push_back({Kind::Open, dialog.filters.join(u'|'), dialog.title, dialog.folder});
        return Next(Kind::Open, dialog.title).text;
    }
    QString SaveFile(const platform::FileDialog& dialog) override
    {
        m_asked.push_back({Kind::Save, dialog.filters.join(u'|'), dialog.title, dialog.folder});
        return Next(Kind::Save, dialog.title).text;
    }
    void ShowReport(const QString& title, const QString& text) override
    {
        m_asked.push_back({Kind::Report, text, title, QString()});
    }

private:
    struct Reply {
        Kind kind = Kind::Box;
        platform::Answer answer = platform::Answer::Cancel;
        QString text;
        std::function<void()> whileOpen;
    };

    static bool Fits(platform::Answer answer, platform::Buttons buttons)
    {
        using platform::Answer;
        using platform::Buttons;
        switch (answer) {
        case Answer::Ok: return buttons == Buttons::Ok || buttons == Buttons::OkCancel;
        case Answer::Yes:
        case Answer::No: return buttons == Buttons::YesNo;
        case Answer::Save:
        case Answer::Discard: return buttons == Buttons::SaveDiscardCancel;
        case Answer::Cancel: break;
        }
        return buttons == Buttons::OkCancel || buttons == Buttons::SaveDiscardCancel;
    }

    Reply Next(Kind kind, const QString& question)
    {
        Reply reply;
        if (m_replies.empty() || m_replies.front().kind != kind) {
            ADD_FAILURE() << "no answer scripted for: " << question.toStdString();
            return reply;
        }
        reply = std::move(m_replies.front());
        m_replies.pop_front();
        if (reply.whileOpen) {
            reply.whileOpen();
        }
        return reply;
    }

    std::deque<Reply> m_replies;
    std::vector<Question> m_asked;
};

} // namespace pelorin::test
