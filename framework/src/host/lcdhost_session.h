// One run of the program: the plug-in with its components, the configuration root that they read, and all that they
// found wrong in it.
#ifndef LCDHOST_SESSION_H
#define LCDHOST_SESSION_H

#include "common/layout.h"
#include "kpmhost.h"

#include <lcdmainconfig/components.h>
#include <lcdmainconfig/iconnectorconfig.h>
#include <lcdmainconfig/ideviceconfig.h>
#include <lcdmainconfig/ifnbuttonconfig.h>
#include <lcdmainconfig/ikeycheckconfig.h>
#include <lcdmainconfig/ilcdconfig.h>
#include <lcdmainconfig/ilcdlanguageconfig.h>
#include <lcdmainconfig/ilockareaconfig.h>
#include <lcdmainconfig/imenuconfig.h>
#include <lcdmainconfig/isubcardconfig.h>

#include <QSet>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lcdhost {

namespace Lcd = LCD::MainConfig;
using namespace lcdcommon;
using namespace Lcd::constants;

/// One thing that the library, or the program itself, found wrong.
struct Problem {
    QString where; ///< The file, or the folder where no single file is to blame.
    QString text;
    int times = 1; ///< How often the file gave this text.
};

/// Why something that is asked for is not in its catalogue.
enum class Cause { NoFile, Refused, NotRead, OtherContent };

/// A card that a slot takes, or a connector type that a card has, and that was not loaded.
struct Gap {
    Catalogue catalogue;
    QString id; ///< Model of the card, or connector type.
    Cause cause;
};

class Session {
public:
    /// `language` is "en" or "zh_CN". From now on the program's log lines are collected and not printed.
    Session(QString root, const QString& language);

    /// Loads the plug-in; false with error() set when that fails.
    bool open(const QString& pluginPath);
    [[nodiscard]] const QString& error() const { return _error; }

    /// From now on the device of that name, its folder's or its own, is the current one; the others follow by name of
    /// their folders. False with error() set when there is none. To be called before any load.
    bool chooseDevice(const QString& name);

    /// The folder of the catalogue is there.
    [[nodiscard]] bool has(Catalogue catalogue) const;
    /// Reads one catalogue, or all of them, and looks for what the library does not tell of: what can't be opened, what
    /// is empty, and what is asked for and is not there. A folder that is missing is a problem, and is not read, since
    /// reading would create it.
    void load(Catalogue catalogue);
    void loadAll();
    /// The catalogue was read, and its component had no reason to stop.
    [[nodiscard]] bool isLoaded(Catalogue catalogue) const { return _loaded.contains(int(catalogue)); }

    /// Makes it a problem that a catalogue which was read holds nothing, unless another one tells why.
    void noteEmpty(Catalogue catalogue);
    [[nodiscard]] const std::vector<Problem>& problems() const { return _problems; }
    /// What the slots and cards of the catalogues read so far ask for in vain.
    [[nodiscard]] const std::vector<Gap>& gaps() const { return _gaps; }
    /// The warnings logged since the last load or the last call.
    static QStringList takeWarnings();

    [[nodiscard]] Lcd::IDeviceConfig& devices() const { return get<Lcd::IDeviceConfig>(COMP_DEVICECONFIG_NAME); }
    [[nodiscard]] Lcd::ISubcardConfig& cards() const { return get<Lcd::ISubcardConfig>(COMP_SUBCARDCONFIG_NAME); }
    [[nodiscard]] Lcd::IConnectorConfig& connectors() const
    {
        return get<Lcd::IConnectorConfig>(COMP_CONNECTORCONFIG_NAME);
    }
    [[nodiscard]] Lcd::IMenuConfig& menu() const { return get<Lcd::IMenuConfig>(COMP_MENUCONFIG_NAME); }
    [[nodiscard]] Lcd::IFNButtonConfig& functionKeys() const
    {
        return get<Lcd::IFNButtonConfig>(COMP_FNBUTTONCONFIG_NAME);
    }
    [[nodiscard]] Lcd::IKeyCheckConfig& keyChecks() const
    {
        return get<Lcd::IKeyCheckConfig>(COMP_KEYCHECKCONFIG_NAME);
    }
    [[nodiscard]] Lcd::ILockAreaConfig& lockAreas() const
    {
        return get<Lcd::ILockAreaConfig>(COMP_LOCKAREACONFIG_NAME);
    }
    [[nodiscard]] Lcd::ILcdConfig& settings() const { return get<Lcd::ILcdConfig>(COMP_LCDCONFIG_NAME); }
    [[nodiscard]] Lcd::ILcdLanguageConfig& userSettings() const
    {
        return get<Lcd::ILcdLanguageConfig>(COMP_LCDLANGUAGECONFIG_NAME);
    }

    /// The text in the language of the session; the other one where it is empty.
    [[nodiscard]] QString inLanguage(const std::string& english, const std::string& chinese) const;
    /// The name of the first card of a model; empty when the catalogue has none.
    [[nodiscard]] QString cardName(std::uint64_t model) const;

    /// The cards that are loaded. The component gives a copy of them all at each call, so one is kept here.
    [[nodiscard]] const Lcd::s_DCSSubcard& allCards() const;
    [[nodiscard]] bool hasCard(std::uint64_t model) const;
    [[nodiscard]] bool hasConnectorType(int type) const;
    /// The name of a connector type; empty for an unknown one. The component gives the Chinese name alone; the English
    /// one is read from the type's file.
    [[nodiscard]] QString connectorName(int type) const;

    [[nodiscard]] const QString& root() const { return _root; }
    [[nodiscard]] bool isEnglish() const { return _english; }

private:
    template <class Interface> [[nodiscard]] Interface& get(const char* id) const
    {
        return *_host.component<Interface>(id);
    }
    [[nodiscard]] QString whyNotAskedFor(Catalogue catalogue) const;
    void loadFolder(const Folder& folder, const QString& path);
    void read(const Folder& folder, const QString& path);
    void diagnose(const Folder& folder, const QString& path, QStringList unexplained);
    [[nodiscard]] QStringList reportsOfFile(const Folder& folder, const QString& path, const QString& file) const;
    [[nodiscard]] QString nameOfDevice(const QString& path) const;
    void note(const QString& where, const QStringList& texts);

    // What the library does not tell of.
    void checkDevice(const QString& path);
    void checkCards(const QString& path);
    void checkConnectors(const QString& path);
    void checkSettings(const QString& file);
    void noteUnread(Catalogue catalogue, const QString& path);
    void noteGap(Catalogue catalogue, const QString& id, const QString& path, const QString& askedBy);

    QString _root;
    bool _english;
    kpmhost::Host _host;
    QString _error;
    QStringList _devices; ///< The device folders in the order of loading.
    QSet<int> _loaded;
    std::vector<Gap> _gaps;
    mutable std::shared_ptr<const Lcd::s_DCSSubcard> _allCards; ///< Filled when first asked for, after each load.
    mutable std::map<int, QString> _englishNames; ///< Of connector types; filled when the first is asked for.
    std::vector<Problem> _problems;
};

} // namespace lcdhost

#endif
