// The built plug-in as a host meets it: its exports, its record, its component table, the entry order of its
// interfaces, and the look-up of one component by another. Nothing of the library is linked in here but its public
// headers.
#include "common/layout.h"
#include "interfaces.h"
#include "kpmhost.h"
#include "standinhost.h"
#include "support.h"

#include <QProcess>

#include <array>
#include <bit>
#include <typeinfo>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// The components in the order of the table: id and class.
const char* const COMPONENTS[][2] = {
    {"lcd.menuconfig", "MenuConfig"},
    {"lcd.connectorconfig", "ConnectorConfig"},
    {"lcd.deviceconfig", "DeviceConfig"},
    {"lcd.subcardconfig", "SubcardConfig"},
    {"lcd.keycheckconfig", "KeyCheckConfig"},
    {"lcd.lockareaconfig", "LockAreaConfig"},
    {"lcd.lcdconfig", "LcdConfig"},
    {"lcd.fnbuttonconfig", "FNButtonConfig"},
    {"lcd.lcdlanguageconfig", "LcdLanguageConfig"},
};

/// Whether each operation stands at its place in the table of entries, which a member pointer of this compiler tells.
template <class... Operations> bool standInOrder(const std::tuple<Operations...>& operations)
{
    std::ptrdiff_t entry = 1 + 2 * sizeof(void*); // Behind the two entries of the virtual destructor.
    const auto stands = [&entry](const auto& operation) {
        return std::bit_cast<std::array<std::ptrdiff_t, 2>>(operation)[0] ==
               std::exchange(entry, entry + std::ptrdiff_t(sizeof(void*)));
    };
    return std::apply([&](const auto&... each) { return (stands(each) && ...); }, operations);
}

QStringList nm(const QStringList& arguments)
{
    QProcess process;
    process.start("nm", arguments + QStringList{"--defined-only", PLUGIN_PATH});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).remove("[abi:cxx11]").trimmed().split('\n');
}

template <class Function> Function* symbol(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(dlopen(PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL), name));
}

} // namespace

class TestPlugin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exportsThreeSymbols();
    void introducesItself();
    void listsItsComponents();
    void keepsTheEntryOrder();
    void endsWithoutAHost_data();
    void endsWithoutAHost();
    void isDestroyedWithItsHost();
    void canBeUnloaded();
};

void TestPlugin::exportsThreeSymbols()
{
    QCOMPARE(nm({"-D"}).replaceInStrings(QRegularExpression(".* "), {}),
             QStringList({"lcdmainconfigimpl_kpm_componentInfoTable", "pluginfo", "pluginit"}));
}

void TestPlugin::introducesItself()
{
    const auto* const before = symbol<kpm::PluginInfoFunction>("pluginfo")();
    const kpm::PluginInfo copy = *before;
    kpmhost::Host host;
    QVERIFY2(host.load(PLUGIN_PATH), host.error().c_str());
    QCOMPARE(host.info(), before);
    QCOMPARE(memcmp(&copy, before, sizeof copy), 0);
    QCOMPARE(sizeof copy, 5 * sizeof(void*));
    QCOMPARE(copy.formatVersion, "0.1");
    QCOMPARE(copy.name, "lcdmainconfigimpl");
    QCOMPARE(copy.version, "1.0.0");
    QCOMPARE(copy.metadata, "{\"end\":0 }");
    QCOMPARE(copy.componentTable, symbol<kpm::ComponentInfo* const>("lcdmainconfigimpl_kpm_componentInfoTable"));
}

void TestPlugin::listsItsComponents()
{
    auto* const* entry = symbol<kpm::PluginInfoFunction>("pluginfo")()->componentTable;
    for (const auto& [id, name] : COMPONENTS) {
        const kpm::ComponentInfo& component = **entry++;
        QCOMPARE(component.id, id);
        QCOMPARE(component.metadata, "{\"end\":0 }\r\n");
        void* const objects[] = {component.creator(), component.creator(), nullptr};
        QVERIFY(objects[0] != nullptr && objects[1] != nullptr && objects[0] != objects[1]);
        for (void* const object : objects) {
            QVERIFY(component.getMessageHandler(object) == nullptr);
            component.deletor(object);
        }
    }
    QVERIFY(*entry == nullptr);
}

