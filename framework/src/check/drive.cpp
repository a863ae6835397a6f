#include "drive.h"

#include "connectorconfig.h"
#include "deviceconfig.h"
#include "fnbuttonconfig.h"
#include "keycheckconfig.h"
#include "lockareaconfig.h"
#include "menuconfig.h"
#include "quiet.h"
#include "reading/document.h"
#include "reading/xmlparse.h"
#include "subcardconfig.h"

#include <kpmsdk/api.h>
#include <lcdmainconfig/components.h>

#include <QDir>
#include <QTemporaryDir>

#include <cstring>

namespace lcdcheck {

using namespace LCD::MainConfigImpl;
using reading::Listening;

bool Feeder::refused(const QString& /*path*/, const reading::Frame& /*frame*/, reading::Refusal why,
                     const reading::ParseFailure& /*failure*/, QDomDocument& document)
{
    if (why != reading::Refusal::NotWellFormed) return false;
    document = fed;
    return true;
}

namespace {

/// Has components find one another while it lives.
class Hosting final : private kpm::IHostService {
public:
    Hosting(DeviceConfig& devices, SubcardConfig& cards)
        : _before(kpm::api::get().service), _devices(devices), _cards(cards)
    {
        kpm::api::get().service = this;
    }
    ~Hosting() { kpm::api::get().service = _before; }
    Hosting(const Hosting&) = delete;
    Hosting& operator=(const Hosting&) = delete;

private:
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void* queryInterface(const char* name) override
    {
        if (std::strcmp(name, LCD::MainConfig::constants::OBJ_DEVICECONFIG_NAME) == 0)
            return static_cast<LCD::MainConfig::IDeviceConfig*>(&_devices);
        if (std::strcmp(name, LCD::MainConfig::constants::OBJ_SUBCARDCONFIG_NAME) == 0)
            return static_cast<LCD::MainConfig::ISubcardConfig*>(&_cards);
        return nullptr;
    }

    kpm::IHostService* _before;
    DeviceConfig& _devices;
    SubcardConfig& _cards;
};

/// A folder in which every kind has an empty file where its reader looks for it, and the two components that others
/// look up. An empty file is not well-formed, so that the feeder is asked.
struct Stage {
    Stage()
    {
        for (const char* const file :
             {"file.xml", "card/0.xml", "connector/resolutionratio.xml", "keycheck/keyboardchecklist.xml",
              "panel/menuconfig.xml", "panel/fnkeyboardconfig.xml"})
            write(file, {});
        // A slot that names no model takes the card of model 0.
        write("device/slot.xml",
              "<DCS><Device><Slots><MainControlCardSlots><Slot><Subcards><Subcard/></Subcards></Slot>"
              "</MainControlCardSlots></Slots></Device></DCS>");
        write("onecard/0.xml", "<DCS><Subcards><Subcard><Name><zh_CN/><en/></Name></Subcard></Subcards></DCS>");
        const Hosting hosting(devices, cards);
        QString unused;
        devices.readConfig(path("device"), unused);
        cards.readConfig(path("onecard"), unused);
    }

    [[nodiscard]] QString path(const char* name) const { return folder.filePath(name); }
    void write(const char* name, const QByteArray& text) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write to the temporary folder %s", qUtf8Printable(folder.path()));
    }

    QTemporaryDir folder;
    DeviceConfig devices;
    SubcardConfig cards;
};

/// The readers of a device's files fill a record that is handed to them.
template <class Record>
bool parse(bool (DeviceConfig::*reader)(const QString&, QString&, Record&) const, const QString& path)
{
    Record record;
    QString unused;
    return (DeviceConfig().*reader)(path, unused, record);
}

bool read(FileKind kind, const Stage& stage)
{
    QString unused;
    const QString file = stage.path("file.xml");
    switch (kind) {
    case FileKind::Feature:
        return parse(&DeviceConfig::parseDeviceFeaturecfg, file);
    case FileKind::Slot:
        return parse(&DeviceConfig::parseDeviceSlotcfg, file);
    case FileKind::Silk:
        return parse(&DeviceConfig::parseDeviceSilkcfg, file);
    case FileKind::Screen:
        return parse(&DeviceConfig::parseDeviceScreencfg, file);
    case FileKind::Layer:
        return parse(&DeviceConfig::parseDeviceLayercfg, file);
    case FileKind::Card:
        return SubcardConfig().readConfig(stage.path("card"), unused);
    case FileKind::Connector:
    case FileKind::Resolution:
        return ConnectorConfig().readConfig(stage.path("connector"), unused);
    case FileKind::Menu:
        return MenuConfig().readConfig(stage.path("panel"));
    case FileKind::FunctionKeys:
        return FNButtonConfig().readConfig(stage.path("panel"), unused);
    case FileKind::KeyCheck:
        return KeyCheckConfig().readConfig(stage.path("keycheck"), unused);
    case FileKind::LockArea:
        return LockAreaConfig().readConfig(file, unused);
    case FileKind::Settings:
        return false;
    }
    return false;
}

} // namespace

bool drive(FileKind kind, reading::Listener& listener)
{
    const Quiet quiet;
    static Stage stage;
    const Hosting hosting(stage.devices, stage.cards);
    const Listening listening(listener);
    return read(kind, stage);
}

} // namespace lcdcheck
