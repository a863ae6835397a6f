// The connector types: what each offers as each interface type, its timing, colour, copy protection, EDID and hot plug.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr std::size_t UNFOLDED = 4; ///< More types than these are shown folded.
constexpr int CAPACITY_MODES = 3;

QString hertz(const Lcd::s_ResolutionRatio& resolution)
{
    return scaled(resolution.refreshRate.value, double(resolution.coefficient));
}

QString disabledOf(const Lcd::s_ResolutionRatios& ratios)
{
    QStringList texts;
    for (const auto& resolution : ratios.disables)
        texts.append(lcdcommon::sizeText(resolution.width, resolution.height));
    return texts.join(", ");
}

void writeModes(Sheet& sheet, const PageConnectorType& type)
{
    Lcd::IConnectorConfig& catalogue = *sheet.model.loaded().connectors;
    const TableSheet table(sheet, {"Capacity modes", "带宽模式"},
                           {{"Mode", "模式"},
                            {"Interface", "接口类型"},
                            {"Starts with", "默认"},
                            {"Width", "宽"},
                            {"Height", "高"},
                            {"Rate, Hz", "刷新率（Hz）"},
                            {"Disabled", "禁用"}});
    for (const int interface : type.interfaces)
        for (int mode = 0; mode < CAPACITY_MODES; ++mode) {
            const auto start = catalogue.findConnectorDefaultResolution(mode, type.type, interface);
            const auto ratios = catalogue.findConnectorResolutionRatios(mode, type.type, interface);
            if (start == nullptr || ratios == nullptr) continue;
            const Element row(sheet.out, "tr");
            sheet.out.leaf("th", {{"scope", "row"}}, QString::number(mode));
            sheet.out.leaf("td", {}, interfaceWords(interface));
            sheet.out.leaf("td", {},
                           lcdcommon::sizeText(start->width.value, start->height.value) + " @ " + hertz(*start));
            sheet.out.leaf("td", {}, range(start->width.min, start->width.max));
            sheet.out.leaf("td", {}, range(start->height.min, start->height.max));
            sheet.out.leaf("td", {},
                           scaled(start->refreshRate.min, double(start->coefficient)) + " – " +
                               scaled(start->refreshRate.max, double(start->coefficient)));
            sheet.out.leaf("td", {}, disabledOf(*ratios));
        }
}

/// The entry of one interface type; null when there is none.
template <class Record> auto entryOf(const std::shared_ptr<Record>& record, int interface)
{
    const auto* none = static_cast<decltype(record->interfaces.data())>(nullptr);
    if (record == nullptr) return none;
    const auto found = std::ranges::find(record->interfaces, interface, [](const auto& entry) { return entry.type; });
    return found == record->interfaces.end() ? none : &*found;
}

QString valueList(const Lcd::s_ConnectorValueList& list) { return enumValues(list.enums); }

QString namesOf(const Lcd::s_ConnectorValueList& list, const QStringList& names)
{
    QStringList texts;
    for (const Lcd::ConnectorEnumValue& entry : list.enums)
        texts.append(names.value(entry.value).isEmpty()
                         ? QString::number(entry.value)
                         : QString("%1 %2").arg(entry.value).arg(names.value(entry.value)));
    return texts.join(", ");
}

void writeSignal(Sheet& sheet, const PageConnectorType& type)
{
    Lcd::IConnectorConfig& catalogue = *sheet.model.loaded().connectors;
    const auto hdcp = catalogue.findHDCPInfo(type.type);
    const auto depths = catalogue.findColorDepthsInfo(type.type);
    const auto spaces = catalogue.findColorSpacesInfo(type.type);
    TableSheet table(sheet, {"Signal", "信号"},
                     {{"Interface", "接口类型"},
                      {"Bits per colour", "每色位数"},
                      {"Colour space", "色彩空间"},
                      {"HDCP", "HDCP"},
                      {"Pixel clock, kHz", "像素时钟（kHz）"}});
    for (const int interface : type.interfaces) {
        const auto* itsHdcp = entryOf(hdcp, interface);
        const auto* itsDepths = entryOf(depths, interface);
        const auto* itsSpaces = entryOf(spaces, interface);
        const auto clock = catalogue.findConnectorTiming(type.type, interface).bandWidth;
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "row"}}, interfaceWords(interface));
        sheet.out.leaf("td", {}, itsDepths == nullptr ? "–" : valueList(itsDepths->colorDepth));
        sheet.out.leaf("td", {},
                       itsSpaces == nullptr
                           ? "–"
                           : namesOf(itsSpaces->colorSpace, {"RGB", "YCbCr 4:4:4", "YCbCr 4:2:2", "YCbCr 4:2:0"}));
        sheet.out.leaf("td", {},
                       itsHdcp == nullptr || hdcp->support == 0 ? "–"
                                                                : namesOf(itsHdcp->hdcpType, {"HDCP 1.4", "HDCP 2.2"}));
        sheet.out.leaf("td", {}, clock.max == 0 ? "–" : range(clock.min, clock.max));
    }
}

