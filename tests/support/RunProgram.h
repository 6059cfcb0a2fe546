#pragma once

#include "support/Values.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>

#include <sys/prctl.h>

#include <csignal>

namespace pelorin::test {

/// A program under test. It is killed with the object, and by the system when the test dies.
class RunProgram {
public:
    /// Both output streams come together. What can't be started fails the test.
    RunProgram(
        const QString& program,
        const QStringList& arguments,
        const QProcessEnvironment& environment,
        QProcess::ProcessChannelMode streams = QProcess::MergedChannels)
    {
        m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_process.setProcessChannelMode(streams);
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(QStringLiteral("/"));
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.start(program, arguments);
        EXPECT_TRUE(m_process.waitForStarted(15'000)) << program << m_process.errorString();
    }
    ~RunProgram()
    {
        m_process.terminate();
        if (IsRunning() && !m_process.waitForFinished(5'000)) {
            m_process.kill();
            m_process.waitForFinished(5'000);
        }
    }
    RunProgram(const RunProgram&) = delete;
    RunProgram& operator=(const RunProgram&) = delete;

    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// False when it still runs after that time.
    bool WaitForEnd(int timeoutMs) { return !IsRunning() || m_process.waitForFinished(timeoutMs); }
    /// After the end; -1 when a signal ended it.
    int ExitCode() const
    {
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    /// What it has printed so far.
    QByteArray Output()
    {
        m_process.waitForReadyRead(0);
        m_output += m_process.readAll();
        return m_output;
    }
    QByteArray Errors() { return m_process.readAllStandardError(); }

private:
    QProcess m_process;
    QByteArray m_output;
};

struct ToolResult {
    int exitCode = -1; // -1: killed or timed out
    QByteArray output; // standard output alone
    QByteArray errors;
};

/// Runs a tool that answers and ends.
inline ToolResult RunTool(
    const QString& program,
    const QStringList& arguments,
    const QProcessEnvironment& environment,
    int timeoutMs = 15'000)
{
    RunProgram tool(program, arguments, environment, QProcess::SeparateChannels);
    const bool ended = tool.WaitForEnd(timeoutMs);
    return {ended ? tool.ExitCode() : -1, tool.Output(), tool.Errors()};
}

} // namespace pelorin::test
