// The words in which readers are written: what an absence costs, how lists are walked, what is stored whole or not at
// all, how text becomes a number, and the opening of a document.
#include "reading/cells.h"
#include "reading/document.h"
#include "reading/xmlparse.h"
#include "support.h"

#include <lcdmainconfig/common.h>

#include <QBuffer>
#include <QRandomGenerator>

#include <sys/stat.h>

using namespace LCD::MainConfig;
using namespace LCD::MainConfigImpl::reading;

namespace {

/// Reads the root element of the text with the given cells, and tells how that went.
template <class Record, class... Cells> QString read(const QString& xml, Record& record, const Cells&... cells)
{
    const Folder folder;
    QString error;
    const bool good = readDocument(folder.write("file.xml", xml), DEVICE_FRAME, Report{error}, record, cells...);
    return (good ? "read, " : "failed, ") + error;
}

struct Pair {
    s_RangeValue first;
    s_RangeValue second;
};

/// A subtree with two ranges, both required.
const auto pairCells = cells(child("First", OnNull::Fail, &Pair::first, Value), //
                             child("Second", OnNull::Fail, &Pair::second, Value));

struct Target {
    Pair pair;
    std::vector<Pair> pairs;
    s_RangeValue after;
};

QString nested(int depth) { return QString("<a>").repeated(depth) + QString("</a>").repeated(depth); }

} // namespace

Q_DECLARE_METATYPE(OnNull)

class TestReading : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAbsenceHasItsCost_data();
    void anAbsenceHasItsCost();
    void walksAList();
    void aGapCostsItsScope();
    void convertsText_data();
    void convertsText();
    void convertsAsQtDoes();
    void opensADocument_data();
    void opensADocument();
    void opensNoFile();
    void parsesAsTheDomDoes_data();
    void parsesAsTheDomDoes();
    void boundsTheCost_data();
    void boundsTheCost();
    void boundsTheSize();
};

void TestReading::anAbsenceHasItsCost_data()
{
    QTest::addColumn<OnNull>("onNull");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("values"); // Of the absent element and of a later one.
    const QString invalid = "Invalid [Gone] node.";
    // clang-format off
    QTest::newRow("fail")          << OnNull::Fail         << "failed, " + invalid << ""                << "7 0";
    QTest::newRow("fail and log")  << OnNull::FailAndLog   << "failed, " + invalid << "Log: " + invalid << "7 0";
    QTest::newRow("note")          << OnNull::Note         << "read, " + invalid   << ""                << "7 5";
    QTest::newRow("note and log")  << OnNull::NoteAndLog   << "read, " + invalid   << "Log: " + invalid << "7 5";
    QTest::newRow("skip")          << OnNull::Skip         << "read, "             << ""                << "7 5";
    QTest::newRow("read defaults") << OnNull::ReadDefaults << "read, "             << ""                << "30 5";
    // clang-format on
}

void TestReading::anAbsenceHasItsCost()
{
    QFETCH(OnNull, onNull);
    Pair pair;
    pair.first.value = 7;
    const LogLines log;
    const auto row = child("Gone", onNull, &Pair::first, Value("30"));
    const auto later = child("Later", OnNull::Skip, &Pair::second, Value);
    QTEST(read("<DCS><Later Value='5'/></DCS>", pair, row, later), "outcome");
    QTEST(log.taken().join('|'), "logged");
    QTEST(QString("%1 %2").arg(pair.first.value).arg(pair.second.value), "values");
}

void TestReading::walksAList()
{
    const auto walked = [](Walk walk) {
        s_EnumField field;
        read("<DCS><Item Value='1'/><!-- --><Enum Value='2'/>text<Item Value='3'/>"
             "<Enum Value='4'><Enum Value='9'/></Enum><Enum Value='2'/></DCS>",
             field, enums(walk));
        QList<int> values;
        for (const EnumValue& entry : field.enums) values.append(entry.value);
        return values;
    };
    QCOMPARE(walked(Walk::Any), (QList<int>{1, 2, 3, 4, 2}));
    QCOMPARE(walked(Walk::First), (QList<int>{1}));
    QCOMPARE(walked(Walk::Named), (QList<int>{2, 4, 2}));
    QCOMPARE(walked(Walk::FirstNamed), (QList<int>{2, 3, 4, 2}));
    QCOMPARE(walked(Walk::Descendants), (QList<int>{2, 4, 9, 2}));
}

