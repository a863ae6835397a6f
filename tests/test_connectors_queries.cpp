// What the connector catalogue answers: the resolutions that a connector offers, which of several connectors counts,
// and the shipped example through the component itself.
#include "connectorconfig_impl.h"
#include "standincards.h"
#include "standinhost.h"
#include "support.h"

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::ConnectorConfig;

namespace {

using Sizes = std::vector<s_resolutionResolutionRatio>;
using Modes = std::vector<std::pair<int, Sizes>>;

/// A connector with one interface that knows these modes, each with what it disables there.
s_ConnectorCfg connector(int type, int interfaceType, const Modes& modes)
{
    s_ConnectorCfg made;
    made.type = type;
    made.interfaces.push_back({interfaceType, {}});
    for (const auto& [value, disables] : modes) {
        s_CapacityModeInInterface mode;
        mode.value = value;
        mode.resolutionRatios.disables = disables;
        made.interfaces[0].capacityModes.push_back(mode);
    }
    return made;
}

/// The mode of medium sizes has no list, or an empty one, when told.
ConnectorConfig::Impl catalogue(const QString& medium)
{
    ConnectorConfig::Impl made;
    auto& modes = made.resolutions.capacityModes;
    modes.push_back({0, {{800, 600}, {1024, 768}, {1920, 1080}, {1920, 1080, 0, 0}}});
    if (medium != "missing") modes.push_back({1, {{2560, 1440}, {3840, 2160}}});
    if (medium == "empty") modes.back().resolutions.clear();
    modes.push_back({2, {{3840, 2160}, {4096, 2160}}});
    made.connectors.push_back({{connector(1, 3, {{0, {{1024, 768}}}, {1, {{800, 600, 9, 9}}}, {2, {}}})}});
    made.connectors.push_back({{connector(2, 2, {{1, {{2560, 1440}}}})}});
    made.connectors.push_back({{connector(3, 1, {{0, {}}, {1, {}}, {2, {{3840, 2160}, {800, 768}}}})}});
    return made;
}

QString listed(const Sizes& sizes)
{
    QStringList all;
    for (const auto& size : sizes) all.append(QStringLiteral("%1x%2").arg(size.width).arg(size.height));
    return all.join(' ');
}

} // namespace

class TestConnectorsQueries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersResolutions_data();
    void offersResolutions();
    void looksBeyondTheFirstConnector();
    void answersFromTheExample();
};

void TestConnectorsQueries::offersResolutions_data()
{
    QTest::addColumn<QString>("medium");
    QTest::addColumn<int>("capacityMode");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mask");
    QTest::addColumn<QString>("offered");
    const QString small = "800x600 1920x1080 1920x1080";
    const QString upTo1 = "1920x1080 1920x1080 2560x1440 3840x2160";
    const QString upTo2 = upTo1 + " 3840x2160 4096x2160";
    // clang-format off
    QTest::newRow("a higher mode disables nothing")           << "there"   << 0  << 1 << 1 << small;
    QTest::newRow("a mode disables in the lower ones")        << "there"   << 1  << 1 << 2 << upTo1;
    QTest::newRow("duplicates stay")                          << "there"   << 2  << 1 << 3 << upTo2;
    QTest::newRow("a mode above 2 is 2")                      << "there"   << 9  << 1 << 5 << upTo2;
    QTest::newRow("negative mode")                            << "there"   << -1 << 1 << 1 << "";
    QTest::newRow("the mask misses")                          << "there"   << 2  << 1 << 4 << "";
    QTest::newRow("mask 0")                                   << "there"   << 2  << 1 << 0 << "";
    QTest::newRow("a mode that the connector doesn't know")   << "there"   << 2  << 2 << 2 << "3840x2160";
    QTest::newRow("disabled in every mode, by both numbers")  << "there"   << 2  << 3 << 1 << "800x600 1024x768 1920x1080 1920x1080 2560x1440 4096x2160";
    QTest::newRow("an empty list takes its disables along")   << "empty"   << 1  << 1 << 1 << small;
    QTest::newRow("a missing list takes its disables along")  << "missing" << 1  << 1 << 1 << small;
    QTest::newRow("unknown type")                             << "there"   << 2  << 7 << 1 << "";
    // clang-format on
}

