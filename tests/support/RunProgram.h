#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace pelorin::test {

/// A program under test. It is killed with the object, and by the system when the test dies.
class RunProgram {
public:
    /// Both output streams come together. What can't be started fails the test.
    RunProgram(
        const QString& program,
        const QStringList& arguments,
        const QProcessEnvironment& environment,
        const QString& workingFolder = QStringLiteral("/"));
    ~RunProgram();
    RunProgram(const RunProgram&) = delete;
    RunProgram& operator=(const RunProgram&) = delete;

    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }
    qint64 Pid() const { return m_process.processId(); }
    /// False when it still runs after that time.
    bool WaitForEnd(int timeoutMs);
    /// SIGTERM, then SIGKILL.
    void Stop();
    /// After the end; -1 when a signal ended it.
    int ExitCode() const;
    /// What it has printed so far.
    QByteArray Output();
    /// Waits until the output holds one more whole line than were read before; null on
    /// time-out or when the program has ended.
    QByteArray ReadLine(int timeoutMs);

private:
    QProcess m_process;
    QByteArray m_output;
    qsizetype m_read = 0;
};

struct ToolResult {
    int exitCode = -1; // -1: not started, killed or timed out
    QByteArray output; // standard output alone
    QByteArray errors;
};

/// Runs a tool that answers and ends.
ToolResult RunTool(
    const QString& program,
    const QStringList& arguments,
    const QProcessEnvironment& environment,
    int timeoutMs = 15'000);

} // namespace pelorin::test
