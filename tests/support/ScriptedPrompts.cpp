#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <utility>

namespace pelorin::test {

using platform::Answer;
using platform::Buttons;

namespace {

bool Fits(Answer answer, Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return answer == Answer::Ok;
    case Buttons::OkCancel: return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo: return answer == Answer::Yes || answer == Answer::No;
    case Buttons::SaveDiscardCancel:
        return answer == Answer::Save || answer == Answer::Discard || answer == Answer::Cancel;
    }
    return false;
}

Answer WhenClosed(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::OkCancel:
    case Buttons::SaveDiscardCancel: return Answer::Cancel;
    case Buttons::YesNo: return Answer::No;
    }
    return Answer::Cancel;
}

} // namespace

ScriptedPrompts::~ScriptedPrompts()
{
    EXPECT_TRUE(m_replies.empty()) << m_replies.size() << " scripted answers were not asked for";
}

void ScriptedPrompts::WillAnswer(Answer answer, std::function<void()> whileOpen)
{
    m_replies.push_back({Kind::Box, answer, QString(), std::move(whileOpen)});
}

void ScriptedPrompts::WillType(const QString& text, std::function<void()> whileOpen)
{
    m_replies.push_back({Kind::Input, Answer::Ok, text, std::move(whileOpen)});
}

void ScriptedPrompts::WillChoose(const QString& folder, std::function<void()> whileOpen)
{
    m_replies.push_back({Kind::Folder, Answer::Ok, folder, std::move(whileOpen)});
}

QStringList ScriptedPrompts::Texts() const
{
    QStringList texts;
    for (const Question& question : m_asked) {
        texts << question.text;
    }
    return texts;
}

ScriptedPrompts::Reply ScriptedPrompts::Next(Kind kind, const QString& question)
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

Answer ScriptedPrompts::Ask(const platform::MessageBox& box)
{
    m_asked.push_back(
        {Kind::Box, box.text, box.title, QString(), box.buttons, box.icon, box.noByDefault});
    // A box with one button may have an answer of its own, for the sake of what happens under it.
    const bool scripted = !m_replies.empty() && m_replies.front().kind == Kind::Box &&
                          m_replies.front().answer == Answer::Ok;
    if (box.buttons == Buttons::Ok && !scripted) {
        return Answer::Ok;
    }
    const Answer answer = Next(Kind::Box, box.text).answer;
    if (!Fits(answer, box.buttons)) {
        ADD_FAILURE() << "the box has no such button: " << box.text.toStdString();
        return WhenClosed(box.buttons);
    }
    return answer;
}

QString ScriptedPrompts::InputText(
    const QString& prompt, const QString& title, const QString& preset)
{
    m_asked.push_back({Kind::Input, prompt, title, preset});
    return Next(Kind::Input, prompt).text;
}

QString ScriptedPrompts::ChooseFolder(const QString& title, const QString& start)
{
    m_asked.push_back({Kind::Folder, QString(), title, start});
    return Next(Kind::Folder, title).text;
}

void ScriptedPrompts::ShowReport(const QString& title, const QString& text)
{
    m_asked.push_back({Kind::Report, text, title, QString()});
}

} // namespace pelorin::test
