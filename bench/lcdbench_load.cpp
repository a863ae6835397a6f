// Loading: the card and the connector catalogue of generated configurations, beside the bare parse of the same files.
#include "lcdbench_config.h"
#include "lcdbench_report.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace lcdbench {
namespace {

/// Times one call for each iteration; the preparation before it is not timed.
template <class Prepare, class Timed> void timeEach(benchmark::State& state, const Prepare& prepare, const Timed& timed)
{
    for (auto _ : state) {
        auto prepared = prepare();
        const auto start = std::chrono::steady_clock::now();
        timed(prepared);
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void loadCards(benchmark::State& state, int size)
{
    const auto prepare = [size] {
        auto host = freshHost();
        readDevices(*host, generatedRoot(size));
        return host;
    };
    timeEach(state, prepare, [size](const auto& host) { readCards(*host, generatedRoot(size)); });
}

void loadConnectors(benchmark::State& state, int size)
{
    const auto prepare = [size] {
        auto host = freshHost();
        readDevices(*host, generatedRoot(size));
        readCards(*host, generatedRoot(size));
        return host;
    };
    timeEach(state, prepare, [size](const auto& host) { readConnectors(*host, generatedRoot(size)); });
}

void parse(benchmark::State& state, const QString& folder)
{
    timeEach(
        state, [&folder] { return filesBelow(folder); }, [](const QStringList& files) { parseOnly(files); });
}

template <class Function, class... Arguments>
void add(const std::string& name, Function* function, const Arguments&... arguments)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) { function(state, arguments...); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

void registerLoads()
{
    for (const int size : SIZES) {
        const std::string number = std::to_string(size);
        add("load/cards/" + number, loadCards, size);
        add("parse/cards/" + number, parse, generatedRoot(size) + "/subcards");
        add("load/connectors/" + number, loadConnectors, size);
        add("parse/connectors/" + number, parse, generatedRoot(size) + "/connectors");
    }
}

void useMemory(const QString& what, int size)
{
    const QString root = generatedRoot(size);
    if (what == "files") return;
    if (what == "parse") return parseOnly(filesBelow(root));
    const auto host = freshHost();
    readDevices(*host, root);
    readCards(*host, root);
    readConnectors(*host, root);
}

} // namespace lcdbench
