#include "support/XSession.h"

#include <QFile>
#include <QSet>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

namespace {

constexpr int kPatienceMs = 20'000;

} // namespace

XSession::XSession(const XSessionOptions& options)
    : m_environment(m_home.Environment())
{
    m_isUp = StartServer(options.screen) && StartWindowManager() && SetFontDpi(options.fontDpi);
    EXPECT_TRUE(m_isUp) << "no X session; are xvfb, openbox and x11-utils installed? "
                        << (m_server ? m_server->Output().toStdString() : std::string());
}

bool XSession::StartServer(const QSize& screen)
{
    const QString size = u"%1x%2x24"_s.arg(screen.width()).arg(screen.height());
    // It takes the first free display itself and prints its number when it is ready. Without
    // -noreset it would start anew each time its last client goes.
    m_server = std::make_unique<RunProgram>(
        u"Xvfb"_s,
        QStringList{u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-screen"_s, u"0"_s, size},
        m_environment);
    // Warnings may come first: about the socket of a server that was killed, say.
    QByteArray number;
    bool isNumber = false;
    do {
        number = m_server->ReadLine(kPatienceMs);
        number.toInt(&isNumber);
    } while (!isNumber && !number.isNull());
    m_environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(number));
    return isNumber;
}

bool XSession::StartWindowManager()
{
    // It announces itself before it manages windows, and one that is mapped in between is forgotten.
    // What it runs at its start comes after both.
    const QString ready = m_home.Path(u"openbox-is-up"_s);
    m_windowManager = std::make_unique<RunProgram>(
        u"openbox"_s,
        QStringList{u"--sm-disable"_s, u"--startup"_s, u"touch \"%1\""_s.arg(ready)},
        m_environment,
        m_home.Path());
    return QTest::qWaitFor([&] { return QFile::exists(ready); }, kPatienceMs);
}

bool XSession::SetFontDpi(int dpi)
{
    if (dpi == 0) {
        return true;
    }
    const QString resources = u"Xft.dpi:\t%1\n"_s.arg(dpi);
    const QStringList arguments = {
        u"-root"_s,
        u"-f"_s,
        u"RESOURCE_MANAGER"_s,
        u"8s"_s,
        u"-set"_s,
        u"RESOURCE_MANAGER"_s,
        resources};
    return RunTool(u"xprop"_s, arguments, m_environment).exitCode == 0;
}

QImage XSession::Screenshot() const
{
    const auto taken = RunTool(u"import"_s, {u"-window"_s, u"root"_s, u"png:-"_s}, m_environment);
    QImage image = QImage::fromData(taken.output, "PNG");
    EXPECT_FALSE(image.isNull()) << taken.errors.toStdString();
    return image;
}

int ColourCount(const QImage& image, const QRect& part)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    const QRect area = part.isNull() ? pixels.rect() : part.intersected(pixels.rect());
    QSet<QRgb> colours;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            colours.insert(pixels.pixel(x, y));
        }
    }
    return static_cast<int>(colours.size());
}

} // namespace pelorin::test
