#include "shell/LossCommands.h"

#include "platform/Prompts.h"
#include "shell/Launcher.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

bool MayLose(Launcher& launcher, const QString& lost)
{
    if (lost.isEmpty()) {
        return true;
    }
    const QString fact = launcher.lang.OwnText(
        385,
        u"The file can't hold these characters; a question mark would stand for each: <1>"_s,
        {lost});
    const QString question = launcher.lang.OwnText(386, u"Save all the same?"_s);
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        fact + u"\r\n\r\n"_s + question,
        launcher.lang[1],
        platform::Buttons::YesNo,
        platform::BoxIcon::Exclamation});
    return answer == platform::Answer::Yes;
}

} // namespace pelorin::shell
