#include "platform/DetachedProcesses.h"

#include "support/TestFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

constexpr int kPatienceMs = 10'000;

class DetachedProcessesTest : public testing::Test {
protected:
    ProcessRequest Script(const QString& body)
    {
        m_folder.WriteScript(u"run.sh"_s, body);
        return Program(m_folder.Path(u"run.sh"_s));
    }
    ProcessRequest Program(const QString& path, const QStringList& arguments = {}) const
    {
        ProcessRequest request;
        request.program = path;
        request.arguments = arguments;
        request.workingFolder = m_folder.Path();
        return request;
    }
    QByteArray OutputOf(const ProcessRequest& request)
    {
        const auto end = m_processes.RunAndWait(request);
        EXPECT_TRUE(end) << ErrorOf(end);
        return end ? end.Value().output : QByteArray();
    }
    bool Comes(const QString& file) const
    {
        return QTest::qWaitFor([&] { return m_folder.Exists(file); }, kPatienceMs);
    }
    /// We have no child left, neither running nor dead.
    static bool HasNoChild() { return waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD; }

    TestFolder m_folder{u"게임 방 [1] %HOME% #2"_s};
    DetachedProcesses m_processes;
};

TEST_F(DetachedProcessesTest, ArgumentsFolderAndEnvironmentArriveAsTheyAre)
{
    const QStringList arguments = {
        u""_s,
        u"\"quoted\" 'single'"_s,
        u"$HOME `id` ; & | > < * ? ~ \\"_s,
        u"펠로린 뷁"_s,
        u"-n"_s,
        u"line\nend"_s};
    const auto request = Program(u"/usr/bin/printf"_s, QStringList(u"[%s]"_s) + arguments);
    EXPECT_EQ(QString::fromUtf8(OutputOf(request)), u"["_s + arguments.join(u"]["_s) + u"]"_s);

    qputenv("PELORIN_TEST_KEPT", "kept");
    qputenv("PELORIN_TEST_SET", "old");
    auto script = Script(
        u"pwd\necho \"$PELORIN_TEST_KEPT $PELORIN_TEST_SET\" >&2\nread line || echo eof\n"_s);
    script.environment[u"PELORIN_TEST_SET"_s] = u"새 값"_s;
    EXPECT_EQ(QString::fromUtf8(OutputOf(script)), m_folder.Path() + u"\nkept 새 값\neof\n"_s);
    qunsetenv("PELORIN_TEST_KEPT");
    qunsetenv("PELORIN_TEST_SET");
}

TEST_F(DetachedProcessesTest, WhatCanNotBeStartedSaysWhy)
{
    m_folder.WriteScript(u"plain.sh"_s, u"exit 0\n"_s);
    m_folder.WriteRaw(u"notes.txt"_s, "just text\n");
    m_folder.WriteRaw(u"noloader"_s, "#!/no/such/shell -x\n");
    m_folder.WriteRaw(u"garbage"_s, "MZ no program of this system");
    m_folder.MakeLink(u"broken"_s, u"/no/such/program"_s);
    for (const QString& name : Words(u"noloader garbage"_s)) {
        QFile::setPermissions(m_folder.Path(name), QFile::ReadOwner | QFile::ExeOwner);
    }
    const QString here = m_folder.Path();
    const QString plain = m_folder.Path(u"plain.sh"_s);
    struct Case {
        QString program;
        QString workingFolder;
        ErrorKind kind;
        QString inText;
    };
    const Case cases[] = {
        {m_folder.Path(u"none"_s), here, ErrorKind::NotFound, u"none"_s},
        {m_folder.Path(u"broken"_s), here, ErrorKind::NotFound, u"broken"_s},
        {m_folder.Path(u"notes.txt"_s), here, ErrorKind::Refused, u"notes.txt"_s},
        {m_folder.Path(u"noloader"_s), here, ErrorKind::Refused, u"/no/such/shell"_s},
        {m_folder.Path(u"garbage"_s), here, ErrorKind::Refused, u"garbage"_s},
        {here, here, ErrorKind::Refused, u"folder"_s},
        {u"plain.sh"_s, here, ErrorKind::Refused, u"plain.sh"_s},
        {plain, m_folder.Path(u"gone"_s), ErrorKind::NotFound, u"gone"_s},
        {plain, QString(), ErrorKind::NotFound, u"working folder"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.program + u" in "_s + c.workingFolder);
        auto request = Program(c.program);
        request.workingFolder = c.workingFolder;
        bool ended = false;
        const Done started =
            m_processes.StartDetached(request, [&](const ProcessEnd&) { ended = true; });
        EXPECT_EQ(KindOf(started), c.kind);
        EXPECT_TRUE(ErrorOf(started).contains(c.inText)) << ErrorOf(started);
        EXPECT_FALSE(m_processes.RunAndWait(request));
        QCoreApplication::processEvents();
        EXPECT_FALSE(ended);
        EXPECT_TRUE(HasNoChild());
    }
}

