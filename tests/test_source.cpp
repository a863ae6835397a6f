// The source of a file, held against the DOM's own parser: on the example configuration, on other ways of writing it,
// and on damaged copies of it.
#include "support.h"

#include <check/source.h>

#include "reading/xmlparse.h"

#include <QBuffer>
#include <QDirIterator>
#include <QTextCodec>

#include <random>

using lcdcheck::Source;

namespace {

using Strings = QStringList;

bool parse(QByteArray bytes, QDomDocument& document, int* line = nullptr)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    LCD::MainConfigImpl::reading::ParseFailure failure;
    const bool good = LCD::MainConfigImpl::reading::parseXml(buffer, document, failure);
    if (line != nullptr) *line = failure.line;
    return good;
}

QString textOf(const QDomElement& element)
{
    QString text;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling())
        if (node.isText() || node.isCDATASection()) text += node.nodeValue();
    return text;
}

/// What stands at a place, by the lines alone; characters beyond the basic plane count as one.
QString textAt(const Source& source, const lcdcheck::Place& place)
{
    const auto characters = source.line(place.line).toUcs4();
    return QString::fromUcs4(characters.constData() + place.column - 1, place.endColumn - place.column);
}

/// The first thing in which a source and the document parsed from the same bytes differ; empty when they agree.
QString difference(const Source& source, const QDomDocument& document)
{
    const std::vector<QDomElement> found = source.match(document);
    if (found.empty()) return QStringLiteral("elements");
    std::vector<QString> texts(found.size());
    for (const Source::Text& text : source.texts()) texts[size_t(text.parent)] += source.value(text);
    for (size_t i = 0; i < found.size(); ++i) {
        const Source::Element& element = source.elements()[i];
        QSet<QString> names;
        for (const Source::Attribute& attribute : source.attributes(element)) {
            const QString written = source.slice(attribute.name).toString();
            if (written == "xmlns" || written.startsWith("xmlns:")) continue;
            const QString name = lcdcheck::localName(written).toString();
            names.insert(name);
            if (found[i].attribute(name) != source.value(*source.attribute(element, name))) return "value of " + name;
            if (textAt(source, source.place(attribute.name)) != written && source.text().size() < 100'000 &&
                !source.text().contains("<!ENTITY"))
                return "place of " + name;
        }
        QSet<QString> wanted;
        const QDomNamedNodeMap attributes = found[i].attributes();
        for (int k = 0; k < attributes.count(); ++k) wanted.insert(attributes.item(k).toAttr().name());
        if (names != wanted) return "attributes of " + found[i].tagName();
        if (texts[i] != textOf(found[i])) return "text of " + found[i].tagName();
        if (!source.text().contains("<!ENTITY") && textAt(source, source.place(element)) != '<' + source.tag(element))
            return "place of " + found[i].tagName();
    }
    return {};
}

const std::vector<QByteArray>& examples()
{
    static const std::vector<QByteArray> files = [] {
        Strings paths;
        for (QDirIterator it(EXAMPLES_PATH, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            paths.append(it.next());
        paths.sort();
        std::vector<QByteArray> all;
        for (const QString& path : paths) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly)) all.push_back(file.readAll());
        }
        return all;
    }();
    return files;
}

/// Each element in a line: how deep, its tag, its attributes.
Strings outline(const QDomDocument& document)
{
    Strings lines;
    int depth = 0;
    QDomElement element = document.documentElement();
    while (!element.isNull()) {
        Strings parts;
        const QDomNamedNodeMap attributes = element.attributes();
        for (int k = 0; k < attributes.count(); ++k)
            parts.append(attributes.item(k).nodeName() + '=' + attributes.item(k).nodeValue());
        parts.sort();
        lines.append(QString::number(depth) + element.tagName() + parts.join(' '));
        QDomElement next = element.firstChildElement();
        if (!next.isNull()) ++depth;
        while (next.isNull() && !element.isNull()) {
            next = element.nextSiblingElement();
            if (!next.isNull()) break;
            element = element.parentNode().toElement();
            --depth;
        }
        element = next;
    }
    return lines;
}

/// Whether two outlines are the same but for at most one element in one place.
bool alike(const Strings& a, const Strings& b)
{
    int first = 0;
    while (first < a.size() && first < b.size() && a[first] == b[first]) ++first;
    int last = 0;
    while (first + last < std::min(a.size(), b.size()) && a[a.size() - 1 - last] == b[b.size() - 1 - last]) ++last;
    return std::max(a.size(), b.size()) - first - last <= 1;
}

