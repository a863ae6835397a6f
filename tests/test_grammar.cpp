// The grammars that were grown by reading, against the records that the readers fill, the example, and the documents
// made from them.
#include "support.h"

#include "check/check.h"
#include "check/difference.h"
#include "check/drive.h"
#include "check/reference.h"
#include "check/schema.h"
#include "check/settingsfile.h"
#include "check/skeleton.h"

#include <QDirIterator>
#include <QProcess>
#include <QtXml>

using namespace lcdcheck;
using LCD::MainConfigImpl::reading::Asked;
using LCD::MainConfigImpl::reading::Location;

namespace {

/// What stands in memory where a reader has put a value.
QString valueAt(const Location& field)
{
    if (*field.type == typeid(int)) return QString::number(*static_cast<const int*>(field.address));
    if (*field.type == typeid(std::uint64_t)) return QString::number(*static_cast<const std::uint64_t*>(field.address));
    if (*field.type == typeid(std::int64_t)) return QString::number(*static_cast<const std::int64_t*>(field.address));
    if (*field.type == typeid(float)) return QString::number(*static_cast<const float*>(field.address));
    if (*field.type == typeid(double)) return QString::number(*static_cast<const double*>(field.address));
    if (*field.type == typeid(std::string))
        return QString::fromStdString(*static_cast<const std::string*>(field.address));
    if (*field.type == typeid(QString)) return *static_cast<const QString*>(field.address);
    return QStringLiteral("a field of a type that this test does not know");
}

/// A document with every element of a grammar, and what the readers stored of it.
class Whole final : public Feeder {
public:
    /// `text` gives what an attribute says; null: it is left out.
    Whole(const Grammar& grammar, const std::function<QString(const Element&, const Attribute&)>& text)
        : Feeder(QDomDocument())
    {
        fed.appendChild(made(grammar.root(), text));
    }

    void asked(const QDomElement& element, const Asked& asked) override
    {
        if (asked.field.address == nullptr || element.isNull()) return;
        QString path = asked.name;
        for (QDomNode node = element; node.isElement(); node = node.parentNode()) path = node.nodeName() + '/' + path;
        stored[path].append(valueAt(asked.field));
    }

    QMap<QString, QStringList> stored;

private:
    QDomElement made(const Element& element, const std::function<QString(const Element&, const Attribute&)>& text)
    {
        QDomElement node = fed.createElementNS(QString(), element.tag);
        for (const Attribute& attribute : element.attributes) {
            const QString value = text(element, attribute);
            if (!value.isNull()) node.setAttribute(attribute.name, value);
        }
        for (const auto& child : element.children)
            if (!child->refused) node.appendChild(made(*child, text));
        return node;
    }
};

QString defaultText(const Element& /*element*/, const Attribute& attribute)
{
    // A few depend on being there at all.
    return attribute.uses.empty() || attribute.presenceAsked ? QString() : attribute.uses.front().readDefault + "";
}

QString otherText(const Element& element, const Attribute& attribute)
{
    if (element.parent == nullptr) return QStringLiteral("1.0");
    for (const Attribute& other : element.attributes)
        if (other.condition && other.condition->name == attribute.name) return other.condition->number;
    if (attribute.uses.front().kind == LCD::MainConfigImpl::reading::Kind::Text) return QStringLiteral("other");
    return QString::number(attribute.uses.front().readDefault.toInt() + 7);
}

QString exampleKind(const QString& path)
{
    for (const char* const kind : {"feature", "slot", "silk", "screen", "layer"})
        if (path.contains("/devices/") && QFileInfo(path).fileName().contains(kind)) return kind;
    for (const auto& [part, kind] : {std::pair{"/subcards/", "card"},
                                     {"/resolutionratio", "resolution"},
                                     {"/connectors/", "connector"},
                                     {"/menu/", "menu"},
                                     {"/fnbutton/", "fnbutton"},
                                     {"/keycheck/", "keycheck"}})
        if (path.contains(part)) return kind;
    return "lockarea";
}

QDomDocument parsed(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, true))
        qFatal("cannot read %s", qPrintable(path));
    return document;
}

