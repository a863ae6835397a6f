#include "common/layout.h"

#include <lcdmainconfig/components.h>
#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/ifnbuttonconfig.h>
#include <lcdmainconfig/ikeycheckconfig.h>
#include <lcdmainconfig/ilcdconfig.h>
#include <lcdmainconfig/ilockareaconfig.h>
#include <lcdmainconfig/imenuconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <QDir>
#include <QFileInfo>

#include <type_traits>

namespace lcdcommon {
namespace {

namespace Lcd = LCD::MainConfig;

constexpr char LOCK_AREA_FILE[] = "lockareaconfig.xml";

template <class Interface> bool read(void* component, const QString& path, QString& error)
{
    auto& config = *static_cast<Interface*>(component);
    if constexpr (std::is_same_v<Interface, Lcd::ILockAreaConfig>)
        return config.readConfig(path + '/' + LOCK_AREA_FILE, error);
    else if constexpr (requires { config.readConfig(path, error); })
        return config.readConfig(path, error);
    else
        return config.readConfig(path);
}

QStringList foldersIn(const QString& path)
{
    QStringList folders;
    for (const QFileInfo& folder : QDir(path).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        folders.append(folder.filePath());
    return folders;
}

} // namespace

const std::vector<Folder>& folders()
{
    using namespace Lcd::constants;
    // clang-format off
    static const std::vector<Folder> all{
        {Catalogue::Devices,      "devices",    COMP_DEVICECONFIG_NAME,    nullptr,                read<Lcd::IDeviceConfig>},
        {Catalogue::Cards,        "subcards",   COMP_SUBCARDCONFIG_NAME,   nullptr,                read<Lcd::ISubcardConfig>},
        {Catalogue::Connectors,   "connectors", COMP_CONNECTORCONFIG_NAME, nullptr,                read<Lcd::IConnectorConfig>},
        {Catalogue::Menu,         "menu",       COMP_MENUCONFIG_NAME,      "menuconfig.xml",       read<Lcd::IMenuConfig>},
        {Catalogue::FunctionKeys, "fnbutton",   COMP_FNBUTTONCONFIG_NAME,  "fnkeyboardconfig.xml", read<Lcd::IFNButtonConfig>},
        {Catalogue::KeyChecks,    "keycheck",   COMP_KEYCHECKCONFIG_NAME,  nullptr,                read<Lcd::IKeyCheckConfig>},
        {Catalogue::LockAreas,    "lockarea",   COMP_LOCKAREACONFIG_NAME,  LOCK_AREA_FILE,         read<Lcd::ILockAreaConfig>},
        {Catalogue::Settings,     "settings",   COMP_LCDCONFIG_NAME,       "lcdsetting.ini",       read<Lcd::ILcdConfig>},
    };
    // clang-format on
    return all;
}

const Folder& folderOf(Catalogue catalogue) { return folders()[std::size_t(catalogue)]; }

QString pathOf(const QString& root, const Folder& folder) { return QDir(root).filePath(folder.name); }

QStringList deviceFolders(const QString& root) { return foldersIn(pathOf(root, folderOf(Catalogue::Devices))); }

QStringList placesOf(const Folder& folder, const QString& path)
{
    QStringList places{path};
    if (folder.catalogue == Catalogue::Cards) places += foldersIn(path);
    return places;
}

QStringList filesOf(const Folder& folder, const QString& path)
{
    QStringList files;
    for (const QString& place : placesOf(folder, path))
        for (const QFileInfo& file : QDir(place).entryInfoList({"*.xml"})) files.append(file.filePath());
    return files;
}

} // namespace lcdcommon
