// What the card catalogue holds and answers: every attribute in its own field, each query's own rule for several cards
// of one model, and the card files that are shipped as examples.
#include "cards.h"

#include <algorithm>
#include <functional>
#include <numeric>

using namespace LCD::MainConfig;

namespace {

using Numbers = QVector<int>;

/// Loads a file with these cards, whatever they lack.
void fill(CardFixture& fixture, const QString& cards)
{
    fixture.addDevice({{"AUXCardSlots", "1"}});
    fixture.folder.write("cards/1.xml", "<DCS><Subcards>" + cards + "</Subcards></DCS>");
    const LogLines absentGroups;
    QVERIFY2(fixture.load(), qPrintable(fixture.error));
}

// A card with every attribute. "#" stands for a number of its own each, "@" for pieces that come more than once, "No"
// for a stranger that no list takes, "Any" for one that its list takes, and 999 for what must not be kept.
const char CARD[] = R"(<Card ModelId='#' CardMode='#' InterlacedMaxCount='#'><Name><zh_CN/><en/></Name><Connectors><No/>
<Connector @C><No/><virtualInput @E><InputPositions><No/><Position Value='#' InterfaceType='#'/><No/></InputPositions>
</virtualInput><No/></Connector><No/><DeviceMode Value='#'><Capacitys Value='#'><Any Enable='#' Value='#'><Any @C
GroupId='#'><DynamicRange @E Value='#' DataType='#'/><Interlaced Type='#'/><ColorSpace @E><ColorSpace @E>@V</ColorSpace>
<ColorSpaceValues><Any @E Value='#'><ColorDepth @E>@V</ColorDepth></Any></ColorSpaceValues></ColorSpace><ColorDepth @E>@V
</ColorDepth></Any></Any></Capacitys><Timing><Any Support='#' Type='#'><Any Support='#' Type='#'><Any Support='#' Value='#'>
<ResolutionRatios Support='#'><ResolutionRatio><Width @R/><Height @R/></ResolutionRatio><AdvResolutionRatio><Horizontal>@S
</Horizontal><Vertical>@S</Vertical></AdvResolutionRatio></ResolutionRatios></Any></Any></Any></Timing></DeviceMode><No/>
<Types><Any Type='#'><InterfaceType Type='#'/><Interface Type='#'><Capacitys>@V</Capacitys></Interface><OutputDisplay>
<InterfaceType Type='#'><OutputDisplay>@V</OutputDisplay></InterfaceType></OutputDisplay><No><InterfaceType Type='999'/></No>
<HPDs><Any Type='999'/></HPDs><HPDs Support='#'><Any Type='#' Support='#'><HPD @R/></Any></HPDs>
<FollowProperty Support='999'><Interface Type='999'/></FollowProperty><FollowProperty @E><No/><Interface Type='#'>
<FollowInterfaceType @E>@V</FollowInterfaceType><Propertys @E>@V</Propertys></Interface><Any Type='#'/></FollowProperty>
<PresetTiming Support='999'><Interface Type='999'/></PresetTiming><PresetTiming @E><No/><Interface Type='#'><WorkModes><No/>
<WorkMode Value='#'><CapacityModes><No/><CapacityMode Value='#'><Refreshs @E><No/><Refresh @E/><Any @E/></Refreshs>
<ResolutionRatios @E><No/><ResolutionRatio @E Width='#' Height='#' Interlaced='#'/><Any @E/></ResolutionRatios>
</CapacityMode><Any Value='#'/></CapacityModes></WorkMode><Any Value='#'/></WorkModes></Interface><Any Type='#'/>
</PresetTiming></Any></Types><No><No/></No></Connectors><ConnectorGroups Value='#'><Capacity Value='#'><Any Value='#'
SelectNum='#'><Any @C/></Any></Capacity><Capacity Value='999'/></ConnectorGroups><ConnectorGroups Value='999'/>
<CapacityGroups><Any Enable='#' Value='#'><DeviceModes><Any Value='#'><Any Position='#' Enable='#' Visible='#'
CapacityMode='#' WorkMode='#' BackupPos='#'/></Any></DeviceModes></Any></CapacityGroups><Sections><Any Code='#'/></Sections>
<ConnectorCopy @E Value='#'><MainRelated @E><Any Enable='#' Value='#'><Any Value='#'><Any Value='#'><Any Position='#'/>
</Any></Any></Any></MainRelated></ConnectorCopy></Card>)";

