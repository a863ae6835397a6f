// A card catalogue that has one card, with connectors of the types that a test names.
#ifndef TESTS_STANDINCARDS_H
#define TESTS_STANDINCARDS_H

#include <lcdmainconfig/isubcardconfig.h>

#include <initializer_list>

class StandInCards final : public LCD::MainConfig::ISubcardConfig {
public:
    /// The card names type 7 beside `types`, but not among its plain connectors. No card at all without types.
    StandInCards(std::initializer_list<int> types)
    {
        using namespace LCD::MainConfig;
        s_Subcard card;
        for (const int type : types) {
            s_SubcardConnector connector{};
            connector.type = type;
            card.connectors.connectors.push_back(connector);
        }
        card.connectors.types.push_back({7, {}, {}, {}, {}, {}});
        if (types.size() != 0) _cards.subcards.push_back(card);
    }
    std::shared_ptr<LCD::MainConfig::s_DCSSubcard> subcardConfig() const override
    {
        return std::make_shared<LCD::MainConfig::s_DCSSubcard>(_cards);
    }

private:
    // clang-format off
    bool readConfig(const QString&, QString&) override { return true; }
    std::shared_ptr<LCD::MainConfig::s_SubcardConnector> findConnector(int, int) const override { return {}; }
    std::vector<LCD::MainConfig::s_ConnectorInTypes> findTypesByModelId(int) const override { return {}; }
    std::shared_ptr<LCD::MainConfig::s_SubcardConnectorGroup> findConnectorLocatedGroup(int, int) const override { return {}; }
    std::vector<LCD::MainConfig::s_SubcardConnector> findConnectorByGroupId(int, int) const override { return {}; }
    LCD::MainConfig::s_SubcardDeviceMode findSubcardModeData(int, int, int) const override { return {}; }
    std::vector<LCD::MainConfig::s_ConnectorInfo> findConnectorCopyData(int, int, int, int) const override { return {}; }
    int findCardMode(int) const override { return -1; }
    int countAuxConnector() const override { return 0; }
    LCD::MainConfig::s_CapacityInConnectorsDeviceModeCapacitys findConnectorDeviceModeCapacity(int, int, int) const override { return {}; }
    std::shared_ptr<LCD::MainConfig::s_ConnectorInConnectorsDeviceModeCapacitysCapacity> findConnectorDeviceModeCapacityConnector(int, int, int, int, int) const override { return {}; }
    int findConnectorDeviceModeCapacityDynamicRangeSupport(int, int, int, int) const override { return 0; }
    int findConnectorInterlacedType(int, int, int, int) const override { return 0; }
    LCD::MainConfig::s_ResolutionRatiosInConnectorsDeviceModeTiming findTimingDeviceModeResolutionRatios(int, int, int, int, int) const override { return {}; }
    std::vector<int> findSupportedCapacity(int, int, int) const override { return {}; }
    std::shared_ptr<LCD::MainConfig::s_HPDIn> findHPDInfo(int, int) const override { return {}; }
    LCD::MainConfig::s_SubcardConnectorGroup findConnectorGroupByGroupId(int, int) const override { return {}; }
    // clang-format on

    LCD::MainConfig::s_DCSSubcard _cards;
};

#endif
