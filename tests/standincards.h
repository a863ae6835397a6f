// A card catalogue that has one card, with connectors of the types that a test names.
#ifndef TESTS_STANDINCARDS_H
#define TESTS_STANDINCARDS_H

#include <lcdmainconfig/isubcardconfig.h>

#include <initializer_list>

namespace standin {

using namespace LCD::MainConfig;

class Cards final : public ISubcardConfig {
public:
    /// The card names type 7 beside `types`, but not among its plain connectors. No card at all without types.
    Cards(std::initializer_list<int> types)
    {
        s_Subcard card;
        for (const int type : types) {
            s_SubcardConnector connector{};
            connector.type = type;
            card.connectors.connectors.push_back(connector);
        }
        card.connectors.types.push_back({7, {}, {}, {}, {}, {}});
        if (types.size() != 0) _cards.subcards.push_back(card);
    }
    std::shared_ptr<s_DCSSubcard> subcardConfig() const override { return std::make_shared<s_DCSSubcard>(_cards); }

private:
    // clang-format off
    bool readConfig(const QString&, QString&) override { return true; }
    std::shared_ptr<s_SubcardConnector> findConnector(int, int) const override { return {}; }
    std::vector<s_ConnectorInTypes> findTypesByModelId(int) const override { return {}; }
    std::shared_ptr<s_SubcardConnectorGroup> findConnectorLocatedGroup(int, int) const override { return {}; }
    std::vector<s_SubcardConnector> findConnectorByGroupId(int, int) const override { return {}; }
    s_SubcardDeviceMode findSubcardModeData(int, int, int) const override { return {}; }
    std::vector<s_ConnectorInfo> findConnectorCopyData(int, int, int, int) const override { return {}; }
    int findCardMode(int) const override { return -1; }
    int countAuxConnector() const override { return 0; }
    s_CapacityInConnectorsDeviceModeCapacitys findConnectorDeviceModeCapacity(int, int, int) const override { return {}; }
    std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity> findConnectorDeviceModeCapacityConnector(int, int, int, int, int) const override { return {}; }
    int findConnectorDeviceModeCapacityDynamicRangeSupport(int, int, int, int) const override { return 0; }
    int findConnectorInterlacedType(int, int, int, int) const override { return 0; }
    s_ResolutionRatiosInConnectorsDeviceModeTiming findTimingDeviceModeResolutionRatios(int, int, int, int, int) const override { return {}; }
    std::vector<int> findSupportedCapacity(int, int, int) const override { return {}; }
    std::shared_ptr<s_HPDIn> findHPDInfo(int, int) const override { return {}; }
    s_SubcardConnectorGroup findConnectorGroupByGroupId(int, int) const override { return {}; }
    // clang-format on

    s_DCSSubcard _cards;
};

} // namespace standin

#endif
