// How findings are told: every format to the letter, what is selected, what files expect, and how the program ends.
#include "check/expect.h"
#include "check/selection.h"
#include "check/writers.h"
#include "support.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace lcdcheck;

namespace {

Finding finding(const QString& id, const QString& file, const Place& place, const QString& message = {},
                const QString& hint = {}, const QString& cost = {})
{
    return {kindOf(id), file, place, "DCS/HDCP", message, hint, cost};
}

/// A file with a tab and wide characters, one that is not there, and a line that is too long to be shown.
Checked checkedFiles()
{
    Checked checked;
    checked.findings = {
        finding("unknown-attribute", "a/x,1.xml", {3, 7, 13}, "100% \"Suport\" is not asked for",
                "did you mean \"Support\"?", "the default 1 counts"),
        finding("missing-file", "a/menu", {}, "no menuconfig.xml"),
        finding("shadowed", "a/long.xml", {1, 1001, 1004}, "never found"),
    };
    checked.files = 7;
    checked.line = [](const QString& file, int /*line*/) {
        if (file == "a/long.xml") return QString(1000, 'x') + "abc" + QString(1000, 'y');
        return QString("\t<名 é Suport=\"1\"/>");
    };
    return checked;
}

QString written(const QString& format, const Checked& checked, const QStringList& roots)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), std::fclose);
    lcdcommon::Page page(file.get());
    for (const Format& each : formats())
        if (format == each.name) each.write(checked, roots, page);
    std::rewind(file.get());
    QByteArray bytes(1 << 20, '\0');
    bytes.truncate(int(std::fread(bytes.data(), 1, std::size_t(bytes.size()), file.get())));
    return QString::fromUtf8(bytes);
}

/// "id@line" of each.
QString shown(const Findings& findings)
{
    QStringList all;
    for (const Finding& each : findings) all << QString("%1@%2").arg(each.kind->id).arg(each.place.line);
    return all.join(' ');
}

/// "id@line:column" of each, in a file.
Findings parsed(const QString& text, const QString& file)
{
    Findings all;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const int column = word.section(':', 1).toInt();
        all.push_back(finding(word.section('@', 0, 0), file,
                              {word.section('@', 1).section(':', 0, 0).toInt(), column, column + 1}));
    }
    return all;
}

} // namespace

class TestCheckTell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesOfText_data();
    void linesOfText();
    void json();
    void sarif();
    void pathsBelowRoots();
    void kindsAreWhole();
    void sortsAndSelects_data();
    void sortsAndSelects();
    void expects_data();
    void expects();
    void ends_data();
    void ends();
};

void TestCheckTell::linesOfText_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("text") << "a/x,1.xml:3:7: warning: 100% \"Suport\" is not asked for [unknown-attribute]\n"
                             "\t<名 é Suport=\"1\"/>\n"
                             "\t      ^~~~~~\n"
                             "  hint: did you mean \"Support\"?\n"
                             "  cost: the default 1 counts\n"
                             "a/menu:1:1: error: no menuconfig.xml [missing-file]\n"
                             "a/long.xml:1:1001: note: never found [shadowed]\n" +
                                 ("…" + QString(50, 'x') + "abc" + QString(145, 'y') + "…\n") + QString(51, ' ') +
                                 "^~~\n"
                                 "1 error, 1 warning, 1 note in 7 files\n";
    QTest::newRow("gcc") << "a/x,1.xml:3:7: warning: 100% \"Suport\" is not asked for [unknown-attribute]\n"
                            "a/menu:1:1: error: no menuconfig.xml [missing-file]\n"
                            "a/long.xml:1:1001: note: never found [shadowed]\n";
    QTest::newRow("github") << "::warning file=a/x%2C1.xml,line=3,col=7,endColumn=13,title=unknown-attribute::100%25 "
                               "\"Suport\" is not asked for. Did you mean \"Support\"? The default 1 counts.\n"
                               "::error file=a/menu,line=1,col=1,endColumn=1,title=missing-file::No menuconfig.xml.\n"
                               "::notice file=a/long.xml,line=1,col=1001,endColumn=1004,title=shadowed::Never found.\n";
}

void TestCheckTell::linesOfText()
{
    QFETCH(QString, expected);
    QCOMPARE(written(QTest::currentDataTag(), checkedFiles(), {"a"}), expected);
}

void TestCheckTell::json()
{
    const QJsonObject told = QJsonDocument::fromJson(written("json", checkedFiles(), {"./a/"}).toUtf8()).object();
    QCOMPARE(told["summary"].toObject(), (QJsonObject{{"errors", 1}, {"warnings", 1}, {"notes", 1}, {"files", 7}}));
    const QJsonObject first{{"id", "unknown-attribute"},
                            {"severity", "warning"},
                            {"file", "x,1.xml"},
                            {"line", 3},
                            {"column", 7},
                            {"endColumn", 13},
                            {"element", "DCS/HDCP"},
                            {"message", "100% \"Suport\" is not asked for"},
                            {"hint", "did you mean \"Support\"?"},
                            {"cost", "the default 1 counts"}};
    QCOMPARE(told["findings"].toArray().size(), 3);
    QCOMPARE(told["findings"].toArray()[0].toObject(), first);
}

