// The command that walks the road of one request: which resolutions, rates and timing does this connector offer?
#include "lcdhost_commands.h"

namespace lcdhost {
namespace {

/// The request with all its answers.
struct Offer {
    Lcd::s_SubcardConnector connector;
    int mask = 0;
    QString typeName;
    std::vector<Lcd::s_resolutionResolutionRatio> resolutions;
    std::shared_ptr<Lcd::s_ResolutionRatio> defaultResolution;
    Lcd::s_PresetRefresh rates;
    Lcd::s_PreSetTimingInterface timing;
    QStringList notes; ///< What the library logged on the way.

    /// A timing that was found has the type that the mask hit; rates and timing are found together.
    [[nodiscard]] bool hasTiming() const { return timing.type != 0; }
};

Offer ask(const Session& session, const Lcd::s_SubcardConnector& connector, const Options& options)
{
    Offer offer;
    offer.connector = connector;
    offer.mask = options.interfaceMask.value_or(connector.interfaceType);
    const int type = connector.type;
    Lcd::IConnectorConfig& connectors = session.connectors();
    Session::takeWarnings();
    offer.typeName = session.connectorName(type);
    offer.resolutions = connectors.findConnectorResolutions(connector.capacityMode, type, offer.mask);
    offer.defaultResolution = connectors.findConnectorDefaultResolution(connector.capacityMode, type, offer.mask);
    offer.rates = connectors.findConnectorRates(type, offer.mask);
    offer.timing = connectors.findConnectorTiming(type, offer.mask);
    offer.notes = Session::takeWarnings();
    return offer;
}

/// A stored number in the unit that is shown; a scale of 0 is no scale.
QString scaled(int value, float coefficient)
{
    return coefficient == 0.0F ? number(value) : QString::number(value * double(coefficient), 'g', 6);
}

QString joined(const std::vector<int>& values)
{
    return listed(values, [](int value) { return number(value); });
}

void tellRequest(const Options& options, const QString& cardName, const Offer& offer, Page& page)
{
    page.heading(QString("Card %1, position %2").arg(options.card).arg(options.position));
    Table facts({words(), words()});
    facts.add({"Card", cardName});
    facts.add({"Connector type", QString("%1  %2").arg(offer.connector.type).arg(offer.typeName)});
    facts.add({"Capacity mode", number(offer.connector.capacityMode)});
    facts.add({"Interface mask", number(offer.mask)});
    facts.print(page);
}

void tellResolutions(const Offer& offer, Page& page)
{
    page.heading(QString("Resolutions (%1)").arg(offer.resolutions.size()));
    Table table({numbers("Width"), numbers("Height"), numbers("Interlaced")});
    for (const auto& resolution : offer.resolutions)
        table.add({number(resolution.width), number(resolution.height), number(resolution.interlaced)});
    table.print(page, "none");

    page.heading("Default resolution");
    Table standard({numbers("Width"), numbers("Height"), numbers("Refresh rate")});
    if (offer.defaultResolution) {
        const Lcd::s_ResolutionRatio& ratio = *offer.defaultResolution;
        standard.add({number(ratio.width.value), number(ratio.height.value),
                      scaled(ratio.refreshRate.value, ratio.coefficient)});
    }
    standard.print(page, "none");
}

void tellRates(const Offer& offer, Page& page)
{
    page.heading("Refresh rates");
    Table table({numbers("Rate"), numbers("Stored"), words()});
    for (const int rate : offer.rates.refreshValues)
        table.add({scaled(rate, offer.rates.coefficient), number(rate),
                   rate == offer.rates.refresh.value ? "default" : QString()});
    table.print(page, "none");
}

void tellTiming(const Lcd::s_PreSetTimingInterface& timing, Page& page)
{
    Table table({words("Direction"), words("Part"), numbers("Min"), numbers("Max"), numbers("Value")});
    const std::pair<const char*, const Lcd::s_PresetHorizontal*> directions[] = {{"horizontal", &timing.horizontal},
                                                                                 {"vertical", &timing.vertical}};
    for (const auto& [name, direction] : directions) {
        QString label = name;
        const auto add = [&](const char* part, const Lcd::s_PresetHorizontal::s_TimingItem& item,
                             const QString& value = {}) {
            table.add({std::exchange(label, {}), part, number(item.min), number(item.max), value});
        };
        add("active", direction->addTime, number(direction->addTime.value));
        add("front porch", direction->frontPorch);
        add("sync", direction->sync);
        add("total", direction->totalTime);
    }
    table.print(page);
    page.line();
    Table facts({words(), words()});
    facts.add({"Bandwidth", QString("%1 to %2").arg(timing.bandWidth.min).arg(timing.bandWidth.max)});
    facts.add({"Interlaced", joined(timing.interlacedValues)});
    facts.add({"Horizontal sync polarity", joined(timing.horizontal.syncPolarityValues)});
    facts.add({"Vertical sync polarity", joined(timing.vertical.syncPolarityValues)});
    facts.print(page);
}

QJsonObject object(const Lcd::s_PresetHorizontal& direction)
{
    const auto limits = [](const Lcd::s_PresetHorizontal::s_TimingItem& item) {
        return QJsonObject{{"min", item.min}, {"max", item.max}};
    };
    QJsonObject active = limits(direction.addTime);
    active["value"] = direction.addTime.value;
    return {{"active", active},
            {"frontPorch", limits(direction.frontPorch)},
            {"sync", limits(direction.sync)},
            {"total", limits(direction.totalTime)},
            {"syncPolarity", jsonArray(direction.syncPolarityValues)}};
}

QJsonValue defaultResolution(const Offer& offer)
{
    if (!offer.defaultResolution) return QJsonValue::Null;
    const Lcd::s_ResolutionRatio& ratio = *offer.defaultResolution;
    return QJsonObject{{"width", ratio.width.value},
                       {"height", ratio.height.value},
                       {"refreshRate", ratio.refreshRate.value},
                       {"coefficient", decimal(ratio.coefficient)}};
}

QJsonValue rates(const Offer& offer)
{
    if (!offer.hasTiming()) return QJsonValue::Null;
    return QJsonObject{{"default", offer.rates.refresh.value},
                       {"coefficient", decimal(offer.rates.coefficient)},
                       {"values", jsonArray(offer.rates.refreshValues)}};
}

QJsonValue timing(const Offer& offer)
{
    if (!offer.hasTiming()) return QJsonValue::Null;
    const Lcd::s_PreSetTimingInterface& found = offer.timing;
    return QJsonObject{{"interfaceType", found.type},
                       {"interlaced", jsonArray(found.interlacedValues)},
                       {"bandwidth", QJsonObject{{"min", found.bandWidth.min}, {"max", found.bandWidth.max}}},
                       {"horizontal", object(found.horizontal)},
                       {"vertical", object(found.vertical)}};
}

QJsonObject json(const Options& options, const Offer& offer)
{
    const auto resolution = [](const Lcd::s_resolutionResolutionRatio& ratio) {
        return QJsonObject{{"width", ratio.width}, {"height", ratio.height}, {"interlaced", ratio.interlaced}};
    };
    return {{"card", options.card},
            {"position", options.position},
            {"connectorType", offer.connector.type},
            {"connectorTypeName", offer.typeName},
            {"capacityMode", offer.connector.capacityMode},
            {"interfaceMask", offer.mask},
            {"resolutions", jsonArray(offer.resolutions, resolution)},
            {"defaultResolution", defaultResolution(offer)},
            {"refreshRates", rates(offer)},
            {"timing", timing(offer)},
            {"notes", QJsonArray::fromStringList(offer.notes)}};
}

void tell(const Offer& offer, Page& page)
{
    tellResolutions(offer, page);
    tellRates(offer, page);
    page.heading("Preset timing");
    if (offer.hasTiming())
        tellTiming(offer.timing, page);
    else
        page.line("  none", Style::Faint);
    if (!offer.notes.isEmpty()) page.heading("Notes");
    for (const QString& note : offer.notes) page.line("  " + note);
}

} // namespace

Answer runResolutions(Session& session, const Options& options)
{
    for (const Catalogue needed : {Catalogue::Devices, Catalogue::Cards, Catalogue::Connectors}) session.load(needed);
    Answer answer;
    const auto connector = session.cards().findConnector(options.card, options.position);
    if (!connector) {
        answer.error = QString("No card %1 in the catalogue has a connector at position %2.")
                           .arg(options.card)
                           .arg(options.position);
        return answer;
    }
    const Offer offer = ask(session, *connector, options);
    const QString cardName = session.cardName(std::uint64_t(options.card));
    answer.json = json(options, offer);
    answer.show([options, cardName, offer](Page& page) {
        tellRequest(options, cardName, offer, page);
        tell(offer, page);
    });
    return answer;
}

} // namespace lcdhost
