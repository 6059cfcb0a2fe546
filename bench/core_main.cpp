// bench_core APP_DIR [options of Google Benchmark]: figures of what needs no window.

#include "BenchInstallation.h"
#include "Registry.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace pelorin;
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fputs("usage: bench_core APP_DIR [--benchmark_...]\n", stderr);
        return 2;
    }
    const QCoreApplication application(argc, argv);
    const bench::BenchInstallation installation(QString::fromLocal8Bit(argv[1]));
    bench::AddCatalogueFigures(installation);
    bench::AddListFigures(installation);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
