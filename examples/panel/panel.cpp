// A panel application at its smallest: loads the plug-in, lets the catalogues of a configuration root load, and answers
// what a panel is asked when a connector is chosen: which card is it on, and which resolutions does it offer?
//
//     panel ROOT CARD POSITION        for example: panel ../halcyon 201 1
#include <kpmhost.h>
#include <lcdmainconfig/components.h>
#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/isubcardconfig.h>
#include <lcdmainconfig/version.h>

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

using namespace LCD::MainConfig;

namespace {

/// What the panel asks, and the host that keeps it.
struct Catalogues {
    kpmhost::Host host;
    IDeviceConfig* devices = nullptr;
    ISubcardConfig* cards = nullptr;
    IConnectorConfig* connectors = nullptr;
};

/// Finds the components. Empty when all is well, else why not.
QString open(Catalogues& catalogues)
{
    if (!catalogues.host.load(PLUGIN)) return QString::fromStdString(catalogues.host.error());
    // Records of another version are laid out differently, so nothing may be called.
    if (qstrcmp(catalogues.host.info()->version, constants::PLUGIN_VERSION) != 0)
        return QStringLiteral("the plug-in has version ") + catalogues.host.info()->version;
    catalogues.devices = catalogues.host.component<IDeviceConfig>(constants::COMP_DEVICECONFIG_NAME);
    catalogues.cards = catalogues.host.component<ISubcardConfig>(constants::COMP_SUBCARDCONFIG_NAME);
    catalogues.connectors = catalogues.host.component<IConnectorConfig>(constants::COMP_CONNECTORCONFIG_NAME);
    if (!catalogues.devices || !catalogues.cards || !catalogues.connectors)
        return QStringLiteral("the plug-in lacks a component");
    return {};
}

/// Loads the root, in the order that the components need. Empty when all is well, else the reason.
QString load(Catalogues& catalogues, const QDir& root)
{
    // A missing folder would be created.
    for (const char* folder : {"devices", "subcards", "connectors"})
        if (!root.exists(folder)) return root.filePath(folder) + " is missing";
    QString error;
    const QDir devices(root.filePath("devices"));
    for (const QFileInfo& device : devices.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (!catalogues.devices->readConfig(device.filePath(), error)) return error;
    const bool good = catalogues.cards->readConfig(root.filePath("subcards"), error) &&
                      catalogues.connectors->readConfig(root.filePath("connectors"), error);
    return good || !error.isEmpty() ? error : QStringLiteral("nothing to load; the log tells why");
}

/// Walks from the card to the resolutions. False when the card has no such connector.
bool answer(const Catalogues& catalogues, int model, int position, QTextStream& out)
{
    const auto connector = catalogues.cards->findConnector(model, position);
    if (!connector) return false;
    out << "card " << model << ", position " << position << ": connector type " << connector->type << ", "
        << QString::fromStdString(catalogues.connectors->findConnectorTypeName(connector->type)) << '\n';
    for (const auto& offered : catalogues.connectors->findConnectorResolutions(connector->capacityMode, connector->type,
                                                                               connector->interfaceType))
        out << offered.width << " x " << offered.height << (offered.interlaced == 1 ? " interlaced\n" : "\n");
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    application.setProperty("lcd_locale", "en");
    QTextStream out(stdout);
    QTextStream complaints(stderr);
    if (argc != 4) {
        complaints << "usage: panel ROOT CARD POSITION\n";
        return 2;
    }
    Catalogues catalogues;
    QString wrong = open(catalogues);
    if (wrong.isEmpty()) wrong = load(catalogues, QDir(QString::fromLocal8Bit(argv[1])));
    const int model = QByteArray(argv[2]).toInt();
    const int position = QByteArray(argv[3]).toInt();
    if (wrong.isEmpty() && !answer(catalogues, model, position, out))
        wrong = QStringLiteral("card %1 has no connector at position %2").arg(model).arg(position);
    if (wrong.isEmpty()) return 0;
    complaints << "panel: " << wrong << '\n';
    return 1;
}
