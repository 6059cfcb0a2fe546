// What bench_pelorin has beside the program: it tells on a pipe when the list has been painted for
// the first time, how much memory that took and how long window events had to wait. The
// environment says what it is to do:
//   PELORIN_BENCH_TELL   the pipe's descriptor
//   PELORIN_BENCH_CLOSE  close the window then, as a user would, and let everything be saved

#include "StartReport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

int PelorinMain(int argc, char** argv); // src/main.cpp

namespace pelorin::bench {

namespace {

using namespace Qt::StringLiterals;

class StartWatch : public QObject {
public:
    explicit StartWatch(QObject* parent)
        : QObject(parent)
    {
        parent->installEventFilter(this);
        QObject::connect(&m_ticks, &QTimer::timeout, this, [this] { Tick(); });
        m_ticks.setTimerType(Qt::PreciseTimer);
        m_ticks.start(1);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_told && IsListWithRows(watched)) {
            m_told = true;
            // The event is about to be painted; what is queued comes after it.
            QMetaObject::invokeMethod(
                this, [this] { Tell(); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    static bool IsListWithRows(QObject* watched)
    {
        const auto* view = qobject_cast<QAbstractItemView*>(watched->parent());
        return view != nullptr && view->viewport() == watched &&
               view->objectName().startsWith(u"LVGamelist"_s) && view->model()->rowCount() > 0;
    }

    bool JobIsShown()
    {
        if (m_progress == nullptr) {
            const QWidgetList widgets = QApplication::allWidgets();
            const auto hit =
                std::find_if(widgets.begin(), widgets.end(), [](const QWidget* widget) {
                    return widget->objectName() == u"picProgress"_s;
                });
            m_progress = hit == widgets.end() ? nullptr : *hit;
        }
        return m_progress != nullptr && m_progress->isVisible();
    }

    /// Time goes by unserved between two of these.
    void Tick()
    {
        const bool job = JobIsShown();
        if (m_sinceTick.isValid()) {
            const double gapMs = static_cast<double>(m_sinceTick.nsecsElapsed()) / 1e6;
            m_report.longestGapMs = std::max(m_report.longestGapMs, gapMs);
            if (job && m_jobBefore) {
                m_report.longestGapInJobMs = std::max(m_report.longestGapInJobMs, gapMs);
            }
        }
        m_jobBefore = job;
        m_sinceTick.start();
    }

    void Tell()
    {
        Tick();
        CountWidgets(m_report);
        m_report.Send();
        if (qEnvironmentVariableIsEmpty("PELORIN_BENCH_CLOSE")) {
            _exit(0);
        }
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->isVisible()) {
                window->close();
            }
        }
    }

    QTimer m_ticks;
    QElapsedTimer m_sinceTick;
    QWidget* m_progress = nullptr;
    bool m_jobBefore = false;
    bool m_told = false;
    StartReport m_report;
};

void Watch()
{
    new StartWatch(qApp);
}

Q_COREAPP_STARTUP_FUNCTION(Watch)

} // namespace

} // namespace pelorin::bench

int main(int argc, char** argv)
{
    const int status = PelorinMain(argc, argv);
    pelorin::bench::StartReport().Send(); // the memory at the end
    return status;
}
