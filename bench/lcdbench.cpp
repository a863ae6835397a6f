// The benchmarks. Takes Google Benchmark's options; without any, every benchmark runs several times, interleaved, and
// medians count.
#include "lcdbench_config.h"
#include "lcdbench_report.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <benchmark/benchmark.h>

#include <cstdio>

/// In KiB, since the program was started: what a parent had before that does not count.
static long peakMemoryOfThisProcess()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QString text = status.readAll();
    return QRegularExpression("VmHWM:\\s*(\\d+)").match(text).captured(1).toLong();
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && QString(argv[1]) == "--memory") {
        lcdbench::useMemory(argv[2], QString(argv[3]).toInt());
        std::printf("%ld\n", peakMemoryOfThisProcess());
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