void writeFacts(Sheet& sheet, const PageConnectorType& type)
{
    Lcd::IConnectorConfig& catalogue = *sheet.model.loaded().connectors;
    Facts facts(sheet);
    facts.add({"Used by cards", "使用的板卡"}, [&] {
        listOf(sheet, type.cards, [&sheet](int card) { cardLink(sheet, std::uint64_t(std::int64_t(card))); });
    });
    const auto edid = catalogue.findEDIDInfo(type.type);
    const Words editable{"yes, can be changed", "有，可修改"};
    facts.add({"EDID", "EDID"}, edid->support != 0 && edid->editable > 0 ? editable : yesNo(edid->support != 0));
    const auto hpd = catalogue.findHPDInfo(type.type);
    if (hpd != nullptr && hpd->support != 0)
        facts.add({"Hot-plug pulse (limits / step)", "热插拔脉冲（范围/步进）"},
                  QString("%1 (%2 / %3)").arg(hpd->value).arg(range(hpd->min, hpd->max)).arg(hpd->step));
    else
        facts.add({"Hot-plug pulse", "热插拔脉冲"}, yesNo(false));
    const auto dynamicRange = catalogue.findDynamicRangeInfo(type.type);
    facts.add({"High dynamic range", "高动态范围"}, yesNo(dynamicRange != nullptr && dynamicRange->support != 0));
    const auto player = catalogue.findPlayerInfo(type.type);
    facts.add({"Player", "播放器"}, yesNo(player != nullptr && player->support != 0));
}

std::set<PageResolution> offeredBy(Sheet& sheet, const PageConnectorType& type, int interface)
{
    std::set<PageResolution> offered;
    for (const auto& resolution :
         sheet.model.loaded().connectors->findConnectorResolutions(CAPACITY_MODES - 1, type.type, interface))
        offered.insert({resolution.width, resolution.height, resolution.interlaced == 1});
    return offered;
}

/// What the interface types offer in the highest mode, leading to the rows of the matrix; those that offer the same
/// share a line.
void writeOffers(Sheet& sheet, const PageConnectorType& type)
{
    std::map<std::set<PageResolution>, int> offers;
    for (const int interface : type.interfaces) offers[offeredBy(sheet, type, interface)] |= interface;
    for (const auto& [offered, interfaces] : offers) {
        const Words names = interfaceWords(interfaces);
        const Element line(sheet.out, "div", {{"class", "offers"}});
        sheet.out.leaf("strong", {}, Words{"Offers as " + names.english + ':', "作为" + names.chinese + "提供："});
        sheet.out.text(QStringLiteral(" "));
        if (offered.empty()) sheet.out.words({"nothing", "无"});
        listOf(sheet, offered,
               [&sheet](const PageResolution& resolution) { link(sheet, resolution.anchor(), resolution.text()); });
    }
}

TimingNumber numberOf(const Lcd::s_PresetHorizontal::s_TimingItem& item) { return {item.value, item.min, item.max}; }

TimingDirection directionOf(const Lcd::s_PresetHorizontal& from)
{
    return {numberOf(from.addTime), numberOf(from.frontPorch), numberOf(from.sync), numberOf(from.totalTime)};
}

QString keyOf(const TimingDirection& direction)
{
    QString key;
    for (const TimingNumber& number : {direction.active, direction.frontPorch, direction.sync, direction.total})
        key += QString("%1 %2 %3 ").arg(number.value).arg(number.min).arg(number.max);
    return key;
}

/// The preset timing of each interface type; types with the same one share a drawing.
void writeTimings(Sheet& sheet, const PageConnectorType& type)
{
    std::vector<std::pair<Lcd::s_PreSetTimingInterface, int>> different;
    std::map<QString, std::size_t> known;
    for (const int interface : type.interfaces) {
        const auto timing = sheet.model.loaded().connectors->findConnectorTiming(type.type, interface);
        if (timing.type == 0) continue;
        const QString key = keyOf(directionOf(timing.horizontal)) + keyOf(directionOf(timing.vertical));
        const auto [found, isNew] = known.try_emplace(key, different.size());
        if (isNew) different.emplace_back(timing, 0);
        different[found->second].second |= interface;
    }
    const Element figures(sheet.out, "div", {{"class", "figures"}});
    for (const auto& [timing, interfaces] : different) {
        const Words names = interfaceWords(interfaces);
        writeTimingLimits(sheet, directionOf(timing.horizontal), directionOf(timing.vertical),
                          {"Preset timing, " + names.english, "预设时序，" + names.chinese});
    }
}

} // namespace

void writeConnectorType(Sheet& sheet, const PageConnectorType& type)
{
    const Element block(
        sheet.out, "details",
        {{"class", "item"},
         {"id", type.anchor},
         {"open", sheet.model.types().size() <= UNFOLDED ? QString("") : QString()},
         {"data-find", QString("type %1 类型 ").arg(type.type) + type.name.english + ' ' + type.name.chinese}});
    {
        const Element summary(sheet.out, "summary");
        sheet.out.leaf("span", {{"class", "id"}}, QString::number(type.type));
        if (type.known)
            sheet.out.leaf("h3", {}, type.name);
        else
            sheet.out.leaf("h3", {{"class", "missing"}}, Words{"No such connector type", "没有此接口类型"});
        badge(sheet, type.anchor);
    }
    if (!type.known) {
        nothing(sheet, {"Cards have connectors of this type, but no file tells of it.",
                        "板卡有此类型的接口，但没有文件描述它。"});
        return listOf(sheet, type.cards, [&sheet](int card) { cardLink(sheet, std::uint64_t(std::int64_t(card))); });
    }
    writeFacts(sheet, type);
    writeOffers(sheet, type);
    writeModes(sheet, type);
    writeSignal(sheet, type);
    writeTimings(sheet, type);
}

void writeConnectors(Sheet& sheet)
{
    const Element part(sheet.out, "section", {{"id", "connectors"}, {"aria-labelledby", "connectors-title"}});
    heading(sheet, "connectors", {"Connectors", "接口"},
            {"What each connector type offers. The panel shows the names of types in Chinese whatever its language.",
             "每种接口类型提供的内容。接口类型名称始终为中文。"});
    if (sheet.model.types().empty()) return nothing(sheet, {"No card has a connector.", "没有板卡带接口。"});
    writeMatrix(sheet);
    for (const PageConnectorType& type : sheet.model.types()) writeConnectorType(sheet, type);
}

} // namespace lcdcheck
