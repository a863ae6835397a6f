// What the card catalogue holds and answers: every attribute in its own field, each query's own rule for several cards
// of one model, and the card files that are shipped as examples.
#include "cards.h"

#include <algorithm>
#include <numeric>

using namespace LCD::MainConfig;

namespace {

using Query = LCD::MainConfigImpl::SubcardConfig;
using Numbers = QVector<int>;

/// A field of the first entry, or of the record; 0 where there is none.
template <class List, class Field = std::identity> int head(const List& list, Field field = {})
{
    return list.empty() ? 0 : std::invoke(field, list.front());
}
template <class Record, class Field> int of(const std::shared_ptr<Record>& record, Field field)
{
    return record ? std::invoke(field, *record) : 0;
}

/// Loads a file with these cards, whatever they lack.
void fill(CardFixture& fixture, const QString& cards)
{
    fixture.addDevice({{"AUXCardSlots", "1"}});
    fixture.folder.write("cards/1.xml", "<DCS><Subcards>" + cards + "</Subcards></DCS>");
    const LogLines absentGroups;
    QVERIFY2(fixture.load(), qPrintable(fixture.error));
}

// clang-format off
// A card with every attribute. "#" stands for a number of its own each, "@" for pieces that come more than once.
const char CARD[] = R"(<Card ModelId='#' CardMode='#' InterlacedMaxCount='#'><Name><zh_CN/><en/></Name><Connectors><Other/>
<Connector @C><Other/><virtualInput @E><InputPositions><Other/><Position Value='#' InterfaceType='#'/></InputPositions>
</virtualInput></Connector><DeviceMode Value='#'><Capacitys Value='#'><Any Enable='#' Value='#'><Any @C GroupId='#'>
<DynamicRange @E Value='#' DataType='#'/><Interlaced Type='#'/><ColorSpace @E><ColorSpace @E><No/><Enum Value='#'/>
<Any Value='#'/></ColorSpace><ColorSpaceValues><Any @E Value='#'><ColorDepth @E>@V</ColorDepth></Any></ColorSpaceValues>
</ColorSpace><ColorDepth @E>@V</ColorDepth></Any></Any></Capacitys><Timing><Any Support='#' Type='#'><Any Support='#'
Type='#'><Any Support='#' Value='#'><ResolutionRatios Support='#'><ResolutionRatio><Width @R/><Height @R/></ResolutionRatio>
<AdvResolutionRatio><Horizontal>@S</Horizontal><Vertical>@S</Vertical></AdvResolutionRatio></ResolutionRatios></Any></Any>
</Any></Timing></DeviceMode><Types><Any Type='#'><Interface Type='#'><Capacitys>@V</Capacitys></Interface><InterfaceType
Type='#'/><OutputDisplay><InterfaceType Type='#'><OutputDisplay>@V</OutputDisplay></InterfaceType></OutputDisplay><HPDs>
<Any/></HPDs><HPDs Support='#'><Any Type='#' Support='#'><HPD @R/></Any></HPDs><FollowProperty @E><No/><Interface Type='#'>
<FollowInterfaceType @E>@V</FollowInterfaceType><Propertys @E>@V</Propertys></Interface></FollowProperty><PresetTiming @E>
<Interface Type='#'><WorkModes><WorkMode Value='#'><CapacityModes><CapacityMode Value='#'><Refreshs @E><Refresh @E
Value='59.94'/></Refreshs><ResolutionRatios @E><ResolutionRatio @E Width='#' Height='#' Interlaced='#'/></ResolutionRatios>
</CapacityMode></CapacityModes></WorkMode></WorkModes></Interface></PresetTiming></Any></Types></Connectors><ConnectorGroups
Value='#'><Capacity Value='#'><Any Value='#' SelectNum='#'><Any @C/></Any></Capacity><Capacity Value='0'><Any/></Capacity>
</ConnectorGroups><ConnectorGroups/><CapacityGroups><Any Enable='#' Value='#'><DeviceModes><Any Value='#'><Any Position='#'
Enable='#' Visible='#' CapacityMode='#' WorkMode='#' BackupPos='#'/></Any></DeviceModes></Any></CapacityGroups><Sections>
<Any Code='#'/></Sections><ConnectorCopy @E Value='#'><MainRelated @E><Any Enable='#' Value='#'><Any Value='#'><Any
Value='#'><Any Position='#'/></Any></Any></Any></MainRelated></ConnectorCopy></Card>)";

