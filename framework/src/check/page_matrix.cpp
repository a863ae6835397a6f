// The matrix of connector types against resolutions: what each type offers in which capacity mode, what it disables,
// and its refresh rates.
#include "page_parts.h"

#include <algorithm>

namespace lcdcheck {
namespace {

constexpr int CAPACITY_MODES = 3;

/// What one connector type offers as one interface type.
struct Column {
    const PageConnectorType* type = nullptr;
    int interface = 0;
    std::set<int> modes; ///< Capacity modes that it knows.
    std::set<PageResolution> offered[CAPACITY_MODES];
    std::set<std::pair<int, int>> disabled[CAPACITY_MODES]; ///< In the mode or in one below it.
};

Column columnOf(Lcd::IConnectorConfig& catalogue, const PageConnectorType& type, int interface)
{
    Column column{&type, interface, {}, {}, {}};
    std::set<std::pair<int, int>> disabled;
    for (int mode = 0; mode < CAPACITY_MODES; ++mode) {
        const auto ratios = catalogue.findConnectorResolutionRatios(mode, type.type, interface);
        if (ratios == nullptr) continue;
        column.modes.insert(mode);
        for (const auto& resolution : ratios->disables) disabled.emplace(resolution.width, resolution.height);
        column.disabled[mode] = disabled;
        for (const auto& resolution : catalogue.findConnectorResolutions(mode, type.type, interface))
            column.offered[mode].insert({resolution.width, resolution.height, resolution.interlaced == 1});
    }
    return column;
}

/// All that any column offers or disables. A disabled size that nobody offers has no scan mode; it counts as
/// progressive.
std::set<PageResolution> rowsOf(const std::vector<Column>& columns)
{
    std::set<PageResolution> rows;
    std::set<std::pair<int, int>> sizes;
    for (const Column& column : columns)
        for (const auto& offered : column.offered)
            for (const PageResolution& resolution : offered) {
                rows.insert(resolution);
                sizes.emplace(resolution.width, resolution.height);
            }
    for (const Column& column : columns)
        for (const auto& disabled : column.disabled)
            for (const auto& [width, height] : disabled)
                if (!sizes.contains({width, height})) rows.insert({width, height, false});
    return rows;
}

void writeCell(Sheet& sheet, const Column& column, const PageResolution& resolution)
{
    const Element cell(sheet.out, "td");
    for (const int mode : column.modes) {
        if (column.offered[mode].contains(resolution))
            sheet.out.leaf("b", {}, QString::number(mode));
        else if (column.disabled[mode].contains({resolution.width, resolution.height}))
            sheet.out.leaf("s", {}, QString::number(mode));
        else
            sheet.out.leaf("i", {}, QString());
    }
}

void writeHead(Sheet& sheet, const std::vector<Column>& columns)
{
    const Element head(sheet.out, "thead");
    {
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "col"}, {"rowspan", 2}}, Words{"Resolution", "分辨率"});
        for (std::size_t at = 0; at < columns.size();) {
            const PageConnectorType* type = columns[at].type;
            const auto same = std::size_t(type->interfaces.size());
            const Element title(sheet.out, "th", {{"scope", "colgroup"}, {"colspan", same}, {"class", "first"}});
            typeLink(sheet, type->type);
            at += same;
        }
    }
    const Element row(sheet.out, "tr");
    for (const Column& column : columns)
        sheet.out.leaf("th",
                       {{"scope", "col"},
                        {"class", column.interface == column.type->interfaces.front() ? QString("first") : QString()}},
                       interfaceWords(column.interface));
}

void writeFoot(Sheet& sheet, const std::vector<Column>& columns)
{
    Lcd::IConnectorConfig& catalogue = *sheet.model.loaded().connectors;
    const Element foot(sheet.out, "tfoot");
    {
        const Element row(sheet.out, "tr");
        sheet.out.leaf("th", {{"scope", "row"}}, Words{"Rates, Hz", "刷新率（Hz）"});
        for (const Column& column : columns) {
            const Lcd::s_PresetRefresh rates = catalogue.findConnectorRates(column.type->type, column.interface);
            QStringList texts;
            for (const int rate : rates.refreshValues) texts.append(scaled(rate, double(rates.coefficient)));
            sheet.out.leaf("td", {}, texts.join(' '));
        }
    }
    const Element row(sheet.out, "tr");
    sheet.out.leaf("th", {{"scope", "row"}}, Words{"Scan modes", "扫描方式"});
    for (const Column& column : columns) {
        const auto timing = catalogue.findConnectorTiming(column.type->type, column.interface);
        QStringList texts;
        for (const int scan : timing.interlacedValues)
            texts.append(scan == 0 ? "p" : scan == 1 ? "i" : QString::number(scan));
        sheet.out.leaf("td", {}, texts.join(' '));
    }
}

} // namespace

void writeMatrix(Sheet& sheet)
{
    std::vector<Column> columns;
    for (const PageConnectorType& type : sheet.model.types())
        for (const int interface : type.interfaces)
            columns.push_back(columnOf(*sheet.model.loaded().connectors, type, interface));
    const std::set<PageResolution> rows = rowsOf(columns);
    if (columns.empty()) return nothing(sheet, {"No connector offers any resolution.", "没有接口提供分辨率。"});

    const QString caption = sheet.newId();
    const Element region(
        sheet.out, "div",
        {{"class", "scroll matrix"}, {"role", "region"}, {"tabindex", 0}, {"aria-labelledby", caption}});
    const Element table(sheet.out, "table");
    sheet.out.leaf("caption", {{"id", caption}},
                   Words{"Digits are the capacity modes in which a resolution is offered; one that the connector "
                         "disables is crossed out; i marks interlaced",
                         "数字为提供该分辨率的带宽模式；划掉的为接口禁用；i 表示隔行"});
    writeHead(sheet, columns);
    {
        const Element body(sheet.out, "tbody");
        for (const PageResolution& resolution : rows) {
            const Element row(sheet.out, "tr",
                              {{"id", resolution.anchor()}, {"data-find", "resolution 分辨率 " + resolution.text()}});
            sheet.out.leaf("th", {{"scope", "row"}}, resolution.text());
            for (const Column& column : columns) writeCell(sheet, column, resolution);
        }
    }
    writeFoot(sheet, columns);
}

} // namespace lcdcheck
