#include "dosboxconf/ConfFiles.h"
#include "faults/FaultsFixture.h"
#include "running/RunCommands.h"
#include "support/StandardError.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

constexpr qsizetype kItems = dosboxconf::kItems;
constexpr qsizetype kOutputLine = 1 + kItems + 4; // cell (1,4)
const QString kEditConf = u"Games/별/DosBox/edit.conf"_s;

/// An installation that has been started once, and a game.
class ConfFaults : public testing::Test {
protected:
    ConfFaults()
    {
        m_app.AddGame(u"별"_s);
        m_app.Start();
        m_factory = m_app.folder.ReadLines(u"Default.conf"_s);
    }
    QByteArray Raw(const QString& file) const { return m_app.folder.ReadRaw(file); }
    QByteArray DosboxConf() const { return Raw(u"DOSBox/0.74_SVN/dosbox.conf"_s); }

    Installation m_app;
    QStringList m_factory;
};

TEST_F(ConfFaults, DefaultConfCut)
{
    m_app.folder.WriteLines(u"Default.conf"_s, m_factory.mid(0, 2000));
    const QByteArray cut = Raw(u"Default.conf"_s);
    StandardError errors;
    const auto launcher = m_app.Start();
    const QString told = launcher->lang.Text(402, {m_app.folder.Path(u"Default.conf"_s)});
    EXPECT_PRED2(Holds, Notes(*launcher), told);
    EXPECT_TRUE(errors.Text().contains(told.toUtf8()));
    running::RunGame(*launcher);
    EXPECT_EQ(m_app.fakes.processes.Starts().size(), 1U) << "with factory values";
    EXPECT_EQ(Notes(*launcher).count(told), 1) << "told once";
    EXPECT_EQ(Raw(u"Default.conf"_s), cut);
    EXPECT_FALSE(m_app.folder.Exists(u"Default.conf.bak"_s));

    ASSERT_TRUE(dosboxconf::WriteDefaultConf(launcher->places, launcher->options));
    EXPECT_EQ(Raw(u"Default.conf.bak"_s), cut);
    EXPECT_EQ(m_app.folder.ReadLines(u"Default.conf"_s), m_factory);
}

TEST_F(ConfFaults, EditConfShort)
{
    m_app.folder.WriteLines(kEditConf, m_factory.mid(0, kOutputLine));
    const QByteArray cut = Raw(kEditConf);
    const auto launcher = m_app.Start();
    running::RunGame(*launcher);
    EXPECT_EQ(m_app.fakes.processes.Starts().size(), 1U);
    EXPECT_PRED2(Holds, Notes(*launcher), launcher->lang.Text(403, {m_app.folder.Path(kEditConf)}));
    EXPECT_EQ(Raw(kEditConf), cut);

    ASSERT_TRUE(dosboxconf::SaveGameConf(launcher->places, u"별"_s, launcher->options));
    EXPECT_EQ(Raw(kEditConf + u".bak"_s), cut);
}

TEST_F(ConfFaults, IndexesOffTheList)
{
    for (const QString& file : {u"Default.conf"_s, kEditConf}) {
        for (const QString& index : {u"77"_s, u"-1"_s, u"2147483647"_s}) {
            SCOPED_TRACE((file + u' ' + index).toStdString());
            QStringList lines = m_factory;
            lines[kOutputLine] = index;
            m_app.folder.WriteLines(file, lines);
            const QByteArray before = Raw(file);
            const auto launcher = m_app.Start();
            running::RunGame(*launcher);
            const QString told =
                launcher->lang.Text(400, {m_app.folder.Path(file), u"output"_s}) + u'\n';
            EXPECT_EQ(Notes(*launcher).count(told), 1) << Notes(*launcher).toStdString();
            EXPECT_TRUE(DosboxConf().contains("\r\noutput=\r\n"));
            EXPECT_EQ(Raw(file), before);

            // Another option is changed: nothing is lost. This one is: the old file is kept.
            const bool global = file == u"Default.conf"_s;
            const auto save = [&] {
                return global
                           ? dosboxconf::WriteDefaultConf(launcher->places, launcher->options)
                           : dosboxconf::SaveGameConf(launcher->places, u"별"_s, launcher->options);
            };
            const auto select = [&](dosboxconf::Cell cell) {
                launcher->options.OptionSelection[dosboxconf::OptionGrid::Index(cell)] = 0;
            };
            select({1, 5});
            ASSERT_TRUE(save());
            EXPECT_FALSE(m_app.folder.Exists(file + u".bak"_s));
            const QByteArray second = Raw(file);
            select({1, 4});
            ASSERT_TRUE(save());
            EXPECT_EQ(Raw(file + u".bak"_s), second);
            EXPECT_TRUE(QFile::remove(m_app.folder.Path(file + u".bak"_s)));
        }
        m_app.folder.WriteLines(u"Default.conf"_s, m_factory);
    }
}

} // namespace