TEST_F(DetachedProcessesTest, EndIsToldOnceWithStatusAndOutputAndLeavesNoZombie)
{
    struct Case {
        QString body;
        int status;
        QByteArray output;
    };
    const Case cases[] = {
        {u"exit 0\n"_s, 0, ""},
        {u"echo said; exit 7\n"_s, 7, "said\n"},
        {u"echo before; kill -SEGV $$\n"_s, 128 + SIGSEGV, "before\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.body);
        int calls = 0;
        ProcessEnd end;
        ASSERT_TRUE(m_processes.StartDetached(Script(c.body), [&](const ProcessEnd& told) {
            ++calls;
            end = told;
        }));
        EXPECT_EQ(calls, 0) << "only from the event loop";
        QThread::msleep(50); // dead before anybody looks
        ASSERT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, kPatienceMs));
        QTest::qWait(20);
        EXPECT_EQ(calls, 1);
        EXPECT_EQ(end.exitStatus, c.status);
        EXPECT_EQ(end.output, c.output);
        EXPECT_TRUE(HasNoChild());
    }
    QStringList order;
    for (const QString& seconds : Words(u"0.3 0.05 0.15"_s)) {
        ASSERT_TRUE(m_processes.StartDetached(
            Program(u"/bin/sleep"_s, {seconds}),
            [&order, seconds](const ProcessEnd&) { order << seconds; }));
    }
    ASSERT_TRUE(m_processes.StartDetached(Program(u"/bin/true"_s), nullptr));
    ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() == 3; }, kPatienceMs));
    EXPECT_EQ(order, Words(u"0.05 0.15 0.3"_s));
    EXPECT_TRUE(HasNoChild());
}

TEST_F(DetachedProcessesTest, OnlyTheEndOfALongOutputComesBack)
{
    const QByteArray output = OutputOf(Script(u"seq 1 100000\necho last\n"_s));
    EXPECT_EQ(output.size(), 64 * 1024);
    EXPECT_TRUE(output.endsWith("\n99999\n100000\nlast\n"));
}

TEST_F(DetachedProcessesTest, ProgramGetsNoneOfOurDescriptorsAndOurSignalsReset)
{
    const int ours = open("/dev/null", O_RDONLY); // without O_CLOEXEC
    ASSERT_GT(ours, 2);
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    const QByteArray seen = OutputOf(Script(
        u"ls /proc/$$/fd | tr '\\n' ' '\ngrep SigIgn /proc/$$/status\nps -o pid=,sid= -p $$\n"_s));
    std::signal(SIGPIPE, before);
    close(ours);
    // 10 is the shell's own copy of its script.
    EXPECT_TRUE(seen.startsWith("0 1 2 10 ") || seen.startsWith("0 1 10 2 ")) << seen.toStdString();
    const QByteArrayList words = seen.simplified().split(' ');
    ASSERT_GE(words.size(), 7);
    EXPECT_EQ(words.at(words.size() - 2), words.last()) << "a session of its own";
    // The two signals above the first 31 are the C library's own.
    const quint64 ignored = words.at(words.size() - 3).toULongLong(nullptr, 16);
    EXPECT_EQ(ignored & 0x7fffffffU, 0U) << seen.toStdString();
}

TEST_F(DetachedProcessesTest, ProgramOutlivesUs)
{
    const auto request = Script(u"sleep 0.6\necho printed\necho done > result\n"_s);
    const pid_t us = fork();
    if (us == 0) {
        DetachedProcesses own;
        _exit(own.StartDetached(request, nullptr) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(us, &status, 0), us);
    ASSERT_EQ(status, 0);
    EXPECT_FALSE(m_folder.Exists(u"result"_s));
    EXPECT_TRUE(Comes(u"result"_s));
}

TEST_F(DetachedProcessesTest, WaitRunsEventsEvenOtherWaitsAndEndsAtOnce)
{
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(20);
    QElapsedTimer clock;
    clock.start();
    const auto end = m_processes.RunAndWait(Script(u"sleep 0.5\n"_s));
    const qint64 took = clock.elapsed();
    ASSERT_TRUE(end);
    EXPECT_GE(ticks, 5);
    EXPECT_GE(end.Value().runMs, 450);
    EXPECT_LT(took - end.Value().runMs, 90) << "no polling by a tenth of a second";

    QByteArray inner;
    QTimer::singleShot(0, [&] { inner = OutputOf(Script(u"sleep 0.3; echo inner"_s)); });
    EXPECT_EQ(OutputOf(Program(u"/usr/bin/printf"_s, {u"outer"_s})), "outer");
    EXPECT_EQ(inner, "inner\n");
}

TEST_F(DetachedProcessesTest, WaitIsAbandonedWhenWeEnd)
{
    bool ending = false;
    DetachedProcesses mortal([&] { return ending; });
    QTimer::singleShot(50, [&] { ending = true; });
    const auto request = Script(u"sleep 0.8\necho done > result\n"_s);
    EXPECT_EQ(KindOf(mortal.RunAndWait(request)), ErrorKind::Abandoned);
    EXPECT_FALSE(m_folder.Exists(u"result"_s)) << "the wait must not last until its end";
    EXPECT_TRUE(Comes(u"result"_s)) << "the child goes on";
    EXPECT_TRUE(QTest::qWaitFor([] { return HasNoChild(); }, kPatienceMs));

    EXPECT_EQ(KindOf(mortal.RunAndWait(request)), ErrorKind::Abandoned);
    EXPECT_TRUE(HasNoChild()) << "nothing is started any more";
}

TEST_F(DetachedProcessesTest, WaitIsAbandonedWhenTheApplicationQuits)
{
    QEventLoop application; // what quit ends besides the wait
    std::optional<ErrorKind> kind;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(50, [] { QCoreApplication::exit(0); });
        kind = KindOf(m_processes.RunAndWait(Program(u"/bin/sleep"_s, {u"0.8"_s})));
    });
    QElapsedTimer clock;
    clock.start();
    application.exec();
    EXPECT_LT(clock.elapsed(), 700);
    EXPECT_EQ(kind, ErrorKind::Abandoned);
}

} // namespace
