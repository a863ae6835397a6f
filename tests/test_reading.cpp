// The words in which readers are written: what an absence costs, how lists are walked, what is stored whole or not at
// all, how text becomes a number, and the opening of a document.
#include "reading/cells.h"
#include "reading/document.h"
#include "reading/xmlparse.h"
#include "support.h"

#include <lcdmainconfig/common.h>

#include <QBuffer>

using namespace LCD::MainConfig;
using namespace LCD::MainConfigImpl::reading;

namespace {

struct Outcome {
    bool good = false;
    QString error;
};

/// Reads the root element of the text with the given cells.
template <class Record, class... Cells> Outcome read(const QString& xml, Record& record, const Cells&... cells)
{
    Outcome outcome;
    const Folder folder;
    const Report report{outcome.error};
    outcome.good = readDocument(folder.write("file.xml", xml), DEVICE_FRAME, report, record, cells...);
    return outcome;
}

struct Pair {
    s_RangeValue first;
    s_RangeValue second;
};

/// A subtree with two ranges, both required.
const auto pairCells = cells(child("First", OnNull::Fail, &Pair::first, Value), //
                             child("Second", OnNull::Fail, &Pair::second, Value));

QString nested(int depth) { return QString("<a>").repeated(depth) + QString("</a>").repeated(depth); }

} // namespace

Q_DECLARE_METATYPE(OnNull)
Q_DECLARE_METATYPE(Walk)

class TestReading : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAbsenceHasItsCost_data();
    void anAbsenceHasItsCost();
    void walksAList_data();
    void walksAList();
    void keepsWhatItsScopeSays();
    void dropsOnlyTheEntryThatFails();
    void convertsText_data();
    void convertsText();
    void opensADocument_data();
    void opensADocument();
    void parsesAsTheDomDoes_data();
    void parsesAsTheDomDoes();
    void boundsTheNesting();
};

void TestReading::anAbsenceHasItsCost_data()
{
    QTest::addColumn<OnNull>("onNull");
    QTest::addColumn<bool>("good");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("logged");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("laterRowsRun");
    QTest::newRow("fail") << OnNull::Fail << false << "Invalid [Gone] node." << 0 << 7 << false;
    QTest::newRow("fail and log") << OnNull::FailAndLog << false << "Invalid [Gone] node." << 1 << 7 << false;
    QTest::newRow("note") << OnNull::Note << true << "Invalid [Gone] node." << 0 << 7 << true;
    QTest::newRow("note and log") << OnNull::NoteAndLog << true << "Invalid [Gone] node." << 1 << 7 << true;
    QTest::newRow("skip") << OnNull::Skip << true << "" << 0 << 7 << true;
    QTest::newRow("read defaults") << OnNull::ReadDefaults << true << "" << 0 << 30 << true;
}

void TestReading::anAbsenceHasItsCost()
{
    QFETCH(OnNull, onNull);
    Pair pair;
    pair.first.value = 7;
    const LogLines log;
    const Outcome outcome = read("<DCS><Later Value='5'/></DCS>", pair, [&](const Reader& in, Pair& target) {
        in.element("Gone", onNull, target.first, Value("30"));
        in.element("Later", OnNull::Skip, target.second, Value);
    });
    QTEST(outcome.good, "good");
    QTEST(outcome.error, "error");
    QTEST(pair.first.value, "value");
    QFETCH(bool, laterRowsRun);
    QCOMPARE(pair.second.value, laterRowsRun ? 5 : 0);
    QFETCH(int, logged);
    const QStringList lines = logged ? QStringList("Log: " + outcome.error) : QStringList();
    QCOMPARE(log.taken(), lines);
}

void TestReading::walksAList_data()
{
    QTest::addColumn<Walk>("walk");
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("any") << Walk::Any << QList<int>{1, 2, 3, 4, 2};
    QTest::newRow("named") << Walk::Named << QList<int>{2, 4, 2};
    QTest::newRow("first named") << Walk::FirstNamed << QList<int>{2, 3, 4, 2};
}

void TestReading::walksAList()
{
    QFETCH(Walk, walk);
    s_EnumField field;
    const Outcome outcome = read("<DCS><Item Value='1'/><!-- --><Enum Value='2'/>text<Item Value='3'/>"
                                 "<Enum Value='4'><Enum Value='9'/></Enum><Enum Value='2'/></DCS>",
                                 field, enums(walk));
    QVERIFY(outcome.good);
    QList<int> values;
    for (const EnumValue& entry : field.enums) values.append(entry.value);
    QTEST(values, "values");
}

