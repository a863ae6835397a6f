// The page of a configuration: that it tells of everything, that it is whole, and that no text of a file becomes
// markup.
#include "support.h"

#include "check/check.h"
#include "check/pagefile.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace {

/// A page, read as a document: the form in which it is written is XML's.
struct ReadPage {
    QByteArray bytes;
    QString fault;
    QSet<QString> ids;
    QStringList repeatedIds;
    QSet<QString> references; ///< Of links and names.
    QString texts;            ///< All that a person reads, the words of both languages.
    QStringList tags;

    explicit ReadPage(const QString& root)
    {
        Folder folder;
        lcdcheck::Request request;
        request.roots.append(root);
        request.language = "en";
        fault = lcdcheck::writePageFile(folder.path("page.html"), request, lcdcheck::check(request, {}));
        QFile file(folder.path("page.html"));
        if (file.open(QIODevice::ReadOnly)) bytes = file.readAll();
        read(QString::fromUtf8(bytes).remove(
            QRegularExpression("<(script|style)>.*?</\\1>", QRegularExpression::DotMatchesEverythingOption)));
    }

    void read(const QString& text)
    {
        QXmlStreamReader reader(text);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isCharacters()) texts += reader.text();
            if (!reader.isStartElement()) continue;
            tags.append(reader.name().toString());
            for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                const QString value = attribute.value().toString();
                if (attribute.name() == QLatin1String("id") && ids.contains(value)) repeatedIds.append(value);
                if (attribute.name() == QLatin1String("id")) ids.insert(value);
                if (attribute.name() == QLatin1String("href") && value.startsWith('#')) references.insert(value.mid(1));
                if (attribute.name() == QLatin1String("aria-labelledby")) references.insert(value);
            }
        }
        if (fault.isEmpty()) fault = reader.errorString();
    }
};

/// The example with each text replaced by another, everywhere in its files.
class Root : public Folder {
public:
    explicit Root(const QVector<QPair<QString, QString>>& changes = {})
    {
        QProcess::execute("cp", {"-r", EXAMPLES_PATH "/halcyon/.", path()});
        for (const auto& [from, to] : changes)
            QProcess::execute(
                "find", {path(), "-name", "*.xml", "-exec", "sed", "-i", QString("s~%1~%2~").arg(from, to), "{}", "+"});
    }
};

} // namespace

class TestPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsEverything();
    void isWhole_data();
    void isWhole();
    void keepsTextsTexts();
    void marksWhatIsNotThere();
    void showsWhatThePanelHas();
};

void TestPage::tellsEverything()
{
    const ReadPage page(EXAMPLES_PATH "/halcyon");
    QCOMPARE(page.fault, QString());
    for (const QString id : {"findings", "slot-1", "slot-14", "card-100", "card-601", "card-301-2", "type-9",
                             "resolution-1920x1080i", "screen-1", "layer-2", "mosaic", "menu-20", "key-326", "area-4"})
        QVERIFY2(page.ids.contains(id), qPrintable(id));
    for (const QString text : {"Mixed card, 2 in and 2 out", "混合", "3G-SDI接口", "23.98", "YCbCr 4:2:2", "HDCP 2.2",
                               "4 x 4 wall", "slot 10 · 4", "64 – 3840", "factory_reset", "FN 3: LoadPreset → 1",
                               "KNOB 2 PRESS", "subcards/special/301.xml", "front porch 88, sync 44, back porch 148"})
        QVERIFY2(page.texts.contains(text), qPrintable(text));
    QVERIFY(page.bytes.size() < 2000000);
}

void TestPage::isWhole_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("the example") << "nothing of this kind"
                                 << "";
    QTest::newRow("no file is XML") << "</"
                                    << "<";
    QTest::newRow("no number is one") << "=\"[0-9]*\""
                                      << "=\"x\"";
    QTest::newRow("every number is huge") << "=\"[0-9]*\""
                                          << "=\"2147483647\"";
    QTest::newRow("every number is negative") << "=\"\\([0-9]*\\)\""
                                              << "=\"-\\1\"";
    QTest::newRow("no slot takes anything") << "<Subcard [^>]*>"
                                            << "<!-- -->";
    QTest::newRow("all types are missing") << "<Connector Type=\"[0-9]*\""
                                           << "<Connector Type=\"77\"";
}

void TestPage::isWhole()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    const Root root({{from, to}});
    ReadPage page(root.path());
    QCOMPARE(page.fault, QString());
    QCOMPARE(page.repeatedIds, QStringList());
    QCOMPARE(page.references.subtract(page.ids).values(), QStringList());
    QVERIFY(page.ids.contains("files"));
}

void TestPage::keepsTextsTexts()
{
    const QString wicked = "<script>alert(\"1\" + '2')</script>";
    const QString asXml = "\\&lt;script\\&gt;alert(\\&quot;1\\&quot; + '2')\\&lt;/script\\&gt;";
    const Root root({{"<en>.*</en>", "<en>" + asXml + "</en>"},
                     {"<zh_CN>.*</zh_CN>", "<zh_CN>" + asXml + "</zh_CN>"},
                     {" Key=\"[a-z_]*\"", " Key=\"" + asXml + '"'},
                     {"SilkScreenName=\"[A-Z]*\"", "SilkScreenName=\"" + asXml + '"'},
                     {" en=\"[^\"]*\"", " en=\"" + asXml + '"'},
                     {"Name=\"[^\"]*\"", "Name=\"" + asXml + '"'}});
    const ReadPage page(root.path());
    QCOMPARE(page.fault, QString());
    QVERIFY(page.texts.count(wicked) > 20);
    QVERIFY(!page.tags.contains("script"));
    QCOMPARE(page.bytes.count("<script"), 1);
}

void TestPage::marksWhatIsNotThere()
{
    const Root root({{"SlotIndex=\"7\" ConnectorIndex=\"1\"", "SlotIndex=\"77\" ConnectorIndex=\"1\""},
                     {"SlotIndex=\"7\" ConnectorIndex=\"2\"", "SlotIndex=\"7\" ConnectorIndex=\"99\""}});
    const ReadPage page(root.path());
    QVERIFY(page.bytes.contains("class=\"part bad\""));
    QVERIFY(page.texts.contains("no such slot"));
    QVERIFY(page.texts.contains("no such connector"));
    QVERIFY(page.texts.contains("this device has no slot 77"));
    QVERIFY(page.texts.contains("SlotIndex=\"")); // The source line of the finding.
}

/// The check mends the tags to read on, the panel loses the cards.
void TestPage::showsWhatThePanelHas()
{
    QVERIFY(ReadPage(Root().path()).ids.contains("card-201"));
    const QVector<QPair<QString, QString>> misspelt{{"Subcards>", "Subcadrs>"}};
    const Root root(misspelt);
    const ReadPage page(root.path());
    QVERIFY(!page.ids.contains("card-201"));
    QVERIFY(page.texts.contains("Subcadrs"));
}

QTEST_GUILESS_MAIN(TestPage)
#include "test_page.moc"
