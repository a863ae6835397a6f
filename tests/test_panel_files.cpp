// The four panel files: what each loader says to a file that it cannot take and what it keeps then, walks, read
// defaults and look-ups, and the example configuration.
#include "fnbuttonconfig.h"
#include "keycheckconfig.h"
#include "lockareaconfig.h"
#include "menuconfig.h"
#include "reading/xmlparse.h"
#include "support.h"

#include <QThread>

#include <memory>

using namespace LCD::MainConfigImpl;

namespace {

bool read(MenuConfig& menu, const QString& path, QString& error) { return error.clear(), menu.readConfig(path); }
template <class Any> bool read(Any& any, const QString& path, QString& error) { return any.readConfig(path, error); }

/// Loads a path in a folder whose files all have that text. Gives "+" or "-" for the result, then the error text and
/// the log lines; "~" stands for the folder.
template <class Component> QString load(Component&& component, const QString& given, const QString& text = {})
{
    const Folder folder;
    for (const char* name : {"menuconfig.xml", "fnkeyboardconfig.xml", "lock.xml"}) folder.write(name, text);
    const LogLines log;
    QString said = "old";
    const QString path = given.isEmpty() ? given : QDir(folder.path()).filePath(given);
    said.prepend(read(component, path, said) ? "+" : "-");
    return said.append(log.taken().join('|')).replace(folder.path(), "~");
}

QString bar(const QString& items) { return "<LCD><MenuBar>" + items + "</MenuBar></LCD>"; }

/// What the look-ups give for the key "k": the number of the item, then those of the children.
QString found(const QString& items)
{
    MenuConfig menu;
    QString numbers = load(menu, ".", bar(items));
    if (const auto item = menu.findMenuItem("k")) numbers += QString::number(item->order);
    for (int child = 0; child < menu.findChidItemSizeByKey("k"); ++child)
        numbers += QString(",%1").arg(menu.findChidItemsByKey("k")[child]->order);
    return numbers;
}

/// Loads these elements behind "DefaultVal", and tells all that the component has then, and the binding of index 2.
QString loaded(FNButtonConfig& fn, const QString& elements)
{
    QString told = load(fn, ".", "<LCD><DefaultVal val='9'/>" + elements + "</LCD>");
    told += QString("|%1 %2 ").arg(fn.findFNBtnDefaultValue()).arg(fn.findFNBtnMaxCount());
    told += fn.findSequenceStrArray().toList().join(',');
    const QVector<s_FnDefaultBinding> bindings = fn.findDefaultBindings() << fn.findDefaultBindingByIndex(2);
    for (const auto& [index, lcdKey, type, target, remark] : bindings)
        told += QString("|%1 %2 %3 %4 ").arg(index).arg(lcdKey).arg(type).arg(target) + remark;
    return told;
}

} // namespace

class TestPanelFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrong_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("said"); // of the menu, the function buttons, the key lists, the lock areas
        const QString wrong = " file is not a valid configuration file";
        const QString mismatch = "Parse error at line 2, column 6:\ntag mismatch";
        // clang-format off
        QTest::newRow("malformed") << "<LCD>\n</DCS>" << QStringList{"-" + mismatch, "-" + mismatch, "+" + mismatch, "-" + mismatch};
        QTest::newRow("root tag") << "<DCS/>"
            << QStringList{"-The" + wrong + " for device.", "-The" + wrong + " for lcd.", "-This" + wrong + ".", "-This" + wrong + "."};
        QTest::newRow("version, which the function buttons ignore") << "<LCD version='1.00'/>"
            << QStringList{"-The" + wrong + " of version 1.0 for device.", "-Invalid DefaultVal node.",
                           "-This" + wrong + " of version 1.0 .", "-This" + wrong + " of version 1.0 ."};
        QTest::newRow("no content, which the menu allows") << "<LCD version='1.0'><MaxCount/><Sequence/></LCD>"
            << QStringList{"+", "-Invalid DefaultVal node.", "-node not matches.", "-LockAreas node not found."};
        // clang-format on
    }

    void saysWhatIsWrong()
    {
        QFETCH(QString, text);
        const QStringList said{load(MenuConfig(), ".", text), load(FNButtonConfig(), ".", text),
                               load(KeyCheckConfig(), ".", text), load(LockAreaConfig(), "lock.xml", text)};
        QTEST(said, "said");
    }

    void menuLookUpsDisagreeOnPurpose()
    {
        // Only the first item of the bar is read.
        QCOMPARE(found("<M/><M Key='k' Order='1'><M/></M>"), QString("+"));
        // The root is asked first.
        QCOMPARE(found("<M Key='k' Order='1'><M Order='2'/><M Key='k' Order='3'/></M>"), QString("+1,2,3"));
        // In one list the first wins, and its own items are not searched.
        QCOMPARE(found("<M><M Key='k' Order='1'><M Key='k' Order='2'/></M><M Key='k'><M/></M></M>"), QString("+1,2"));
        // Of two branches: the shallowest item or else the first, but the children of the last, and be it a leaf.
        QCOMPARE(found("<M><M><M><M Key='k'><M/></M></M></M><M><M Key='k' Order='1'/></M></M>"), QString("+1"));
        QCOMPARE(found("<M><M><M Key='k' Order='1'/></M><M><M Key='k'><N Order='2'/></M></M></M>"), QString("+1,2"));
    }

    void menuTreeIsReadInPlace()
    {
        MenuConfig menu;
        const auto root = menu.rootMenuItem();
        QCOMPARE(load(menu, "none"), QString("-open menu function config file failed!"));
        QCOMPARE(load(menu, ".", bar({})), QString("+"));
        QVERIFY(menu.findMenuItem({}) == root && root->type == -1 && root->children.isEmpty());

        const QString items = "<M Key='r'><M Order='2'/><M Type='3' Order='1' ComWidgetType='4' ButtonType='5'/></M>";
        QCOMPARE(load(menu, ".", bar(items)), QString("+"));
        QVERIFY(root->key == "r" && root->type == 0 && root->level == 0 && root->parent.expired());
        const s_MenuItem& last = *root->children[1];
        QVERIFY(last.order == 1 && last.type == 3 && last.comWidgetType == 4 && last.buttonType == 5);
        QVERIFY(last.level == 1 && last.parent.lock() == root);

        // A refused file leaves the tree, another good one adds to it.
        QVERIFY(load(menu, ".", "<DCS><MenuBar><M Key='x'/></MenuBar></DCS>").startsWith("-") && root->key == "r");
        QCOMPARE(load(menu, ".", bar("<M><M/></M>")), QString("+"));
        QCOMPARE(root->children.size(), 3);
    }

    /// As deep as a file may be nested, read, searched and dropped on a thread with little stack.
    void menuMayBeDeep()
    {
        const int deepest = reading::DEEPEST_NESTING - 3; // below the document's root, the bar and the root item
        const QString deep = QString("<M>").repeated(deepest) + "<M Key='deep'/>" + QString("</M>").repeated(deepest);
        QString said;
        int level = 0;
        QVector<s_MenuItem> copies;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            MenuConfig menu;
            said = load(menu, ".", bar(deep));
            level = menu.findMenuItem("deep")->level;
            copies.fill(*menu.rootMenuItem(), menu.findChidItemsByKey("deep").isEmpty() ? 2 : 0);
        }));
        thread->setStackSize(2 * 1024 * 1024);
        thread->start();
        thread->wait();
        QCOMPARE(said, QString("+"));
        QCOMPARE(level, deepest);
        QCOMPARE(copies.size(), 2);
    }

    void fnBindings()
    {
        FNButtonConfig fn;
        QCOMPARE(load(fn, "none"), QString("-Fail to open file ~/none/fnkeyboardconfig.xml"));
        QCOMPARE(loaded(fn, "<Sequence><S name='A'/></Sequence>"), QString("-Invalid MaxCount node.|9 0 |2 323 9 0 "));
        QCOMPARE(loaded(fn, "<MaxCount count='6'/>"), QString("-Invalid Sequence node.|9 6 |2 323 9 0 "));
        QCOMPARE(loaded(fn, R"(<MaxCount count="6"/><Sequence><S name="B"/><Other name="A"/><S/></Sequence>
            <DefaultBindings><Other index="2"/><FN index="1" lcdKey="7" type="3" target="4" remark="first"/>
            <FN/><FN index="2" lcdKey="5"/><Other/><FN index="2"/></DefaultBindings>)"),
                 QString("+|9 6 B,A,|1 7 3 4 first|0 0 9 0 |2 5 9 0 |2 0 9 0 |2 5 9 0 "));
        // A second load keeps the bindings, unless it brings its own, but always adds to the sequence.
        QCOMPARE(loaded(fn, "<MaxCount/><Sequence><S name='C'/></Sequence>"),
                 QString("+|9 0 B,A,,C|1 7 3 4 first|0 0 9 0 |2 5 9 0 |2 0 9 0 |2 5 9 0 "));
        QCOMPARE(loaded(fn, "<MaxCount/><Sequence/><DefaultBindings/>"), QString("+|9 0 B,A,,C|2 323 9 0 "));
    }

    void keyListsByFileName()
    {
        const Folder folder;
        KeyCheckConfig keys;
        QCOMPARE(load(keys, ""), QString("-Invalid file path!\n"));
        QCOMPARE(load(keys, "lock.xml/x"), QString("-Invalid file path!\n~/lock.xml/x"));
        QVERIFY(load(keys, folder.path("new/one")) == "+" && QDir(folder.path("new/one")).exists());
        // A file that cannot be opened or parsed is passed over, one of another shape ends the load.
        folder.write("odd/directory.xml/file", {});
        QCOMPARE(load(keys, folder.path("odd")), "+Fail to open file [" + folder.path("odd") + "]!");
        const QString list = "<LCD><LcdKeys><K Value='%1' Name='up'/><Any Value='x'/></LcdKeys></LCD>";
        for (const char* name : {"1_keyboardchecklist_old", "3_keyboardknobchecklist", "4_KeyboardCheckList",
                                 "5_keyboardtbarjoystickchecklist", "7_keyboardchecklist"})
            folder.write(name + QString(".xml"), list.arg(name[0]));
        folder.write("2_keyboardchecklist.xml", "<LCD>");
        folder.write("6.xml", "<LCD/>");
        QCOMPARE(load(keys, folder.path()), QString("-node not matches."));
        using Keys = QList<QPair<int, QString>>;
        QCOMPARE(keys.getKeyCheckList(), Keys({{1, "up"}, {0, {}}}));
        QCOMPARE(keys.getKnobKeyCheckList(), Keys({{3, "up"}, {0, {}}}));
        QCOMPARE(keys.getTbarJoyStickCheckList(), Keys({{5, "up"}, {0, {}}}));
    }

    void lockAreas()
    {
        LockAreaConfig lock;
        QCOMPARE(load(lock, ""), QString("-Invalid file path!"));
        QCOMPARE(load(lock, "none.xml"), QString("-File does not exist: ~/none.xml"));
        QCOMPARE(load(lock, "."), QString("-Fail to open file [~/.]!"));
        const QString areas = R"(<LCD><LockAreas><Other><LockArea Id="9"><Button LCDKey="90"/></LockArea></Other>
            <LockArea Id="1"><Button LCDKey="10" RealKey="1"><Row><Row><Button LCDKey="11"/></Row></Row></Button>
            <LockArea Id="8"><Button LCDKey="12"/></LockArea><Button LCDKey="x1"/><Button RealKey="1.5"/></LockArea>
            <Other><Button LCDKey="91"/></Other><LockArea><Button LCDKey="10"/><Button/></LockArea></LockAreas></LCD>)";
        QCOMPARE(load(lock, "lock.xml", areas), QString("+Failed to parse button attributes: LCDKey=x1, RealKey=0"
                                                        "|Failed to parse button attributes: LCDKey=0, RealKey=1.5"));
        const QMap<int, int> areaOf{{10, 1}, {11, 1}, {12, 1}, {0, 0}, {90, -1}, {91, -1}};
        for (auto key = areaOf.begin(); key != areaOf.end(); ++key) QCOMPARE(lock.getIdByLCDKey(key.key()), *key);
    }

    void loadsTheExample()
    {
        const QString halcyon = QStringLiteral(EXAMPLES_PATH "/halcyon/");
        MenuConfig menu;
        FNButtonConfig fn;
        KeyCheckConfig keys;
        LockAreaConfig lock;
        const QStringList said{load(menu, halcyon + "menu"), load(fn, halcyon + "fnbutton"),
                               load(keys, halcyon + "keycheck"), load(lock, halcyon + "lockarea/lockareaconfig.xml")};
        QCOMPARE(said, QStringList({"+", "+", "+", "+"}));
        // The look-ups find "edid" in different places, as the file explains.
        QCOMPARE(menu.findMenuItem("edid")->parent.lock()->key, QString("input"));
        QCOMPARE(menu.findChidItemsByKey("edid").constFirst()->key, QString("edid_import"));
        // Every function button can be tested, and all but the one that unlocks are in the same area.
        for (int index = 0; index < fn.findFNBtnMaxCount(); ++index) {
            const int key = fn.findDefaultBindingByIndex(index).lcdKey;
            QVERIFY(keys.getKeyCheckList().contains({key, QStringLiteral("FN %1").arg(index + 1)}));
            QCOMPARE(lock.getIdByLCDKey(key), index == 3 ? -1 : 4);
        }
    }
};

QTEST_GUILESS_MAIN(TestPanelFiles)
#include "test_panel_files.moc"
