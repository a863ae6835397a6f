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

    /// Reads the file into `feature`, a fresh record, which may be partly written when the result is false. False with
    /// `errorMessage` set when the file can't be used; a true result may leave the message of the last absent element.
    bool parseDeviceFeaturecfg(const QString& filePath, QString& errorMessage,
                               LCD::MainConfig::s_DeviceFeature& feature) const;
    /// Reads "Preset" below the element "Device". False with `errorMessage` set when it, or its "PresetCount", is
    /// absent.
    bool presetConfig(const QDomElement& device, QString& errorMessage, LCD::MainConfig::s_Preset& preset) const;
    /// Reads "Media" below the element "Features". False with `errorMessage` set when it is absent or
    /// when "PicSet" is there; what was stored stays.
    bool mediaPoolCfg(const QDomElement& features, QString& errorMessage,
                      LCD::MainConfig::s_MediaPool& mediaPool) const;

private:
    DeviceFeatureConfig() = default;

    static std::atomic<DeviceFeatureConfig*> _pDeviceFeatureCfg;
    static std::mutex _deviceFeatCfgMutex;
};

} // namespace LCD::MainConfigImpl

#endif