void TestReading::keepsWhatItsScopeSays()
{
    const QString gap = "<DCS><Pair><First Value='5'/></Pair><After Value='6'/></DCS>";
    Pair staged;
    Pair apart;
    Pair inside;
    s_RangeValue after;
    const auto rowAfter = [&after](const Reader& in, Pair&) { in.element("After", OnNull::Skip, after, Value); };

    QVERIFY(read(
                gap, staged, [](const Reader& in, Pair& p) { in.staged("Pair", OnNull::Note, p, pairCells); }, rowAfter)
                .good);
    QCOMPARE(staged.first.value, 0);
    QCOMPARE(after.value, 6);
    QVERIFY(read(gap, apart, [](const Reader& in, Pair& p) { in.apart("Pair", OnNull::Note, p, pairCells); }).good);
    QCOMPARE(apart.first.value, 5);
    const Outcome failed =
        read(gap, inside, [](const Reader& in, Pair& p) { in.element("Pair", OnNull::Note, p, pairCells); });
    QVERIFY(!failed.good);
    QCOMPARE(failed.error, QString("Invalid [Second] node."));
    QCOMPARE(inside.first.value, 5);
}

void TestReading::dropsOnlyTheEntryThatFails()
{
    const QString xml =
        "<DCS><P><First Value='1'/><Second/></P><P><First Value='2'/></P><P><First Value='3'/><Second/></P></DCS>";
    std::vector<Pair> kept;
    const Outcome outcome = read(
        xml, kept, [](const Reader& in, std::vector<Pair>& pairs) { in.stagedList(Walk::Any, "", pairs, pairCells); });
    QVERIFY(outcome.good);
    QCOMPARE(outcome.error, QString("Invalid [Second] node."));
    QCOMPARE(int(kept.size()), 2);
    QCOMPARE(kept[1].first.value, 3);

    std::vector<Pair> stopped;
    QVERIFY(!read(xml, stopped, [](const Reader& in, std::vector<Pair>& pairs) {
                 in.list(Walk::Any, "", pairs, pairCells);
             }).good);
    QCOMPARE(int(stopped.size()), 1);
}

void TestReading::convertsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("whole");
    QTest::addColumn<double>("real");
    QTest::addColumn<quint64>("unsigned64");
    QTest::addColumn<quint64>("signed64");
    QTest::addColumn<quint64>("low16");
    QTest::addColumn<int>("unsigned16");
    QTest::addColumn<int>("hundredths");
    const quint64 allBits = ~quint64(0);
    QTest::newRow("number") << "50" << 50 << 50.0 << quint64(50) << quint64(50) << quint64(50) << 50 << 5000;
    QTest::newRow("decimals") << "59.94" << 0 << 59.94 << quint64(0) << quint64(0) << quint64(0) << 0 << 5994;
    QTest::newRow("beyond 16 bits") << "70000" << 70000 << 70000.0 << quint64(70000) << quint64(70000) << quint64(4464)
                                    << 0 << 7000000;
    QTest::newRow("negative") << "-1" << -1 << -1.0 << quint64(0) << allBits << quint64(0) << 0 << -100;
    QTest::newRow("beyond an int") << "2147483648" << 0 << 2147483648.0 << quint64(2147483648U) << quint64(2147483648U)
                                   << quint64(0) << 0 << 0;
    QTest::newRow("64 bits") << "18446744073709551615" << 0 << 18446744073709551615.0 << allBits << quint64(0)
                             << quint64(0) << 0 << 0;
    QTest::newRow("huge") << "9e999" << 0 << qInf() << quint64(0) << quint64(0) << quint64(0) << 0 << 0;
    for (const char* const text : {"", "yes", "0x10", "1 2"})
        QTest::newRow(qPrintable(QString("no number: '%1'").arg(text)))
            << text << 0 << 0.0 << quint64(0) << quint64(0) << quint64(0) << 0 << 0;
}

