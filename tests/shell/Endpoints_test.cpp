#include "shell/Endpoints.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using test::TestFolder;

TEST(Endpoints, TheSiteIsAnAddressOfTheWeb)
{
    struct Case {
        const char* text;
        const char16_t* site;
        const char16_t* fault; // in the error's text; null: none
    };
    const Case cases[] = {
        {"", u"", nullptr},
        {"site=\r\nupdate=x\r\n", u"", nullptr},
        {"# site=http://a/\r\n", u"", nullptr},
        {"site=https://games.example/", u"https://games.example/", nullptr},
        {"\n Site = http://127.0.0.1:8080/a \n", u"http://127.0.0.1:8080/a/", nullptr},
        {"site=http://a/?x=1", u"http://a/?x=1/", nullptr},
        {"#\nsite=file:///etc/passwd", u"", u"line 2"},
        {"site=games.example", u"", u"line 1"},
        {"site=http://", u"", u"line 1"},
        {"site=javascript:alert(1)", u"", u"line 1"},
        {"site=\xff\xfe", u"", u"line 1"},
    };
    for (const Case& c : cases) {
        const TestFolder folder;
        folder.WriteRaw(u"endpoints.CFG"_s, c.text);
        shell::Places places;
        places.appDir = folder.Path();
        const auto read = shell::ReadEndpoints(places);
        ASSERT_EQ(read.Ok(), c.fault == nullptr) << c.text;
        if (read) {
            EXPECT_EQ(read.Value().siteRoot, QString::fromUtf16(c.site)) << c.text;
        } else {
            EXPECT_TRUE(read.Failure().text.contains(QString::fromUtf16(c.fault))) << c.text;
        }
    }
}
