// The four panel files: what each loader says to a file that it cannot take and what it keeps then, walks, read
// defaults and look-ups, and the example configuration.
#include "fnbuttonconfig.h"
#include "keycheckconfig.h"
#include "lockareaconfig.h"
#include "menuconfig.h"
#include "support.h"

using namespace LCD::MainConfigImpl;

namespace {

/// Loads, and gives the result as "+" or "-", with the error text and the log lines after it.
template <class Component> QString load(Component&& component, const QString& path)
{
    const LogLines log;
    QString error;
    bool good = false;
    if constexpr (std::is_convertible_v<Component, const IMenuConfig&>) {
        good = component.readConfig(path);
    } else {
        error = "old";
        good = component.readConfig(path, error);
    }
    return (good ? "+" : "-") + error + log.taken().join('|');
}

/// Loads a file with that name and text in a folder of its own.
template <class Component> QString loadText(Component&& component, const char* name, const QString& text)
{
    const Folder folder;
    folder.write(name, text);
    return load(component, folder.path());
}

QString loadMenu(MenuConfig& menu, const QString& items)
{
    return loadText(menu, "menuconfig.xml", QStringLiteral("<LCD><MenuBar>%1</MenuBar></LCD>").arg(items));
}

QString loadFn(FNButtonConfig& fn, const QString& body)
{
    return loadText(fn, "fnkeyboardconfig.xml", QStringLiteral("<LCD><DefaultVal val='9'/>%1</LCD>").arg(body));
}

QString text(const s_FnDefaultBinding& fn)
{
    return QStringLiteral("%1 %2 %3 %4 %5").arg(fn.index).arg(fn.lcdKey).arg(fn.type).arg(fn.target).arg(fn.remark);
}

} // namespace

class TestPanelFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void menuLookUpsDisagreeOnPurpose_data();
    void menuLookUpsDisagreeOnPurpose();
    void menuTreeIsReadInPlace();
    void fnBindings();
    void keyListsByFileName();
    void lockAreas();
    void loadsTheExample();
};

void TestPanelFiles::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("given"); // the path below the folder; "-" for the empty path
    QTest::addColumn<QString>("text");  // of every file in the folder
    QTest::addColumn<QString>("said");  // %1 is the folder
    const QString malformed = "<LCD>\n</DCS>";
    const QString parseError = "Parse error at line 2, column 6:\ntag mismatch";
    // clang-format off
    QTest::newRow("menu: no file")         << "/none"       << ""        << "-open menu function config file failed!";
    QTest::newRow("menu: malformed")       << ""            << malformed << "-" + parseError;
    QTest::newRow("menu: root tag")        << ""            << "<DCS/>"  << "-The file is not a valid configuration file for device.";
    QTest::newRow("menu: version")         << ""            << "<LCD version='1.00'/>" << "-The file is not a valid configuration file of version 1.0 for device.";
    QTest::newRow("menu: no bar")          << ""            << "<LCD version='1.0'/>" << "+";
    QTest::newRow("fn: no file")           << "/none"       << ""        << "-Fail to open file %1/none/fnkeyboardconfig.xml";
    QTest::newRow("fn: malformed")         << ""            << malformed << "-" + parseError;
    QTest::newRow("fn: root tag")          << ""            << "<DCS/>"  << "-The file is not a valid configuration file for lcd.";
    QTest::newRow("fn: any version")       << ""            << "<LCD version='2'><MaxCount/><Sequence/></LCD>" << "-Invalid DefaultVal node.";
    QTest::newRow("fn: no count")          << ""            << "<LCD><DefaultVal/><Sequence/></LCD>" << "-Invalid MaxCount node.";
    QTest::newRow("fn: no sequence")       << ""            << "<LCD><DefaultVal/><MaxCount/></LCD>" << "-Invalid Sequence node.";
    QTest::newRow("keys: empty path")      << "-"           << ""        << "-Invalid file path!\n";
    QTest::newRow("keys: no directory")    << "/lock.xml/x" << ""        << "-Invalid file path!\n%1/lock.xml/x";
    QTest::newRow("keys: made directory")  << "/new/one"    << ""        << "+";
    QTest::newRow("keys: unreadable")      << "/odd"        << ""        << "+Fail to open file [%1/odd]!";
    QTest::newRow("keys: malformed")       << ""            << malformed << "+" + parseError;
    QTest::newRow("keys: root tag")        << ""            << "<DCS/>"  << "-This file is not a valid configuration file.";
    QTest::newRow("keys: version")         << ""            << "<LCD version='2'/>" << "-This file is not a valid configuration file of version 1.0 .";
    QTest::newRow("keys: no keys")         << ""            << "<LCD version='1.0'/>" << "-node not matches.";
    QTest::newRow("lock: empty path")      << "-"           << ""        << "-Invalid file path!";
    QTest::newRow("lock: no file")         << "/none.xml"   << ""        << "-File does not exist: %1/none.xml";
    QTest::newRow("lock: a directory")     << ""            << ""        << "-Fail to open file [%1]!";
    QTest::newRow("lock: malformed")       << "/lock.xml"   << malformed << "-" + parseError;
    QTest::newRow("lock: root tag")        << "/lock.xml"   << "<DCS/>"  << "-This file is not a valid configuration file.";
    QTest::newRow("lock: version")         << "/lock.xml"   << "<LCD version=''/>" << "-This file is not a valid configuration file of version 1.0 .";
    QTest::newRow("lock: no areas")        << "/lock.xml"   << "<LCD/>"  << "-LockAreas node not found.";
    // clang-format on
}

