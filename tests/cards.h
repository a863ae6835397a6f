// A card catalogue with the devices that it asks for, over files in a folder that goes away.
#ifndef TESTS_CARDS_H
#define TESTS_CARDS_H

#include "deviceconfig.h"
#include "standinhost.h"
#include "subcardconfig.h"
#include "support.h"

#include <lcdmainconfig/components.h>

struct CardFixture {
    /// One more device: a class with a slot for each model. The class as a whole takes model 9, too.
    void addDevice(const QList<QPair<QString, QString>>& models)
    {
        QString classes;
        for (const auto& [tag, model] : models)
            classes += QStringLiteral("<%1><Subcards><Subcard ModuleId=\"9\"/></Subcards><Slot Index=\"1\"><Subcards>"
                                      "<Subcard ModuleId=\"%2\"/></Subcards></Slot></%1>")
                           .arg(tag, model);
        const Folder device;
        // A slot file without this class fails; where the models name it too, theirs is the one read.
        device.write("slot.xml", "<DCS><Device><Slots>" + classes + "<MainControlCardSlots/></Slots></Device></DCS>");
        if (!devices.readConfig(device.path(), error)) qFatal("no device");
    }
    bool load() { return load(folder.path("cards")); }
    bool load(const QString& directory)
    {
        StandInHost host;
        host.serve<LCD::MainConfig::IDeviceConfig>(LCD::MainConfig::constants::OBJ_DEVICECONFIG_NAME, devices);
        return catalogue.readConfig(directory, error);
    }
    QList<int> models() const
    {
        QList<int> all;
        const auto whole = catalogue.subcardConfig();
        for (const auto& card : whole->subcards) all.append(card.modelId);
        return all;
    }

    LCD::MainConfigImpl::DeviceConfig devices;
    LCD::MainConfigImpl::SubcardConfig catalogue;
    Folder folder;
    QString error;
};

#endif
