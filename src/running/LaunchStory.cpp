#include "running/LaunchStory.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

QString Quoted(const QString& argument)
{
    const bool plain = !argument.isEmpty() && !argument.contains(u' ') && !argument.contains(u'"');
    return plain ? argument : u'"' + QString(argument).replace(u'"', u"\\\""_s) + u'"';
}

} // namespace

QString LaunchStory(
    const shell::LangTable& lang,
    const platform::ProcessRequest& request,
    const QString& confText,
    const QString& output)
{
    QStringList command{Quoted(request.program)};
    for (const QString& argument : request.arguments) {
        command << Quoted(argument);
    }
    QStringList environment;
    for (auto it = request.environment.begin(); it != request.environment.end(); ++it) {
        environment << it.key() + u'=' + it.value();
    }
    const QStringList lines{
        lang.OwnText(404, u"Command: <1>"_s, {command.join(u' ')}),
        lang.OwnText(405, u"Folder: <1>"_s, {request.workingFolder}),
        lang.OwnText(406, u"Environment added: <1>"_s, {environment.join(u' ')}),
        QString(),
        lang.OwnText(407, u"Output:"_s),
        output,
        u"dosbox.conf:"_s,
        confText};
    return lines.join(u'\n');
}

} // namespace pelorin::running
