#include "lcdbench_config.h"

#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>

namespace lcdbench {
namespace {

QString readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

void writeText(const QString& path, const QString& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) qFatal("cannot write %s", qPrintable(path));
}

/// The example's file with the first match of each pattern's number replaced.
QString renumbered(QString text, const char* pattern, int number)
{
    const QRegularExpression expression(pattern);
    return text.replace(expression, QStringLiteral("\\1\"%1\"").arg(number));
}

void generate(const QString& root, int count)
{
    const QString card = readText(EXAMPLE_ROOT "/subcards/inputs/201.xml");
    const QString connector = readText(EXAMPLE_ROOT "/connectors/1.xml");
    QString slots;
    for (int number = 1; number <= count; ++number) {
        const QString name = QString::number(number) + ".xml";
        slots +=
            QStringLiteral("<Slot Index=\"%1\"><Subcards><Subcard ModuleId=\"%1\"/></Subcards></Slot>").arg(number);
        writeText(root + "/subcards/all/" + name,
                  renumbered(renumbered(card, "(ModelId=)\"\\d+\"", number), "(<Connector Type=)\"\\d+\"", number));
        writeText(root + "/connectors/" + name, renumbered(connector, "(<Connector Type=)\"\\d+\"", number));
    }
    writeText(root + "/connectors/resolutionratio.xml", readText(EXAMPLE_ROOT "/connectors/resolutionratio.xml"));
    writeText(
        root + "/devices/generated/slot.xml",
        QStringLiteral("<DCS><Device><Slots><MainControlCardSlots>%1</MainControlCardSlots></Slots></Device></DCS>")
            .arg(slots));
}

template <class Interface> void read(const kpmhost::Host& host, const char* id, const QString& folder)
{
    QString error;
    if (!host.component<Interface>(id)->readConfig(folder, error) || !error.isEmpty())
        qFatal("%s: %s", qPrintable(folder), qPrintable(error));
}

} // namespace

QString generatedRoot(int count)
{
    static std::map<int, std::unique_ptr<QTemporaryDir>> roots;
    auto& root = roots[count];
    if (!root) {
        root = std::make_unique<QTemporaryDir>();
        generate(root->path(), count);
    }
    return root->path();
}

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    for (QDirIterator all(folder, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories); all.hasNext();)
        files.append(all.next());
    return files;
}

std::unique_ptr<kpmhost::Host> freshHost()
{
    auto host = std::make_unique<kpmhost::Host>();
    if (!host->load(PLUGIN_PATH)) qFatal("%s", host->error().c_str());
    return host;
}

void readDevices(const kpmhost::Host& host, const QString& root)
{
    for (const QFileInfo& device : QDir(root + "/devices").entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        read<LCD::MainConfig::IDeviceConfig>(host, "lcd.deviceconfig", device.filePath());
}

void readCards(const kpmhost::Host& host, const QString& root)
{
    read<LCD::MainConfig::ISubcardConfig>(host, "lcd.subcardconfig", root + "/subcards");
}

void readConnectors(const kpmhost::Host& host, const QString& root)
{
    read<LCD::MainConfig::IConnectorConfig>(host, "lcd.connectorconfig", root + "/connectors");
}

void parseOnly(const QStringList& files)
{
    for (const QString& path : files) {
        QFile file(path);
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, true)) qFatal("%s", qPrintable(path));
    }
}

} // namespace lcdbench
