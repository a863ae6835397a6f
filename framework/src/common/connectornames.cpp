#include "common/connectornames.h"

#include "common/access.h"

#include <QFile>
#include <QXmlStreamReader>

namespace lcdcommon {
namespace {

/// A larger file is none to the plug-in.
constexpr qint64 MOST_BYTES = 16 << 20;

/// The text of the first child `tag` of the current element, which is read to its end.
QString childText(QXmlStreamReader& xml, const char* tag)
{
    QString text;
    while (xml.readNextStartElement())
        if (text.isEmpty() && xml.name() == QLatin1String(tag))
            text = xml.readElementText(QXmlStreamReader::SkipChildElements);
        else
            xml.skipCurrentElement();
    return text;
}

void readConnector(QXmlStreamReader& xml, std::map<int, QString>& names)
{
    const int type = xml.attributes().value("Type").toInt();
    QString name;
    while (xml.readNextStartElement())
        if (name.isEmpty() && xml.name() == QLatin1String("Name"))
            name = childText(xml, "en");
        else
            xml.skipCurrentElement();
    names.try_emplace(type, name);
}

void readConnectors(QXmlStreamReader& xml, std::map<int, QString>& names)
{
    while (xml.readNextStartElement())
        if (xml.name() == QLatin1String("Connector"))
            readConnector(xml, names);
        else
            xml.skipCurrentElement();
}

} // namespace

std::map<int, QString> englishConnectorNames(const QStringList& files)
{
    std::map<int, QString> names;
    for (const QString& path : files) {
        QFile file(path);
        if (!whyNoFile(path).isEmpty() || file.size() > MOST_BYTES || !file.open(QIODevice::ReadOnly)) continue;
        QXmlStreamReader xml(&file);
        xml.readNextStartElement();
        while (xml.readNextStartElement())
            if (xml.name() == QLatin1String("Connectors"))
                readConnectors(xml, names);
            else
                xml.skipCurrentElement();
    }
    return names;
}

} // namespace lcdcommon