/// The fields of a record and of all below it, in the order of the card file.
Numbers flat(const s_SubcardConnector& c)
{
    return {c.type, c.interfaceType, c.position, c.enable, c.printKeyNo, c.visible, c.capacityMode, c.workMode, c.backupPos};
}
Numbers flat(const s_SupportInfo& info) { return {info.support, info.editable}; }
Numbers flat(const s_WidthInConnectorsDeviceModeTiming& r) { return {r.support, r.value, r.min, r.max, r.step}; }
Numbers flat(const s_HorizontalInConnectorsDeviceModeTiming& s)
{
    return flat(s.addTime) + flat(s.totalTime) + flat(s.frontPorch) + flat(s.sync);
}
Numbers flat(const s_DeviceModeInConnectors& m)
{
    const auto& c = m.capacitys.at(0).connectors.at(0);
    const auto& s = c.colorSpace;
    const auto& v = s.values.at(0);
    const auto& t = m.timing.at(0);
    const auto& i = t.interfaces.at(0);
    const auto& r = i.capacityModes.at(0).resolutionRatios;
    return Numbers{m.value, m.capacitysValue, m.capacitys[0].enable, m.capacitys[0].value} + flat(c) +
        Numbers{c.groupId, c.dynamicRange.support, c.dynamicRange.editable, c.dynamicRange.value, c.dynamicRange.dataType,
            c.interlacedType, s.support, s.editable, s.innerSupport, s.innerEditable, s.colorSpaces.at(0),
            s.colorSpaces.at(1), v.support, v.editable, v.value, v.colorDepthSupport, v.colorDepthEditable,
            v.colorDepths.at(0), c.colorDepthSupport, c.colorDepthEditable, c.colorDepths.at(0), t.support, t.type,
            i.support, i.type, i.capacityModes[0].support, i.capacityModes[0].value, r.support} +
        flat(r.width) + flat(r.height) + flat(r.horizontal) + flat(r.vertical);
}
Numbers flat(const s_ConnectorInTypes& t)
{
    const auto& h = t.hpds.interfaces.at(0);
    const auto& f = t.followProperty.interfaces.at(0);
    const auto& p = t.presetTiming.interfaces.at(0);
    const auto& m = p.workModes.at(0).capacityModes.at(0);
    const auto& r = m.resolutions.at(0);
    return Numbers{t.type, t.interfaces.at(0).type, t.interfaces[0].capacitys.at(0), t.interfaces.at(1).type,
            t.outputDisplays.at(0).type, t.outputDisplays[0].outputDisplays.at(0), t.hpds.support, h.type, h.support,
            h.hpd.support, h.hpd.value, h.hpd.min, h.hpd.max, h.hpd.step} +
        flat(t.followProperty) + Numbers{f.type} + flat(f.followInterfaceType) + Numbers{f.followInterfaceTypes.at(0)} +
        flat(f.propertys) + Numbers{f.propertyValues.at(0)} + flat(t.presetTiming) +
        Numbers{p.type, p.workModes[0].value, m.value} + flat(m.refreshs) + flat(m.refreshValues.at(0)) +
        flat(m.resolutionRatios) + flat(r) + Numbers{r.width, r.height, r.interlaced};
}
Numbers flat(const s_Subcard& card)
{
    const auto& one = card.connectors.connectors.at(0);
    const auto& g = card.capacity.connectorGroups.at(0);
    const auto& o = card.capacityGroups.at(0);
    const auto& c = o.deviceModes.at(0).connectors.at(0);
    const auto& a = card.mainRelatedCapacitys.at(0);
    const auto& b = a.deviceModes.at(0).connectorGroups.at(0);
    return Numbers{card.modelId, card.cardMode, card.interlacedMaxCount} + flat(one) + flat(one.virtualInput) +
        Numbers{one.inputPositions.at(0).value, one.inputPositions[0].interfaceType} +
        flat(card.connectors.deviceModes.at(0)) + flat(card.connectors.types.at(0)) +
        Numbers{card.capacity.value, card.capacity.capacityValue, g.value, g.selectNum} + flat(g.connectors.at(0)) +
        Numbers{o.enable, o.value, o.deviceModes[0].value, c.position, c.enable, c.visible, c.capacityMode, c.workMode,
            c.backupPos, card.sections.at(0), card.connectorCopySupport, card.connectorCopyEditable, card.connectorCopyValue,
            card.mainRelatedSupport, card.mainRelatedEditable, a.enable, a.value, a.deviceModes[0].value, b.value,
            b.connectors.at(0).position};
}
// clang-format on

} // namespace

class TestCardRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsEachField();
    void readsTextsAndOddNumbers();
    void answersForSeveralCards_data();
    void answersForSeveralCards();
    void loadsTheExample();
};

void TestCardRecords::fillsEachField()
{
    QString xml = CARD;
    xml.replace("@C", "Type='#' InterfaceType='#' Position='#' Enable='#' PrintKeyNo='#' Visible='#' CapacityMode='#' "
                      "WorkMode='#' BackupPos='#'");
    xml.replace("@S", "<AddTime @R/><TotalTime @R/><FrontPorch @R/><Sync @R/>");
    xml.replace("@R", "Support='#' Value='#' Min='#' Max='#' Step='#'");
    xml.replace("@E", "Support='#' Editable='#'").replace("@V", "<Enum Value='#'/>");
    Numbers expected(xml.count('#'));
    std::iota(expected.begin(), expected.end(), 1);
    for (const int number : expected) xml.replace(xml.indexOf('#'), 1, QString::number(number));
    CardFixture fixture;
    fill(fixture, xml);
    QCOMPARE(flat(fixture.catalogue.subcardConfig()->subcards.at(0)), expected);
}

void TestCardRecords::readsTextsAndOddNumbers()
{
    CardFixture fixture;
    fill(fixture, R"(<Any InterlacedMaxCount='65536'><Name><zh_CN>中</zh_CN><en>E</en></Name><ConnectorGroups><Capacity
        Name='G'/></ConnectorGroups><CapacityGroups><Any Name='O'><DeviceModes/></Any></CapacityGroups><Connectors>
        <Connector Enable='yes'/><DeviceMode><Capacitys><Any Name='M'><Any><ColorDepth Support='1'/></Any><Any>
        <DynamicRange/></Any></Any></Capacitys></DeviceMode><Types><Any><OutputDisplay/><PresetTiming><Interface>
        <WorkModes><WorkMode><CapacityModes><CapacityMode><Refreshs><Refresh Value='59.94'/><Any Value='50'/></Refreshs>
        </CapacityMode></CapacityModes></WorkMode></WorkModes></Interface></PresetTiming></Any></Types></Connectors>
        <ConnectorCopy><MainRelated><Any Name='C'/></MainRelated></ConnectorCopy></Any>)");
    const s_Subcard card = fixture.catalogue.subcardConfig()->subcards.at(0);
    const auto& capacity = card.connectors.deviceModes.at(0).capacitys.at(0);
    const s_ConnectorInTypes& type = card.connectors.types.at(0);
    const auto& rates = type.presetTiming.interfaces.at(0).workModes.at(0).capacityModes.at(0).refreshValues;
    QCOMPARE(card.name.zhCN + card.name.en + card.capacity.name + card.capacityGroups.at(0).name + capacity.name +
                 card.mainRelatedCapacitys.at(0).name,
             std::string("中EGOMC"));
    QCOMPARE(Numbers({card.interlacedMaxCount, card.connectors.connectors.at(0).enable, type.type,
                      type.outputDisplays.at(0).type, rates.at(0).value, rates.at(1).value}),
             Numbers({0, 0, 0, 0, 5994, 5000}));
    // An element that is there overwrites the defaults, and the colour depth counts beside a colour space alone.
    QCOMPARE(capacity.connectors.at(0).colorDepthSupport, -1);
    QCOMPARE(capacity.connectors[0].dynamicRange.editable, -1);
    QCOMPARE(capacity.connectors.at(1).dynamicRange.editable, 0);
}

