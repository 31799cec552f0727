#include "support/bench_main.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    zelvor::registerBenchmarks();
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
}
