// The slot file: its required elements, the differences between the classes of card, and its walks. And the lives of
// the readers that are made on first use.
#include "layerconfig.h"
#include "screenconfigmanager.h"
#include "silkconfigmanager.h"
#include "slotconfigmanager.h"
#include "support.h"

#include <QPointer>

using namespace LCD::MainConfig;
using namespace LCD::MainConfigImpl;

namespace {

/// The error text of a file with this element below the root; empty when the file is taken.
QString read(const QString& body, s_DCSSolt& out)
{
    const Folder folder;
    QString error;
    const bool good = SlotConfigManager::instance()->parseDeviceSlotcfg(
        folder.write("slot.xml", "<DCS version='1.0'>" + body + "</DCS>"), error, out);
    return good == error.isEmpty() ? error : "a result that does not fit the text";
}

/// A class: its attributes, the indexes of its slots, the cards that it takes, and of its first slot the cards, with
/// connector groups.
QString shape(const s_SlotAttr& one)
{
    QString text = QString("%1 %2 %3:").arg(one.silkScreenName.c_str()).arg(one.pluginDirection).arg(one.interfaceType);
    for (const s_Slot& slot : one.slots) text += QString(" #%1").arg(slot.index);
    for (const s_SlotSubcard& card : one.subcards) text += QString(" %1").arg(card.moduleId);
    for (const s_InlineSubcard& card : one.slots.at(0).subcards) text += QString(" #4:%1").arg(card.moduleId);
    for (const s_SlotConnectorGroup& group : one.slots.at(0).subcards.at(0).connectorGroups)
        text += QString(" =%1%2").arg(group.value).arg(group.groupName.c_str());
    return text;
}

} // namespace

class TestSlots : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void replacesTheRecordOrLeavesIt();
    void readsEachClassInItsOwnWay();
    void readersAreMadeOnceAndAgain();
};

void TestSlots::replacesTheRecordOrLeavesIt()
{
    s_DCSSolt out;
    out.reservedCardSlots.slots.resize(7);
    QCOMPARE(read("", out), QString("Invalid [Device] node."));
    QCOMPARE(read("<Device/>", out), QString("Invalid [Slots] node."));
    QCOMPARE(read("<Device><Slots/></Device>", out), QString("Invalid [MainControlCardSlots] node."));
    QCOMPARE(int(out.reservedCardSlots.slots.size()), 7);
    QCOMPARE(read("<Device><Slots><MainControlCardSlots/></Slots></Device>", out), QString());
    QVERIFY(out.reservedCardSlots.slots.empty());
}

/// Whatever follows the first "Slot" is walked as one more slot, so "Subcards" too, and the same holds for the other
/// lists; what stands before the first one of its tag is passed over.
void TestSlots::readsEachClassInItsOwnWay()
{
    const QString xml = R"(<%1CardSlots SilkScreenName="%1" PluginDirection="2" InterfaceType="3"><Note/>
        <Slot Index="4"><Subcards><Note/><Subcard ModuleId="4294967296">
        <ConnectorGroups><Note/><ConnectorGroup Value="1" GroupName="A"/><Other Value="2"/></ConnectorGroups>
        <More><ConnectorGroup Value="3"/></More></Subcard><Any ModuleId="-2"/></Subcards></Slot><Slot Index="4"/><Slot/>
        <Subcards><Note/><Subcard ModuleId="2147483648"/><Any ModuleId="-1"/></Subcards></%1CardSlots>)";
    // Slots: without an index they are 0, and left out of the inputs. The cards of the class: an int with its sign, and
    // 64 bits for the main control. Those of a slot: 64 bits, with a sign and connector groups for the mixed slots.
    // clang-format off
    const std::tuple<const char*, s_SlotAttr s_Slots::*, const char*> classes[] = {
        {"MainControl", &s_Slots::mainControlCardSlots, "#4 #4 #0 #0 2147483648 0 #4:4294967296 #4:0"},
        {"Input",       &s_Slots::inputCardSlots,       "#4 #4 0 18446744073709551615 #4:4294967296 #4:0"},
        {"Output",      &s_Slots::outputCardSlots,      "#4 #4 #0 #0 0 18446744073709551615 #4:4294967296 #4:0"},
        {"Mix",         &s_Slots::mixCardSlots, "#4 #4 #0 #0 0 18446744073709551615 #4:4294967296 #4:18446744073709551614 =1A =2 =3"},
        {"MVR",         &s_Slots::mvrCardSlots,         "#4 #4 #0 #0 0 18446744073709551615 #4:4294967296 #4:0"},
        {"AUX",         &s_Slots::auxCardSlots,         "#4 #4 #0 #0 0 18446744073709551615 #4:4294967296 #4:0"},
        {"EXP",         &s_Slots::expCardSlots,         "#4 #4 #0 #0 0 18446744073709551615 #4:4294967296 #4:0"}};
    // clang-format on
    QString body;
    for (const auto& row : classes) body += xml.arg(std::get<0>(row));
    s_DCSSolt all;
    QCOMPARE(read("<Device><Slots>" + body + "</Slots></Device>", all), QString());
    for (const auto& [name, member, expected] : classes)
        QCOMPARE(shape(all.*member), QString("%1 2 3: %2").arg(name, expected));
}

void TestSlots::readersAreMadeOnceAndAgain()
{
    const auto live = [](auto instance, auto destroyInstance) {
        const QPointer<QObject> object(instance());
        QVERIFY(object && instance() == object.data());
        destroyInstance();
        QVERIFY(object.isNull());
    };
    for (int life = 1; life <= 2; ++life) {
        live(&SlotConfigManager::instance, &SlotConfigManager::destroyInstance);
        live(&SilkConfigManager::instance, &SilkConfigManager::destroyInstance);
        live(&ScreenConfigManager::instance, &ScreenConfigManager::destroyInstance);
        live(&LayerConfigManager::instance, &LayerConfigManager::destroyInstance);
    }
}

QTEST_GUILESS_MAIN(TestSlots)
#include "test_slots.moc"
