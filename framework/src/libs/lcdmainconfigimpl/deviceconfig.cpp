// The loader of device directories: which file goes to which reader, and what a bad file costs.
#include "deviceconfig.h"

#include "devicefeatureconfig.h"
#include "layerconfig.h"
#include "reading/directory.h"
#include "reading/document.h"
#include "screenconfigmanager.h"
#include "silkconfigmanager.h"
#include "slotconfigmanager.h"

#include <QDebug>

namespace LCD::MainConfigImpl {

using namespace reading;

bool DeviceConfig::readConfig(const QString& path, QString& error)
{
    QDir directory;
    if (!useDirectory(path, error, directory)) return false;
    const Report report{error};
    s_Device device;
    for (const QFileInfo& file : xmlEntries(directory)) {
        // The text for a file that can't be opened names the directory, which is meant. The document itself is of no
        // further use: the reader of its kind opens the file again.
        QDomDocument wellFormed;
        if (parseFile(file.filePath(), path, DEVICE_FRAME, report, wellFormed))
            readFile(file.filePath(), file.fileName(), device);
    }
    _devices.append(device);
    return true;
}

namespace {

/// Reads a file with the reader of one kind into a fresh record, and logs why it could not.
template <class Record, class Parse>
bool parsed(const DeviceConfig& config, const Parse& parse, const QString& filePath, Record& record)
{
    QString error;
    if (std::invoke(parse, config, filePath, error, record)) return true;
    qWarning().noquote() << "Error:" << error;
    return false;
}

} // namespace

void DeviceConfig::readFile(const QString& filePath, const QString& fileName, s_Device& device) const
{
    const auto named = [&fileName](const char* part) { return fileName.contains(QLatin1String(part)); };

    if (named("feature") && !named("sound")) {
        s_DeviceFeature feature;
        if (parsed(*this, &DeviceConfig::parseDeviceFeaturecfg, filePath, feature)) device.feature = std::move(feature);
        return;
    }
    if (named("slot")) {
        s_DCSSolt slotFile;
        if (parsed(*this, &DeviceConfig::parseDeviceSlotcfg, filePath, slotFile)) device.slots = std::move(slotFile);
        return;
    }
    // From here on a name that fits two kinds is read as both, as long as the earlier reader succeeds.
    if (named("silk")) {
        std::vector<s_SilkOrder> orders;
        if (!parsed(*this, &DeviceConfig::parseDeviceSilkcfg, filePath, orders)) return;
        device.silkOrders.insert(device.silkOrders.end(), orders.begin(), orders.end());
    }
    if (named("screen")) {
        s_DCSScreen screen;
        if (!parsed(*this, &DeviceConfig::parseDeviceScreencfg, filePath, screen)) return;
        device.screens.append(std::move(screen));
    }
    if (named("layer")) {
        s_DCSLayer layer;
        if (parsed(*this, &DeviceConfig::parseDeviceLayercfg, filePath, layer)) device.layers.append(std::move(layer));
    }
}

bool DeviceConfig::parseDeviceFeaturecfg(const QString& filePath, QString& error, s_DeviceFeature& out) const
{
    return DeviceFeatureConfig::instance()->parseDeviceFeaturecfg(filePath, error, out);
}

bool DeviceConfig::parseDeviceSlotcfg(const QString& filePath, QString& error, s_DCSSolt& out) const
{
    return SlotConfigManager::instance()->parseDeviceSlotcfg(filePath, error, out);
}

bool DeviceConfig::parseDeviceLayercfg(const QString& filePath, QString& error, s_DCSLayer& out) const
{
    return LayerConfigManager::instance()->parseDeviceLayercfg(filePath, error, out);
}

bool DeviceConfig::parseDeviceScreencfg(const QString& filePath, QString& error, s_DCSScreen& out) const
{
    return ScreenConfigManager::instance()->parseDeviceScreencfg(filePath, error, out);
}

bool DeviceConfig::parseDeviceSilkcfg(const QString& filePath, QString& error, std::vector<s_SilkOrder>& out) const
{
    return SilkConfigManager::instance()->parseDeviceSilkcfg(filePath, error, out);
}

} // namespace LCD::MainConfigImpl
