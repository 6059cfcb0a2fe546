// bench_library GAMES_ROOT GAMES SEED OPTION_TABLE: makes a library in an empty folder.

#include "LibraryMaker.h"

#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace pelorin;
    if (argc != 5) {
        std::fputs("usage: bench_library GAMES_ROOT GAMES SEED OPTION_TABLE\n", stderr);
        return 2;
    }
    const auto argument = [&](int n) { return QString::fromLocal8Bit(argv[n]); };
    const bench::LibraryPlan plan{argument(2).toInt(), argument(3).toULongLong(), argument(4)};
    const platform::Done made = bench::MakeLibrary(argument(1), plan);
    if (!made) {
        std::fprintf(stderr, "bench_library: %s\n", qUtf8Printable(made.Failure().text));
        return 1;
    }
    return 0;
}