/// The places of one character of the markup, outside comments and the XML declaration.
std::vector<int> placesOf(const QByteArray& bytes, char wanted)
{
    std::vector<int> places;
    for (int i = bytes.indexOf('\n'); i < bytes.size(); ++i) {
        if (bytes.mid(i, 4) == "<!--") i = bytes.indexOf("-->", i) + 3;
        if (bytes[i] == wanted) places.push_back(i);
    }
    return places;
}

} // namespace

class TestSource : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void otherWritings_data();
    void otherWritings();
    void oddDocuments_data();
    void oddDocuments();
    void singleDamages_data();
    void singleDamages();
    void anyBytes();
    void places();
    void faults_data();
    void faults();
    void bounds();
};

void TestSource::otherWritings_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QByteArray>("codec");
    const auto row = [](const char* name, const char* from, const char* to, const char* codec = "UTF-8") {
        QTest::newRow(name) << from << to << QByteArray(codec);
    };
    row("as they are", "", "");
    row("CRLF", "\n", "\r\n");
    row("CR", "\n", "\r");
    row("UTF-16", "encoding=\"UTF-8\"", "encoding=\"UTF-16\"", "UTF-16");
    row("UTF-16BE unmarked", " encoding=\"UTF-8\"", "", "UTF-16BE");
    row("GB18030", "encoding=\"UTF-8\"", "encoding=\"GB18030\"", "GB18030");
    row("byte order mark", "<?xml", "\uFEFF<?xml");
    row("attributes on lines", "\" ", "\"\n\t\r\n");
    row("a duplicate, > and an entity in a value", "Support=\"1\"", "Support='0' x='a>b&amp;&#x1F6;' Support = \"1\"");
    row("comments and CDATA", "/><", "/><!-- <x a=\"1\"> \U0001F600--><![CDATA[<y>]]> t &lt; <?p <z?><");
    row("prefixes", "<Value ", "<p:Value xmlns:p='u' p:q='1' ");
}

void TestSource::otherWritings()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const QByteArray, codec);
    QVERIFY(examples().size() > 30);
    for (const QByteArray& file : examples()) {
        QString text = QString::fromUtf8(file);
        if (!from.isEmpty()) text.replace(from, to);
        const QByteArray bytes = QTextCodec::codecForName(codec)->fromUnicode(text);
        QDomDocument document;
        QVERIFY(parse(bytes, document));
        const Source source = Source::read(bytes);
        for (const Source::Fault& fault : source.faults()) QFAIL(qPrintable(fault.message));
        QCOMPARE(difference(source, document), QString());
        QCOMPARE(outline(source.toDocument()), outline(document));
    }
}

void TestSource::oddDocuments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("faulty");
    const auto row = [](const QByteArray& bytes, bool faulty) { QTest::newRow(bytes) << bytes << faulty; };
    // Whether anything is wrong; whether it is fatal is the parser's to say.
    for (const char* good : {"<a b='&#60;'>&lt;&#x1F6;</a>", "<a/><!--c--><?p q?>", "<a b\n=\n'1'\n></a\n>",
                             "<a>  &#32; </a>", "<?xml version='1.0' standalone='yes'?><a/>",
                             "<!DOCTYPE a [<!ENTITY e 'v&f;'><!ENTITY f 'w'>]><a b='&e;'>&e;</a>",
                             "<!DOCTYPE a [<!-- ]> --><!ENTITY e '<b c=\"1\">t</b><d/>'>]><a>&e;<x/>&e;</a>",
                             "<!DOCTYPE a [<!ENTITY e '<b>'>]><a>&e;</b></a>",
                             "<!DOCTYPE a [<!ENTITY e '&#60;b/>'>]><a>&e;</a>", "<a.b-c_d/>", "<a:b:c/>"})
        row(good, false);
    for (const char* bad : {"",
                            "  ",
                            "<!-- c -->",
                            "x<a/>",
                            "<a/>x",
                            "<a/><b/>",
                            "<a/>&#32;",
                            " <?xml version='1.0'?><a/>",
                            "<?xml?><a/>",
                            "<?xml version='1.0' ><a/>",
                            "<?xml version='1.0' standalone='maybe'?><a/>",
                            "<a>]]></a>",
                            "<a><!-- - -- --></a>",
                            "<a><!-- x ---></a>",
                            "<a b='<'/>",
                            "<a b='1'c='2'/>",
                            "<a>&foo;</a>",
                            "<a>&#0;</a>",
                            "<a>&amp</a>",
                            "<a>&#;</a>",
                            "<a>&#x1F600;</a>",
                            "<a>&#xFFFFFFFFF;</a>",
                            "<a>&#x110000;</a>",
                            "<a>&-;</a>",
                            "<a>& b</a>",
                            "<a>\x01</a>",
                            "<a>\xef\xbf\xbf</a>",
                            "<1a/>",
                            "< a/>",
                            "<a / >",
                            "<a></ a>",
                            "<a></a b>",
                            "<a",
                            "<a><!-- ",
                            "<a><![CDATA[",
                            "<a><?p",
                            "<a><?\?></a>",
                            "<a b/>",
                            "<a b=1/>",
                            "<a b='1'\u00a0c='2'/>",
                            "<!doctype a><a/>",
                            "<!DOCTYPE a [<!ENTITY e '&e;'>]><a>&e;</a>",
                            "<!DOCTYPE a [<!ENTITY e '<b/>'>]><a q='&e;'/>",
                            "<!DOCTYPE a [<!ENTITY e SYSTEM 'x'>]><a q='&e;'/>",
                            "<?xml version='1.0' encoding='UTF-16'?><a/>",
                            "<?xml version='1.0' encoding='nonsense'?><a/>",
                            "<a>\xff</a>"})
        row(bad, true);
}