// clang-format off
/// What a record and all below it took from the file: every number above 0, in the order of the file.
struct Flat : Numbers {
    template <class... Parts> void all(const Parts&... parts) { (take(parts), ...); }
    template <class Entry> void take(const std::vector<Entry>& list) { for (const Entry& entry : list) take(entry); }
    void take(int n) { if (n > 0) append(n); }
    void take(const s_SupportInfo& r) { all(r.support, r.editable); }
    void take(const s_BaseAttr& r) { all(r.support, r.editable, r.value, r.dataType); }
    void take(const s_Position& r) { all(r.value, r.interfaceType); }
    void take(const s_SubcardConnector& r) {
        all(r.type, r.interfaceType, r.position, r.enable, r.printKeyNo, r.visible, r.capacityMode, r.workMode, r.backupPos,
            r.groupId, r.virtualInput, r.inputPositions); }
    void take(const s_ColorSpaceValue& r) {
        all(r.support, r.editable, r.value, r.colorDepthSupport, r.colorDepthEditable, r.colorDepths); }
    void take(const s_ColorSpace& r) { all(r.support, r.editable, r.innerSupport, r.innerEditable, r.colorSpaces, r.values); }
    void take(const s_ConnectorInConnectorsDeviceModeCapacitysCapacity& r) {
        all(static_cast<const s_SubcardConnector&>(r), r.dynamicRange, r.interlacedType, r.colorSpace, r.colorDepthSupport,
            r.colorDepthEditable, r.colorDepths); }
    void take(const s_CapacityInConnectorsDeviceModeCapacitys& r) { all(r.enable, r.value, r.connectors); }
    void take(const s_WidthInConnectorsDeviceModeTiming& r) { all(r.support, r.value, r.min, r.max, r.step); }
    void take(const s_HorizontalInConnectorsDeviceModeTiming& r) { all(r.addTime, r.totalTime, r.frontPorch, r.sync); }
    void take(const s_ResolutionRatiosInConnectorsDeviceModeTiming& r) {
        all(r.support, r.width, r.height, r.horizontal, r.vertical); }
    void take(const s_CapacityModeInConnectorsDeviceModeTiming& r) { all(r.support, r.value, r.resolutionRatios); }
    void take(const s_InterfaceInConnectorsDeviceModeTiming& r) { all(r.support, r.type, r.capacityModes); }
    void take(const s_ConnectorInConnectorsDeviceModeTiming& r) { all(r.support, r.type, r.interfaces); }
    void take(const s_DeviceModeInConnectors& r) { all(r.value, r.capacitysValue, r.capacitys, r.timing); }
    void take(const s_InterfaceInTypes& r) { all(r.type, r.capacitys); }
    void take(const s_OutputDisplayInTypes& r) { all(r.type, r.outputDisplays); }
    void take(const s_HPDIn& r) { all(r.support, r.value, r.min, r.max, r.step); }
    void take(const s_HPDsInterfaceIn& r) { all(r.type, r.support, r.hpd); }
    void take(const s_FollowPropertyInterface& r) {
        all(r.type, r.followInterfaceType, r.followInterfaceTypes, r.propertys, r.propertyValues); }
    void take(const s_WorkResolution& r) { all(r.support, r.editable, r.width, r.height, r.interlaced); }
    void take(const s_CapacityModeWk& r) { all(r.value, r.refreshs, r.refreshValues, r.resolutionRatios, r.resolutions); }
    void take(const s_WorkMode& r) { all(r.value, r.capacityModes); }
    void take(const s_PresetInterface& r) { all(r.type, r.workModes); }
    void take(const s_HPDsInterface& r) { all(r.support, r.interfaces); }
    void take(const s_ConnectorInTypes::s_FollowProperty& r) { all(r.support, r.editable, r.interfaces); }
    void take(const s_ConnectorInTypes::s_PresetTiming& r) { all(r.support, r.editable, r.interfaces); }
    void take(const s_ConnectorInTypes& r) {
        all(r.type, r.interfaces, r.outputDisplays, r.hpds, r.followProperty, r.presetTiming); }
    void take(const s_SubcardConnectorGroup& r) { all(r.value, r.selectNum, r.connectors); }
    void take(const s_ConnectorInCapacityGroups& r) {
        all(r.position, r.enable, r.visible, r.capacityMode, r.workMode, r.backupPos); }
    void take(const s_SubcardDeviceMode& r) { all(r.value, r.connectors); }
    void take(const s_CapacityInCapacityGroups& r) { all(r.enable, r.value, r.deviceModes); }
    void take(const s_ConnectorInfo& r) { all(r.position); }
    void take(const s_ConnectorGroupInfo& r) { all(r.value, r.connectors); }
    void take(const s_DeviceModeInfo& r) { all(r.value, r.connectorGroups); }
    void take(const s_CapacityInfo& r) { all(r.enable, r.value, r.deviceModes); }
    void take(const s_Subcard& r) {
        all(r.modelId, r.cardMode, r.interlacedMaxCount, r.connectors.connectors, r.connectors.deviceModes, r.connectors.types,
            r.capacity.value, r.capacity.capacityValue, r.capacity.connectorGroups, r.capacityGroups, r.sections,
            r.connectorCopySupport, r.connectorCopyEditable, r.connectorCopyValue, r.mainRelatedSupport, r.mainRelatedEditable,
            r.mainRelatedCapacitys); }
};
// clang-format on

