#include "platform/SpawnProgram.h"

#include "platform/PathWordings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <csignal>
#include <system_error>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

/// Texts kept as bytes, and the null-ended row of pointers to them that the system asks for.
class CStrings {
public:
    void Add(const QByteArray& text) { m_texts.push_back(text); }
    /// Valid until the next Add.
    char** Row()
    {
        m_row.clear();
        for (QByteArray& text : m_texts) {
            m_row.push_back(text.data());
        }
        m_row.push_back(nullptr);
        return m_row.data();
    }

private:
    std::vector<QByteArray> m_texts;
    std::vector<char*> m_row;
};

CStrings ArgumentsOf(const ProcessRequest& request)
{
    CStrings arguments;
    arguments.Add(QFile::encodeName(request.program));
    for (const QString& argument : request.arguments) {
        arguments.Add(QFile::encodeName(argument));
    }
    return arguments;
}

/// Ours as it stands, byte for byte, with the request's names set.
CStrings EnvironmentOf(const ProcessRequest& request)
{
    CStrings environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const QByteArray text(*entry);
        const QString name = QFile::decodeName(text.left(text.indexOf('=')));
        if (!request.environment.contains(name)) {
            environment.Add(text);
        }
    }
    for (auto it = request.environment.begin(); it != request.environment.end(); ++it) {
        environment.Add(QFile::encodeName(it.key() + u'=' + it.value()));
    }
    return environment;
}

/// What the child does between its birth and the program.
class ChildSetup {
public:
    ChildSetup(const QByteArray& folder, int output)
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addchdir_np(&m_actions, folder.constData());
        // The output first: it may be one of the three numbers itself.
        if (output >= 0) {
            posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
        } else {
            posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        }
        posix_spawn_file_actions_adddup2(&m_actions, STDOUT_FILENO, STDERR_FILENO);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);

        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setflags(
            &m_attributes,
            static_cast<short>(
                POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
    }
    ~ChildSetup()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_actions);
    }
    ChildSetup(const ChildSetup&) = delete;
    ChildSetup& operator=(const ChildSetup&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &m_actions; }
    const posix_spawnattr_t* Attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_actions = {};
    posix_spawnattr_t m_attributes = {};
};

Error MissingInterpreter(const QString& program)
{
    QFile file(program);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.readLine(256) : QByteArray();
    if (start.startsWith("#!")) {
        const QString interpreter = QFile::decodeName(start.mid(2).trimmed());
        return Error::Worded(
            ErrorKind::Refused,
            Wording{488, u"<1>: <2>, which runs it, is missing."_s, {program, interpreter}});
    }
    return Error::Worded(
        ErrorKind::Refused,
        Wording{489, u"<1>: the system's part that loads such programs is missing."_s, {program}});
}

Error WhyNotStarted(const QString& program, int code)
{
    if (code == ENOENT) {
        return QFileInfo::exists(program) ? MissingInterpreter(program)
                                          : Error::Worded(ErrorKind::NotFound, NotThere(program));
    }
    if (code == EACCES && QFileInfo(program).isDir()) {
        return Error::Worded(
            ErrorKind::Refused, Wording{490, u"<1> is a folder, not a program."_s, {program}});
    }
    const auto reason = std::generic_category().message(code);
    return {ErrorKind::Refused, u"%1: %2"_s.arg(program, QString::fromLocal8Bit(reason.c_str()))};
}

bool HoldsNul(const ProcessRequest& request)
{
    return request.program.contains(QChar::Null) ||
           request.arguments.join(QString()).contains(QChar::Null);
}

} // namespace

Outcome<pid_t> SpawnProgram(const ProcessRequest& request, int output)
{
    // A relative name would be looked for in the working folder, where anything may lie.
    if (!QDir::isAbsolutePath(request.program) || HoldsNul(request)) {
        return Error::Worded(
            ErrorKind::Refused,
            Wording{491, u"<1> is no full path of a program."_s, {request.program}});
    }
    if (!QFileInfo(request.workingFolder).isDir()) {
        return Error::Worded(
            ErrorKind::NotFound,
            Wording{
                492,
                u"<1>: its working folder <2> is missing."_s,
                {request.program, request.workingFolder}});
    }
    CStrings arguments = ArgumentsOf(request);
    CStrings environment = EnvironmentOf(request);
    const ChildSetup setup(QFile::encodeName(request.workingFolder), output);
    pid_t child = 0;
    const int code = posix_spawn(
        &child,
        QFile::encodeName(request.program).constData(),
        setup.Actions(),
        setup.Attributes(),
        arguments.Row(),
        environment.Row());
    if (code != 0) {
        return WhyNotStarted(request.program, code);
    }
    return child;
}

} // namespace pelorin::platform
