// The loader of the connector directory: which files are read, what a bad one costs, and the frame of one connector.
#include "connectorconfig_impl.h"
#include "connectorconfig_readers.h"
#include "lookup.h"
#include "reading/directory.h"
#include "reading/document.h"

#include <lcdmainconfig/isubcardconfig.h>

#include <QDebug>

#include <set>

namespace LCD::MainConfigImpl {

using namespace connectorreading;

namespace {

/// The connector types of the cards. Groups, device modes and types lists of a card don't count.
std::set<int> usedTypes(const s_DCSSubcard& cards)
{
    std::set<int> types;
    for (const s_Subcard& card : cards.subcards)
        for (const s_SubcardConnector& connector : card.connectors.connectors) types.insert(connector.type);
    return types;
}

/// Whether a file is wanted, by its name alone. A name that is no number counts as type 0.
bool isWanted(const QString& baseName, const std::set<int>& types)
{
    int type = 0;
    convert(baseName, type);
    return baseName == QLatin1String("resolutionratio") || types.contains(type);
}

// clang-format off
/// One connector. It is dropped when a row fails; the player and the hot-plug detection alone may be missing.
void readConnector(const Reader& in, s_ConnectorCfg& connector)
{
    in.read(connector, Type, cell("Icon", &s_ConnectorCfg::icon));
    in.element("Name",          OnNull::Fail,       connector.name,          languages);
    in.element("ShortName",     OnNull::Fail,       connector.shortName,     languages);
    in.element("SignalType",    OnNull::Fail,       connector.signalType,    entry("Value"));
    in.element("CapacityMode",  OnNull::Fail,       connector,               readCapacityMode);
    in.element("HDCP",          OnNull::FailAndLog, connector.hdcp,          readHDCP);
    in.element("General",       OnNull::FailAndLog, connector.general,       readGeneral);
    in.element("PresetTiming",  OnNull::FailAndLog, connector,               readPresetTiming);
    in.element("ColorDepths",   OnNull::FailAndLog, connector.colorDepths,   readColorDepths);
    in.element("ColorSpaces",   OnNull::FailAndLog, connector.colorSpaces,   readColorSpaces);
    in.element("ColorRanges",   OnNull::FailAndLog, connector.colorRanges,   readColorRanges);
    in.element("FormatMapping", OnNull::FailAndLog, connector.formatMapping, valueList);
    in.element("DynamicRange",  OnNull::FailAndLog, connector.dynamicRange,  flags);
    in.staged ("Player",        OnNull::NoteAndLog, connector.player,        readPlayer);
    in.element("ImageQuality",  OnNull::Fail,       connector.imageQuality,  readImageQuality);
    in.element("Crop",          OnNull::Fail,       connector.crop,          readCrop);
    in.element("TimingSelect",  OnNull::Fail,       connector.timingSelect,  readTimingSelect);
    in.element("EDID",          OnNull::Fail,       connector.edid,          flags);
    in.element("HPDs",          OnNull::NoteAndLog, connector.hpds,          readHPDs);
}
// clang-format on

/// The first child `tag` of `parent` into `out`.
template <class Shape>
bool readChild(const QDomElement& parent, const QLatin1String& tag, QString& error, s_RangeValue& out,
               const Shape& shape)
{
    const auto child = [&](const Reader& in, s_RangeValue& range) {
        if (const auto element = in.find(QString(tag), OnNull::Fail)) element->read(range, shape);
    };
    return readElement(parent, Report{error}, out, child);
}

} // namespace

bool ConnectorConfig::Impl::readConfig(const QString& path, QString& error)
{
    const auto cards = lookUp<ISubcardConfig>(MainConfig::constants::OBJ_SUBCARDCONFIG_NAME).subcardConfig();
    if (cards->subcards.empty()) {
        // It is the cards that are missing; the wording is meant.
        qWarning().noquote() << "device is empty";
        return false;
    }
    const std::set<int> types = usedTypes(*cards);
    QDir directory;
    if (!useDirectory(path, error, directory)) return false;
    for (const QFileInfo& file : xmlEntries(directory))
        if (isWanted(file.baseName(), types) && !readFile(file.filePath(), error)) return false;
    return true;
}

bool ConnectorConfig::Impl::readFile(const QString& filePath, QString& error)
{
    const Report report{error};
    QDomDocument document;
    if (!openDocument(filePath, DEVICE_FRAME, report, document)) return false;
    // The tag of the first element alone tells what a file holds, not the file's name.
    bool failed = false;
    const auto content = Reader(document.documentElement(), report, failed).firstChild();
    if (!content) return true;
    if (content->is("ResolutionRatios")) {
        if (readConfigResolution(content->element(), resolutions)) return true;
        error = QStringLiteral("Resolution file parsed error.");
        return false;
    }
    if (content->is("Connectors")) {
        s_DCSConnector file;
        content->each(Walk::Any, "Connector", [&](const Reader& in) {
            s_ConnectorCfg connector;
            if (readConfigConnector(in.element(), error, connector)) file.configs.push_back(std::move(connector));
        });
        connectors.push_back(std::move(file));
    }
    return true;
}

bool ConnectorConfig::Impl::readConfigConnector(const QDomElement& element, QString& error, s_ConnectorCfg& out) const
{
    return readElement(element, Report{error}, out, readConnector);
}

bool ConnectorConfig::Impl::readConfigResolution(const QDomElement& element, s_DCSResolution& out) const
{
    if (element.isNull()) return false;
    QString unused;
    s_DCSResolution standard;
    readElement(element, Report{unused}, standard, readStandardResolutions);
    out = std::move(standard);
    return true;
}

bool ConnectorConfig::Impl::getAttribute(s_RangeValue& out, const QDomElement& parent, const QLatin1String& tag,
                                         QString& error) const
{
    return readChild(parent, tag, error, out, range);
}

bool ConnectorConfig::Impl::getRGB(s_RangeValue& out, const QDomElement& parent, const QLatin1String& tag,
                                   QString& error) const
{
    return readChild(parent, tag, error, out, colour);
}

} // namespace LCD::MainConfigImpl