void TestPlugin::keepsTheEntryOrder()
{
    using namespace interfaces;
    QVERIFY(standInOrder(menu<>) && standInOrder(connectors<>) && standInOrder(devices<>) && standInOrder(cards<>));
    QVERIFY(standInOrder(keyChecks<>) && standInOrder(lockAreas<>) && standInOrder(functionKeys<>));
    QVERIFY(standInOrder(settings<>) && standInOrder(userSettings<>));
    // The object that a component makes is of its class.
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    for (const auto& [id, name] : COMPONENTS)
        QVERIFY2(QByteArray(typeid(*host.component<IMenuConfig>(id)).name()).endsWith(QByteArray(name) + 'E'), id);
}

void TestPlugin::endsWithoutAHost_data()
{
    QTest::addColumn<QString>("component");
    QTest::addColumn<bool>("hasHost");
    QTest::addColumn<QString>("lastWords");
    // clang-format off
    QTest::newRow("cards, no host")                       << "lcd.subcardconfig"   << false << "no host to ask for \"lcdDeviceConfig\"";
    QTest::newRow("connectors, no host")                  << "lcd.connectorconfig" << false << "no host to ask for \"lcdSubcardConfig\"";
    QTest::newRow("cards, host that serves nothing")      << "lcd.subcardconfig"   << true  << "no component serves \"lcdDeviceConfig\"";
    QTest::newRow("connectors, host that serves nothing") << "lcd.connectorconfig" << true  << "no component serves \"lcdSubcardConfig\"";
    QTest::newRow("devices ask nobody")                   << "lcd.deviceconfig"    << false << "";
    // clang-format on
}

void TestPlugin::endsWithoutAHost()
{
    QFETCH(QString, component);
    QFETCH(bool, hasHost);
    kpmhost::Host host;
    QVERIFY(host.load(PLUGIN_PATH));
    int words[2];
    QCOMPARE(pipe(words), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(words[1], 3);
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
            if (type != QtFatalMsg || write(3, text.toUtf8(), std::size_t(text.size())) < 0) return;
            _exit(1);
        });
        StandInHost servesNothing;
        symbol<kpm::PluginInitFunction>("pluginit")(hasHost ? kpm::api::get().service : nullptr);
        QString error;
        for (const lcdcommon::Folder& folder : lcdcommon::folders())
            if (folder.component == component) folder.read(host.component(folder.component), {}, error);
        _exit(0);
    }
    close(words[1]);
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QFile said;
    QVERIFY(said.open(words[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) && WIFEXITED(status));
    QTEST(QString::fromUtf8(said.readAll()), "lastWords");
}

/// The last component first, since a later one may use an earlier one to its end.
void TestPlugin::isDestroyedWithItsHost()
{
    static QStringList destroyed;
    QStringList made;
    {
        kpmhost::Host host;
        QVERIFY(host.load(PLUGIN_PATH));
        for (auto* const* entry = host.info()->componentTable; *entry != nullptr; ++entry) {
            made.prepend((*entry)->id);
            (*entry)->deletor = [id = (*entry)->id, destroy = (*entry)->deletor](void* object) {
                destroyed.append(id);
                destroy(object);
            };
        }
    }
    QCOMPARE(destroyed, made);
}

/// In a process of its own, since this one keeps the plug-in open.
void TestPlugin::canBeUnloaded()
{
    const QTemporaryDir root;
    QVERIFY(QProcess::execute("cp", {"-rT", EXAMPLES_PATH "/halcyon", root.path()}) == 0);
    const pid_t child = fork();
    if (child == 0) {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext& /*where*/, const QString& /*text*/) {});
        {
            kpmhost::Host host;
            if (!host.load(PLUGIN_PATH)) _exit(1);
            QString error;
            for (const lcdcommon::Folder& folder : lcdcommon::folders()) {
                const bool isDevices = folder.catalogue == lcdcommon::Catalogue::Devices;
                const QString path =
                    isDevices ? lcdcommon::deviceFolders(root.path()).value(0) : lcdcommon::pathOf(root.path(), folder);
                if (!folder.read(host.component(folder.component), path, error)) _exit(3);
            }
        }
        void* library = nullptr;
        for (int closed = 0; closed < 1000 && (library = dlopen(PLUGIN_PATH, RTLD_NOW | RTLD_NOLOAD)); ++closed) {
            dlclose(library);
            dlclose(library);
        }
        _exit(library != nullptr ? 2 : 0);
    }
    int status = -1;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
}

QTEST_GUILESS_MAIN(TestPlugin)
#include "test_plugin.moc"
