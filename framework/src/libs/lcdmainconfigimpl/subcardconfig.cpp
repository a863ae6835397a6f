// The load of the card catalogue: which card files the slots of the devices call for, and what a bad file costs.
#include "subcardconfig.h"

#include "lcdmainconfig/ideviceconfig.h"
#include "lookup.h"
#include "reading/directory.h"
#include "reading/document.h"
#include "slotclasses.h"
#include "subcardconfig_impl.h"
#include "subcardconfig_readers.h"

#include <QDebug>

#include <set>

namespace LCD::MainConfigImpl {
namespace {

using Models = std::set<std::uint64_t>;

/// The card models that some slot of some device lists. What a class as a whole takes does not count.
Models modelsInSlots(const QList<s_Device>& devices)
{
    Models models;
    for (const s_Device& device : devices)
        for (const s_SlotAttr* const slotClass : slotClasses(device.slots))
            for (const s_Slot& slot : slotClass->slots)
                for (const s_InlineSubcard& subcard : slot.subcards) models.insert(subcard.moduleId);
    return models;
}

/// The files of the models, in the directory itself and its direct subdirectories. A file is named for its model.
QStringList filesOfModels(QDir directory, const Models& models)
{
    directory.setNameFilters({});
    directory.setSorting(QDir::DirsLast);
    // Only ".." is filtered out: the directory itself is one of its entries.
    directory.setFilter(QDir::Dirs | QDir::NoDotDot);
    QStringList files;
    for (const QFileInfo& folder : directory.entryInfoList())
        for (const QFileInfo& file : reading::xmlEntries(QDir(folder.filePath()))) {
            bool isNumber = false;
            if (models.count(file.baseName().toULongLong(&isNumber, 10)) == 0) continue;
            // A name that is no number counts as model 0, which is meant.
            if (!isNumber) qDebug().noquote() << "switch defeat:" << file.baseName();
            files.append(file.absoluteFilePath());
        }
    return files;
}

} // namespace

bool SubcardConfig::Impl::readConfig(const QString& path, QString& error)
{
    const QList<s_Device> devices = lookUp<IDeviceConfig>(MainConfig::constants::OBJ_DEVICECONFIG_NAME).DeviceConfigs();
    if (devices.isEmpty()) {
        qWarning() << "device is empty";
        return false;
    }
    QDir directory;
    if (!reading::useDirectory(path, error, directory)) return false;
    for (const QString& file : filesOfModels(directory, modelsInSlots(devices)))
        if (!readFile(file, path, error)) return false;
    return true;
}

bool SubcardConfig::Impl::readFile(const QString& filePath, const QString& directory, QString& error)
{
    const reading::Report report{error};
    QDomDocument document;
    // The text for a file that can't be opened names the directory, which is meant.
    if (!parseFile(filePath, directory, reading::DEVICE_FRAME, report, document)) return false;
    if (!checkRoot(document, reading::DEVICE_FRAME, report)) return false;
    bool failed = false;
    const reading::Reader root(document.documentElement(), report, failed);
    if (root.hasContent()) root.element("Subcards", reading::OnNull::Note, _cards, cardfile::readCards);
    return !failed;
}

// --- The component

SubcardConfig::SubcardConfig() : _impl(std::make_unique<Impl>()) {}

SubcardConfig::~SubcardConfig() = default;

bool SubcardConfig::readConfig(const QString& path, QString& error) { return _impl->readConfig(path, error); }

std::shared_ptr<s_DCSSubcard> SubcardConfig::subcardConfig() const { return _impl->subcardConfig(); }

std::shared_ptr<s_SubcardConnector> SubcardConfig::findConnector(int modelId, int position) const
{
    return _impl->findConnector(modelId, position);
}

std::vector<s_ConnectorInTypes> SubcardConfig::findTypesByModelId(int modelId) const
{
    return _impl->findTypesByModelId(modelId);
}

std::shared_ptr<s_SubcardConnectorGroup> SubcardConfig::findConnectorLocatedGroup(int modelId, int position) const
{
    return _impl->findConnectorLocatedGroup(modelId, position);
}

// It is meant that the group does not matter.
std::vector<s_SubcardConnector> SubcardConfig::findConnectorByGroupId(int modelId, int /*groupId*/) const
{
    return _impl->findConnectorByGroupId(modelId);
}

s_SubcardDeviceMode SubcardConfig::findSubcardModeData(int modelId, int capacityValue, int deviceMode) const
{
    return _impl->findSubcardModeData(modelId, capacityValue, deviceMode);
}

// It is meant that the capacity does not matter.
std::vector<s_ConnectorInfo> SubcardConfig::findConnectorCopyData(int modelId, int /*capacityValue*/, int deviceMode,
                                                                  int position) const
{
    return _impl->findConnectorCopyData(modelId, deviceMode, position);
}

int SubcardConfig::findCardMode(int modelId) const { return _impl->findCardMode(modelId); }

int SubcardConfig::countAuxConnector() const { return _impl->countAuxConnector(); }

s_CapacityInConnectorsDeviceModeCapacitys SubcardConfig::findConnectorDeviceModeCapacity(int modelId, int capacityValue,
                                                                                         int deviceMode) const
{
    return _impl->findConnectorDeviceModeCapacity(modelId, capacityValue, deviceMode);
}

std::shared_ptr<s_ConnectorInConnectorsDeviceModeCapacitysCapacity>
SubcardConfig::findConnectorDeviceModeCapacityConnector(int modelId, int capacityValue, int deviceMode, int type,
                                                        int position) const
{
    return _impl->findConnectorDeviceModeCapacityConnector(modelId, capacityValue, deviceMode, type, position);
}

int SubcardConfig::findConnectorDeviceModeCapacityDynamicRangeSupport(int modelId, int capacityValue, int deviceMode,
                                                                      int position) const
{
    return _impl->findConnectorDeviceModeCapacityDynamicRangeSupport(modelId, capacityValue, deviceMode, position);
}

int SubcardConfig::findConnectorInterlacedType(int modelId, int type, int position, int capacityMode) const
{
    return _impl->findConnectorInterlacedType(modelId, type, position, capacityMode);
}

s_ResolutionRatiosInConnectorsDeviceModeTiming
SubcardConfig::findTimingDeviceModeResolutionRatios(int modelId, int deviceMode, int connectorType, int interfaceType,
                                                    int capacityMode) const
{
    return _impl->findTimingDeviceModeResolutionRatios(modelId, deviceMode, connectorType, interfaceType, capacityMode);
}

std::vector<int> SubcardConfig::findSupportedCapacity(int modelId, int connectorType, int interfaceType) const
{
    return _impl->findSupportedCapacity(modelId, connectorType, interfaceType);
}

std::shared_ptr<s_HPDIn> SubcardConfig::findHPDInfo(int modelId, int connectorType) const
{
    return _impl->findHPDInfo(modelId, connectorType);
}

s_SubcardConnectorGroup SubcardConfig::findConnectorGroupByGroupId(int modelId, int groupId) const
{
    return _impl->findConnectorGroupByGroupId(modelId, groupId);
}

} // namespace LCD::MainConfigImpl