void TestCheckTell::sarif()
{
    Checked checked = checkedFiles();
    checked.findings[1].file = "/elsewhere/r t/menu";
    const QString text = written("sarif", checked, {"a", "/elsewhere/r t"});
    const QJsonObject run = QJsonDocument::fromJson(text.toUtf8()).object()["runs"].toArray()[0].toObject();
    const QJsonArray rules = run["tool"].toObject()["driver"].toObject()["rules"].toArray();
    QCOMPARE(rules.size(), int(kinds().size()));
    QStringList locations;
    for (const QJsonValue result : run["results"].toArray()) {
        QCOMPARE(rules[result["ruleIndex"].toInt()]["id"], result["ruleId"]);
        const QJsonValue place = result["locations"].toArray().at(0)["physicalLocation"];
        const QJsonValue file = place["artifactLocation"];
        locations << file["uriBaseId"].toString() + ' ' + file["uri"].toString() + ' ' +
                         QString::number(place["region"]["endColumn"].toInt());
    }
    QCOMPARE(locations, (QStringList{"SRCROOT a/x%2C1.xml 13", "ROOT2 menu 0", "SRCROOT a/long.xml 1004"}));
    QCOMPARE(run["originalUriBaseIds"]["ROOT2"]["uri"].toString(), QString("file:///elsewhere/r%20t/"));
}

void TestCheckTell::pathsBelowRoots()
{
    QCOMPARE(pathBelowRoot("r/menu/m.xml", {"r"}), QString("menu/m.xml"));
    QCOMPARE(pathBelowRoot("r/menu/m.xml", {"r", "s"}), QString("r/menu/m.xml"));
    QCOMPARE(pathBelowRoot("rr/m.xml", {"r"}), QString("rr/m.xml"));
    QCOMPARE(pathBelowRoot("menu/m.xml", {"."}), QString("menu/m.xml"));
    QCOMPARE(pathBelowRoot("/menu/m.xml", {"/"}), QString("menu/m.xml"));
    QCOMPARE(pathBelowRoot("../r/m.xml", {"../r/"}), QString("m.xml"));
}

void TestCheckTell::kindsAreWhole()
{
    QSet<QString> ids;
    for (const Kind& kind : kinds()) {
        ids.insert(kind.id);
        QVERIFY2(!QString(kind.summary).endsWith('.') && QString(kind.summary).size() < 90, kind.id);
        for (const QString text : {kind.meaning, kind.cure}) QVERIFY2(text.endsWith('.'), kind.id);
        QVERIFY2(*kind.example, kind.id);
    }
    QCOMPARE(ids.size(), int(kinds().size()));
}

void TestCheckTell::sortsAndSelects_data()
{
    QTest::addColumn<QString>("only");
    QTest::addColumn<QString>("ignore");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("warns");
    QTest::newRow("all, the gravest of a place first, twins once")
        << ""
        << ""
        << "wrong-root@1 shadowed@2 not-a-number@9 shadowed@10" << true;
    QTest::newRow("only") << "shadowed"
                          << ""
                          << "shadowed@2 shadowed@10" << false;
    QTest::newRow("only what must be asked for") << "default-read"
                                                 << ""
                                                 << "default-read@1" << false;
    QTest::newRow("ignore") << ""
                            << "shadowed,wrong-root"
                            << "not-a-number@9" << true;
    QTest::newRow("both") << "shadowed,wrong-root"
                          << "wrong-root"
                          << "shadowed@2 shadowed@10" << false;
}

void TestCheckTell::sortsAndSelects()
{
    QFETCH(QString, only);
    QFETCH(QString, ignore);
    QFETCH(QString, expected);
    QFETCH(bool, warns);
    Findings all = parsed("shadowed@10:1 not-a-number@9:2 default-read@1:1 wrong-root@1:1 shadowed@10:1", "b");
    all.push_back(finding("shadowed", "b", {2, 1, 1}));
    select(all, {only.split(',', Qt::SkipEmptyParts), ignore.split(',', Qt::SkipEmptyParts)});
    sort(all);
    QCOMPARE(shown(all), expected);
    QCOMPARE(reaches(all, Severity::Warning), warns);
    QCOMPARE(reaches(all, {}), false);
    QCOMPARE(reaches(all, Severity::Note), true);
}