/// An entry between decoys. "~" marks a key: for each there is a copy that differs in it and in the answer "@".
QString among(QString entry)
{
    QString decoys;
    for (int key = entry.indexOf('~'); key >= 0; key = entry.indexOf('~', key + 1))
        decoys += QString(entry).replace(key + 1, 1, "7").remove('~').replace('@', "70");
    return decoys + entry.remove('~') + decoys;
}

// The card for the queries: braces stand round the entries that go between decoys, "@M" for a mode's inside.
const char MODE[] = R"(<Capacitys>{<Any Value='~6' Enable='@'>{<Any Type='~5' Position='~3' PrintKeyNo='@'/>}
{<Any Type='9' Position='~2'><DynamicRange Support='@'/></Any>}</Any>}</Capacitys><Timing>{<Any Type='~5'>{<Any Type='~2'>
{<Any Value='~3'><ResolutionRatios Support='@'/></Any>}</Any>}</Any>}</Timing>)";
const char QUERIED[] = R"(<Any ModelId='%1' CardMode='@'><Name><zh_CN/><en/></Name><Connectors>
<Connector Position='9' PrintKeyNo='@'/><Connector Position='9' InterfaceType='6@'/>
{<Connector Position='~$' PrintKeyNo='@' InterfaceType='8'/>}{<DeviceMode Value='~$'>@M</DeviceMode>}
<DeviceMode Value='1'><Capacitys><Any>{<Any Type='~5' Position='~3' CapacityMode='~$'><Interlaced Type='@'/></Any>}</Any>
</Capacitys></DeviceMode><DeviceMode Value='1'>@M</DeviceMode>
<Types><Any Type='9'><Interface><Capacitys><Enum Value='@'/></Capacitys></Interface><HPDs><Any Type='2' Support='1'/></HPDs>
</Any>{<Any Type='~$'>{<Interface Type='~2'><Capacitys><Enum Value='@'/></Capacitys></Interface>}<HPDs Support='1'>
<Any Type='1' Support='1'/><Any Type='2'/><Any Type='2' Support='1'><HPD Value='@'/></Any><Any Type='2' Support='1'/></HPDs>
</Any>}</Types></Connectors><ConnectorGroups><Capacity>{<Any Value='~$' SelectNum='@'><Any Position='9'/><Any Position='8'
InterfaceType='5@'/></Any>}{<Any SelectNum='@'><Any/><Any Position='~$'/></Any>}</Capacity></ConnectorGroups>
<CapacityGroups>{<Any Value='~6'><DeviceModes>{<Any Value='~$'><Any Position='@'/></Any>}</DeviceModes></Any>}</CapacityGroups>
<ConnectorCopy><MainRelated><Any>{<Any Value='~6'>{<Any><Any Position='@'/><Any Position='~$'/></Any>}</Any>}</Any>
</MainRelated></ConnectorCopy></Any>)";

