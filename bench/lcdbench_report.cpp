#include "lcdbench_report.h"

#include "lcdbench_config.h"

#include <QCoreApplication>
#include <QProcess>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>

namespace lcdbench {
namespace {

/// Keeps the median time of every benchmark by its name, in seconds, in the order of the runs.
class Medians : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
            const std::string name = run.run_name.function_name;
            _seconds[name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            _names.push_back(name);
        }
    }
    [[nodiscard]] double seconds(const std::string& name) const { return _seconds.at(name); }
    [[nodiscard]] const std::vector<std::string>& names() const { return _names; }

private:
    std::map<std::string, double> _seconds;
    std::vector<std::string> _names;
};

void reportLoads(const Medians& medians)
{
    std::printf("\n%-12s %6s %12s %12s %8s %14s %8s\n", "Load", "files", "load ms", "parse ms", "ratio", "us per file",
                "to 10");
    for (const char* const catalogue : {"cards", "connectors"}) {
        double perFileAtFirst = 0.0;
        for (const int size : SIZES) {
            const std::string name = std::string(catalogue) + "/" + std::to_string(size);
            const double load = medians.seconds("load/" + name);
            const double parse = medians.seconds("parse/" + name);
            const double perFile = load / size;
            if (perFileAtFirst == 0.0) perFileAtFirst = perFile;
            std::printf("%-12s %6d %12.3f %12.3f %8.2f %14.1f %8.2f\n", catalogue, size, load * 1e3, parse * 1e3,
                        load / parse, perFile * 1e6, perFile / perFileAtFirst);
        }
    }
}

void reportQueries(const Medians& medians)
{
    std::printf("\n%-44s %12s %12s %8s\n", "Query", "query ns", "copy ns", "ratio");
    for (const std::string& name : medians.names()) {
        if (name.rfind("query/", 0) != 0) continue;
        const std::string bare = name.substr(6);
        const double query = medians.seconds(name);
        const double copy = medians.seconds("copy/" + bare);
        std::printf("%-44s %12.0f %12.0f %8.2f\n", bare.c_str(), query * 1e9, copy * 1e9, query / copy);
    }
}

void reportMemory()
{
    std::printf("\n%-12s %6s %14s %14s\n", "Peak memory", "files", "load MiB", "parse MiB");
    for (const int size : SIZES) {
        const double base = static_cast<double>(peakMemory("files", size));
        const auto above = [&](const char* what) {
            return (static_cast<double>(peakMemory(what, size)) - base) / 1024.0;
        };
        std::printf("%-12s %6d %14.1f %14.1f\n", "", 2 * size, above("load"), above("parse"));
    }
    std::printf("(above a process that only writes the files)\n");
}

} // namespace

void runAndReport()
{
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    reportLoads(medians);
    reportQueries(medians);
    reportMemory();
}

long peakMemory(const QString& what, int size)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {"--memory", what, QString::number(size)});
    bool good = child.waitForFinished(-1) && child.exitCode() == 0;
    const long peak = good ? child.readAllStandardOutput().trimmed().toLong(&good) : 0;
    if (!good) qFatal("the memory measurement failed");
    return peak;
}

} // namespace lcdbench