void TestCheckTell::expects_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("expected");
    const QString xml = "menu/m.xml";
    const QString body = "<a>\n<!--lcdcheck: expect not-a-number (meant)-->\n<b>\n<c/>\n</b><d/>\n</a>";
    QTest::newRow("in the element and below it, to its end")
        << xml << body << "not-a-number@3:1 not-a-number@4:1 not-a-number@5:3 not-a-number@5:5 not-a-number@1:1"
        << "not-a-number@5 not-a-number@1";
    QTest::newRow("other kinds stay") << xml << body << "shadowed@3:1"
                                      << "shadowed@3 unused-expect@2";
    QTest::newRow("before the root, the whole file")
        << xml << "<!-- lcdcheck: expect unread-file, shadowed (a, (b)) -->\n<a/>"
        << "unread-file@1:1 shadowed@2:1"
        << "";
    QTest::newRow("nothing follows") << xml << "<a><b/>\n<!-- lcdcheck: expect shadowed --></a>"
                                     << ""
                                     << "unused-expect@2";
    QTest::newRow("no such finding") << xml << "<!-- lcdcheck: expect shadow -->\n<a/>"
                                     << ""
                                     << "unused-expect@1";
    QTest::newRow("no such command") << xml << "<!-- lcdcheck: ignore shadowed -->\n<a/>"
                                     << "shadowed@2:1"
                                     << "shadowed@2 unused-expect@1";
    QTest::newRow("a comment about the checker") << xml << "<!-- see lcdcheck: expect shadowed -->\n<a/>"
                                                 << ""
                                                 << "";
    const QString ini = "settings/lcdsetting.ini";
    QTest::newRow("ini: the next entry alone")
        << ini << "[A]\r\n; lcdcheck: expect unknown-key\r\n; why\r\n\r\nb=1\r\nc=1\r\n"
        << "unknown-key@5:1 unknown-key@6:1"
        << "unknown-key@6";
    QTest::newRow("ini: the section") << ini << ";lcdcheck: expect unknown-key (x)\n[A]\nb=1\nc=1\n[B]\nd=1\n"
                                      << "unknown-key@3:1 unknown-key@4:1 unknown-key@6:1"
                                      << "unknown-key@6";
    QTest::newRow("ini: in vain") << ini << "[A]\nb=1\n ; lcdcheck: expect unknown-key"
                                  << ""
                                  << "unused-expect@3";
}

void TestCheckTell::expects()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    QFETCH(QString, found);
    QFETCH(QString, expected);
    const Folder root;
    Findings findings = parsed(found, root.write(file, text));
    applyExpectations(findings, {{root.path() + '/'}, {}, {}, {}});
    QCOMPARE(shown(findings), expected);
}

void TestCheckTell::ends_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("clean") << EXAMPLES_PATH "/halcyon" << 0 << "";
    QTest::newRow("found") << "BROKEN" << 1 << "";
    QTest::newRow("found, but not to fail on") << "BROKEN --fail-on never" << 0 << "";
    QTest::newRow("found, but not asked for") << "--only=missing-card,unknown-key BROKEN" << 0 << "";
    QTest::newRow("nothing") << "" << 2 << "nothing to check";
    QTest::newRow("not there") << "BROKEN/menu/menuconfig.xm" << 2 << "did you mean";
    QTest::newRow("no root") << EXAMPLES_PATH << 2 << "no configuration root";
    QTest::newRow("option") << "--formt json BROKEN" << 2 << "did you mean '--format'?";
    QTest::newRow("option for a command") << "watch" << 2 << "did you mean '--watch'?";
    QTest::newRow("value") << "--fail-on warnings BROKEN" << 2 << "did you mean 'warning'?";
    QTest::newRow("missing value") << "BROKEN --only" << 2 << "--only needs a value";
    QTest::newRow("id") << "--ignore unknow-key BROKEN" << 2 << "did you mean 'unknown-key'?";
    QTest::newRow("explained id") << "--explain unknow-key" << 2 << "did you mean 'unknown-key'?";
    QTest::newRow("explained") << "--explain unknown-key" << 0 << "";
    QTest::newRow("single ini") << "--only unknown-key BROKEN/other.ini" << 1 << "";
    QTest::newRow("ini by its kind") << "--kind settings --only unknown-key BROKEN/other.conf" << 0 << "";
    QTest::newRow("schema of an ini") << "--schema settings" << 2 << "there are no schemas";
    QTest::newRow("two modes") << "--list --explain shadowed" << 2 << "do not go together";
    QTest::newRow("help first") << "--formt --help" << 0 << "";
    QTest::newRow("lost output") << "--list >/dev/full" << 1 << "No space left on device";
    QTest::newRow("closed output") << "--list >&-" << 1 << "cannot write";
}

void TestCheckTell::ends()
{
    QFETCH(QString, arguments);
    QFETCH(int, status);
    QFETCH(QString, complaint);
    const Folder root;
    root.write("menu/menuconfig.xml", "<LCD");
    root.write("other.ini", "[LanguageSetting]\nLanguage=en\n");
    root.write("other.conf", "[LanguageSetting]\n; lcdcheck: expect unknown-key\nLanguage=en\n");
    QProcess shell;
    shell.start("sh", {"-c", "'" LCDCHECK_PATH "' " + arguments.replace("BROKEN", root.path())});
    QVERIFY(shell.waitForFinished());
    const QString complaints = QString::fromUtf8(shell.readAllStandardError());
    QVERIFY2(complaint.isEmpty() ? complaints.isEmpty() : complaints.contains(complaint), qPrintable(complaints));
    QCOMPARE(shell.exitCode(), status);
}

QTEST_GUILESS_MAIN(TestCheckTell)
#include "test_check_tell.moc"