void TestPanelFiles::saysWhatIsWrong()
{
    QFETCH(QString, given);
    QFETCH(QString, text);
    QFETCH(QString, said);
    const Folder folder;
    for (const char* name : {"menuconfig.xml", "fnkeyboardconfig.xml", "lock.xml"}) folder.write(name, text);
    folder.write("odd/directory.xml/file", {});
    const QString path = given == "-" ? QString() : folder.path() + given;
    MenuConfig menu;
    const QByteArray loader = QByteArray(QTest::currentDataTag()).split(':').first();
    QCOMPARE(loader == "menu"   ? load(menu, path)
             : loader == "fn"   ? load(FNButtonConfig(), path)
             : loader == "keys" ? load(KeyCheckConfig(), path)
                                : load(LockAreaConfig(), path),
             said.replace("%1", folder.path()));
}

void TestPanelFiles::menuLookUpsDisagreeOnPurpose_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("order");      // of the item that findMenuItem gives; -1 for none
    QTest::addColumn<QString>("orders"); // of the items that findChidItemsByKey gives
    QTest::newRow("root") << "root" << 1 << "2,5,7,8,11,14,16";
    QTest::newRow("unknown") << "none" << -1 << "";
    QTest::newRow("leaf") << "x" << 4 << "";
    QTest::newRow("two branches: the shallowest, the last") << "twin" << 3 << "21,22";
    QTest::newRow("one list: its first") << "pair" << 7 << "9";
    QTest::newRow("two branches, the last a leaf") << "leaf" << 12 << "";
}

void TestPanelFiles::menuLookUpsDisagreeOnPurpose()
{
    QFETCH(QString, key);
    MenuConfig menu;
    QCOMPARE(loadMenu(menu, R"(<M Key="root" Order="1">
        <M Order="2"><M Key="twin" Order="3"><M Key="x" Order="4"/></M></M>
        <M Order="5"><M><M Key="twin" Order="6"><Any Order="21"/><M Order="22"/></M></M></M>
        <M Key="pair" Order="7"><M Order="9"/></M><M Key="pair" Order="8"><M Order="10"/></M>
        <M Order="11"><M Key="leaf" Order="12"><M Order="13"/></M></M><M Order="14"><M Key="leaf" Order="15"/></M>
        <M Key="root" Order="16"/></M><M Key="none"/>)"),
             QString("+"));
    const auto item = menu.findMenuItem(key);
    QTEST(item ? item->order : -1, "order");
    QStringList orders;
    for (const auto& child : menu.findChidItemsByKey(key)) orders.append(QString::number(child->order));
    QTEST(orders.join(','), "orders");
    QCOMPARE(menu.findChidItemSizeByKey(key), int(orders.size()));
}

