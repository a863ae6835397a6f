// The reader of silk files: the order in which the connectors printed on the chassis are counted.
#ifndef LCDMAINCONFIGIMPL_SILKCONFIGMANAGER_H
#define LCDMAINCONFIGIMPL_SILKCONFIGMANAGER_H

#include "lcdmainconfig/silk.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <mutex>
#include <vector>

namespace LCD::MainConfigImpl {

class SilkConfigManager : public QObject {
    Q_OBJECT

public:
    /// The one instance, made on first use. Safe to call from any thread.
    static SilkConfigManager* instance();
    /// Deletes the instance; the next instance() makes a new one.
    static void destroyInstance();

    /// Appends the file's entries to `out`, which is not cleared. False with `error` set when the file can't be used.
    bool parseDeviceSilkcfg(const QString& filePath, QString& error,
                            std::vector<LCD::MainConfig::s_SilkOrder>& out) const;

private:
    SilkConfigManager() = default;

    // The names of the screen reader's statics, on purpose; they are this class's own.
    static std::atomic<SilkConfigManager*> _pScreenCfg;
    static std::mutex _screenCfgMutex;
};

} // namespace LCD::MainConfigImpl

#endif
