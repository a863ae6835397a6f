// Queries: each beside the bare copy of its result, on the example configuration.
#include "lcdbench_config.h"
#include "lcdbench_report.h"

#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <benchmark/benchmark.h>

namespace lcdbench {
namespace {

using namespace LCD::MainConfig;

/// A copy of a result as a caller could make it himself.
template <class Record> Record copied(const Record& record) { return record; }
template <class Record> std::shared_ptr<Record> copied(const std::shared_ptr<Record>& record)
{
    return std::make_shared<Record>(*record);
}

template <class Result> bool isEmpty(const Result&) { return false; }
template <class Record> bool isEmpty(const std::shared_ptr<Record>& record) { return record == nullptr; }
template <class Entry> bool isEmpty(const std::vector<Entry>& list) { return list.empty(); }

/// Registers a query and the copy of its result. A query without an answer would measure nothing, and is refused.
template <class Query> void add(const std::string& name, const Query& query)
{
    using Result = decltype(query());
    const Result result = query();
    if (isEmpty(result)) qFatal("the example has no answer to %s", name.c_str());
    benchmark::RegisterBenchmark(("query/" + name).c_str(), [query](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(query());
    });
    benchmark::RegisterBenchmark(("copy/" + name).c_str(), [result](benchmark::State& state) {
        for (auto _ : state) benchmark::DoNotOptimize(copied(result));
    });
}

const kpmhost::Host& exampleHost()
{
    static const auto host = [] {
        auto fresh = freshHost();
        readDevices(*fresh, EXAMPLE_ROOT);
        readCards(*fresh, EXAMPLE_ROOT);
        readConnectors(*fresh, EXAMPLE_ROOT);
        return fresh;
    }();
    return *host;
}

// clang-format off
void registerDeviceQueries(IDeviceConfig* device)
{
    add("device/curDeviceConfigs",            [=] { return device->curDeviceConfigs(); });
    add("device/findDeviceTypeName",          [=] { return device->findDeviceTypeName(); });
    add("device/getBrand",                    [=] { return device->getBrand(); });
    add("device/findSubcardModelId",          [=] { return device->findSubcardModelId(13); });
    add("device/findLayerTypes",              [=] { return device->findLayerTypes(1, 1); });
    add("device/findLayerWindowDefaultRange", [=] { return device->findLayerWindowDefaultRange(2); });
    add("device/screenConfigs",               [=] { return device->screenConfigs(1); });
    add("device/silkConfigs",                 [=] { return device->silkConfigs(); });
    add("device/layerConfigs",                [=] { return device->layerConfigs(2); });
    add("device/presetConfigs",               [=] { return device->presetConfigs(); });
    add("device/ptzsConfigs",                 [=] { return device->ptzsConfigs(); });
    add("device/cleanFeedsConfigs",           [=] { return device->cleanFeedsConfigs(); });
    add("device/tallyConfigs",                [=] { return device->tallyConfigs(); });
    add("device/internalSourceConfigs",       [=] { return device->internalSourceConfigs(); });
    add("device/languageConfigs",             [=] { return device->languageConfigs(); });
    add("device/inputMOSAICConfigs",          [=] { return device->inputMOSAICConfigs(); });
    add("device/layerCutoutConfigs",          [=] { return device->layerCutoutConfigs(2); });
    add("device/quickConfigurationConfigs",   [=] { return device->quickConfigurationConfigs(); });
    add("device/findFramerates",              [=] { return device->findFramerates(1); });
    add("device/recodeSettingConfigs",        [=] { return device->recodeSettingConfigs(); });
    add("device/genlockConfigs",              [=] { return device->genlockConfigs(); });
    add("device/mediaPoolCfg",                [=] { return device->mediaPoolCfg(); });
    add("device/findEffectTypes",             [=] { return device->findEffectTypes(); });
    add("device/screenThreeDConfigs",         [=] { return device->screenThreeDConfigs(1); });
    add("device/effectConfigs",               [=] { return device->effectConfigs(); });
    add("device/genlockScreenConfigs",        [=] { return device->genlockScreenConfigs(1); });
    add("device/getRelativePath",             [=] { return device->getRelativePath(RelativePathType::Media); });
}

void registerCardQueries(ISubcardConfig* cards)
{
    add("cards/subcardConfig",                   [=] { return cards->subcardConfig(); });
    add("cards/findConnector",                   [=] { return cards->findConnector(201, 1); });
    add("cards/findTypesByModelId",              [=] { return cards->findTypesByModelId(201); });
    add("cards/findConnectorLocatedGroup",       [=] { return cards->findConnectorLocatedGroup(201, 1); });
    add("cards/findConnectorByGroupId",          [=] { return cards->findConnectorByGroupId(201, 1); });
    add("cards/findSubcardModeData",             [=] { return cards->findSubcardModeData(201, 1, 1); });
    add("cards/findCardMode",                    [=] { return cards->findCardMode(201); });
    add("cards/findConnectorDeviceModeCapacity", [=] { return cards->findConnectorDeviceModeCapacity(201, 1, 1); });
    add("cards/findTimingDeviceModeResolutionRatios",
                                                 [=] { return cards->findTimingDeviceModeResolutionRatios(201, 1, 1, 1, 1); });
    add("cards/findSupportedCapacity",           [=] { return cards->findSupportedCapacity(201, 1, 1); });
    add("cards/findHPDInfo",                     [=] { return cards->findHPDInfo(301, 1); });
    add("cards/findConnectorGroupByGroupId",     [=] { return cards->findConnectorGroupByGroupId(201, 1); });
}

void registerConnectorQueries(IConnectorConfig* connectors)
{
    add("connectors/findHDCPInfo",                   [=] { return connectors->findHDCPInfo(1); });
    add("connectors/findPlayerInfo",                 [=] { return connectors->findPlayerInfo(1); });
    add("connectors/findHPDInfo",                    [=] { return connectors->findHPDInfo(1); });
    add("connectors/findEDIDInfo",                   [=] { return connectors->findEDIDInfo(1); });
    add("connectors/findDynamicRangeInfo",           [=] { return connectors->findDynamicRangeInfo(1); });
    add("connectors/findColorDepthsInfo",            [=] { return connectors->findColorDepthsInfo(1); });
    add("connectors/findHDRInfo",                    [=] { return connectors->findHDRInfo(1); });
    add("connectors/findResoluCapacityMode",         [=] { return connectors->findResoluCapacityMode(1); });
    add("connectors/findColorSpacesInfo",            [=] { return connectors->findColorSpacesInfo(1); });
    add("connectors/findConnectorResolutionRatios",  [=] { return connectors->findConnectorResolutionRatios(2, 1, 1); });
    add("connectors/findConnectorDefaultResolution", [=] { return connectors->findConnectorDefaultResolution(2, 1, 1); });
    add("connectors/findConnectorTypeName",          [=] { return connectors->findConnectorTypeName(1); });
    add("connectors/findConnectorResolutions",       [=] { return connectors->findConnectorResolutions(2, 1, 1); });
    add("connectors/findConnectorRates",             [=] { return connectors->findConnectorRates(1, 1); });
    add("connectors/findConnectorTiming",            [=] { return connectors->findConnectorTiming(1, 1); });
}
// clang-format on

} // namespace

void registerQueries()
{
    registerDeviceQueries(exampleHost().component<IDeviceConfig>("lcd.deviceconfig"));
    registerCardQueries(exampleHost().component<ISubcardConfig>("lcd.subcardconfig"));
    registerConnectorQueries(exampleHost().component<IConnectorConfig>("lcd.connectorconfig"));
}

} // namespace lcdbench