/// What stays of an element with a gap and of a list with a gap in its second entry, and whether the reader goes on.
void TestReading::aGapCostsItsScope()
{
    const auto kept = [](const auto& row) {
        Target target;
        const QString xml = "<DCS><Gap><First Value='5'/></Gap><P><First Value='1'/><Second/></P>"
                            "<P><First Value='2'/></P><P><First Value='3'/><Second/></P><After Value='6'/></DCS>";
        QString text = read(xml, target, row, child("After", OnNull::Skip, &Target::after, Value));
        text += QString(" %1").arg(target.pair.first.value);
        for (const Pair& pair : target.pairs) text += QString(" %1").arg(pair.first.value);
        return text + QString(", %1").arg(target.after.value);
    };
    // clang-format off
    const QString gap = "Invalid [Second] node.";
    QCOMPARE(kept([](const Reader& in, Target& t) { in.staged("Gap", OnNull::Skip, t.pair, pairCells); }), "read, " + gap + " 0, 6");
    QCOMPARE(kept([](const Reader& in, Target& t) { in.apart("Gap", OnNull::Skip, t.pair, pairCells); }), "read, " + gap + " 5, 6");
    QCOMPARE(kept([](const Reader& in, Target& t) { in.element("Gap", OnNull::Skip, t.pair, pairCells); }), "failed, " + gap + " 5, 0");
    QCOMPARE(kept([](const Reader& in, Target& t) { in.stagedList(Walk::Named, "P", t.pairs, pairCells); }), "read, " + gap + " 0 1 3, 6");
    QCOMPARE(kept([](const Reader& in, Target& t) { in.list(Walk::Named, "P", t.pairs, pairCells); }), "failed, " + gap + " 0 1, 0");
    // clang-format on
}

void TestReading::convertsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("numbers");
    // clang-format off
    // int, and through int, double, unsigned 64, signed 64, low 16, unsigned 16, hundredths
    QTest::newRow("number")         << "50"                   << "50 50 50 50 50 50 50 5000";
    QTest::newRow("decimals")       << "59.94"                << "0 0 59.94 0 0 0 0 5994";
    QTest::newRow("beyond 16 bits") << "70000"                << "70000 70000 70000 70000 70000 4464 0 7000000";
    QTest::newRow("negative")       << "-1"                   << "-1 -1 -1 0 18446744073709551615 0 0 -100";
    QTest::newRow("beyond an int")  << "2147483648"           << "0 0 2.14748e+09 2147483648 2147483648 0 0 0";
    QTest::newRow("64 bits")        << "18446744073709551615" << "0 0 1.84467e+19 18446744073709551615 0 0 0 0";
    QTest::newRow("huge")           << "9e999"                << "0 0 inf 0 0 0 0 0";
    // clang-format on
    for (const char* const text : {"", "yes", "0x10", "1 2"})
        QTest::addRow("no number: '%s'", text) << text << "0 0 0 0 0 0 0 0";
}

void TestReading::convertsText()
{
    QFETCH(QString, text);
    const auto by = [&text](const auto& convert, auto field) {
        convert(text, field);
        return QString::number(field);
    };
    const std::uint64_t number = 7;
    const QStringList numbers{by(Plain{}, 7),         by(ThroughInt{}, 7.0), by(Plain{}, 7.0),    by(Plain{}, number),
                              by(Signed64{}, number), by(Low16{}, number),   by(Unsigned16{}, 7), by(Hundredths{}, 7)};
    QTEST(numbers.join(' '), "numbers");
}

void TestReading::convertsAsQtDoes()
{
    QRandomGenerator random(15);
    const QString characters = QStringLiteral("0123456789012345678901234567890123456789+- .e\t\u0663\uFF11");
    for (int i = 0; i < 50000; ++i) {
        QString text;
        for (int length = random.bounded(12); length > 0; --length)
            text += characters.at(random.bounded(i % 2 == 0 ? 40 : characters.size()));
        const auto same = [&text](const auto& wanted, const auto& convert) {
            bool wantedGood = false;
            const auto number = wanted(&wantedGood);
            auto converted = number;
            return convert(text, converted) == wantedGood && converted == number;
        };
        QVERIFY2(same([&](bool* good) { return text.toInt(good); }, Plain{}), qPrintable(text));
        QVERIFY2(same([&](bool* good) { return std::uint64_t{text.toULongLong(good)}; }, Plain{}), qPrintable(text));
        QVERIFY2(same([&](bool* good) { return static_cast<std::uint64_t>(text.toLongLong(good)); }, Signed64{}),
                 qPrintable(text));
        QVERIFY2(same([&](bool* good) { return text.toFloat(good); }, Plain{}), qPrintable(text));
        QVERIFY2(same([&](bool* good) { return text.toDouble(good); }, Plain{}), qPrintable(text));
    }
}

