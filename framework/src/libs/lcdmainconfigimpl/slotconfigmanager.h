// The reader of slot files: which card slots the chassis has, and which card models may sit in them.
#ifndef LCDMAINCONFIGIMPL_SLOTCONFIGMANAGER_H
#define LCDMAINCONFIGIMPL_SLOTCONFIGMANAGER_H

#include "lcdmainconfig/slots.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <mutex>

namespace LCD::MainConfigImpl {

class SlotConfigManager : public QObject {
    Q_OBJECT

public:
    /// The one instance, made on first use. Safe to call from any thread.
    static SlotConfigManager* instance();
    /// Deletes the instance; the next instance() makes a new one.
    static void destroyInstance();

    /// Reads the file into `out`. False with `error` set when the file can't be used.
    bool parseDeviceSlotcfg(const QString& filePath, QString& error, LCD::MainConfig::s_DCSSolt& out) const;

private:
    SlotConfigManager() = default;

    static std::atomic<SlotConfigManager*> _pSlotCfgMgr;
    static std::mutex _slotCfgMgrMutex;
};

} // namespace LCD::MainConfigImpl

#endif
