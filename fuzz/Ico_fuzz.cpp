#include "fuzz/Harness.h"
#include "library/private/IcoDirectory.h"

using namespace pelorin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr qint64 kMostPixels = 1024LL * 1024;
    const QByteArray ico = fuzz::BytesOf(data, size);
    for (const int side : {16, 32}) {
        const QByteArray one = library::SingleIco(ico, side, kMostPixels);
        fuzz::Require(one.size() <= ico.size() + 22, "no more bytes than were given");
        fuzz::Require(
            one.isEmpty() || library::SingleIco(one, side, kMostPixels) == one,
            "one picture alone is the best one");
    }
    return 0;
}
