// All queries of all components from many threads at once, for the thread sanitizer.
#include "cards.h"
#include "connectorconfig.h"
#include "fnbuttonconfig.h"
#include "interfaces.h"
#include "keycheckconfig.h"
#include "lockareaconfig.h"
#include "menuconfig.h"
#include "settings_support.h"

#include <thread>

using namespace LCD::MainConfigImpl;

namespace {

/// Calls a query with these numbers, the first one for the first number that it takes; a setter is left out.
template <class Result, class... Arguments> void ask(const auto& query, int first, int other)
{
    [[maybe_unused]] const auto argument = [&]<class Argument>(Argument*) {
        if constexpr (std::is_same_v<Argument, int> || std::is_enum_v<Argument>)
            return static_cast<Argument>(std::exchange(first, other));
        else
            return Argument();
    };
    std::tuple<std::decay_t<Arguments>...> arguments{argument(static_cast<std::decay_t<Arguments>*>(nullptr))...};
    if constexpr (!std::is_void_v<Result>) std::apply(query, arguments);
}

template <class Interface, class Result, class... Arguments>
void ask(Interface& component, Result (Interface::*query)(Arguments...), int first, int other)
{
    ask<Result, Arguments...>([&](auto&... each) { (component.*query)(each...); }, first, other);
}

template <class Interface, class Result, class... Arguments>
void ask(Interface& component, Result (Interface::*query)(Arguments...) const, int first, int other)
{
    ask<Result, Arguments...>([&](auto&... each) { (component.*query)(each...); }, first, other);
}

/// Asks everything but the load, which is the first operation.
template <class Interface, class Load, class... Queries>
void askAll(Interface& component, const std::tuple<Load, Queries...>& operations)
{
    for (const int first : {0, 1, 2, 201})
        std::apply([&](Load, Queries... queries) { (ask(component, queries, first, 1), ...); }, operations);
}

} // namespace

class TestThreads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ask();
};

void TestThreads::ask()
{
    keepFilesInMemory();
    StandInSync sync;
    const QString root = EXAMPLES_PATH "/halcyon/";
    CardFixture stack;
    ConnectorConfig connectors;
    MenuConfig menu;
    FNButtonConfig functionKeys;
    KeyCheckConfig keyChecks;
    LockAreaConfig lockAreas;
    Factory settings("");
    User userSettings("");
    QVERIFY(stack.devices.readConfig(root + "devices/halcyon16", stack.error) && stack.load(root + "subcards"));
    StandInHost host;
    host.serve<LCD::MainConfig::ISubcardConfig>("lcdSubcardConfig", stack.catalogue);
    QVERIFY(connectors.readConfig(root + "connectors", stack.error) && menu.readConfig(root + "menu"));
    QVERIFY(functionKeys.readConfig(root + "fnbutton", stack.error));
    QVERIFY(keyChecks.readConfig(root + "keycheck", stack.error));
    QVERIFY(lockAreas.readConfig(root + "lockarea/lockareaconfig.xml", stack.error));

    const auto quiet = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const LCD::MainConfig::s_Device& device = stack.devices.DeviceConfigs().first();
    std::vector<std::thread> threads;
    for (int count = 0; count < 8; ++count)
        threads.emplace_back([&] {
            const auto copy = stack.devices.DeviceConfigs();
            askAll<interfaces::IDeviceConfig>(stack.devices, interfaces::devices<>);
            askAll<interfaces::ISubcardConfig>(stack.catalogue, interfaces::cards<>);
            askAll<interfaces::IConnectorConfig>(connectors, interfaces::connectors<>);
            askAll<interfaces::IMenuConfig>(menu, interfaces::menu<>);
            askAll<interfaces::IFNButtonConfig>(functionKeys, interfaces::functionKeys<>);
            askAll<interfaces::IKeyCheckConfig>(keyChecks, interfaces::keyChecks<>);
            askAll<interfaces::ILockAreaConfig>(lockAreas, interfaces::lockAreas<>);
            askAll<interfaces::ILcdConfig>(*settings, interfaces::settings<>);
            askAll<interfaces::ILcdLanguageConfig>(*userSettings, interfaces::userSettings<>);
        });
    for (std::thread& thread : threads) thread.join();
    qInstallMessageHandler(quiet);
    // What was handed out before still stands.
    QCOMPARE(&device, &stack.devices.DeviceConfigs().first());
}

QTEST_GUILESS_MAIN(TestThreads)
#include "test_threads.moc"