void TestConnectorsQueries::offersResolutions()
{
    QFETCH(QString, medium);
    QFETCH(int, capacityMode);
    QFETCH(int, type);
    QFETCH(int, mask);
    const LogLines lines;
    const ConnectorConfig::Impl connectors = catalogue(medium);
    QTEST(listed(connectors.findConnectorResolutions(capacityMode, type, mask)), "offered");
    QCOMPARE(lines.taken(), medium == "missing" ? QStringList("not find capacityMode: 1") : QStringList());
    // A mode hands out its disables even when its standard list is missing, but not when the connector lacks it.
    Sizes disables{{1, 1}};
    connectors.findConnectorStandardResolution(3, 1, 1, disables);
    QCOMPARE(listed(disables), QString("1x1"));
    connectors.findConnectorStandardResolution(1, 1, 1, disables);
    QCOMPARE(listed(disables), QString("800x600"));
}

void TestConnectorsQueries::looksBeyondTheFirstConnector()
{
    s_ConnectorCfg first = connector(1, 2, {{0, {{1, 1}}}});
    s_ConnectorCfg second = connector(1, 2, {{0, {}}, {1, {{2, 2}}}});
    first.capacityMode.support = 2;
    first.edid.support = 1;
    first.hpds.interfaces.push_back({{}, 3, {{}, 1}});
    first.presetTimings.push_back({1, {}, {}, {}, {}, 1.0F, {10}, {}, {}});
    second.capacityMode.support = 1;
    second.hpds.interfaces = {{{}, 1, {{}, 1}}, {{}, 2, {{}, 2}}};
    second.presetTimings.push_back({6, {}, {}, {}, {}, 2.0F, {20}, {}, {}});
    ConnectorConfig::Impl connectors;
    connectors.connectors = {{{first}}, {}, {{second}}};

    QCOMPARE(connectors.copyOf(1, &s_ConnectorCfg::edid)->support, 1);
    QCOMPARE(connectors.hpd(1)->value, 2);
    QCOMPARE(int(connectors.outputCapacityModes(1)->size()), 2);
    QCOMPARE(listed(connectors.resolutionRatios(0, 1, 2)->disables), QString("1x1"));
    QCOMPARE(listed(connectors.resolutionRatios(1, 1, 2)->disables), QString("2x2"));
    QCOMPARE(connectors.presetTiming(1, 3)->refreshValues, std::vector<int>{10});
    QCOMPARE(connectors.presetTiming(1, 2)->refreshValues, std::vector<int>{20});
    QVERIFY(!connectors.presetTiming(1, 0) && !connectors.hpd(2));
}

void TestConnectorsQueries::answersFromTheExample()
{
    standin::Cards cards{1, 2, 3, 4, 5, 6, 7, 8, 9};
    StandInHost host;
    host.serve<ISubcardConfig>("lcdSubcardConfig", cards);
    const LogLines lines;
    ConnectorConfig connectors;
    QString error;
    QVERIFY2(connectors.readConfig(EXAMPLES_PATH "/halcyon/connectors", error), qPrintable(error));
    for (int type = 1; type <= 9; ++type) QVERIFY(!connectors.findConnectorTypeName(type).empty());
    QCOMPARE(error + lines.taken().join(' '), QString());

    QCOMPARE(connectors.findConnectorTypeName(9), std::string("USB媒体播放器"));
    QCOMPARE(connectors.findHPDInfo(2)->value, 500);
    QVERIFY(!connectors.findHPDInfo(3));
    QCOMPARE(connectors.findHDRInfo(1)->editable, -1);
    QCOMPARE(connectors.findResoluCapacityMode(7)->at(1).bandWidth.max, std::int64_t(340000));
    QCOMPARE(connectors.findConnectorDefaultResolution(1, 6, 1)->width.value, 2560);
    QCOMPARE(listed(connectors.findConnectorResolutionRatios(1, 7, 2)->disables), QString("4096x2160"));
    QCOMPARE(listed(connectors.findConnectorResolutions(1, 4, 1)),
             QString("1280x720 1920x1080 1920x1080 3840x2160 4096x2160"));
    QCOMPARE(connectors.findConnectorRates(7, 2).refreshValues.at(0), 2398);
    QCOMPARE(connectors.findConnectorTiming(8, 8).bandWidth.max, 148500);
    QVERIFY(!connectors.findEDIDInfo(10) && !connectors.findConnectorDefaultResolution(2, 6, 1));
    QCOMPARE(connectors.findConnectorTypeName(10), std::string());
    QCOMPARE(connectors.findConnectorRates(8, 7).refresh.editable, -1);
    QCOMPARE(connectors.findConnectorTiming(8, 7).type, 0);
}

QTEST_GUILESS_MAIN(TestConnectorsQueries)
#include "test_connectors_queries.moc"
