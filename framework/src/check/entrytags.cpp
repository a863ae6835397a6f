#include "entrytags.h"

namespace lcdcheck {

namespace {

struct Custom {
    const char* list; ///< The end of the list's path.
    const char* tags;
};

// clang-format off
constexpr Custom CUSTOMS[] = {
    {"CapacityCalculate",                            "Capacity"},
    {"CapacityGroups",                               "Capacity"},
    {"CapacityGroups/Capacity/DeviceModes/DeviceMode", "Connector"},
    {"Capacitys/Capacity",                           "Connector"},
    {"ConnectorGroup",                               "Connector"},
    {"ConnectorGroups/Capacity",                     "ConnectorGroup"},
    {"Device/File",                                  "Picture Logo"},
    {"HPDs",                                         "Interface"},
    {"LcdKeys",                                      "Key Knob TBar Joystick"},
    {"MainRelated",                                  "Capacity"},
    {"MainRelated/Capacity",                         "DeviceMode"},
    {"MainRelated/Capacity/DeviceMode",              "ConnectorGroup"},
    {"Menu",                                         "Menu"},
    {"MenuBar",                                      "Menu"},
    {"MosaicTemplates",                              "SubSourceType"},
    {"Sequence",                                     "Function"},
    {"SubSourceType",                                "Template"},
    {"Subcards",                                     "Card"},
    {"Template",                                     "Rectangle"},
    {"TemplateResource",                             "Resource"},
    {"Timing",                                       "Connector"},
    {"Timing/Connector",                             "Interface"},
    {"Timing/Connector/Interface",                   "CapacityMode"},
};
// clang-format on

} // namespace

QStringList likelyEntryTags(const QString& listPath)
{
    const Custom* longest = nullptr;
    for (const Custom& custom : CUSTOMS)
        if (listPath.endsWith(QString("/") + custom.list) &&
            (longest == nullptr || qstrlen(custom.list) > qstrlen(longest->list)))
            longest = &custom;
    if (longest != nullptr) return QString(longest->tags).split(' ');
    return {listPath.endsWith('s') ? listPath.section('/', -1).chopped(1) : QStringLiteral("Entry")};
}

} // namespace lcdcheck
