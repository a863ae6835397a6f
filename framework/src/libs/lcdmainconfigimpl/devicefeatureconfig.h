// The reader of feature files: everything that one device model can do.
#ifndef LCDMAINCONFIGIMPL_DEVICEFEATURECONFIG_H
#define LCDMAINCONFIGIMPL_DEVICEFEATURECONFIG_H

#include "lcdmainconfig/feature.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <mutex>

class QDomElement;

namespace LCD::MainConfigImpl {

class DeviceFeatureConfig : public QObject {
    Q_OBJECT

public:
    /// The one instance, made on first use. It lives until the process ends. Safe to call from any thread.
    static DeviceFeatureConfig* instance();

    /// Reads the file into `out`. False with `error` set when the file can't be used.
    bool parseDeviceFeaturecfg(const QString& filePath, QString& error, LCD::MainConfig::s_DeviceFeature& out) const;
    /// Reads "Preset" below the element "Device". False with `errorMessage` set when it, or its "PresetCount", is
    /// absent.
    bool presetConfig(const QDomElement& device, QString& errorMessage, LCD::MainConfig::s_Preset& preset) const;
    /// Reads "Media" below the element "Features". False with `errorMessage` set; what was stored stays.
    bool mediaPoolCfg(const QDomElement& features, QString& errorMessage,
                      LCD::MainConfig::s_MediaPool& mediaPool) const;

private:
    DeviceFeatureConfig() = default;

    static std::atomic<DeviceFeatureConfig*> _pDeviceFeatureCfg;
    static std::mutex _deviceFeatCfgMutex;
};

} // namespace LCD::MainConfigImpl

#endif
