#include "StartReport.h"

#include <QApplication>
#include <QFile>
#include <QWidget>

#include <unistd.h>

namespace pelorin::bench {

namespace {

long PeakKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf("VmHWM:");
    return at < 0 ? 0 : std::strtol(text.constData() + at + 6, nullptr, 10);
}

} // namespace

void StartReport::Send()
{
    peakKiB = PeakKiB();
    const int pipe = qEnvironmentVariableIntValue("PELORIN_BENCH_TELL");
    const QByteArray line =
        QByteArray::number(visibleWidgets) + ' ' + QByteArray::number(hiddenWidgets) + ' ' +
        QByteArray::number(longestGapMs) + ' ' + QByteArray::number(longestGapInJobMs) + ' ' +
        QByteArray::number(static_cast<qlonglong>(peakKiB)) + '\n';
    if (pipe <= 0 || write(pipe, line.constData(), static_cast<std::size_t>(line.size())) < 0) {
        std::fputs(line.constData(), stderr);
    }
}

bool StartReport::Read(std::FILE* pipe)
{
    return std::fscanf(
               pipe,
               "%d %d %lf %lf %ld",
               &visibleWidgets,
               &hiddenWidgets,
               &longestGapMs,
               &longestGapInJobMs,
               &peakKiB) == 5;
}

void CountWidgets(StartReport& report)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        ++(widget->isVisible() ? report.visibleWidgets : report.hiddenWidgets);
    }
}

} // namespace pelorin::bench
