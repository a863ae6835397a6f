// What a feature file fills, element by element. A test changes one element of a file in which no element has an
// attribute, and looks at the rows.
#ifndef TESTS_FEATURE_H
#define TESTS_FEATURE_H

#include "lcdmainconfig/feature.h"

#include <QDomDocument>
#include <QStringList>
#include <QVector>

// Records as short texts: support and editable, value and data type, min..max /step, [list]. The functions stand where
// the records do, so that lists find them.
namespace LCD::MainConfig {

inline QString show(int number) { return QString::number(number); }
inline QString show(double number) { return QString::number(number); }
inline QString show(const std::string& text) { return "'" + QString::fromStdString(text) + "'"; }

template <class Entry> QString show(const std::vector<Entry>& entries)
{
    QStringList texts;
    for (const Entry& entry : entries) texts << show(entry);
    return "[" + texts.join("; ") + "]";
}

template <class A, class B, class... Rest> QString show(const A& first, const B& second, const Rest&... rest)
{
    return show(first) + " " + show(second, rest...);
}

inline QString show(const s_SupportInfo& r)
{
    return show(r.support, r.editable) + (r.attrMode == 2 ? QString() : " mode " + show(r.attrMode));
}

// clang-format off
template <class Record> QString flags(const Record& r) { return show(static_cast<const s_SupportInfo&>(r)) + " "; }
inline QString limits(int min, int max)           { return " " + show(min) + ".." + show(max); }
inline QString show(const EnumValue& r)           { return show(r.value); }
inline QString show(const s_BaseAttr& r)          { return flags(r) + show(r.value, r.dataType); }
inline QString show(const s_RangeValue& r)        { return show(static_cast<const s_BaseAttr&>(r)) + limits(r.min, r.max) + " /" + show(r.step); }
inline QString show(const s_TextValue& r)         { return flags(r) + show(r.value, r.dataType) + limits(r.min, r.max); }
inline QString show(const s_EnumField& r)         { return show(static_cast<const s_BaseAttr&>(r), r.enums); }
inline QString show(const s_Path& r)              { return show(r.relativePath, r.absolutePath); }
inline QString show(const s_PatternEnum& r)       { return show(r.value, r.supportSymmetry, r.defaultSymmetry, r.supportPosX, r.defaultPosX, r.supportPosY, r.defaultPosY); }
inline QString show(const s_EffectDetail& r)      { return show(r.value); }
inline QString show(const s_MOCSIACapacity& r)    { return show(r.value, r.pixel); }
inline QString show(const s_SubSourceType& r)     { return show(r.value, r.defaultTemplate); }
inline QString show(const s_MosaicTemplate& r)    { return show(r.pitId, r.column, r.row, r.defaultWidth, r.defaultHeight, r.maxColumn, r.maxRow, r.maxCell, r.maxWidth, r.maxHeight, r.maxPixel); }
inline QString show(const s_Rectangle& r)         { return show(r.x, r.y, r.width, r.height, r.rectangleIndex, r.priority, r.rectangleType, r.minWidth, r.minHeight, r.subSourceSlotId, r.subSourceConnectorId); }
inline QString show(const s_AudioMode& r)         { return show(r.value); }
inline QString show(const s_InterfaceObj& r)      { return show(r.slotId, r.connectorId, r.sourceName); }
inline QString show(const s_PtzProtocol& r)       { return show(r.protocolName, r.port); }
inline QString show(const s_AdjustDetail& r)      { return show(r.mode, r.min, r.max, r.step, r.defaultValue, r.enums); }
inline QString show(const s_AdjustDetail::s_ValueInfo& r) { return show(r.value, r.numerator, r.denominator); }
inline QString show(const s_MutualExclusion& r)   { return show(r.adjustDetail, r.enums); }
inline QString show(const s_CleanFeed& r)         { return flags(r) + show(r.name); }
inline QString show(const s_TallyBusinessEnum& r) { return show(r.value, r.defaultValue); }
inline QString show(const s_InternalSourceDetail& r) { return show(r.connectorId, r.slotId, r.testMode, r.mode, r.r, r.g, r.b, r.brightness, r.minSpacing, r.maxSpacing); }
inline QString show(const s_ResolutioRatio& r)    { return show(r.width, r.height, r.refreshRate); }
inline QString show(const s_Quality& r)           { return show(r.value, r.streamBitRate); }
inline QString show(const s_RecodeStoragePathCfg& r) { return show(r.type, r.path); }
// clang-format on

} // namespace LCD::MainConfig

namespace feature {

using namespace LCD::MainConfig;

/// One member: the path of its element below "Device", what the record says, and what it says when the element is bare
/// and when it is decorated. A star marks the entry of a list that has neighbours of another name on both sides.
struct Row {
    QString path;
    QString shown;
    QString bare;
    QString full;
};

/// Every element of the format that fills something.
QVector<Row> rows(const s_DeviceFeature& feature);

inline QDomNode find(const QDomDocument& document, const QString& path)
{
    QDomNode node = document.documentElement().firstChild();
    for (QString tag : path.split('/', Qt::SkipEmptyParts)) node = node.namedItem(tag.remove('*'));
    return node;
}

/// A file that has every element and no attribute.
inline QDomDocument bareFile()
{
    QDomDocument document;
    document.setContent(QString("<DCS version=\"1.0\"><Device/></DCS>"));
    const auto add = [&document](QDomNode parent, const QString& tag) {
        return parent.appendChild(document.createElement(tag));
    };
    for (const Row& row : rows({})) {
        QDomNode node = document.documentElement().firstChild();
        for (QString tag : row.path.split('/', Qt::SkipEmptyParts)) {
            const bool entry = tag.startsWith('*');
            if (entry) tag.remove(0, 1);
            const QDomNode there = node.namedItem(tag);
            if (there.isNull() && entry) add(node, "Other");
            const QDomNode parent = std::exchange(node, there.isNull() ? add(node, tag) : there);
            if (there.isNull() && entry) add(parent, "Other");
        }
    }
    return document;
}

/// Gives the element every attribute of the format, the first one with the number 11, and four children whose values
/// are 91 to 94, "Enum" being the second and the fourth; with `letters`, no value is a number.
inline void decorate(QDomElement element, bool letters)
{
    const QString names =
        "Support Editable Value DataType Min Max Step Default SupportType RelativePath AbsolutePath Type Path Width "
        "Height RefreshRate StreamBitRate SupportSymmetry DefaultSymmetry SupportPosX DefaultPosX SupportPosY "
        "DefaultPosY Index Style Pixel DeviceDefaultTemplate DefaultTemplate PitId Column Row DefaultWidth "
        "DefaultHeight MaxColumn MaxRow MaxCell MaxWidth MaxHeight MaxPixel X Y RectangleIndex Priority RectangleType "
        "MinWidth MinHeight SubSourceSlotId SubSourceConnectorId IsPhysicalInterface SlotId ConnectorId SourceName "
        "DivideNum ProtocolName Port Mode Numerator Denominator AdjustDetail Name TestMode R G B Brightness MinSpacing "
        "MaxSpacing ModuleId ConnectorPluginMode SeriesShortName Brand Icon";
    const auto text = [letters](int number) { return letters ? QString("x") : QString::number(number); };
    int number = 11;
    for (const QString& name : names.split(' ')) element.setAttribute(name, text(number++));
    for (int value = 91; value <= 94; ++value) {
        QDomElement child = element.ownerDocument().createElement(value % 2 == 0 ? "Enum" : "Other");
        child.setAttribute("Value", text(value));
        element.appendChild(child);
    }
}

} // namespace feature

#endif
