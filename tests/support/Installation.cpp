#include "support/Installation.h"

#include "library/IconImages.h"
#include "library/ShowinfoCommands.h"
#include "platform/TextFile.h"
#include "shell/LifecycleCommands.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

QStringList ShippedLines(const QString& language, const QString& name)
{
    QFile file(QStringLiteral(PELORIN_SOURCE_DIR) + u"/data/%1/%2"_s.arg(language, name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return platform::SplitLines(QString::fromUtf8(file.readAll()));
}

} // namespace

Installation::Installation(const QString& language)
{
    for (const QString& name : {u"Language.dat"_s, u"option.dat"_s}) {
        folder.WriteLines(name, ShippedLines(language, name));
    }
    folder.WriteScript(u"DOSBox/0.74_SVN/dosbox"_s, u"exit 0\n"_s);
    folder.MakeTree({u"Dos/Util/"_s, u"Dos/GUS/"_s, u"mapper/mapper_default.txt"_s, u"Games/"_s});
}

std::unique_ptr<shell::Launcher> Installation::NewLauncher()
{
    auto launcher = std::make_unique<shell::Launcher>(fakes.ports);
    launcher->places.appDir = folder.Path();
    launcher->defaultIcon = library::PlainIcon(library::kLargeIcon, 1, 2, 3);
    launcher->screens.list.visible = true;
    return launcher;
}

std::unique_ptr<shell::Launcher> Installation::Start()
{
    auto launcher = NewLauncher();
    const platform::Done loaded = shell::Form_Load(*launcher);
    EXPECT_TRUE(loaded) << (loaded ? "" : loaded.Failure().text.toStdString());
    return launcher;
}

void Installation::AddGame(const QString& name, const QString& meta) const
{
    const QString game = u"Games/"_s + name;
    folder.MakeTree({game + u"/GAME.COM"_s, game + u'/' + meta + u'/'});
}

void Click(shell::Launcher& launcher, const QString& game)
{
    launcher.screens.list.Select(launcher.screens.list.RowOf(game));
    library::LVGamelist_SelectionMoved(launcher);
}

} // namespace pelorin::test
