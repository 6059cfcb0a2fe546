#include "platform/DetachedProcesses.h"

#include "platform/SpawnProgram.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QTemporaryFile>
#include <QTimer>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <tuple>
#include <utility>

namespace pelorin::platform {

namespace {

constexpr qint64 kKeptOutput = 65'536;
constexpr int kTrimEveryMs = 10'000;
constexpr int kPollMs = 50;

/// Watches one child until it ends, reaps it, tells and goes.
class Watch : public QObject {
public:
    Watch(QObject* parent, std::function<void(const ProcessEnd&)> ended)
        : QObject(parent)
        , m_ended(std::move(ended))
    {
        m_hasOutput = m_output.open();
        m_sinceStart.start();
        connect(&m_poll, &QTimer::timeout, this, [this] { Look(); });
        connect(&m_trim, &QTimer::timeout, this, [this] { TrimOutput(); });
    }
    ~Watch() override
    {
        m_notifier.reset();
        if (m_pidfd >= 0) {
            close(m_pidfd);
        }
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    Done Start(const ProcessRequest& request);

private:
    void Look();
    void TrimOutput();
    qint64 OutputSize() const;
    QByteArray OutputTail() const;

    std::function<void(const ProcessEnd&)> m_ended;
    QTemporaryFile m_output;
    QElapsedTimer m_sinceStart;
    bool m_hasOutput = false;
    pid_t m_child = 0;
    int m_pidfd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_poll; // where there is no m_pidfd
    QTimer m_trim;
};

Done Watch::Start(const ProcessRequest& request)
{
    const auto child = SpawnProgram(request, m_hasOutput ? m_output.handle() : -1);
    if (!child) {
        return child.Failure();
    }
    m_child = child.Value();
    // Nobody but this object reaps the child, so the number can't have become another's.
    m_pidfd = static_cast<int>(syscall(SYS_pidfd_open, m_child, 0));
    if (m_pidfd >= 0) {
        m_notifier = std::make_unique<QSocketNotifier>(m_pidfd, QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { Look(); });
    } else {
        // No descriptor left, or a sandbox that does not know the call.
        m_poll.start(kPollMs);
    }
    m_trim.start(kTrimEveryMs);
    return Success();
}

void Watch::Look()
{
    siginfo_t end = {};
    const int result = waitid(P_PID, static_cast<id_t>(m_child), &end, WEXITED | WNOHANG);
    const bool running = result == 0 && end.si_pid == 0;
    if (running || !m_ended) {
        return;
    }
    const int status = end.si_code == CLD_EXITED ? end.si_status : 128 + end.si_status;
    // Anything may happen in the call, so nothing of this object is used after it.
    const auto ended = std::exchange(m_ended, nullptr);
    const ProcessEnd told = {m_sinceStart.elapsed(), OutputTail(), result == 0 ? status : 0};
    m_poll.stop();
    m_trim.stop();
    if (m_notifier) {
        m_notifier->setEnabled(false); // not deleted: we may be in its signal
    }
    deleteLater();
    ended(told);
}

qint64 Watch::OutputSize() const
{
    struct stat status = {};
    return m_hasOutput && fstat(m_output.handle(), &status) == 0 ? status.st_size : 0;
}

/// What a talkative program printed long ago is given back to the file system while it runs.
void Watch::TrimOutput()
{
    const qint64 size = OutputSize();
    if (size > 2 * kKeptOutput) {
        // A file system that can't do it keeps the whole text.
        std::ignore = fallocate(
            m_output.handle(), FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, 0, size - kKeptOutput);
    }
}

QByteArray Watch::OutputTail() const
{
    const qint64 size = OutputSize();
    QByteArray tail(std::min(size, kKeptOutput), Qt::Uninitialized);
    // The position is shared with whatever still prints, so it is left alone.
    const ssize_t got = tail.isEmpty() ? 0
                                       : pread(
                                             m_output.handle(),
                                             tail.data(),
                                             static_cast<std::size_t>(tail.size()),
                                             size - tail.size());
    tail.truncate(std::max<ssize_t>(0, got));
    return tail;
}

} // namespace

DetachedProcesses::DetachedProcesses(std::function<bool()> isEnding)
    : m_isEnding(std::move(isEnding))
    , m_watches(std::make_unique<QObject>())
{}

DetachedProcesses::~DetachedProcesses() = default;

Done DetachedProcesses::StartDetached(
    const ProcessRequest& request, std::function<void(const ProcessEnd&)> ended)
{
    if (!ended) {
        ended = [](const ProcessEnd&) {};
    }
    auto watch = std::make_unique<Watch>(m_watches.get(), std::move(ended));
    Done started = watch->Start(request);
    if (started) {
        std::ignore = watch.release(); // it goes by itself, or with m_watches
    }
    return started;
}

Outcome<ProcessEnd> DetachedProcesses::RunAndWait(const ProcessRequest& request)
{
    const Error abandoned = {ErrorKind::Abandoned, request.program};
    if (IsEnding()) {
        return abandoned;
    }
    // Shared with the call that may come long after an abandoned wait.
    struct Wait {
        QEventLoop* loop = nullptr;
        std::optional<ProcessEnd> end;
    };
    QEventLoop loop;
    const auto wait = std::make_shared<Wait>();
    wait->loop = &loop;
    const Done started = StartDetached(request, [wait](const ProcessEnd& end) {
        wait->end = end;
        if (wait->loop != nullptr) {
            wait->loop->quit();
        }
    });
    if (!started) {
        return started.Failure();
    }
    QObject::connect(
        QAbstractEventDispatcher::instance(),
        &QAbstractEventDispatcher::aboutToBlock,
        &loop,
        [this, &loop] {
            if (IsEnding()) {
                loop.quit();
            }
        });
    loop.exec();
    wait->loop = nullptr;
    return wait->end ? Outcome<ProcessEnd>(*wait->end) : Outcome<ProcessEnd>(abandoned);
}

} // namespace pelorin::platform
