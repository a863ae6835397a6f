// The slot file: its required elements, the differences between the classes of card, and its walks.
#include "slotconfigmanager.h"
#include "support.h"

using namespace LCD::MainConfig;
using LCD::MainConfigImpl::SlotConfigManager;

namespace {

/// A slot file with one element under "Slots" beside the main control's.
QString slotFile(const QString& extra, const QString& mainControl = QStringLiteral("<MainControlCardSlots/>"))
{
    return QStringLiteral("<DCS version=\"1.0\"><Device><Slots>%1%2</Slots></Device></DCS>").arg(mainControl, extra);
}

s_DCSSolt read(const QString& xml)
{
    const Folder folder;
    s_DCSSolt out;
    QString error;
    if (!SlotConfigManager::instance()->parseDeviceSlotcfg(folder.write("slot.xml", xml), error, out))
        qFatal("%s", qPrintable(error));
    return out;
}

} // namespace

class TestSlots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusesAFile_data();
    void refusesAFile();
    void readsEachClassInItsOwnWay_data();
    void readsEachClassInItsOwnWay();
    void readsOneClassWhole();
};

void TestSlots::refusesAFile_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("message");
    QTest::newRow("no Device") << "<DCS/>"
                               << "Invalid [Device] node.";
    QTest::newRow("no Slots") << "<DCS><Device/></DCS>"
                              << "Invalid [Slots] node.";
    QTest::newRow("no main control") << slotFile("<InputCardSlots/>", {}) << "Invalid [MainControlCardSlots] node.";
}

void TestSlots::refusesAFile()
{
    QFETCH(QString, xml);
    const Folder folder;
    s_DCSSolt out;
    out.expCardSlots.pluginDirection = 7;
    QString error;
    QVERIFY(!SlotConfigManager::instance()->parseDeviceSlotcfg(folder.write("slot.xml", xml), error, out));
    QTEST(error, "message");
    QCOMPARE(out.expCardSlots.pluginDirection, 7);
}

void TestSlots::readsEachClassInItsOwnWay_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("slotsKept");
    QTest::addColumn<quint64>("bigClassModule");
    QTest::addColumn<quint64>("bigSlotModule");
    QTest::addColumn<int>("groups");
    const quint64 big = 18446744073709551615ULL;
    QTest::newRow("main control: all 64 bits") << "MainControlCardSlots" << 2 << big << big << 0;
    QTest::newRow("input: no slot without an index") << "InputCardSlots" << 1 << quint64(0) << big << 0;
    QTest::newRow("output") << "OutputCardSlots" << 2 << quint64(0) << big << 0;
    QTest::newRow("mix: signed, with groups") << "MixCardSlots" << 2 << quint64(0) << quint64(0) << 3;
    QTest::newRow("multi-view") << "MVRCardSlots" << 2 << quint64(0) << big << 0;
    QTest::newRow("auxiliary") << "AUXCardSlots" << 2 << quint64(0) << big << 0;
    QTest::newRow("expansion") << "EXPCardSlots" << 2 << quint64(0) << big << 0;
}

void TestSlots::readsEachClassInItsOwnWay()
{
    QFETCH(QString, tag);
    const QString body = QStringLiteral(R"(<%1><Slot Index="4"><Subcards><Subcard ModuleId="18446744073709551615">
        <ConnectorGroups><ConnectorGroup Value="1" GroupName="A"/><Other Value="2"/></ConnectorGroups>
        <More><ConnectorGroup Value="3" GroupName="C"/></More></Subcard></Subcards></Slot><Slot/>
        <Subcards><Subcard ModuleId="18446744073709551615"/><Subcard ModuleId="-1"/></Subcards></%1>)")
                             .arg(tag);
    const bool isMain = tag == "MainControlCardSlots";
    const s_DCSSolt all = isMain ? read(slotFile({}, body)) : read(slotFile(body));
    const QMap<QString, s_SlotAttr> classes{{"MainControlCardSlots", all.mainControlCardSlots},
                                            {"InputCardSlots", all.inputCardSlots},
                                            {"OutputCardSlots", all.outputCardSlots},
                                            {"MixCardSlots", all.mixCardSlots},
                                            {"MVRCardSlots", all.mvrCardSlots},
                                            {"AUXCardSlots", all.auxCardSlots},
                                            {"EXPCardSlots", all.expCardSlots}};
    const s_SlotAttr attr = classes[tag];
    // "Subcards" follows the last "Slot", and so is walked as one more slot; it has no index.
    QFETCH(int, slotsKept);
    QCOMPARE(int(attr.slots.size()), tag == "InputCardSlots" ? slotsKept : slotsKept + 1);
    QCOMPARE(attr.slots[0].index, 4);
    QCOMPARE(int(attr.slots[0].subcards.size()), 1);
    QTEST(quint64(attr.slots[0].subcards[0].moduleId), "bigSlotModule");
    QTEST(int(attr.slots[0].subcards[0].connectorGroups.size()), "groups");
    QTEST(quint64(attr.subcards[0].moduleId), "bigClassModule");
    QCOMPARE(quint64(attr.subcards[1].moduleId), isMain ? quint64(0) : 18446744073709551615ULL);
}

void TestSlots::readsOneClassWhole()
{
    const s_DCSSolt all = read(slotFile(R"(<AUXCardSlots SilkScreenName="AUX" PluginDirection="2" InterfaceType="x">
        <Note/><Slot Index="9"/><Slot Index="9"><Subcards><Subcard ModuleId="5"/><Any ModuleId="6"/></Subcards></Slot>
        </AUXCardSlots>)"));
    const s_SlotAttr& aux = all.auxCardSlots;
    QCOMPARE(aux.silkScreenName, std::string("AUX"));
    QCOMPARE(aux.pluginDirection, 2);
    QCOMPARE(aux.interfaceType, 0);
    QCOMPARE(int(aux.slots.size()), 2);
    QVERIFY(aux.slots[0].subcards.empty());
    QCOMPARE(quint64(aux.slots[1].subcards[1].moduleId), quint64(6));
    QVERIFY(aux.subcards.empty());
    QVERIFY(all.reservedCardSlots.slots.empty());
}

QTEST_GUILESS_MAIN(TestSlots)
#include "test_slots.moc"
