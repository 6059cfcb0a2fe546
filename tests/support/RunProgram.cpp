#include "support/RunProgram.h"

#include <QDeadlineTimer>

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

constexpr int kStartMs = 15'000;
constexpr int kStopMs = 5'000;

void DieWithUs(QProcess& process)
{
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

} // namespace

RunProgram::RunProgram(
    const QString& program,
    const QStringList& arguments,
    const QProcessEnvironment& environment,
    const QString& workingFolder)
{
    DieWithUs(m_process);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(workingFolder);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.start(program, arguments);
    EXPECT_TRUE(m_process.waitForStarted(kStartMs))
        << program.toStdString() << ": " << m_process.errorString().toStdString();
}

RunProgram::~RunProgram()
{
    Stop();
}

bool RunProgram::WaitForEnd(int timeoutMs)
{
    return !IsRunning() || m_process.waitForFinished(timeoutMs);
}

void RunProgram::Stop()
{
    if (!IsRunning()) {
        return;
    }
    m_process.terminate();
    if (!m_process.waitForFinished(kStopMs)) {
        m_process.kill();
        m_process.waitForFinished(kStopMs);
    }
}

int RunProgram::ExitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QByteArray RunProgram::Output()
{
    m_process.waitForReadyRead(0);
    m_output += m_process.readAll();
    return m_output;
}

QByteArray RunProgram::ReadLine(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    for (;;) {
        const qsizetype end = Output().indexOf('\n', m_read);
        if (end >= 0) {
            // Never null, which an empty line's would be.
            QByteArray line = QByteArray("") + m_output.mid(m_read, end - m_read);
            m_read = end + 1;
            return line;
        }
        if (deadline.hasExpired() || !IsRunning()) {
            return QByteArray();
        }
        m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
}

ToolResult RunTool(
    const QString& program,
    const QStringList& arguments,
    const QProcessEnvironment& environment,
    int timeoutMs)
{
    QProcess process;
    DieWithUs(process);
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    ToolResult result;
    if (process.waitForFinished(timeoutMs)) {
        result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    } else {
        process.kill();
        process.waitForFinished(kStopMs);
    }
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

} // namespace pelorin::test
