#include "BenchWindow.h"
#include "Figures.h"
#include "dosboxconf/ConfCompose.h"
#include "dosboxconf/EditorCommands.h"
#include "running/RunCommands.h"
#include "running/RunPlan.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

/// Selects a game that runs under the first build, with nothing but the settings of all games.
void SelectPlainGame(shell::Launcher& launcher)
{
    finding::GameList& list = launcher.screens.list;
    int row = 0;
    while (QFile::exists(
        launcher.places.GameDir(list.items[static_cast<std::size_t>(row)].Folder()) +
        u"/DosBox/edit.conf"_s)) {
        ++row;
    }
    list.Select(row);
    library::LVGamelist_ItemClick(launcher);
    library::ShowinfoProcess(launcher);
}

void AddComposing(BenchWindow& window)
{
    const auto compose = [&window](const dosboxconf::RunFacts& facts) {
        const running::RunEnding ending{running::RunMode::Game, {u"game.exe"_s}, {}, false, {}};
        const platform::HostText text =
            dosboxconf::ComposeDosboxConf(facts, window.launcher.options).text;
        return running::FinishRunText(text, ending).Print(platform::PathForm::Posix);
    };
    const auto facts = [&window] {
        dosboxconf::ConfRequest request;
        SelectPlainGame(window.launcher);
        request.folder = window.launcher.current.CurrentFolder;
        request.title = window.launcher.current.CurrentTitle;
        request.build = u"0.74_SVN"_s;
        return dosboxconf::LoadRunFacts(window.launcher.places, request);
    };
    AddFigure("compose/is", [=](benchmark::State& state) {
        const dosboxconf::RunFacts known = facts();
        TimeEach(state, [&] { return compose(known); });
    })->Iterations(50);
    AddFigure("compose/floor", [=](benchmark::State& state) {
        const QByteArray text = compose(facts());
        const QTemporaryDir folder;
        TimeEach(state, [&] {
            QFile file(folder.filePath(u"dosbox.conf"_s));
            return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        });
    })->Iterations(50);
}

/// A program in the place of the emulator, which only shows that it was started.
class Started {
public:
    explicit Started(const QString& appDir)
        : m_folder(appDir + u"/DOSBox/0.74_SVN"_s)
    {
        QDir().mkpath(m_folder);
        QFile::remove(Program()); // a link, perhaps, to the machine's own
        QFile file(Program());
        if (!file.open(QIODevice::WriteOnly) || file.write("#!/bin/sh\n: >started\n") < 0) {
            qFatal("%s", qUtf8Printable(file.errorString()));
        }
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    QString Folder() const { return m_folder; }
    QString Program() const { return m_folder + u"/dosbox"_s; }
    void Forget() const { QFile::remove(m_folder + u"/started"_s); }
    /// False when nothing came up in five seconds.
    bool Wait() const
    {
        constexpr double kLongest = 5;
        const Clock::time_point start = Clock::now();
        while (!QFile::exists(m_folder + u"/started"_s) && SecondsSince(start) < kLongest) {
            QCoreApplication::processEvents();
        }
        return SecondsSince(start) < kLongest;
    }

private:
    QString m_folder;
};

void AddStarting(BenchWindow& window)
{
    const auto time = [&window](benchmark::State& state, const auto& start) {
        const Started started(window.launcher.places.appDir);
        SelectPlainGame(window.launcher);
        TimeEach(
            state,
            [&] { started.Forget(); },
            [&] {
                start(started);
                const bool up = started.Wait();
                if (!up) {
                    state.SkipWithError("the emulator was not started");
                }
                return up;
            });
    };
    AddFigure("enter/is", [=, &window](benchmark::State& state) {
        time(state, [&](const Started&) { running::RunGame(window.launcher); });
    })->Iterations(20);
    AddFigure("enter/floor", [=](benchmark::State& state) {
        time(state, [](const Started& started) {
            QProcess::startDetached(
                u"/bin/sh"_s,
                {u"-c"_s, u"exec ./dosbox -nolog -disable_numlock_check"_s},
                started.Folder());
        });
    })->Iterations(20);
}

void AddGroups(BenchWindow& window)
{
    AddFigure("option_group/is", [&window](benchmark::State& state) {
        shell::Launcher& launcher = window.launcher;
        SelectPlainGame(launcher);
        launcher.screens.frame.tabInfo = 3;
        launcher.screens.frame.changed.Tell(shell::MainFrame::Tab);
        dosboxconf::ShowConfigPage(launcher);
        QWidget& page = *window.form->findChild<QWidget*>(u"picInfo_2"_s);
        int group = 0;
        TimeEach(
            state,
            [&] { QCoreApplication::processEvents(); },
            [&] {
                group = (group + 1) % dosboxconf::kGroups;
                dosboxconf::cmbConfigSub_Click(launcher, group);
                page.repaint();
                return group;
            });
    })->Iterations(dosboxconf::kGroups);
}

} // namespace

void AddRunFigures(BenchWindow& window)
{
    AddComposing(window);
    AddStarting(window);
    AddGroups(window);
}

} // namespace pelorin::bench
