#pragma once

#include "platform/Processes.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace pelorin::test {

/// How a program behaves that is about to be started.
struct ProgramScript {
    std::optional<platform::Error> refuse;                     // it can't be started
    std::function<void(const platform::ProcessRequest&)> work; // what it does: make files, say
    platform::ProcessEnd end;                                  // how a waited-for program ends
    bool abandon = false; // the user quits while we wait for it; `work` is done all the same
};

/// Starts nothing. Records what was asked; behaves as scripted. Without a script a detached
/// program starts and goes on until End, and a waited-for one ends at once and prints nothing.
class FakeProcesses : public platform::Processes {
public:
    struct Start {
        platform::ProcessRequest request;
        bool waited = false;
        bool refused = false;
        std::function<void(const platform::ProcessEnd&)> ended{}; // of a detached one that runs
    };

    /// For the next start that has no script yet; scripts are used in the order given.
    void Script(ProgramScript script) { m_scripts.push_back(std::move(script)); }
    void RefuseNext(platform::ErrorKind kind, const QString& text)
    {
        Script({platform::Error{kind, text}, {}, {}});
    }
    /// For every start that finds no script in the queue.
    void ScriptAll(ProgramScript script) { m_default = std::move(script); }

    /// A detached program ends now: its `ended` is called. Fails the test if there is no such
    /// start, or if it has ended before.
    void End(
        std::size_t start,
        qint64 runMs = 0,
        const QByteArray& output = QByteArray(),
        int exitStatus = 0)
    {
        ASSERT_TRUE(start < m_starts.size() && m_starts[start].ended) << start;
        std::exchange(m_starts[start].ended, nullptr)({runMs, output, exitStatus});
    }

    /// In the order of the calls, refused ones too.
    const std::vector<Start>& Starts() const { return m_starts; }
    /// "program argument argument" of each start, for comparisons at a glance.
    QStringList CommandLines() const
    {
        QStringList lines;
        for (const Start& start : m_starts) {
            lines << (QStringList(start.request.program) + start.request.arguments).join(u' ');
        }
        return lines;
    }

    platform::Done StartDetached(
        const platform::ProcessRequest& request,
        std::function<void(const platform::ProcessEnd&)> ended) override
    {
        const ProgramScript script = Begin(request, false, std::move(ended));
        return script.refuse ? platform::Done(*script.refuse) : platform::Success();
    }
    platform::Outcome<platform::ProcessEnd> RunAndWait(
        const platform::ProcessRequest& request) override
    {
        const ProgramScript script = Begin(request, true, nullptr);
        if (script.refuse) {
            return *script.refuse;
        }
        if (script.abandon) {
            return platform::Error{platform::ErrorKind::Abandoned, request.program};
        }
        return script.end;
    }

private:
    ProgramScript Begin(
        const platform::ProcessRequest& request,
        bool waited,
        std::function<void(const platform::ProcessEnd&)> ended)
    {
        ProgramScript script = m_default;
        if (!m_scripts.empty()) {
            script = std::move(m_scripts.front());
            m_scripts.pop_front();
        }
        const bool refused = script.refuse.has_value();
        m_starts.push_back({request, waited, refused, refused ? nullptr : std::move(ended)});
        if (!refused && script.work) {
            script.work(request); // comes last: it may start another program
        }
        return script;
    }

    std::deque<ProgramScript> m_scripts;
    ProgramScript m_default;
    std::vector<Start> m_starts;
};

} // namespace pelorin::test
