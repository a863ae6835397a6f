// The load of the card catalogue: which files are read, and what each fault costs.
#include "cards.h"

namespace {

/// A card without a fault but for one piece that is replaced.
QString card(int model, const QString& piece = "%1", const QString& replacement = "%1")
{
    return QString("<Card ModelId='%1'><Name><zh_CN/><en/></Name><ConnectorGroups><Capacity/></ConnectorGroups>"
                   "<CapacityGroups/><Sections/></Card>")
        .replace(piece, replacement)
        .arg(model);
}

QString file(const QString& cards) { return "<DCS version=\"1.0\"><Subcards>" + cards + "</Subcards></DCS>"; }

} // namespace

class TestCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choosesFiles();
    void chargesEachFault_data();
    void chargesEachFault();
};

void TestCards::choosesFiles()
{
    CardFixture fixture;
    QTest::ignoreMessage(QtWarningMsg, "device is empty");
    QVERIFY(!fixture.load({}));
    QCOMPARE(fixture.error, QString());

    fixture.addDevice({{"MainControlCardSlots", "7"}});
    fixture.addDevice(
        {{"MixCardSlots", "-1"}, {"InputCardSlots", "2"}, {"OutputCardSlots", "3"}, {"MVRCardSlots", "4"}});
    fixture.addDevice({{"AUXCardSlots", "5"}, {"EXPCardSlots", "0"}});
    // The number in a file's name chooses the file; the number of the card in it is not compared.
    const QStringList chosen{"002.xml", "18446744073709551615.xml", "2.xml",   "3.xml",  "B/2.xml",
                             "B/4.xml", "B/7.backup.xml",           "a/5.xml", "a/x.xml"};
    for (int index = 0; index < chosen.size(); ++index)
        fixture.folder.write("cards/" + chosen[index], file(card(index)));
    for (const char* other : {"9.xml", "8.xml", "a/2.txt", "a/deep/2.xml"})
        fixture.folder.write(QString("cards/") + other, file(card(100)));
    QTest::ignoreMessage(QtDebugMsg, "switch defeat: x");
    QVERIFY(fixture.load());
    const QList<int> models{0, 1, 2, 3, 4, 5, 6, 7, 8};
    QCOMPARE(fixture.models(), models);

    // A second load adds to the first.
    QTest::ignoreMessage(QtDebugMsg, "switch defeat: x");
    QVERIFY(fixture.load());
    QCOMPARE(fixture.models(), models + models);
}

void TestCards::chargesEachFault_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QList<int>>("models");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QString>("directory");
    // Every file stands between one with card 1 and one with card 5.
    const auto row = [](const char* tag, const QString& xml, bool result, const char* error, const QList<int>& models,
                        const QStringList& log = {}, const char* directory = "cards") {
        QTest::newRow(tag) << xml << result << QString(error) << models << log << QString(directory);
    };
    const auto noted = [&](const char* tag, const char* piece, const char* error) {
        row(tag, file(card(2, piece, {}) + card(3)), true, error, {1, 2, 3, 5}, {QString("Log: ") + error});
    };
    const auto fatal = [&](const char* tag, const char* piece, const char* by, const char* error) {
        row(tag, file(card(2) + card(3, piece, by) + card(4)), false, error, {1, 2});
    };
    row("no directory: load fails", {}, false, "Invalid file path!\n%1", {}, {}, "");
    row("directory can't be made: load fails", {}, false, "Invalid file path!\n%1", {}, {}, "cards/1.xml/new");
    row("directory is made", {}, true, "", {}, {}, "new/one");
    row("file can't be opened: load fails", {}, false, "Fail to open file [%1]!", {}, {}, "odd");
    row("not XML: load fails", "<DCS", false, "Parse error at line 1, column 5:\nunexpected end of file", {1});
    row("not DCS: load fails", "<LCD/>", false, "The file is not a valid configuration file for device.", {1});
    row("empty root: file skipped in silence", "<DCS version=\"1.0\"/>", true, "", {1, 5});
    row("only a comment: file skipped", "<DCS><!-- --></DCS>", true, "Invalid [Subcards] node.", {1, 5});
    row("no Name: card dropped", file("<Card ModelId=\"2\"/>" + card(3)), true, "Invalid [Name] node.", {1, 3, 5});
    row("the last fault stays", file(card(2, "<Sections/>", {}) + "<Card/>"), true, "Invalid [Name] node.", {1, 2, 5},
        {"Log: Invalid [Sections] node."});
    fatal("no zh_CN: load fails", "<zh_CN/>", "", "Invalid [zh_CN] node.");
    fatal("no en: load fails", "<en/>", "", "Invalid [en] node.");
    fatal("no Capacity: load fails", "<Capacity/>", "", "Invalid [Capacity] node.");
    fatal("no DeviceModes: load fails", "yGroups/>", "yGroups><Any/></CapacityGroups>", "Invalid [DeviceModes] node.");
    noted("no ConnectorGroups: card kept", "<ConnectorGroups><Capacity/></ConnectorGroups>",
          "Invalid [ConnectorGroups] node.");
    noted("no CapacityGroups: card kept", "<CapacityGroups/>", "Invalid [CapacityGroups] node.");
    noted("no Sections: card kept", "<Sections/>", "Invalid [Sections] node.");
}

void TestCards::chargesEachFault()
{
    QFETCH(QString, xml);
    QFETCH(QString, directory);
    QFETCH(QString, error);
    CardFixture fixture;
    fixture.addDevice({{"InputCardSlots", "1"}, {"OutputCardSlots", "2"}, {"AUXCardSlots", "3"}});
    fixture.folder.write("cards/1.xml", file(card(1)));
    fixture.folder.write("cards/2.xml", xml);
    fixture.folder.write("cards/3.xml", file(card(5)));
    fixture.folder.write("odd/1.xml/makes a directory of 1.xml", {});
    if (!directory.isEmpty()) directory = fixture.folder.path(directory);
    const LogLines log;
    QTEST(fixture.load(directory), "result");
    QCOMPARE(fixture.error, error.replace("%1", directory));
    QTEST(fixture.models(), "models");
    QTEST(log.taken(), "log");
    QVERIFY(!error.isEmpty() || QDir(directory).exists());
}

QTEST_GUILESS_MAIN(TestCards)
#include "test_cards.moc"
