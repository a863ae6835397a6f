// The command that shows the panel's settings: what the factory set, and on demand what the user set.
#include "lcdhost_settings.h"

#include "lcdhost_commands.h"

#include <QUrl>

#include <algorithm>
#include <functional>
#include <iterator>

namespace lcdhost {
namespace {

/// A title and the getter of one value.
template <class Config> struct Value {
    template <class Getter>
    Value(const char* name, Getter getter)
        : title(name), read([getter](Config& config) { return QJsonValue((config.*getter)()); })
    {}

    const char* title;
    std::function<QJsonValue(Config&)> read;
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

template <class Config, std::size_t COUNT> Facts factsOf(Config& config, const Value<Config> (&values)[COUNT])
{
    Facts facts;
    for (const Value<Config>& value : values) {
        const QJsonValue read = value.read(config);
        facts.add(value.title, read == QJsonValue("") ? Cell(read, "-") : Cell(read));
    }
    return facts;
}

QString functionButton(int index) { return QString("Function button %1").arg(index); }

void answerFactory(const Session& session, Answer& answer, int functionKeys)
{
    Factory& config = session.settings();
    Facts facts = factsOf(config, FACTORY);
    const auto [offColour, brightness] = config.getOffLightColorValue();
    facts.add("Off light, colour", offColour);
    facts.add("Off light, brightness", brightness);
    facts.add("Connector types not in the input list", jsonArray(config.getInputListNoSupportConnectorType()));
    for (int index = 0; index < functionKeys; ++index)
        facts.add(functionButton(index), config.getFnSettingValue(index));
    answer.add("Factory settings", facts);

    Records statuses({numbers("Work mode"), numbers("Factory"), numbers("Current")});
    for (const auto& [workMode, status] : config.getPgmEditStatus())
        statuses.add({workMode, status, config.getCurrentPgmEditStatus(workMode)});
    answer.add("Programme edit status", statuses, "none");
}

/// A camera setting as it may be shown: no password reaches a terminal or a log.
QString shownCamera(int entry, const QString& value)
{
    constexpr int PASSWORD = 4;
    if (entry == PASSWORD) return value.isEmpty() ? value : "(hidden)";
    const QUrl url(value);
    return url.password().isEmpty() ? value : url.toString(QUrl::RemovePassword);
}

void answerUser(const Session& session, Answer& answer, int functionKeys)
{
    User& config = session.userSettings();
    Facts facts = factsOf(config, USER);
    const auto [min, max] = config.getTBarCalibration();
    facts.add("T-bar calibration", span(min, max));
    const QStringList camera{"address", "main stream", "sub stream", "manufacturer", "password", "port", "user"};
    for (const auto& [entry, value] : config.getRTSPSettingPara())
        facts.add("Camera " + camera.value(entry), shownCamera(entry, value));
    for (int index = 0; index < functionKeys; ++index)
        if (config.hasFnSettingValue(index))
            facts.add(functionButton(index), QString("%1, target %2 of type %3")
                                                 .arg(config.getFnSettingValue(index))
                                                 .arg(config.getFnSettingTargetValue(index))
                                                 .arg(config.getFnSettingTargetTypeValue(index)));
    for (const Lcd::s_SourceCustomSort& sort : config.getSourceCustomSort())
        facts.add(QString("Source order, %1_%2").arg(sort.first).arg(sort.second), sort.value);
    answer.add("User settings", facts);
}

} // namespace

int countSettings() { return int(std::size(FACTORY)); }

bool hasAnySetting(Factory& config)
{
    const auto isSet = [&config](const Value<Factory>& value) {
        const QJsonValue read = value.read(config);
        return read != QJsonValue(0) && read != QJsonValue("");
    };
    return !config.getPgmEditStatus().empty() || std::any_of(std::begin(FACTORY), std::end(FACTORY), isSet);
}

Answer runSettings(Session& session, const Options& options)
{
    session.load(Catalogue::Settings);
    // The function keys tell how many bindings there are to ask for; without them it is the usual number.
    if (session.has(Catalogue::FunctionKeys)) session.load(Catalogue::FunctionKeys);
    const int told = session.isLoaded(Catalogue::FunctionKeys) ? session.functionKeys().findFNBtnMaxCount() : 6;
    const int keys = std::min(told, 256);
    Answer answer;
    if (session.isLoaded(Catalogue::Settings))
        answerFactory(session, answer, keys);
    else
        answer.show([](Page& page) { page.line("There are no factory settings."); });
    if (!options.userSettings) return answer;

    Session::takeWarnings();
    const bool opened = session.userSettings().readConfig();
    answer.warnings = Session::takeWarnings();
    if (opened)
        answerUser(session, answer, keys);
    else
        answer.error = "The user's settings can't be opened.";
    return answer;
}

} // namespace lcdhost