void TestReading::opensADocument_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("outcome");
    const char* const wrongVersion = "failed, The file is not a valid configuration file of version 1.0 for device.";
    const char* const wrongRoot = "failed, The file is not a valid configuration file for device.";
    // clang-format off
    QTest::newRow("no version")              << "<DCS/>"                << "read, ";
    QTest::newRow("version 1.0")             << "<DCS version='1.0'/>"  << "read, ";
    QTest::newRow("version 1.00")            << "<DCS version='1.00'/>" << wrongVersion;
    QTest::newRow("version with a space")    << "<DCS version='1.0 '/>" << wrongVersion;
    QTest::newRow("empty version")           << "<DCS version=''/>"     << wrongVersion;
    QTest::newRow("Version in another case") << "<DCS Version='2'/>"    << "read, ";
    QTest::newRow("root in another case")    << "<dcs/>"                << wrongRoot;
    QTest::newRow("empty file")    << ""                    << "failed, Parse error at line 1, column 1:\nunexpected end of file";
    QTest::newRow("malformed")     << "<DCS>\n<a></b></DCS>" << "failed, Parse error at line 2, column 7:\ntag mismatch";
    // clang-format on
}

void TestReading::opensADocument()
{
    QFETCH(QString, xml);
    QString nothing;
    QTEST(read(xml, nothing), "outcome");
}

void TestReading::opensNoFile()
{
    QString error;
    QDomDocument document;
    QVERIFY(!openDocument({}, DEVICE_FRAME, Report{error}, document));
    QCOMPARE(error, QString("Invalid file path!\n"));
    QVERIFY(!openDocument("/nowhere/%1.xml", DEVICE_FRAME, Report{error}, document));
    QCOMPARE(error, QString("Fail to open file [/nowhere/%1.xml]!"));

    // Nothing but a regular file is, and nothing else is waited for.
    const Folder folder;
    const QString pipe = folder.path("pipe.xml");
    const QString link = folder.path("link.xml");
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(QFile::link(pipe, link));
    for (const QString& path : {pipe, link, folder.path(), QString("/dev/zero")}) {
        QVERIFY(!openDocument(path, DEVICE_FRAME, Report{error}, document));
        QCOMPARE(error, "Fail to open file [" + path + "]!");
    }
}

void TestReading::parsesAsTheDomDoes_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("namespaces") << QByteArray("<a:x xmlns:a='u' a:b='1' b='2'><a:y/></a:x>");
    QTest::newRow("everything else") << QByteArray("<?xml version='1.0'?><!DOCTYPE a [<!ENTITY e 'text'>]>\n"
                                                   "<a b='&e;'> <!-- c --> <?p q?>&e;<![CDATA[<d>]]> &lt; </a>");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0a\0/\0>\0", 10);
    QTest::newRow("entity that nobody declared") << QByteArray("<a b='1 &x; 2'>&x;t<c b='&x;'/></a>");
    QTest::newRow("entities without end") << QByteArray("<!DOCTYPE a [<!ENTITY a '&a;&a;'>]><a>&a;</a>");
    QTest::newRow("mismatch") << QByteArray("<a>\n  <b></a>");
    QTest::newRow("unbound prefix") << QByteArray("<a:b/>");
    QTest::newRow("two roots") << QByteArray("<a/><b/>");
    QTest::newRow("nothing") << QByteArray();
}

void TestReading::parsesAsTheDomDoes()
{
    QFETCH(QByteArray, xml);
    QDomDocument expected, document;
    ParseFailure wanted, failure;
    const bool good = expected.setContent(xml, true, &wanted.message, &wanted.line, &wanted.column);
    QBuffer buffer(&xml);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(parseXml(buffer, document, failure), good);
    QCOMPARE(document.toString(), expected.toString());
    QCOMPARE(failure.message, wanted.message);
    QCOMPARE(QPoint(failure.column, failure.line), QPoint(wanted.column, wanted.line));
    QCOMPARE(document.documentElement().lineNumber(), expected.documentElement().lineNumber());
}