void addKinds(std::span<const FileKindInfo> kinds = xmlKinds())
{
    QTest::addColumn<int>("kind");
    for (const FileKindInfo& kind : kinds) QTest::newRow(kind.name) << int(kind.kind);
}

void addExamples()
{
    QTest::addColumn<QString>("path");
    for (QDirIterator files(EXAMPLES_PATH, {"*.xml"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        files.next();
        QTest::newRow(qPrintable(QDir(EXAMPLES_PATH).relativeFilePath(files.filePath()))) << files.filePath();
    }
}

const Grammar& grammarOfExample(const QString& path) { return grammarOf(fileKindNamed(exampleKind(path))->kind); }

bool isValid(const QString& schema, const QByteArray& xml)
{
    QProcess lint;
    lint.start("xmllint", {"--noout", "--schema", schema, "-"});
    lint.write(xml);
    lint.closeWriteChannel();
    if (!lint.waitForFinished()) qFatal("xmllint (libxml2-utils) is needed");
    return lint.exitCode() == 0;
}

} // namespace

class TestGrammar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readDefaultsAreWhatIsStoredOfAbsentAttributes_data() { addKinds(); }
    void readDefaultsAreWhatIsStoredOfAbsentAttributes()
    {
        QFETCH(int, kind);
        const Grammar& grammar = grammarOf(FileKind(kind));
        Whole absent(grammar, [](const Element&, const Attribute&) { return QString(); });
        Whole defaults(grammar, defaultText);
        QVERIFY(drive(grammar.kind(), absent));
        QVERIFY(drive(grammar.kind(), defaults));
        QCOMPARE(defaults.stored, absent.stored);
    }

    void everyAttributeReachesItsField_data() { addKinds(); }
    void everyAttributeReachesItsField()
    {
        QFETCH(int, kind);
        const Grammar& grammar = grammarOf(FileKind(kind));
        Whole absent(grammar, [](const Element&, const Attribute&) { return QString(); });
        Whole others(grammar, otherText);
        QVERIFY(drive(grammar.kind(), absent));
        QVERIFY(drive(grammar.kind(), others));
        int fields = 0;
        for (const Element* const element : grammar.all()) {
            if (element->refused) continue;
            for (const Attribute& attribute : element->attributes) {
                const QString path = element->path() + '/' + attribute.name;
                const auto fills = [](const Use& use) { return use.field.type != nullptr; };
                if (std::none_of(attribute.uses.begin(), attribute.uses.end(), fills)) continue;
                const QStringList before = absent.stored.value(path), after = others.stored.value(path);
                QVERIFY2(!after.isEmpty(), qPrintable(path));
                for (int use = 0; use < after.size(); ++use)
                    QVERIFY2(after[use] != before.value(use), qPrintable(path + ' ' + after[use]));
                fields += after.size();
            }
        }
        qInfo("%d fields", fields);
    }

    void knowsAllOfTheExample_data() { addExamples(); }
    void knowsAllOfTheExample()
    {
        QFETCH(QString, path);
        compare(parsed(path).documentElement(), grammarOfExample(path).root());
    }

    void knowsWhatIsSpecial()
    {
        const auto at = [](FileKind kind, const char* path) {
            const Element* const element = grammarOf(kind).at(path);
            if (element == nullptr) qFatal("no %s", path);
            return element;
        };
        const Element& menu = *at(FileKind::Menu, "LCD/MenuBar/Menu/Menu/Anything/Menu");
        QCOMPARE(menu.sameAs, grammarOf(FileKind::Menu).at("LCD/MenuBar/Menu"));
        QVERIFY(menu.attribute("ComWidgetType") != nullptr);
        QVERIFY(at(FileKind::Feature, "DCS/Device/Features/Media/PicSet")->refused);
        QVERIFY(at(FileKind::Feature, "DCS/Device/General/Name")->isRequired());
        QVERIFY(!at(FileKind::Feature, "DCS/Device/NetWorks/NetWork/SubNetMask")->isRead());
        QCOMPARE(
            at(FileKind::Feature, "DCS/Device/TemplateResource/Resource")->attribute("TargetPath")->condition->number,
            QString("2"));
        QCOMPARE(grammarOf(FileKind::Feature).placesOfElement("Porotocol").size(), std::size_t(1));
        QCOMPARE(at(FileKind::Layer, "DCS/Device/Layers/Layer/DeviceModes/DeviceMode")->lookUps.front().scope,
                 at(FileKind::Layer, "DCS/Device/Layers/Layer"));
        QVERIFY(at(FileKind::Slot, "DCS/Device/Slots/InputCardSlots/Slot")->attribute("Index")->presenceAsked);
        QCOMPARE(at(FileKind::Card, "DCS/Subcards/Card/Connectors/Types/Type/Interface")->visits.size(),
                 std::size_t(1));
    }

    void publishedReferenceIsCurrent_data() { addKinds(fileKinds()); }
    void publishedReferenceIsCurrent()
    {
        QFETCH(int, kind);
        QFile file(QString(EXAMPLES_PATH "/../docs/formats/%1.md").arg(infoOf(FileKind(kind)).name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(QString::fromUtf8(file.readAll()) == writeReference(FileKind(kind), ReferenceFormat::Markdown),
                 "run ./dev reference");
    }

    void schemaTakesTheExampleAndRefusesMisspellings_data() { addExamples(); }
    void schemaTakesTheExampleAndRefusesMisspellings()
    {
        QFETCH(QString, path);
        const Grammar& grammar = grammarOfExample(path);
        const QString schema = _folder.write("schema.xsd", writeSchema(grammar));
        QVERIFY(isValid(schema, parsed(path).toByteArray()));
        QRandomGenerator random(5);
        for (int fault = 0; fault < 6; ++fault) {
            QDomDocument document = parsed(path);
            const QString what = misspell(document, grammar, fault % 2 == 0, random);
            QVERIFY2(what.isEmpty() || !isValid(schema, document.toByteArray()), qPrintable(what));
        }
    }

    void skeletonsLoad_data() { addKinds(); }
    void skeletonsLoad()
    {
        QFETCH(int, kind);
        QDomDocument document;
        QVERIFY(document.setContent(writeSkeleton(grammarOf(FileKind(kind))), true));
        Feeder feeder(document);
        QVERIFY(drive(FileKind(kind), feeder));
    }

    /// As it is, and with a row in each array.
    void settingsSkeletonHasNoFindingAndReadsAsAnEmptyFile()
    {
        const QString text = writeSettingsSkeleton();
        QString rows = text;
        rows.replace("\n; 1\\", "\n1\\").replace("size=0", "size=1");
        QVERIFY(rows.count("\n1\\") > 6);
        const Folder folder;
        Request request;
        request.kind = "settings";
        request.files << folder.write("panel.conf", text) << folder.write("rows.conf", rows);
        for (const Finding& finding : check(request, {}).findings) QFAIL(qPrintable(finding.message));
        QMap<QString, QString> empty;
        for (const Setting& setting : settingsOf({})) empty.insert(setting.key, setting.value);
        for (const Setting& setting : settingsOf(text.toUtf8()))
            QCOMPARE(setting.key + '=' + setting.value, setting.key + '=' + empty.value(setting.key, "?"));
        for (const Setting& setting : settingsOf(rows.toUtf8())) QVERIFY(setting.present || setting.isCounted());
    }

    void smallRootHasNoFinding()
    {
        const Folder folder;
        QCOMPARE(writeSmallRoot(folder.path()), QString());
        Request request;
        request.roots.append(folder.path());
        const Checked checked = check(request, {});
        QVERIFY(checked.files > 8);
        QStringList messages;
        for (const Finding& finding : checked.findings) messages.append(finding.file + ": " + finding.message);
        QCOMPARE(messages, QStringList());
        QVERIFY(!writeSmallRoot(folder.path()).isEmpty()); // nothing is overwritten
    }

    void differencesAreThoseOfMeaning()
    {
        const Folder folder;
        QCOMPARE(writeSmallRoot(folder.path("old")), QString());
        QCOMPARE(writeSmallRoot(folder.path("new")), QString());
        const auto edit = [&](const QString& file, const QString& from, const QString& to) {
            QFile text(folder.path("new/" + file));
            QVERIFY(text.open(QIODevice::ReadOnly));
            const QString before = QString::fromUtf8(text.readAll());
            QVERIFY(before.contains(from));
            folder.write("new/" + file, QString(before).replace(from, to));
        };
        const auto found = [&] {
            QStringList all;
            for (const Difference& difference :
                 differences(takenFrom(folder.path("old")), takenFrom(folder.path("new"))))
                all << QString("%1 %2 %3 %4")
                           .arg(int(difference.change))
                           .arg(difference.path, difference.attribute, difference.after);
            return all;
        };
        // Read defaults left out, letters for a 0, comments and what nobody reads are no differences.
        edit("subcards/inputs/1.xml", " InterlacedMaxCount=\"0\"", " InterlacedMaxCount=\"none\" Other=\"1\"");
        edit("connectors/1.xml", "<Connectors>", "<!-- moved --><Connectors><!-- down -->\n\n");
        edit("settings/lcdsetting.ini", "LanguageValue=en\n",
             "LanguageValue = \"en\"\n[Other]\na=1\n[DevSetting]\nLockStatusValue=no");
        QCOMPARE(found(), QStringList());
        edit("menu/menuconfig.xml", "Key=\"input\" Order=\"0\"", "Key=\"input\" Order=\"4\"");
        edit("subcards/inputs/1.xml", "<Connectors>", "<Connectors><Connector Position=\"8\"/>");
        QCOMPARE(found(), QStringList({"0 DCS/Subcards/Card/Connectors/Connector[Position=8]  ",
                                       "2 LCD/MenuBar/Menu/Menu Order 4"}));
        edit("settings/lcdsetting.ini", "=no", "=1\n[PgmEditStatusCurrent]\nsize=1\n1\\Status=4");
        QCOMPARE(found().mid(2),
                 QStringList({"2 settings/PgmEditStatusCurrent size 1", "0 settings/PgmEditStatusCurrent/row  ",
                              "2 settings/DevSetting LockStatusValue 1"}));
        // A card without a name is dropped, and so is not in what the panel takes.
        edit("subcards/inputs/1.xml", "Name>", "Named>");
        QVERIFY(found().contains("1 DCS/Subcards/Card  "));
    }

private:
    void compare(const QDomElement& node, const Element& element)
    {
        // What nobody reads may hold anything, and every root has a version, looked at or not.
        if (!element.isRead()) return;
        for (int index = 0; index < node.attributes().size(); ++index) {
            const QString name = node.attributes().item(index).nodeName();
            QVERIFY2(element.attribute(name) != nullptr || element.parent == nullptr,
                     qPrintable(element.path() + '/' + name));
        }
        for (QDomElement child = node.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            const Element* const known = element.child(child.tagName());
            if (known == nullptr && element.namedChild("Button") != nullptr) continue; // buttons stand at any depth
            QVERIFY2(known != nullptr, qPrintable(element.path() + '/' + child.tagName()));
            QVERIFY2(!known->anyTag || known->likelyTags.contains(child.tagName()), qPrintable(known->path()));
            compare(child, *known);
        }
    }

    /// Gives a tag or an attribute another name; empty when the place drawn takes every name.
    QString misspell(QDomDocument& document, const Grammar& grammar, bool tag, QRandomGenerator& random)
    {
        QList<QDomElement> all{document.documentElement()};
        for (int index = 0; index < all.size(); ++index)
            for (auto child = all[index].firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
                all.append(child);
        QDomElement node = all[random.bounded(all.size())];
        QStringList tags;
        for (QDomNode at = node; at.isElement(); at = at.parentNode()) tags.prepend(at.nodeName());
        const Element* const element = grammar.at(tags.join('/'));
        if (element == nullptr || !element->isRead()) return {};
        if (tag) {
            if (element->anyTag || element->parent == nullptr || element->parent->takesAnyTag() ||
                element->parent->namedChild("Button") != nullptr)
                return {};
            node.setTagName(node.tagName() + "x");
            return tags.join('/');
        }
        if (node.attributes().isEmpty()) return {};
        const QString name = node.attributes().item(0).nodeName();
        node.setAttribute(name + "x", node.attribute(name));
        node.removeAttribute(name);
        return tags.join('/') + '/' + name;
    }

    Folder _folder;
};

QTEST_GUILESS_MAIN(TestGrammar)
#include "test_grammar.moc"
