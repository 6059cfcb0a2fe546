#include "support/FakeProcesses.h"

#include <gtest/gtest.h>

#include <utility>

namespace pelorin::test {

void FakeProcesses::RefuseNext(platform::ErrorKind kind, const QString& text)
{
    ProgramScript script;
    script.refuse = platform::Error{kind, text};
    Script(std::move(script));
}

ProgramScript FakeProcesses::Begin(const platform::ProcessRequest& request, bool waited)
{
    ProgramScript script = m_default;
    if (!m_scripts.empty()) {
        script = std::move(m_scripts.front());
        m_scripts.pop_front();
    }
    m_starts.push_back({request, waited, script.refuse.has_value()});
    m_ended.emplace_back();
    return script;
}

platform::Done FakeProcesses::StartDetached(
    const platform::ProcessRequest& request, std::function<void(const platform::ProcessEnd&)> ended)
{
    const ProgramScript script = Begin(request, false);
    if (script.refuse) {
        return *script.refuse;
    }
    // Before the work: it may start another program.
    m_ended.back() = std::move(ended);
    if (script.work) {
        script.work(request);
    }
    return platform::Success();
}

platform::Outcome<platform::ProcessEnd> FakeProcesses::RunAndWait(
    const platform::ProcessRequest& request)
{
    const ProgramScript script = Begin(request, true);
    if (script.refuse) {
        return *script.refuse;
    }
    if (script.work) {
        script.work(request);
    }
    if (script.abandon) {
        return platform::Error{platform::ErrorKind::Abandoned, request.program};
    }
    return script.end;
}

void FakeProcesses::End(std::size_t start, qint64 runMs, const QByteArray& output)
{
    if (start >= m_ended.size() || !m_ended[start]) {
        ADD_FAILURE() << "no detached program number " << start << " is running";
        return;
    }
    const auto ended = std::exchange(m_ended[start], nullptr);
    ended({runMs, output});
}

QStringList FakeProcesses::CommandLines() const
{
    QStringList lines;
    for (const Start& start : m_starts) {
        lines << (QStringList(start.request.program) + start.request.arguments).join(u' ');
    }
    return lines;
}

} // namespace pelorin::test
