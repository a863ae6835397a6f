// What connectors offer: resolutions that they disable or start with and nobody offers, and connectors that offer none.
#include "rules.h"

#include <lcdmainconfig/connector.h>
#include <lcdmainconfig/subcard.h>

#include <algorithm>
#include <map>

namespace lcdcheck {

using namespace LCD::MainConfig;

namespace {

// clang-format off
const Field STANDARD_MODE  = fieldOf<s_ResoluCapacityMode>(&s_ResoluCapacityMode::value);
const Field WIDTH          = fieldOf<s_resolutionResolutionRatio>(&s_resolutionResolutionRatio::width);
const Field HEIGHT         = fieldOf<s_resolutionResolutionRatio>(&s_resolutionResolutionRatio::height);
const Field CONNECTOR_MODE = fieldOf<s_CapacityModeInInterface>(&s_CapacityModeInInterface::value);
const Field DEFAULT_WIDTH  = fieldOf<s_ResolutionRatio>(&s_ResolutionRatio::width, &s_RangeValue::value);
const Field DEFAULT_HEIGHT = fieldOf<s_ResolutionRatio>(&s_ResolutionRatio::height, &s_RangeValue::value);
const Field INTERFACE      = fieldOf<s_Interface>(&s_Interface::type);
const Field CONNECTOR      = fieldOf<s_ConnectorCfg>(&s_ConnectorCfg::type);
const Field CARD_TYPE      = fieldOf<s_SubcardConnector>(&s_SubcardConnector::type);
const Field CARD_MASK      = fieldOf<s_SubcardConnector>(&s_SubcardConnector::interfaceType);
const Field CARD_MODE      = fieldOf<s_SubcardConnector>(&s_SubcardConnector::capacityMode);
const Field GROUP          = fieldOf<s_SubcardConnectorGroup>(&s_SubcardConnectorGroup::value);
// clang-format on

using Size = std::pair<qlonglong, qlonglong>;

class Resolutions {
public:
    Resolutions(const Collected& collected, Findings& findings)
        : _collected(collected), _findings(findings), _judge(collected, findings)
    {}

    void gather();
    void judgeDisabled();
    void judgeDefaults();
    void judgeOffers(const Loaded& loaded);

private:
    [[nodiscard]] const Value* on(const Value& value, const Field& field) const;
    void judge(const Value& width, const Value& height, const QString& what);
    [[nodiscard]] bool isTold(const Value& value) const;

    const Collected& _collected;
    const Findings& _findings;
    Judge _judge;
    std::map<Size, qlonglong> _offered; ///< The lowest capacity mode that offers a size.
    bool _certain = true;               ///< Every standard resolution is known.
};

const Value* Resolutions::on(const Value& value, const Field& field) const
{
    const Value* const found = _collected.above(value, field);
    return found != nullptr && found->element == value.element && found->good ? found : nullptr;
}

void Resolutions::gather()
{
    for (const Value& width : _collected.all(WIDTH)) {
        const Value* const mode = _collected.above(width, STANDARD_MODE);
        if (mode == nullptr) continue;
        const Value* const height = on(width, HEIGHT);
        _certain = _certain && width.good && mode->good && height != nullptr && _collected.fileOf(width).whole;
        if (!width.good || height == nullptr) continue;
        const auto [known, added] = _offered.insert({{width.number(), height->number()}, mode->number()});
        if (!added) known->second = std::min(known->second, mode->number());
    }
    _certain = _certain && !_offered.empty();
}

/// Whether something is said about a value already.
bool Resolutions::isTold(const Value& value) const
{
    return std::any_of(_findings.begin(), _findings.end(), [&](const Finding& finding) {
        return finding.file == _collected.fileOf(value).path && finding.place.line == value.place.line &&
               finding.place.column == value.place.column;
    });
}

void Resolutions::judge(const Value& width, const Value& height, const QString& what)
{
    const Value* const mode = _collected.above(width, CONNECTOR_MODE);
    if (!_certain || mode == nullptr || !mode->good || isTold(width) || isTold(height)) return;
    const auto known = _offered.find({width.number(), height.number()});
    const QString size = QString("%1x%2").arg(width.number()).arg(height.number());
    if (known == _offered.end())
        _judge.about("missing-resolution", width, QString("%1 is %2, but no capacity mode offers it").arg(size, what));
    else if (known->second > mode->number())
        _judge.about(
            "missing-resolution", width,
            QString("%1 is %2, but only from capacity mode %3 on it is offered").arg(size, what).arg(known->second));
}

void Resolutions::judgeDisabled()
{
    for (const Value& width : _collected.all(WIDTH)) {
        if (_collected.above(width, STANDARD_MODE) != nullptr) continue;
        const Value* const height = on(width, HEIGHT);
        if (width.good && height != nullptr) judge(width, *height, "disabled here");
    }
}

/// Width and height of a default stand on two elements beside each other.
void Resolutions::judgeDefaults()
{
    const std::vector<Value>& heights = _collected.all(DEFAULT_HEIGHT);
    for (const Value& width : _collected.all(DEFAULT_WIDTH)) {
        const int parent = _collected.fileOf(width).parents[std::size_t(width.element)];
        for (const Value& height : heights)
            if (height.file == width.file && _collected.fileOf(height).parents[std::size_t(height.element)] == parent &&
                width.good && height.good && width.present && height.present)
                judge(width, height, "the default here");
    }
}

void Resolutions::judgeOffers(const Loaded& loaded)
{
    std::set<qlonglong> types;
    std::set<int> uncertain;
    for (const Value& interface : _collected.all(INTERFACE))
        if (!interface.good) uncertain.insert(interface.file);
    for (const Value& type : _collected.all(CONNECTOR))
        if (type.good && uncertain.count(type.file) == 0) types.insert(type.number());
    std::set<std::tuple<qlonglong, qlonglong, qlonglong>> told;
    for (const Value& type : _collected.all(CARD_TYPE)) {
        const Value* const mask = on(type, CARD_MASK);
        const Value* const mode = on(type, CARD_MODE);
        if (!type.good || mask == nullptr || mode == nullptr || types.count(type.number()) == 0 || !_certain) continue;
        // What was not loaded can't be asked.
        if (_collected.above(type, GROUP) != nullptr || !loaded.connectors->findEDIDInfo(int(type.number()))) continue;
        const auto offered =
            loaded.connectors->findConnectorResolutions(int(mode->number()), int(type.number()), int(mask->number()));
        if (!offered.empty() || !told.insert({type.number(), mask->number(), mode->number()}).second) continue;
        _judge.about("no-resolution", type,
                     QString("connector type %1 offers no resolution for interface %2 in capacity mode %3")
                         .arg(type.number())
                         .arg(mask->number())
                         .arg(mode->number()));
    }
}

} // namespace

std::set<Field> fieldsOfResolutions()
{
    return {STANDARD_MODE, WIDTH,     HEIGHT,    CONNECTOR_MODE, DEFAULT_WIDTH, DEFAULT_HEIGHT,
            INTERFACE,     CONNECTOR, CARD_TYPE, CARD_MASK,      CARD_MODE,     GROUP};
}

void judgeResolutions(const Collected& collected, const Loaded& loaded, Findings& findings)
{
    Resolutions resolutions(collected, findings);
    resolutions.gather();
    resolutions.judgeDisabled();
    resolutions.judgeDefaults();
    resolutions.judgeOffers(loaded);
}

} // namespace lcdcheck