void TestSource::oddDocuments()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, faulty);
    QDomDocument document;
    const bool wellFormed = parse(bytes, document);
    const Source source = Source::read(bytes);
    QCOMPARE(source.isWellFormed(), wellFormed);
    QCOMPARE(!source.faults().empty(), faulty);
    if (wellFormed) QCOMPARE(difference(source, document), QString());
}

void TestSource::singleDamages_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("with");
    QTest::newRow("lost >") << ">"
                            << "";
    QTest::newRow("lost <") << "<"
                            << "";
    QTest::newRow("lost /") << "/"
                            << "";
    QTest::newRow("lost quote") << "\""
                                << "";
    QTest::newRow("lost =") << "="
                            << "";
    QTest::newRow("< in a value") << "=\""
                                  << "=\"<";
    QTest::newRow("& in a value") << "=\""
                                  << "=\"&";
    QTest::newRow("misspelled end tag") << "</"
                                        << "</x";
    QTest::newRow("superfluous end tag") << "</"
                                         << "</Stray>\n</";
}

/// At least 97 % of the trees come back whole, and every fault is told where it is or where the parser meets it.
void TestSource::singleDamages()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, with);
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same damages each time
    int refused = 0;
    int recovered = 0;
    for (int round = 0; round < 150; ++round) {
        const QByteArray& whole = examples()[random() % examples().size()];
        const std::vector<int> candidates = placesOf(whole, wanted[0].toLatin1());
        const int at = candidates[random() % candidates.size()];
        if (whole.mid(at, wanted.size()) != wanted.toLatin1()) continue;
        const QByteArray bytes = QByteArray(whole).replace(at, wanted.size(), with.toLatin1());
        QDomDocument document;
        int parserLine = 0;
        const bool wellFormed = parse(bytes, document, &parserLine);
        const Source source = Source::read(bytes);
        QCOMPARE(source.isWellFormed(), wellFormed);
        if (wellFormed) continue;
        ++refused;
        const int line = int(whole.left(at).count('\n')) + 1;
        const auto& faults = source.faults();
        QVERIFY2(std::any_of(faults.begin(), faults.end(),
                             [&](const Source::Fault& fault) {
                                 return fault.place.line == line || fault.place.line == parserLine ||
                                        fault.opened.has_value();
                             }),
                 bytes.mid(at - 40, 80).constData());
        QDomDocument original;
        parse(whole, original);
        recovered += alike(outline(original), outline(source.toDocument())) ? 1 : 0;
    }
    QVERIFY(refused > 15);
    QVERIFY2(recovered * 100 >= refused * 97, qPrintable(QString("%1 of %2").arg(recovered).arg(refused)));
}

/// Many damages at once: the verdict is the parser's, and where it accepts, the elements are.
void TestSource::anyBytes()
{
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same bytes each time
    const QByteArray seed = "<?xml version='1.0'?><!DOCTYPE a [<!ENTITY e '<b/>'>]><a b=\"1\">\n <c d='&e;'/>&e;&lt;x"
                            "<![CDATA[y]]><!-- z --></a>\n";
    const QByteArray bits = "<>/\"'=&;! -?[]ab\n\x01\xff";
    for (int round = 0; round < 20'000; ++round) {
        QByteArray bytes = seed;
        for (unsigned i = 0; i <= random() % 4; ++i) {
            const int at = 54 + int(random() % unsigned(bytes.size() - 54));
            bytes.replace(at, int(random() % 3), bits.mid(int(random() % unsigned(bits.size())), 1));
        }
        QDomDocument document;
        const bool wellFormed = parse(bytes, document);
        const Source source = Source::read(bytes);
        if (source.isWellFormed() != wellFormed) QFAIL(bytes.constData());
        if (wellFormed && source.match(document).empty()) QFAIL(bytes.constData());
        QCOMPARE(source.toDocument().isNull(), source.elements().empty());
    }
}