void TestReading::convertsText()
{
    QFETCH(QString, text);
    int whole = -7;
    double real = -7;
    std::uint64_t number = 7;
    convert(text, whole);
    QTEST(whole, "whole");
    convert(text, real);
    QTEST(real, "real");
    convert(text, number);
    QTEST(quint64(number), "unsigned64");
    Signed64{}(text, number);
    QTEST(quint64(number), "signed64");
    Low16{}(text, number);
    QTEST(quint64(number), "low16");
    Unsigned16{}(text, whole);
    QTEST(whole, "unsigned16");
    Hundredths{}(text, whole);
    QTEST(whole, "hundredths");
    ThroughInt{}(text, real);
    QTEST(static_cast<int>(real), "whole");
}

void TestReading::opensADocument_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    const QString wrongVersion = "The file is not a valid configuration file of version 1.0 for device.";
    QTest::newRow("no version") << "<DCS/>"
                                << "";
    QTest::newRow("version 1.0") << "<DCS version='1.0'/>"
                                 << "";
    QTest::newRow("version 1.00") << "<DCS version='1.00'/>" << wrongVersion;
    QTest::newRow("version with a space") << "<DCS version='1.0 '/>" << wrongVersion;
    QTest::newRow("empty version") << "<DCS version=''/>" << wrongVersion;
    QTest::newRow("Version in another case") << "<DCS Version='2'/>"
                                             << "";
    QTest::newRow("root in another case") << "<dcs/>"
                                          << "The file is not a valid configuration file for device.";
    QTest::newRow("empty file") << ""
                                << "Parse error at line 1, column 1:\nunexpected end of file";
    QTest::newRow("malformed") << "<DCS>\n<a></b></DCS>"
                               << "Parse error at line 2, column 7:\ntag mismatch";
}

void TestReading::opensADocument()
{
    QFETCH(QString, xml);
    QString nothing;
    const Outcome outcome = read(xml, nothing);
    QTEST(outcome.error, "error");
    QCOMPARE(outcome.good, outcome.error.isEmpty());

    const Report report{nothing};
    QDomDocument document;
    QVERIFY(!openDocument({}, DEVICE_FRAME, report, document));
    QCOMPARE(nothing, QString("Invalid file path!\n"));
    QVERIFY(!openDocument("/nowhere/%1.xml", DEVICE_FRAME, report, document));
    QCOMPARE(nothing, QString("Fail to open file [/nowhere/%1.xml]!"));
}

void TestReading::parsesAsTheDomDoes_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("namespaces") << QByteArray("<a:x xmlns:a='u' a:b='1' b='2'><a:y/></a:x>");
    QTest::newRow("everything else") << QByteArray("<?xml version='1.0'?><!DOCTYPE a [<!ENTITY e 'text'>]>\n"
                                                   "<a b='&e;'> <!-- c --> <?p q?>&e;<![CDATA[<d>]]> &lt; </a>");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0a\0/\0>\0", 10);
    QTest::newRow("mismatch") << QByteArray("<a>\n  <b></a>");
    QTest::newRow("unbound prefix") << QByteArray("<a:b/>");
    QTest::newRow("two roots") << QByteArray("<a/><b/>");
    QTest::newRow("nothing") << QByteArray();
}

void TestReading::parsesAsTheDomDoes()
{
    QFETCH(QByteArray, xml);
    QDomDocument expected;
    ParseFailure expectedFailure;
    const bool expectedGood =
        expected.setContent(xml, true, &expectedFailure.message, &expectedFailure.line, &expectedFailure.column);
    QBuffer buffer(&xml);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QDomDocument document;
    ParseFailure failure;
    QCOMPARE(parseXml(buffer, document, failure), expectedGood);
    QCOMPARE(document.toString(), expected.toString());
    QCOMPARE(failure.message, expectedFailure.message);
    QCOMPARE(failure.line, expectedFailure.line);
    QCOMPARE(failure.column, expectedFailure.column);
    QCOMPARE(document.documentElement().lineNumber(), expected.documentElement().lineNumber());
}

void TestReading::boundsTheNesting()
{
    QString nothing;
    QCOMPARE(read(QString("<DCS>%1</DCS>").arg(nested(DEEPEST_NESTING - 1)), nothing).error, QString());
    for (const int depth : {DEEPEST_NESTING, 300000})
        QCOMPARE(read(QString("<DCS>\n%1</DCS>").arg(nested(depth)), nothing).error,
                 QString("Parse error at line 2, column 3000:\nelements are nested deeper than 1000 levels"));
}

QTEST_GUILESS_MAIN(TestReading)
#include "test_reading.moc"
