// The benchmarks. Takes Google Benchmark's options; without any, every benchmark runs several times, interleaved, and
// medians count.
#include "lcdbench_config.h"
#include "lcdbench_report.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && QString(argv[1]) == "--memory") {
        lcdbench::useMemory(argv[2], QString(argv[3]).toInt());
        return 0;
    }
    std::vector<char*> arguments{argv[0]};
    static char defaults[][48] = {"--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                                  "--benchmark_enable_random_interleaving=true"};
    for (char* const option : defaults) arguments.push_back(option);
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    lcdbench::registerLoads();
    lcdbench::registerQueries();
    lcdbench::runAndReport();
    return 0;
}