void TestSource::places()
{
    const Source source =
        Source::read("<a>\r\n<!-- expect --> <!--two-->\n\t<\u4e2d x='\U0001F600' y=\n 'v\nw'>t</\u4e2d>"
                     "<!--no-->s<d/></a>");
    const Source::Element& element = source.elements()[1];
    const auto attributes = source.attributes(element);
    const auto told = [&](Source::Span span) {
        const lcdcheck::Place place = source.place(span);
        return QString("%1:%2-%3").arg(place.line).arg(place.column).arg(place.endColumn);
    };
    QCOMPARE(told(element.tag), "3:2-4");
    QCOMPARE(told(attributes[0].value), "3:8-9");
    QCOMPARE(told(attributes[1].name), "3:11-12");
    QCOMPARE(told(attributes[1].value), "4:3-4");
    QCOMPARE(told(element.endTag), "5:5-9");
    QCOMPARE(told(source.texts()[size_t(element.firstText)].span), "5:4-5");
    QCOMPARE(source.line(4), " 'v");
    QCOMPARE(source.comments()[0].element, 1);
    QCOMPARE(source.comments()[1].element, 1);
    QCOMPARE(source.comments()[2].element, -1);
    QCOMPARE(source.slice(source.comments()[0].text).toString(), " expect ");
}

void TestSource::faults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Strings>("told");
    const auto row = [](const char* bytes, const Strings& told) { QTest::newRow(bytes) << QByteArray(bytes) << told; };
    row("<a>\n <b>\n </bb>\n</a>", {"3 \"b\" opened at line 2 is closed by \"bb\""});
    row("<a>\n <b>\n  <c/>\n</a>", {"4 \"b\" opened at line 2 is not closed before \"</a>\""});
    row("<a>\n <b>\n </b>\n", {"1 \"a\" is never closed"});
    row("<a>\n <b>\n  <c/>\n <b>\n</a>", {"4 \"<b>\" was likely meant as \"</b>\""});
    row("<a>\n <b/>\n  <c/>\n </b>\n</a>", {"4 \"b\" closed itself by \"/>\" at line 2 and is closed again"});
    row("<a>\n <b x=1 y=\"2 z=\"3\">\n </b>\n <c x=\"<\" q/>&</a>\n</b>\nrest",
        {"2 the value \"1\" stands without quotes", "2 the quote that is opened here is not closed",
         "4 \"<\" in an attribute, it is written \"&lt;\"", "4 the attribute \"q\" of \"c\" has no value",
         "4 \"&\" that begins no reference, a plain one is written \"&amp;\"", "5 \"</b>\" closes nothing",
         "6 text behind the end of the root element"});
}

void TestSource::faults()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const Strings, told);
    Strings lines;
    const Source source = Source::read(bytes);
    for (const Source::Fault& fault : source.faults())
        lines.append(QString::number(fault.place.line) + ' ' + fault.message);
    QCOMPARE(lines, told);
}

/// What would take for ever if any of it were read more than a few times over.
void TestSource::bounds()
{
    QElapsedTimer timer;
    timer.start();
    for (const char* part :
         {"<", "<a>", "<a></b>", "\n<a b='", "<!--", "<!DOCTYPE [", "<![CDATA[", "&", "<a/></a>", "</a>"})
        QVERIFY(Source::read("<r>" + QByteArray(part).repeated(100'000)).toDocument().hasChildNodes());
    QByteArray laughs = "<!DOCTYPE a [<!ENTITY e0 '<b/>'>";
    for (int i = 1; i < 40; ++i) laughs += QString("<!ENTITY e%1 '&e%2;&e%2;'>").arg(i).arg(i - 1).toUtf8();
    QVERIFY(Source::read(laughs + "]><a>&e39;&e9;</a>").elements().size() < 1000);
    QVERIFY2(timer.elapsed() < 60'000, "quadratic");
}

QTEST_GUILESS_MAIN(TestSource)
#include "test_source.moc"
