#include "running/NetAddress.h"

#include "dosboxconf/RunFacts.h"
#include "platform/TextFile.h"

#include <QRegularExpression>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

constexpr qsizetype kMostCharacters = 100;

QString PathOf(const shell::Places& places)
{
    return places.InAppDir(u"IP.cfg"_s);
}

} // namespace

QString ReadNetAddress(const shell::Places& places)
{
    const QString line =
        platform::ReadFirstLines(PathOf(places), 1).ValueOr(QStringList()).value(0);
    return line.section(u',', 0, 0).remove(u'"').trimmed();
}

platform::Done WriteNetAddress(const shell::Places& places, const QString& address)
{
    return platform::WriteLines(PathOf(places), {address});
}

platform::Outcome<QString> NetAddressOf(const QString& typed)
{
    const QString address = typed.trimmed();
    const QRegularExpression form(u"\\A[A-Za-z0-9_.:-]+( +[0-9]{1,5})?\\z"_s);
    if (address.size() > kMostCharacters || !form.match(address).hasMatch()) {
        return platform::Error::Worded(
            platform::ErrorKind::Refused,
            platform::Wording{
                341,
                u"<1> is not an address. Type the name or number of a computer, and a port after it if needed: 192.168.0.2 19900"_s,
                {address.left(kMostCharacters).simplified()}});
    }
    return address;
}

int FreeServerPort()
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (socket < 0) {
        return dosboxconf::kIpxPort;
    }
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(dosboxconf::kIpxPort));
    const bool free =
        ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return free ? dosboxconf::kIpxPort : dosboxconf::kIpxFallbackPort;
}

} // namespace pelorin::running
