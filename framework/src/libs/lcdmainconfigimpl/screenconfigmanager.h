// The reader of screen files: one screen type each.
#ifndef LCDMAINCONFIGIMPL_SCREENCONFIGMANAGER_H
#define LCDMAINCONFIGIMPL_SCREENCONFIGMANAGER_H

#include "lcdmainconfig/screen.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <mutex>

class QDomElement;

namespace LCD::MainConfigImpl {

class ScreenConfigManager : public QObject {
    Q_OBJECT

public:
    /// The one instance, made on first use. Safe to call from any thread.
    static ScreenConfigManager* instance();
    /// Deletes the instance; the next instance() makes a new one.
    static void destroyInstance();

    /// Reads the file into `out`, a fresh record. False with `error` set when the file can't be used; a true result may
    /// leave in `error` the message of the last absent element.
    bool parseDeviceScreencfg(const QString& filePath, QString& error, LCD::MainConfig::s_DCSScreen& out) const;
    /// Reads the element "ThreeD" below `parent`. False with `errorText` set when it, or its "EmitterDelay", is absent.
    bool threeDConfig(const QDomElement& parent, QString& errorText, LCD::MainConfig::s_ThreeD& threeD) const;

private:
    ScreenConfigManager() = default;

    static std::atomic<ScreenConfigManager*> _pScreenCfg;
    static std::mutex _screenCfgMutex;
};

} // namespace LCD::MainConfigImpl

#endif
