// The command that shows the panel's settings: what the factory set, and on demand what the user set.
#include "lcdhost_commands.h"

#include <QUrl>

#include <algorithm>
#include <iterator>
#include <variant>

namespace lcdhost {
namespace {

/// A name and the getter of one value.
template <class Config> struct Value {
    const char* name;
    std::variant<int (Config::*)(), QString (Config::*)()> getter;
};

using Factory = Lcd::ILcdConfig;
using User = Lcd::ILcdLanguageConfig;

// clang-format off
const Value<Factory> FACTORY[] = {
    {"Language",                          &Factory::getLanguage},
    {"Default language",                  &Factory::getDefaultLanguage},
    {"Return to home",                    &Factory::getReturnToHomeTime},
    {"User mode",                         &Factory::getUserModeSettingValue},
    {"Lock status",                       &Factory::getDevLockStatusValue},
    {"Light on, support",                 &Factory::getLightOnSupportValue},
    {"Light breath, support",             &Factory::getLightBreathSupportValue},
    {"Light colour",                      &Factory::getLightColorValue},
    {"Aspect ratio",                      &Factory::getAspectRatioValue},
    {"Key sampling",                      &Factory::getKeySamplingTime},
    {"Key sender address",                &Factory::getKeySenderIp},
    {"HTTP port",                         &Factory::getHttpPort},
    {"WebSocket port",                    &Factory::getWebSocketPort},
    {"Screen width",                      &Factory::getScreenWidth},
    {"Scale, support",                    &Factory::getSupportScale},
    {"Partition, support",                &Factory::getUISupportPartition},
    {"Centred title, support",            &Factory::getTitleSupportCenter},
    {"Menu hiding, support",              &Factory::getSupprotMenuHide},
    {"Player connector type",             &Factory::getPlaySupportConnectorType},
    {"Capacity display, support",         &Factory::getSupprotLSourceCapacityDisplay},
    {"Assessment, support",               &Factory::getSupportAssess},
    {"Upgrade waiting dialog, support",   &Factory::getSupportUpgradeWaitDlg},
    {"USB keyboard, support",             &Factory::getSupportUsbKeyboard},
    {"Domestic device",                   &Factory::getDomesticDevice},
    {"Relative storage path",             &Factory::getDeviceRelativePath},
    {"Company mail",                      &Factory::getCompanyMailDefault},
    {"Company address",                   &Factory::getCompanyAddressDefault},
    {"Background",                        &Factory::getSwitchBackGround},
};

const Value<User> USER[] = {
    {"Language",                          &User::getLanguage},
    {"Return to home",                    &User::getReturnToHomeTime},
    {"User mode",                         &User::getUserModeSettingValue},
    {"Lock status",                       &User::getDevLockStatusValue},
    {"Start trigger of recording",        &User::getStartRecordStreamTriggerType},
    {"Stop trigger of recording",         &User::getStopRecordStreamTriggerType},
    {"Source order",                      &User::getSourceSortType},
    {"Jump flag",                         &User::getJumpFlag},
    {"Screen light",                      &User::getScreenLight},
    {"Knob time-out",                     &User::getKnobTimeOut},
    {"Multi-view exit time-out",          &User::getBackExitMVRTimeOut},
    {"T-bar tolerance",                   &User::getTBarTolerance},
};
// clang-format on

template <class Config> QString read(Config& config, const Value<Config>& value)
{
    if (const auto* const getter = std::get_if<int (Config::*)()>(&value.getter)) return number((config.**getter)());
    const QString text = (config.*std::get<QString (Config::*)()>(value.getter))();
    return text.isEmpty() ? "-" : text;
}

void addKey(Table& table, int index, const QString& value)
{
    table.add({QString("Function button %1").arg(index), value});
}

void tellFactory(const Session& session, Page& page, int functionKeys)
{
    Factory& config = session.settings();
    Table table({words("Setting"), words("Value")});
    for (const auto& value : FACTORY) table.add({value.name, read(config, value)});
    const auto [offColour, brightness] = config.getOffLightColorValue();
    table.add({"Off light, colour", number(offColour)});
    table.add({"Off light, brightness", number(brightness)});
    table.add({"Connector types not in the input list",
               listed(config.getInputListNoSupportConnectorType(), [](int type) { return number(type); })});
    for (int index = 0; index < functionKeys; ++index) addKey(table, index, number(config.getFnSettingValue(index)));
    page.heading("Factory settings");
    table.print(page);

    page.heading("Programme edit status");
    Table statuses({numbers("Work mode"), numbers("Factory"), numbers("Current")});
    for (const auto& [workMode, status] : config.getPgmEditStatus())
        statuses.add({number(workMode), number(status), number(config.getCurrentPgmEditStatus(workMode))});
    statuses.print(page, "none");
}

/// A camera setting as it may be shown: no password reaches a terminal or a log.
QString shownCamera(int entry, const QString& value)
{
    constexpr int PASSWORD = 4;
    if (entry == PASSWORD) return value.isEmpty() ? value : "(hidden)";
    const QUrl url(value);
    return url.password().isEmpty() ? value : url.toString(QUrl::RemovePassword);
}

void tellUser(const Session& session, Page& page, int functionKeys)
{
    User& config = session.userSettings();
    Table table({words("Setting"), words("Value")});
    for (const auto& value : USER) table.add({value.name, read(config, value)});
    const auto [min, max] = config.getTBarCalibration();
    table.add({"T-bar calibration", QString("%1 to %2").arg(min).arg(max)});
    const QStringList camera{"address", "main stream", "sub stream", "manufacturer", "password", "port", "user"};
    for (const auto& [entry, value] : config.getRTSPSettingPara())
        table.add({"Camera " + camera.value(entry), shownCamera(entry, value)});
    for (int index = 0; index < functionKeys; ++index)
        if (config.hasFnSettingValue(index))
            addKey(table, index,
                   QString("%1, target %2 of type %3")
                       .arg(config.getFnSettingValue(index))
                       .arg(config.getFnSettingTargetValue(index))
                       .arg(config.getFnSettingTargetTypeValue(index)));
    for (const Lcd::s_SourceCustomSort& sort : config.getSourceCustomSort())
        table.add({QString("Source order, %1_%2").arg(sort.first).arg(sort.second), number(sort.value)});
    page.heading("User settings");
    table.print(page);
}

} // namespace

int countSettings() { return int(std::size(FACTORY)); }

bool runSettings(Session& session, const Options& options, Console& console)
{
    session.load(Catalogue::Settings);
    // The function keys tell how many bindings there are to ask for; without them it is the usual number.
    if (session.has(Catalogue::FunctionKeys)) session.load(Catalogue::FunctionKeys);
    const int told = session.isLoaded(Catalogue::FunctionKeys) ? session.functionKeys().findFNBtnMaxCount() : 6;
    const int keys = std::min(told, 256);
    if (session.isLoaded(Catalogue::Settings))
        tellFactory(session, console.out, keys);
    else
        console.out.line("There are no factory settings.");
    if (!options.userSettings) return true;

    Session::takeWarnings();
    const bool opened = session.userSettings().readConfig();
    for (const QString& warning : Session::takeWarnings()) console.complaints.line(warning);
    if (opened) tellUser(session, console.out, keys);
    return opened;
}

} // namespace lcdhost