void TestPanelFiles::menuTreeIsReadInPlace()
{
    MenuConfig menu;
    const auto root = menu.rootMenuItem();
    QCOMPARE(loadMenu(menu, {}), QString("+"));
    QVERIFY(menu.findMenuItem({}) == root && root->type == -1 && root->children.isEmpty());

    const QString items = "<M Key='r'><M Order='2'/><M Type='3' Order='1' ComWidgetType='4' ButtonType='5'/></M>";
    QCOMPARE(loadMenu(menu, items), QString("+"));
    QVERIFY(root->key == "r" && root->type == 0 && root->level == 0 && root->parent.expired());
    const s_MenuItem& bare = *root->children[0];
    QVERIFY(bare.order == 2 && bare.type == 0 && bare.comWidgetType == 0 && bare.buttonType == 0);
    const s_MenuItem& full = *root->children[1];
    QVERIFY(full.order == 1 && full.type == 3 && full.comWidgetType == 4 && full.buttonType == 5);
    QVERIFY(full.level == 1 && !full.reservedFlag && full.parent.lock() == root);

    // A refused file leaves the tree, another good one adds to it; this one is nested as deep as a file may be.
    QVERIFY(loadText(menu, "menuconfig.xml", "<DCS><MenuBar><M Key='other'/></MenuBar></DCS>").startsWith("-"));
    QCOMPARE(root->key, QString("r"));
    const QString deep = QString("<M>").repeated(997) + "<M Key='deep'/>" + QString("</M>").repeated(997);
    QCOMPARE(loadMenu(menu, deep), QString("+"));
    QCOMPARE(root->children.size(), 3);
    QCOMPARE(menu.findMenuItem("deep")->level, 997);
}

void TestPanelFiles::fnBindings()
{
    FNButtonConfig fn;
    QCOMPARE(text(fn.findDefaultBindingByIndex(2)), QString("2 323 0 0 "));
    QCOMPARE(loadFn(fn, "<Sequence><S name='early'/></Sequence>"), QString("-Invalid MaxCount node."));
    QCOMPARE(text(fn.findDefaultBindingByIndex(2)), QString("2 323 9 0 "));
    QVERIFY(fn.findSequenceStrArray().isEmpty());

    QCOMPARE(loadFn(fn, R"(<MaxCount count="6"/><Sequence><S name="B"/><Other name="A"/><S/></Sequence>
        <DefaultBindings><Other index="2"/><FN index="1" lcdKey="7" type="3" target="4" remark="first"/>
        <Other index="2"/><FN index="1" lcdKey="8"/><FN/></DefaultBindings>)"),
             QString("+"));
    QCOMPARE(fn.findFNBtnDefaultValue(), 9);
    QCOMPARE(fn.findFNBtnMaxCount(), 6);
    QCOMPARE(text(fn.findDefaultBindingByIndex(1)), QString("1 7 3 4 first"));
    QCOMPARE(text(fn.findDefaultBindingByIndex(2)), QString("2 323 9 0 "));
    QCOMPARE(text(fn.findDefaultBindings()[2]), QString("0 0 9 0 "));

    // A second load keeps the bindings, unless it brings its own, but always adds to the sequence.
    QCOMPARE(loadFn(fn, "<MaxCount/><Sequence><S name='C'/></Sequence>"), QString("+"));
    QCOMPARE(fn.findDefaultBindings().size(), 3);
    QCOMPARE(fn.findSequenceStrArray(), QVector<QString>({"B", "A", {}, "C"}));
    QCOMPARE(loadFn(fn, "<MaxCount/><Sequence/><DefaultBindings/>"), QString("+"));
    QVERIFY(fn.findDefaultBindings().isEmpty());
}