void TestCardRecords::answersForSeveralCards_data()
{
    QTest::addColumn<Numbers>("answers");
    QTest::addColumn<Numbers>("expected");
    // A catalogue of three cards, the same one but for a first card that lacks what is asked for, and an empty one.
    CardFixture all, lacking, empty;
    const auto cards = [](int keyInFirst) {
        QString xml;
        for (const int card : {1, 2, 3})
            xml += QString(R"(<Any ModelId='1' CardMode='%1'><Name><zh_CN/><en/></Name><Connectors>
                <Connector Position='%2' PrintKeyNo='%1' InterfaceType='8'/><Connector Position='%2' InterfaceType='7'/>
                <DeviceMode Value='%2'><Capacitys><Any Value='6' Enable='%1'><Any Position='%2' CapacityMode='3'><DynamicRange Support='%1'/></Any>
                <Any Type='5' Position='%2' CapacityMode='3' PrintKeyNo='%1'><Interlaced Type='%1'/></Any></Any></Capacitys>
                <Timing><Any Type='5'><Any Type='2'><Any Value='3'><ResolutionRatios Support='%1'/></Any></Any></Any>
                </Timing></DeviceMode><Types><Any Type='%2'><Interface Type='2'><Capacitys><Enum Value='%1'/></Capacitys>
                </Interface><HPDs Support='1'><Any Type='1' Support='1'/><Any Type='2'/><Any Type='2' Support='1'>
                <HPD Value='%1'/></Any></HPDs></Any><Any Type='9'><HPDs><Any Type='2' Support='1'/></HPDs></Any></Types>
                </Connectors><ConnectorGroups><Capacity><Any Value='%2' SelectNum='%1'>
                <Any Position='%2'/><Any Position='99' InterfaceType='6'/></Any></Capacity>
                </ConnectorGroups><CapacityGroups><Any Value='6'><DeviceModes><Any Value='%2'><Any Position='%1'/></Any>
                </DeviceModes></Any></CapacityGroups><ConnectorCopy><MainRelated><Any><Any Value='7'><Any>
                <Any Position='%1'/><Any Position='%2'/></Any></Any></Any></MainRelated></ConnectorCopy></Any>)")
                       .arg(card)
                       .arg(card == 1 ? keyInFirst : 4);
        return xml;
    };
    fill(all, cards(4));
    fill(lacking, cards(0));
    const auto row = [&](const char* tag, const Numbers& expected, int (*ask)(const Query&)) {
        QTest::newRow(tag) << Numbers{ask(all.catalogue), ask(lacking.catalogue), ask(empty.catalogue)} << expected;
    };
    // clang-format off
    const Numbers firstCard{1, 0, 0}, firstHit{1, 2, 0}, lastHit{3, 3, 0};
    row("subcardConfig",              {3, 3, 0}, [](const Query& q) { return int(q.subcardConfig()->subcards.size()); });
    row("countAuxConnector",          {3, 3, 0}, [](const Query& q) { return q.countAuxConnector(); });
    row("findCardMode",               {1, 1, -1}, [](const Query& q) { return q.findCardMode(1); });
    row("findTypesByModelId",         {1, 1, 0}, [](const Query& q) { return head(q.findTypesByModelId(1), [](const auto& t) { return head(t.interfaces[0].capacitys); }); });
    row("findSupportedCapacity",      firstCard, [](const Query& q) { return head(q.findSupportedCapacity(1, 4, 2)); });
    row("findTiming...",              firstCard, [](const Query& q) { return q.findTimingDeviceModeResolutionRatios(1, 4, 5, 2, 3).support; });
    row("findHPDInfo",                firstCard, [](const Query& q) { return of(q.findHPDInfo(1, 4), &s_HPDIn::value); });
    row("findHPDInfo: HPDs off",      {0, 0, 0}, [](const Query& q) { return int(q.findHPDInfo(1, 9) != nullptr); });
    row("findConnector",              firstHit,  [](const Query& q) { return of(q.findConnector(1, 4), &s_SubcardConnector::printKeyNo); });
    row("findConnectorLocatedGroup",  firstHit,  [](const Query& q) { return of(q.findConnectorLocatedGroup(1, 4), &s_SubcardConnectorGroup::selectNum); });
    row("findConnectorCopyData",      firstHit,  [](const Query& q) { return head(q.findConnectorCopyData(1, 99, 7, 4), &s_ConnectorInfo::position); });
    row("...DeviceModeCapacity",      firstHit,  [](const Query& q) { return q.findConnectorDeviceModeCapacity(1, 6, 4).enable; });
    row("...CapacityConnector",       firstHit,  [](const Query& q) { return of(q.findConnectorDeviceModeCapacityConnector(1, 6, 4, 5, 4), &s_SubcardConnector::printKeyNo); });
    row("...DynamicRange: any type",  firstHit,  [](const Query& q) { return q.findConnectorDeviceModeCapacityDynamicRangeSupport(1, 6, 4, 4); });
    row("findConnectorInterlacedType", firstHit, [](const Query& q) { return q.findConnectorInterlacedType(1, 5, 4, 3); });
    row("findSubcardModeData",        lastHit,   [](const Query& q) { return head(q.findSubcardModeData(1, 6, 4).connectors, &s_ConnectorInCapacityGroups::position); });
    row("...ByGroupId: any group",    lastHit,   [](const Query& q) { return head(q.findConnectorByGroupId(1, 99), &s_SubcardConnector::printKeyNo); });
    row("...type of the last plain connector",       {7, 7, 0}, [](const Query& q) { return head(q.findConnectorByGroupId(1, 99), &s_SubcardConnector::interfaceType); });
    row("...group: type of the last plain connector", {7, 7, 0}, [](const Query& q) { return head(q.findConnectorGroupByGroupId(1, 4).connectors, &s_SubcardConnector::interfaceType); });
    row("...group: own type without a plain one",    {6, 6, 0}, [](const Query& q) { auto group = q.findConnectorGroupByGroupId(1, 4).connectors; std::reverse(group.begin(), group.end()); return head(group, &s_SubcardConnector::interfaceType); });
    row("findConnectorGroupByGroupId", lastHit,  [](const Query& q) { return q.findConnectorGroupByGroupId(1, 4).selectNum; });
    // clang-format on
}

