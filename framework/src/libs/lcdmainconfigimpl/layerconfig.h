// The reader of layer files: one layer type each.
#ifndef LCDMAINCONFIGIMPL_LAYERCONFIG_H
#define LCDMAINCONFIGIMPL_LAYERCONFIG_H

#include "lcdmainconfig/layer.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <mutex>

namespace LCD::MainConfigImpl {

class LayerConfigManager : public QObject {
    Q_OBJECT

public:
    /// The one instance, made on first use. Safe to call from any thread.
    static LayerConfigManager* instance();
    /// Deletes the instance; the next instance() makes a new one.
    static void destroyInstance();

    /// Reads the file into a fresh `layer`. False with `errorText` set when the file can't be used; what was read
    /// before that stays in `layer`. After true, `errorText` may hold a message about "DeviceModes", which costs only
    /// itself.
    bool parseDeviceLayercfg(const QString& path, QString& errorText, LCD::MainConfig::s_DCSLayer& layer) const;

private:
    LayerConfigManager() = default;

    static std::atomic<LayerConfigManager*> _pLayerCfgMgr;
    static std::mutex _LayerCfgMgrMutex;
};

} // namespace LCD::MainConfigImpl

#endif