void TestPanelFiles::keyListsByFileName()
{
    const Folder folder;
    const QString list = "<LCD><LcdKeys><K Value='%1' Name='up'/><Any Value='x'/></LcdKeys></LCD>";
    folder.write("1_keyboardchecklist_old.xml", list.arg(1));
    folder.write("2_keyboardchecklist.xml", "<LCD>");
    folder.write("3_keyboardknobchecklist.xml", list.arg(3));
    folder.write("4_KeyboardCheckList.xml", list.arg(4));
    folder.write("5_keyboardtbarjoystickchecklist.xml", list.arg(5));
    folder.write("6.xml", "<LCD/>");
    folder.write("7_keyboardchecklist.xml", list.arg(7));
    KeyCheckConfig keyCheck;
    QCOMPARE(load(keyCheck, folder.path()), QString("-node not matches."));
    using Keys = QList<QPair<int, QString>>;
    QCOMPARE(keyCheck.getKeyCheckList(), Keys({{1, "up"}, {0, {}}}));
    QCOMPARE(keyCheck.getKnobKeyCheckList(), Keys({{3, "up"}, {0, {}}}));
    QCOMPARE(keyCheck.getTbarJoyStickCheckList(), Keys({{5, "up"}, {0, {}}}));
}

void TestPanelFiles::lockAreas()
{
    const Folder folder;
    const QString file = folder.write("lock.xml", R"(<LCD><LockAreas><Other Id="9"><Button LCDKey="90"/></Other>
        <LockArea Id="1"><Button LCDKey="10" RealKey="1"><Row><Row><Button LCDKey="11"/></Row></Row></Button>
            <LockArea Id="8"><Button LCDKey="12"/></LockArea><Button LCDKey="x1" RealKey="2"/>
            <Button RealKey=""/><Button LCDKey="13" RealKey="1.5"/><Button LCDKey="14"/></LockArea>
        <Other Id="9"><Button LCDKey="91"/></Other>
        <LockArea><Button LCDKey="10"/><Button LCDKey="20"/><Button/></LockArea></LockAreas></LCD>)");
    LockAreaConfig lock;
    QCOMPARE(lock.getIdByLCDKey(0), -1);
    QCOMPARE(load(lock, file), QString("+Failed to parse button attributes: LCDKey=x1, RealKey=2"
                                       "|Failed to parse button attributes: LCDKey=0, RealKey="
                                       "|Failed to parse button attributes: LCDKey=13, RealKey=1.5"));
    const QMap<int, int> areaOf{{10, 1}, {11, 1}, {12, 1}, {13, -1}, {14, 1}, {20, 0}, {0, 0}, {90, -1}, {91, -1}};
    for (auto key = areaOf.begin(); key != areaOf.end(); ++key) QCOMPARE(lock.getIdByLCDKey(key.key()), key.value());
}

void TestPanelFiles::loadsTheExample()
{
    const QString halcyon = QStringLiteral(EXAMPLES_PATH "/halcyon/");
    MenuConfig menu;
    FNButtonConfig fn;
    KeyCheckConfig keys;
    LockAreaConfig lock;
    QCOMPARE(load(menu, halcyon + "menu"), QString("+"));
    QCOMPARE(load(fn, halcyon + "fnbutton"), QString("+"));
    QCOMPARE(load(keys, halcyon + "keycheck"), QString("+"));
    QCOMPARE(load(lock, halcyon + "lockarea/lockareaconfig.xml"), QString("+"));
    // The look-ups find "edid" in different places, as the file explains.
    QCOMPARE(menu.findMenuItem("edid")->parent.lock()->key, QString("input"));
    QCOMPARE(menu.findChidItemsByKey("edid").constFirst()->key, QString("edid_import"));
    // Every function key can be tested, and all but the one that unlocks are in the same area.
    for (int index = 0; index < fn.findFNBtnMaxCount(); ++index) {
        const int key = fn.findDefaultBindingByIndex(index).lcdKey;
        QVERIFY(keys.getKeyCheckList().contains({key, QStringLiteral("FN %1").arg(index + 1)}));
        QCOMPARE(lock.getIdByLCDKey(key), index == 3 ? -1 : 4);
    }
}

QTEST_GUILESS_MAIN(TestPanelFiles)
#include "test_panel_files.moc"