void TestCardRecords::answersForSeveralCards()
{
    QFETCH(Numbers, answers);
    QTEST(answers, "expected");
}

void TestCardRecords::loadsTheExample()
{
    const QString example(EXAMPLES_PATH "/halcyon");
    CardFixture fixture;
    QVERIFY(fixture.devices.readConfig(example + "/devices/halcyon16", fixture.error));
    fixture.error.clear();
    const LogLines log;
    QVERIFY(fixture.load(example + "/subcards"));
    QCOMPARE(fixture.error, QString());
    QCOMPARE(log.taken(), QStringList());
    QList<int> models = fixture.models();
    std::sort(models.begin(), models.end());
    QCOMPARE(models, QList<int>({100, 201, 202, 203, 204, 301, 301, 302, 401, 501, 601}));
    const Query& query = fixture.catalogue;
    const auto whole = query.subcardConfig();
    for (const s_Subcard& card : whole->subcards)
        for (const s_SubcardConnector& one : card.connectors.connectors) {
            QVERIFY(query.findConnectorLocatedGroup(card.modelId, one.position) != nullptr);
            QVERIFY(!query.findSupportedCapacity(card.modelId, one.type, one.interfaceType).empty());
        }
    // Found in the first of the two files of model 301, in the second, and in the last.
    QVERIFY(query.findHPDInfo(301, 1) != nullptr);
    QCOMPARE(query.findConnectorDeviceModeCapacity(301, 4, 2).name, std::string("4 x 4K60"));
    QCOMPARE(query.findConnectorGroupByGroupId(301, 1).selectNum, 2);
}

QTEST_GUILESS_MAIN(TestCardRecords)
#include "test_card_records.moc"