void TestReading::boundsTheCost_data()
{
    QTest::addColumn<QString>("within");
    QTest::addColumn<QString>("beyond");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* message, int bound, const auto& documentOf) {
        QTest::newRow(name) << documentOf(bound) << documentOf(bound + 1) << message;
    };
    const auto declared = [](const QString& type, const QString& content = {}) {
        return QString("<!DOCTYPE DCS [%1]><DCS>%2</DCS>").arg(type, content);
    };
    const auto numbered = [](const QString& text, int count) {
        QString all;
        for (int number = 1; number <= count; ++number) all += text.arg(number);
        return all;
    };
    const QString thousand = QString("<!ENTITY e '%1'>").arg(QString(999, 'x'));
    const QString open = QString("<!ELEMENT a %1b%2>");
    // clang-format off
    row("nesting", "elements are nested deeper than 5000 levels", DEEPEST_NESTING - 1,
        [](int depth) { return QString("<DCS>%1</DCS>").arg(nested(depth)); });
    row("attributes", "an element has more than 1000 attributes", MOST_ATTRIBUTES,
        [&](int count) { return QString("<DCS %1/>").arg(numbered("a%1='' ", count)); });
    row("prefixes", "the document has more than 16 namespace prefixes", MOST_PREFIXES,
        [&](int count) { return QString("<DCS %1/>").arg(numbered("xmlns:a%1='u' ", count)); });
    row("declarations", "the document type has more than 500 declarations", MOST_DECLARATIONS,
        [&](int count) { return declared(numbered("<!NOTATION n%1 SYSTEM ''>", count)); });
    row("declared text", "declarations have more than 65536 characters", LONGEST_DECLARATIONS - 1,
        [&](int length) { return declared(QString("<!ENTITY e '%1'>").arg(QString(length, 'x'))); });
    row("entity used often", "entities expand to more than 1000000 characters", LONGEST_EXPANSION / 1000,
        [&](int count) { return declared(thousand, QString("&e;").repeated(count)); });
    row("entity of entities", "entities expand to more than 1000000 characters", LONGEST_EXPANSION / 1000 - 1,
        [&](int count) { return declared(thousand + "<!ENTITY f '&#38;e;'>", "&f;" + QString("&e;").repeated(count - 1)); });
    row("parameter entity", "entities expand to more than 1000000 characters", LONGEST_EXPANSION / 1000,
        [&](int count) { return declared(QString("<!ENTITY % p '%1'>").arg(QString(999, ' ')) + QString("%p;").repeated(count)); });
    row("parentheses", "the document type has more than 1000 parentheses", MOST_PARENTHESES,
        [&](int count) { return declared(open.arg(QString("(").repeated(count), QString(")").repeated(count))); });
    row("levels", "the levels of all nodes are more than 120000000", 27999,
        [](int count) { return QString("<DCS>%1%2%3</DCS>").arg(QString("<a>").repeated(3999), QString("<!---->").repeated(count), QString("</a>").repeated(3999)); });
    // clang-format on
}

void TestReading::boundsTheCost()
{
    QFETCH(QString, within);
    QFETCH(QString, beyond);
    QFETCH(QString, message);
    QString nothing;
    QCOMPARE(read(within, nothing), QString("read, "));
    const QString outcome = read(beyond, nothing);
    QVERIFY2(outcome.startsWith("failed, Parse error at line 1, column "), qPrintable(outcome));
    QCOMPARE(outcome.section('\n', 1), message);
}

void TestReading::boundsTheSize()
{
    const Folder folder;
    QFile file(folder.write("file.xml", "<DCS>"));
    QVERIFY(file.resize(LARGEST_FILE + 1));
    QString error;
    QDomDocument document;
    QVERIFY(!openDocument(file.fileName(), DEVICE_FRAME, Report{error}, document));
    QCOMPARE(error, QString("Parse error at line 1, column 1:\nthe file is larger than 16777216 bytes"));
}

QTEST_GUILESS_MAIN(TestReading)
#include "test_reading.moc"