/// Three cards each of models 1 to 4, in turns; the answers are the numbers of the cards, 1 to 3. What is asked for
/// stands in all cards of model 1, all but the first of model 2, all but the last of model 3, in none of model 4.
QString cards()
{
    QString xml, card = QString(QUERIED).replace("@M", MODE);
    for (int end = card.indexOf('}'); end >= 0; end = card.indexOf('}')) {
        const int start = card.lastIndexOf('{', end);
        card.replace(start, end - start + 1, among(card.mid(start + 1, end - start - 1)));
    }
    for (const int number : {1, 2, 3})
        for (const int model : {1, 2, 3, 4}) {
            const bool lacks = model == 4 || (model == 2 && number == 1) || (model == 3 && number == 3);
            xml += QString(card).replace('$', lacks ? "0" : "4").replace('@', QString::number(number)).arg(model);
        }
    return xml;
}

/// The field of a record, or of the first of a list; 0 where there is none.
template <class Result, class Field> int answer(const Result& result, Field field)
{
    if constexpr (requires { result.front(); })
        return result.empty() ? 0 : std::invoke(field, result.front());
    else if constexpr (requires { *result; })
        return result ? std::invoke(field, *result) : 0;
    else
        return std::invoke(field, result);
}

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
    xml.replace("@R", "Support='#' Value='#' Min='#' Max='#' Step='#'").replace("@E", "Support='#' Editable='#'");
    xml.replace("@V", "<No/><Enum Value='#'/><Any Value='#'/>")
        .replace("<No/>", "<No Type='999' Value='999' Width='999'/>");
    Numbers expected(xml.count('#'));
    std::iota(expected.begin(), expected.end(), 1);
    for (const int number : expected) xml.replace(xml.indexOf('#'), 1, QString::number(number));
    CardFixture fixture;
    fill(fixture, xml);
    Flat found;
    found.take(fixture.catalogue.subcardConfig()->subcards);
    QCOMPARE(Numbers(found), expected);
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
    CardFixture fixture;
    fill(fixture, cards());
    const auto& q = fixture.catalogue;
    // Model 5 has no card.
    const auto row = [](const char* tag, const Numbers& expected, auto field, auto query) {
        Numbers answers;
        for (const int model : {1, 2, 3, 4, 5}) answers << answer(query(model), field);
        QTest::newRow(tag) << answers << expected;
    };
    const auto key = &s_SubcardConnector::printKeyNo, type = &s_SubcardConnector::interfaceType;
    const auto selectNum = &s_SubcardConnectorGroup::selectNum;
    const auto enable = &s_CapacityInConnectorsDeviceModeCapacitys::enable;
    const auto ownType = [](const auto& group) {
        return group.connectors.empty() ? 0 : group.connectors[1].interfaceType;
    };
    const std::identity number;
    const Numbers firstCard{1, 0, 1, 0, 0}, firstHit{1, 2, 1, 0, 0}, lastHit{3, 3, 2, 0, 0}, none(5);
    const auto capacity = [](const auto& one) { return one.interfaces.at(0).capacitys.at(0); };
    const auto exists = [](const auto&) { return 1; };
    const auto support = &s_ResolutionRatiosInConnectorsDeviceModeTiming::support;
    // clang-format off
    row("auxiliary connectors of all", {36, 36, 36, 36, 36}, number, [&](int) { return q.countAuxConnector(); });
    row("mode of the first card", {1, 1, 1, 1, -1}, number, [&](int m) { return q.findCardMode(m); });
    row("types of the first card", {1, 1, 1, 1, 0}, capacity, [&](int m) { return q.findTypesByModelId(m); });
    row("capacities", firstCard, number, [&](int m) { return q.findSupportedCapacity(m, 4, 2); });
    row("timing", firstCard, support, [&](int m) { return q.findTimingDeviceModeResolutionRatios(m, 4, 5, 2, 3); });
    row("timing: no second mode is tried", none, support, [&](int m) { return q.findTimingDeviceModeResolutionRatios(m, 1, 5, 2, 3); });
    row("HPD", firstCard, &s_HPDIn::value, [&](int m) { return q.findHPDInfo(m, 4); });
    row("HPD switched off", none, exists, [&](int m) { return q.findHPDInfo(m, 9); });
    row("connector", firstHit, key, [&](int m) { return q.findConnector(m, 4); });
    row("group of a connector", firstHit, selectNum, [&](int m) { return q.findConnectorLocatedGroup(m, 4); });
    row("copy data: any capacity", firstHit, &s_ConnectorInfo::position, [&](int m) { return q.findConnectorCopyData(m, 99, 6, 4); });
    row("capacity of a mode", firstHit, enable, [&](int m) { return q.findConnectorDeviceModeCapacity(m, 6, 4); });
    row("connector of a capacity", firstHit, key, [&](int m) { return q.findConnectorDeviceModeCapacityConnector(m, 6, 4, 5, 3); });
    row("connector of a capacity: the second mode is tried", {1, 1, 1, 1, 0}, key,
        [&](int m) { return q.findConnectorDeviceModeCapacityConnector(m, 6, 1, 5, 3); });
    row("dynamic range: any type", firstHit, number,
        [&](int m) { return q.findConnectorDeviceModeCapacityDynamicRangeSupport(m, 6, 4, 2); });
    row("interlaced", firstHit, number, [&](int m) { return q.findConnectorInterlacedType(m, 5, 3, 4); });
    row("mode data", lastHit, &s_ConnectorInCapacityGroups::position, [&](int m) { return q.findSubcardModeData(m, 6, 4).connectors; });
    row("connectors of any group", {3, 3, 3, 3, 0}, key, [&](int m) { return q.findConnectorByGroupId(m, 99); });
    row("connectors: type of the last plain one", {63, 63, 63, 63, 0}, type, [&](int m) { return q.findConnectorByGroupId(m, 99); });
    row("group", lastHit, selectNum, [&](int m) { return q.findConnectorGroupByGroupId(m, 4); });
    row("group: type of the last plain connector", {63, 63, 63, 0, 0}, type,
        [&](int m) { return q.findConnectorGroupByGroupId(m, 4).connectors; });
    row("group: own type without a plain connector", {53, 53, 52, 0, 0}, ownType,
        [&](int m) { return q.findConnectorGroupByGroupId(m, 4); });
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
    const LogLines log;
    QVERIFY(fixture.load(example + "/subcards"));
    QCOMPARE(fixture.error, QString());
    QCOMPARE(log.taken(), QStringList());
    QList<int> models = fixture.models();
    std::sort(models.begin(), models.end());
    QCOMPARE(models, QList<int>({100, 201, 202, 203, 204, 301, 301, 302, 401, 501, 601}));
}

QTEST_GUILESS_MAIN(TestCardRecords)
#include "test_card_records.moc"
