#include "running/GlideIni.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::Cell;
using dosboxconf::OptionGrid;

namespace {

class GlideIni : public testing::Test {
protected:
    void Choose(Cell cell, const QString& value)
    {
        m_grid.OptionValue[OptionGrid::Index(cell)] = {u"first"_s, value};
        m_grid.OptionSelection[OptionGrid::Index(cell)] = 1;
    }

    OptionGrid m_grid;
};

} // namespace

TEST_F(GlideIni, FollowsTheDisplayOptions)
{
    struct Case {
        QString build;
        QString fullscreen;
        QString fullresolution;
        QString windowresolution;
        QString splash;
        QString expected; // InitFullScreen, Resolution, NoSplash
    };
    const Case cases[] = {
        {u"0.74"_s, u"false"_s, u"800x600"_s, u"640x480"_s, u"true"_s, u"0 640 0"_s},
        {u"0.74"_s, u"true"_s, u"800x600"_s, u"640x480"_s, u"false"_s, u"1 800 1"_s},
        {u"0.74"_s, u"false"_s, u"original"_s, u"1280x1024"_s, u"true"_s, u"0 1280 0"_s},
        {u"0.74"_s, u"true"_s, u"original"_s, u"640x480"_s, u"true"_s, u"1 1024 0"_s},
        {u"0.74"_s, u"false"_s, u"640x480"_s, u"1600x1200"_s, u"true"_s, u"0 1024 0"_s},
        {u"Win98"_s, u"true"_s, u"1280x1024"_s, u"800x600"_s, u"true"_s, u"1 640 0"_s},
        {u"Win31KOR"_s, u"true"_s, u"1280x1024"_s, u"800x600"_s, u"true"_s, u"1 1280 0"_s},
    };
    for (const Case& c : cases) {
        Choose(dosboxconf::kVersionCell, c.build);
        Choose(dosboxconf::kFullscreenCell, c.fullscreen);
        Choose(dosboxconf::kFullresolutionCell, c.fullresolution);
        Choose(dosboxconf::kWindowresolutionCell, c.windowresolution);
        Choose(dosboxconf::kSplashCell, c.splash);
        const QStringList lines = running::GlideLines(m_grid);
        const auto value = [&](const QString& key) {
            const QStringList found = lines.filter(key + u'=');
            return found.size() == 1 ? found.first().mid(key.size() + 1) : u"?"_s;
        };
        EXPECT_EQ(
            (QStringList{value(u"InitFullScreen"_s), value(u"Resolution"_s), value(u"NoSplash"_s)}
                 .join(u' ')),
            c.expected);
    }
}

TEST_F(GlideIni, LiesInTheBuildsFolderAndThatOfWindows98InAnothers)
{
    const test::TestFolder app;
    const shell::Places places{app.Path(), app.Path(u"Games"_s), app.Path(u"Export"_s)};
    const std::pair<QString, QString> cases[] = {
        {u"Win98"_s, u"DOSBox/0.74_SVN/glide.ini"_s},
        {u"Win31ENG"_s, u"DOSBox/Win31ENG/glide.ini"_s},
        {u"0.73"_s, u"DOSBox/0.73/glide.ini"_s}};
    for (const auto& [build, path] : cases) {
        app.WriteRaw(path, "the owner's");
        Choose(dosboxconf::kVersionCell, build);
        ASSERT_TRUE(running::WriteGlideIni(places, m_grid));
        EXPECT_EQ(app.ReadRaw(path + u".bak"_s), "the owner's") << build;
        EXPECT_EQ(app.ReadText(path), running::GlideLines(m_grid).join(u"\r\n"_s) + u"\r\n"_s);
        // The next start's file is not the owner's any more.
        ASSERT_TRUE(running::WriteGlideIni(places, m_grid));
        EXPECT_EQ(app.ReadRaw(path + u".bak"_s), "the owner's") << build;
    }
    Choose(dosboxconf::kVersionCell, u"0.72"_s);
    EXPECT_TRUE(running::WriteGlideIni(places, m_grid));
    EXPECT_FALSE(app.Exists(u"DOSBox/0.72"_s)) << "none is made where there is none";
}
