#include "platform/Paths.h"
#include "real/RealInstallation.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

constexpr int kBuild073 = 2; // in the list of builds
const QString kFolder = u"DOSBox/0.73"_s;
const QString kGame = u"Games/별 헤는 밤 (Star) [1]"_s;

/// A build that is a program of Windows: a few lines of ours that tell what it is given.
class RealWine : public RealTest {
protected:
    void SetUp() override
    {
        RealTest::SetUp();
        Stage(m_app, m_session);
        QDir().mkpath(m_app.Path(kFolder));
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(PELORIN_TOLD), m_app.Path(kFolder + u"/DOSBox.exe"_s)));
    }

    /// The game's own settings name the build, those of all games switch the menu off.
    void GiveBuild() const
    {
        QStringList conf = m_app.ReadLines(u"Default.conf"_s);
        ASSERT_GT(conf.size(), 3);
        conf[3] = u"1"_s; // Menu=false
        m_app.WriteLines(u"Default.conf"_s, conf);
        conf[1] = QString::number(kBuild073);
        m_app.WriteLines(kGame + u"/DOSBOX/edit.conf"_s, conf);
    }

    /// Values of the lines "name=value" in what the program told.
    QStringList Told(const QString& name) const
    {
        QStringList values;
        for (const QByteArray& line : m_app.ReadRaw(kFolder + u"/told.txt"_s).split('\n')) {
            const QString text = QString::fromUtf8(line).remove(u'\r');
            if (text.startsWith(name + u'=')) {
                values << text.mid(name.size() + 1);
            }
        }
        return values;
    }

    TestFolder m_app{u"my Pelorin 100 [1]"_s};
};

TEST_F(RealWine, ABuildForWindowsGetsItsArgumentsFolderAndPathsInWindowsForm)
{
    constexpr int kFirstStartMs = 100'000; // Wine makes its folders
    QProcessEnvironment environment = PlainEnvironment(m_session);
    environment.insert(u"WINEDLLOVERRIDES"_s, u"mscoree,mshtml="_s); // which it would ask to fetch
    environment.insert(u"WINEDEBUG"_s, u"-all"_s);
    RunProgram pelorin(m_app.Path(u"Pelorin"_s), {}, environment);
    const auto window = m_person.WaitForWindow(MainWindow(), kStepMs);
    ASSERT_TRUE(window.has_value()) << pelorin.Output().toStdString();
    ASSERT_TRUE(m_person.Activate(*window, kStepMs));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return m_person.Title(*window).startsWith(u"별 헤는 밤"_s); }, kStepMs));
    GiveBuild();
    m_person.Key(u"Return"_s);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return m_app.Exists(kFolder + u"/told.txt"_s); }, kFirstStartMs))
        << pelorin.Output().toStdString();

    EXPECT_EQ(Told(u"folder"_s), QStringList{platform::WindowsPath(m_app.Path(kFolder))});
    const QStringList arguments = Told(u"argument"_s);
    ASSERT_FALSE(arguments.isEmpty());
    EXPECT_TRUE(arguments[0].endsWith(u"\\DOSBox\\0.73\\DOSBox.exe"_s)) << arguments[0];
    EXPECT_EQ(
        arguments.mid(1),
        (QStringList{u"-nolog"_s, u"-disable_numlock_check"_s, u"-noconsole"_s, u"-nomenu"_s}));
    // The program has read its dosbox.conf, which is as it lies on the disk, in code page 949.
    const QString conf = platform::DecodeCp949(m_app.ReadRaw(kFolder + u"/dosbox.conf"_s));
    EXPECT_TRUE(
        conf.contains(u"Mount c \"%1\"\r\n"_s.arg(platform::WindowsPath(m_app.Path(kGame)))))
        << conf;
    EXPECT_TRUE(Told(u"conf"_s).contains(u"[autoexec]"_s));
    EXPECT_FALSE(conf.contains(m_app.Path()));
}

} // namespace
