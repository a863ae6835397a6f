// The checker against mistakes that people make, planted at random places of the example: each is found on its line
// under its name and nothing else is said, and edits that change nothing are let pass.
#include "check/check.h"
#include "check/expect.h"
#include "check/grammar.h"
#include "check/source.h"
#include "check/vocabulary.h"
#include "support.h"

#include <QDirIterator>
#include <QProcess>

#include <array>
#include <map>
#include <numeric>
#include <random>

using namespace lcdcheck;

namespace {

/// A mistake in one file: its new content, and what is to be said about it.
struct Planted {
    QByteArray bytes;
    QStringList ids; ///< Each of them would be right.
    int line = 1;
    std::size_t plant = 0; ///< Which row of the table of plants.
};

/// One file of the example with what its readers know of it.
struct Victim {
    QString path;
    QByteArray bytes;
    Source source;
    QString text;
    std::vector<FileKind> kinds;

    explicit Victim(const QString& file) : path(file), kinds(kindsByPlace(file))
    {
        QFile in(file);
        if (!in.open(QIODevice::ReadOnly)) qFatal("no %s", qPrintable(file));
        bytes = in.readAll();
        source = Source::read(bytes);
        text = source.text();
    }

    [[nodiscard]] const Element* grammar(int element) const
    {
        QStringList tags;
        for (int at = element; at >= 0; at = source.elements()[std::size_t(at)].parent)
            tags.prepend(source.tag(source.elements()[std::size_t(at)]));
        for (const FileKind kind : kinds)
            if (const Element* const place = grammarOf(kind).at(tags.join('/'))) return place;
        return nullptr;
    }
    /// The text with one stretch replaced.
    [[nodiscard]] QByteArray with(Source::Span span, const QString& other) const
    {
        return QString(text).replace(span.begin, span.end - span.begin, other).toUtf8();
    }
    /// From the start tag to behind the end tag.
    [[nodiscard]] Source::Span whole(const Source::Element& element) const
    {
        return {element.tag.begin, element.selfClosed ? element.end : element.endTag.end};
    }
    [[nodiscard]] int line(Source::Span span) const { return source.place(span).line; }
};

using Random = std::mt19937;

int pick(Random& random, int below) { return int(random() % unsigned(below)); }

/// A word with a letter swapped, dropped or doubled, as hands do it.
QString mistyped(Random& random, const QString& word)
{
    const int at = 1 + pick(random, word.size() - 2);
    switch (pick(random, 3)) {
    case 0:
        return word.left(at) + word[at + 1] + word[at] + word.mid(at + 2);
    case 1:
        return word.left(at) + word.mid(at + 1);
    default:
        return word.left(at) + word[at] + word.mid(at);
    }
}

std::optional<Planted> misspeltTag(const Victim& file, int index, Random& random)
{
    const Source::Element& element = file.source.elements()[std::size_t(index)];
    const QString tag = file.source.tag(element);
    if (tag.size() < 4) return {};
    const QString other = mistyped(random, tag);
    const Element* const parent = element.parent < 0 ? nullptr : file.grammar(element.parent);
    if (other == tag || parent == nullptr || parent->takesAnyTag() || parent->namedChild(other)) return {};
    if (parent->namedChild(tag) == nullptr) return {};
    QString text = file.text;
    if (!element.selfClosed) text.replace(element.endTag.begin + 2, tag.size(), other);
    text.replace(element.name.begin, tag.size(), other);
    return Planted{text.toUtf8(), {"unknown-element", "unexpected-tag"}, file.line(element.tag)};
}

/// A random attribute of an element that its readers ask for.
const Source::Attribute* someAttribute(const Victim& file, int index, Random& random, const Attribute** asked)
{
    const auto attributes = file.source.attributes(file.source.elements()[std::size_t(index)]);
    const Element* const place = file.grammar(index);
    if (attributes.empty() || place == nullptr) return nullptr;
    const Source::Attribute& attribute = attributes[std::size_t(pick(random, int(attributes.size())))];
    *asked = place->body().attribute(file.source.slice(attribute.name).toString());
    return *asked != nullptr && !(*asked)->uses.empty() ? &attribute : nullptr;
}

std::optional<Planted> misspeltAttribute(const Victim& file, int index, Random& random)
{
    const Attribute* asked = nullptr;
    const Source::Attribute* const attribute = someAttribute(file, index, random, &asked);
    if (attribute == nullptr) return {};
    const QString name = file.source.slice(attribute->name).toString();
    if (name.size() < 3) return {};
    const QString other = mistyped(random, name);
    if (other == name || file.grammar(index)->body().attribute(other) != nullptr) return {};
    return Planted{file.with(attribute->name, other), {"unknown-attribute"}, file.line(attribute->name)};
}

std::optional<Planted> brokenNumber(const Victim& file, int index, Random& random)
{
    static const QStringList texts{"", "x", "12px", "0x1F", "1,5", "99999999999999999999999", "- 1", "one"};
    const Attribute* asked = nullptr;
    const Source::Attribute* const attribute = someAttribute(file, index, random, &asked);
    if (attribute == nullptr || asked->uses.front().kind == reading::Kind::Text) return {};
    const bool decimals = asked->uses.front().kind >= reading::Kind::Float;
    const QString text = texts[pick(random, texts.size())];
    if (decimals && text.startsWith("999")) return {};
    return Planted{file.with(attribute->value, text), {"not-a-number"}, file.line(attribute->name)};
}

std::optional<Planted> doubledAttribute(const Victim& file, int index, Random& random)
{
    const Attribute* asked = nullptr;
    const Source::Attribute* const attribute = someAttribute(file, index, random, &asked);
    if (attribute == nullptr) return {};
    const int behind = attribute->value.end + 1;
    const QString copy = ' ' + file.text.mid(attribute->name.begin, behind - attribute->name.begin);
    return Planted{file.with({behind, behind}, copy), {"duplicate-attribute"}, file.line({behind, behind + 1})};
}

std::optional<Planted> missingElement(const Victim& file, int index, Random& /*random*/)
{
    const Source::Element& element = file.source.elements()[std::size_t(index)];
    const Element* const place = file.grammar(index);
    if (element.parent < 0 || place == nullptr || !place->isRequired() || place->isEntry()) return {};
    const QString tag = file.source.tag(element);
    for (int other = 0; other < int(file.source.elements().size()); ++other) {
        const Source::Element& sibling = file.source.elements()[std::size_t(other)];
        if (other != index && sibling.parent == element.parent && file.source.tag(sibling) == tag) return {};
    }
    return Planted{file.with(file.whole(element), {}),
                   {"missing-element"},
                   file.line(file.source.elements()[std::size_t(element.parent)].tag)};
}

std::optional<Planted> doubledElement(const Victim& file, int index, Random& /*random*/)
{
    const Source::Element& element = file.source.elements()[std::size_t(index)];
    const Element* const place = file.grammar(index);
    const Element* const parent = element.parent < 0 ? nullptr : file.grammar(element.parent);
    if (parent == nullptr || place == nullptr || place->isEntry() || place->lookUps.empty()) return {};
    for (const auto& sibling : parent->body().children)
        if (sibling->isEntry()) return {};
    const Source::Span whole = file.whole(element);
    const QString copy = file.text.mid(whole.begin, whole.end - whole.begin);
    return Planted{file.with({whole.end, whole.end}, '\n' + copy),
                   {"duplicate-element"},
                   file.line({whole.end - 1, whole.end}) + 1};
}

std::optional<Planted> brokenSyntax(const Victim& file, int index, Random& random)
{
    const Source::Element& element = file.source.elements()[std::size_t(index)];
    const auto attributes = file.source.attributes(element);
    switch (pick(random, 4)) {
    case 0: // an end tag that is not that of its start tag
        if (element.selfClosed || element.endTag.isEmpty()) return {};
        return Planted{file.with(element.endTag, "</Wrong>"), {"not-well-formed"}, file.line(element.endTag)};
    case 1: // a quote too few
        if (attributes.empty()) return {};
        return Planted{file.with({attributes.back().value.end, attributes.back().value.end + 1}, {}),
                       {"not-well-formed"},
                       file.line(attributes.back().name)};
    case 2: // an ampersand by itself
        if (attributes.empty()) return {};
        return Planted{file.with({attributes[0].value.begin, attributes[0].value.begin}, "&"),
                       {"not-well-formed"},
                       file.line(attributes[0].name)};
    default: // an attribute without quotes
        if (attributes.empty()) return {};
        return Planted{
            file.with({attributes[0].value.begin - 1, attributes[0].value.end + 1}, file.source.value(attributes[0])),
            {"not-well-formed"},
            file.line(attributes[0].name)};
    }
}

/// The attribute of an element by its name; null when it has none.
const Source::Attribute* named(const Victim& file, int index, const char* name)
{
    return file.source.attribute(file.source.elements()[std::size_t(index)], QString(name));
}

std::optional<Planted> beyondRange(const Victim& file, int index, Random& random)
{
    const auto* const value = named(file, index, "Value");
    const auto* const min = named(file, index, "Min");
    const auto* const max = named(file, index, "Max");
    if (value == nullptr || min == nullptr || max == nullptr || file.grammar(index) == nullptr) return {};
    for (const char* name : {"Value", "Min", "Max"}) {
        const Attribute* const asked = file.grammar(index)->body().attribute(name);
        if (asked == nullptr || asked->uses.empty() || asked->uses.front().kind != reading::Kind::Int) return {};
    }
    if (pick(random, 2) == 0)
        return Planted{file.with(min->value, QString::number(file.source.value(*max).toInt() + 1)),
                       {"empty-range"},
                       file.line(min->name)};
    return Planted{file.with(value->value, QString::number(file.source.value(*max).toInt() + 1)),
                   {"value-out-of-range"},
                   file.line(value->name)};
}

/// A number that refers to nothing, in an attribute of elements whose path ends so.
std::optional<Planted> reference(const Victim& file, int index, const QString& tags, const char* name,
                                 const char* number, const char* id)
{
    const Element* const place = file.grammar(index);
    const auto* const attribute = named(file, index, name);
    if (place == nullptr || attribute == nullptr || !place->path().endsWith(tags)) return {};
    return Planted{file.with(attribute->value, number), {id}, file.line(attribute->name)};
}

std::optional<Planted> brokenReference(const Victim& file, int index, Random& /*random*/)
{
    const std::tuple<const char*, const char*, const char*, const char*> references[] = {
        {"Slot/Subcards/Subcard", "ModuleId", "98765", "missing-card"},
        {"Card/Connectors/Connector", "Type", "777", "missing-connector-type"},
        {"LayerTypes/LayerType", "Value", "55", "missing-layer-type"},
        {"Layout/Cell", "SlotIndex", "88", "missing-slot"},
        {"Layout/Cell", "ConnectorIndex", "66", "missing-connector"},
        {"Keys/Key", "Slot", "88", "missing-slot"},
        {"Keys/Key", "Connector", "66", "missing-connector"},
        {"Template/Rectangle", "SubSourceSlotId", "88", "missing-slot"},
        {"InternalSource/InternalSourceDetail", "SlotId", "88", "missing-slot"},
        {"Connectors/InterfaceObj", "ConnectorId", "66", "missing-connector"},
        {"ConnectorGroups/Capacity/ConnectorGroup/Connector", "Position", "44", "missing-position"},
        {"Disables/ResolutionRatio", "Width", "1921", "missing-resolution"},
    };
    for (const auto& [tags, name, number, id] : references)
        if (auto planted = reference(file, index, tags, name, number, id)) return planted;
    return {};
}

using Plant = std::optional<Planted> (*)(const Victim&, int, Random&);
constexpr std::pair<const char*, Plant> PLANTS[] = {
    {"misspelt tag", misspeltTag},
    {"misspelt attribute", misspeltAttribute},
    {"no number", brokenNumber},
    {"doubled attribute", doubledAttribute},
    {"missing element", missingElement},
    {"doubled element", doubledElement},
    {"syntax", brokenSyntax},
    {"range", beyondRange},
    {"reference", brokenReference},
};

} // namespace

class TestCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsWhatIsPlanted();
    void findsOneMistake_data();
    void findsOneMistake();
    void tellsWhatASlipInATagCosts();
    void letsHarmlessEditsPass();

private:
    [[nodiscard]] std::pair<const Victim*, Planted>
    plantSomewhere(Plant plant, const std::map<const Victim*, Planted>& planted, Random& random) const;
    [[nodiscard]] Findings findings() const;
    void put(const QString& path, const QByteArray& bytes) const;

    Folder _root;
    std::vector<Victim> _files;
};

void TestCheck::initTestCase()
{
    QProcess::execute("cp", {"-r", EXAMPLES_PATH "/halcyon/.", _root.path()});
    QDirIterator entries(_root.path(), {"*.xml"}, QDir::Files, QDirIterator::Subdirectories);
    QStringList paths;
    while (entries.hasNext()) paths.append(entries.next());
    paths.sort();
    for (const QString& path : paths) _files.emplace_back(path);
    QCOMPARE(findings().size(), 0u);
}

Findings TestCheck::findings() const
{
    Request request;
    request.roots.append(_root.path());
    Findings all = check(request, {}).findings;
    applyExpectations(all, request);
    all.erase(std::remove_if(all.begin(), all.end(),
                             [](const Finding& finding) { return finding.kind->severity == Severity::Note; }),
              all.end());
    return all;
}

void TestCheck::put(const QString& path, const QByteArray& bytes) const
{
    QFile out(path);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
}

/// One mistake of each kind at once, each in another file: none hides another, and nothing else is said.
void TestCheck::findsWhatIsPlanted()
{
    constexpr int ROUNDS = 56;
    constexpr std::size_t KINDS = std::size(PLANTS);
    Random random(1);
    std::array<int, KINDS> found{};
    int strayed = 0;
    for (int round = 0; round < ROUNDS; ++round) {
        std::map<const Victim*, Planted> planted;
        for (const auto& [name, plant] : PLANTS) planted.insert(plantSomewhere(plant, planted, random));
        for (const auto& [file, mistake] : planted) put(file->path, mistake.bytes);
        const Findings told = findings();
        for (const auto& [file, mistake] : planted) put(file->path, file->bytes);
        for (const Finding& finding : told) {
            const auto hit = std::find_if(planted.begin(), planted.end(), [&](const auto& each) {
                const auto& [file, mistake] = each;
                return file->path == finding.file && mistake.line == finding.place.line &&
                       mistake.ids.contains(finding.kind->id);
            });
            if (hit != planted.end()) {
                ++found[hit->second.plant];
                planted.erase(hit);
                continue;
            }
            ++strayed;
            qInfo("strayed: %s:%d: %s [%s]", qPrintable(finding.file), finding.place.line, qPrintable(finding.message),
                  finding.kind->id);
        }
        for (const auto& [file, mistake] : planted)
            qInfo("missed: %s:%d: %s", qPrintable(file->path), mistake.line, qPrintable(mistake.ids[0]));
    }
    for (std::size_t kind = 0; kind < KINDS; ++kind) qInfo("%-20s %d of %d", PLANTS[kind].first, found[kind], ROUNDS);
    QVERIFY(100 * std::accumulate(found.begin(), found.end(), 0) >= 99 * ROUNDS * int(KINDS));
    QVERIFY(100 * strayed <= ROUNDS * int(KINDS));
}

/// Mistakes that must be told once, under that name and on the line of the edit, and edits that are none.
void TestCheck::findsOneMistake_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("before"); // Empty: from half of the file on.
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("id"); // Empty: nothing is wrong.
    const QString device = "devices/halcyon16/";
    const QString chassis = device + "slot.xml";
    const QString card = "subcards/inputs/202.xml";
    const QString usb = "connectors/9.xml";
    const QString keys = "fnbutton/fnkeyboardconfig.xml";
    const QString menu = "menu/menuconfig.xml";
    const QString settings = "settings/lcdsetting.ini";
    const auto row = [](const char* name, const QString& file, const char* before, const char* after, const char* id) {
        QTest::newRow(name) << file << QByteArray(before) << QByteArray(after) << QString(id);
    };
    // What stands twice leaves a number out, to which others refer.
    row("slot twice", chassis, "Slot Index=\"3\"", "Slot Index=\"2\"", "duplicate-identifier");
    row("position twice", card, "Position=\"2\"", "Position=\"1\"", "duplicate-identifier");
    row("card twice", card, "ModelId=\"202\"", "ModelId=\"201\"", "duplicate-identifier");
    row("connector twice", usb, "Connector Type=\"9\"", "Connector Type=\"8\"", "duplicate-identifier");
    row("menu key twice", menu, "input_crop", "input_signal", "duplicate-identifier");
    row("lock key twice", "lockarea/lockareaconfig.xml", "LCDKey=\"258\"", "LCDKey=\"257\"", "duplicate-identifier");
    row("button twice", keys, "FN index=\"1\"", "FN index=\"0\"", "duplicate-identifier");
    // A file that ends early may hold what others refer to.
    row("slots cut off", chassis, "", "", "not-well-formed");
    row("feature cut off", device + "feature.xml", "", "", "not-well-formed");
    row("layer cut off", device + "layer_pip.xml", "", "", "not-well-formed");
    row("screen cut off", device + "screen_wall.xml", "", "", "not-well-formed");
    row("card cut off", card, "", "", "not-well-formed");
    row("resolutions cut off", "connectors/resolutionratio.xml", "", "", "not-well-formed");
    row("other version", card, "version=\"1.0\">", "version=\"1.1\">", "wrong-version");
    row("unknown entity", card, "4x DP", "4x&nbsp;DP", "not-well-formed");
    row("known entities", card, "4x DP", "4x &lt;DP&gt; &#49;", "");
    row("no space between attributes", card, "\" CardMode", "\"CardMode", "not-well-formed");
    // Lists that take every element.
    row("slip in a list of all", keys, "<Function name=\"Freeze", "<Funtion name=\"Freeze", "unexpected-tag");
    row("other name in a list of all", keys, "<Function name=\"Freeze", "<Still name=\"Freeze", "");
    row("stranger behind a list's start", device + "screen_aux.xml", "</LayerType>",
        "</LayerType><LayerCount Max=\"1\" Valid=\"1\"/>", "unexpected-tag");
    row("element a level too high", usb, "</Horizontal>", "</Horizontal><Sync Min=\"1\" Max=\"2\"/>",
        "unknown-element");
    // Values.
    row("number as a name", device + "layer_osd.xml", "Value=\"OSD\"", "Value=\"99\"", "");
    row("not in the list", usb, "LoopType Support=\"1\" Editable=\"1\" Value=\"0\"",
        "LoopType Support=\"1\" Editable=\"1\" Value=\"7\"", "value-not-in-list");
    row("twice in the list", usb, "<Enum Value=\"0\"/><Enum Value=\"1\"/>", "<Enum Value=\"0\"/><Enum Value=\"0\"/>",
        "duplicate-value");
    row("interface of a misspelt type", "connectors/1.xml", "Interface Type", "Interface Typ", "unknown-attribute");
    row("cells overlap", device + "screen_wall.xml", "X=\"1920\"", "X=\"1900\"", "overlapping-cells");
    row("cell outside", device + "screen_wall.xml", "Column=\"1\"", "Column=\"2\"", "cell-outside");
    // Settings.
    row("key", settings, "LightColor=3", "LightColour=3", "unknown-key");
    row("unit", settings, "KeySampling=20", "KeySampling=20ms", "not-a-number");
    row("too large", settings, "HttpPort=19998", "HttpPort=99999999999", "not-a-number");
    row("size", settings, "size=2", "size=two", "not-a-number");
    row("junk", settings, "KeySampling=20", "KeySampling 20", "not-well-formed");
    // What the author expects.
    row("expected", usb, "<HDCP ", "<!-- lcdcheck: expect unknown-attribute --><HDCP Foo=\"1\" ", "");
    row("expected in vain", usb, "<HDCP ", "<!-- lcdcheck: expect unknown-attribute --><HDCP ", "unused-expect");
}

void TestCheck::findsOneMistake()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QString, id);
    const QString path = _root.path() + '/' + file;
    QFile in(path);
    QVERIFY(in.open(QIODevice::ReadOnly));
    const QByteArray whole = in.readAll();
    const int at = before.isEmpty() ? whole.size() / 2 : whole.indexOf(before);
    QVERIFY(at >= 0);
    put(path, before.isEmpty() ? whole.left(at) : QByteArray(whole).replace(at, before.size(), after));
    const Findings told = findings();
    put(path, whole);
    QStringList ids;
    for (const Finding& finding : told) ids.append(finding.kind->id);
    // Where a file is cut off, each element that stands open is told.
    if (before.isEmpty()) ids.removeDuplicates();
    QCOMPARE(ids, id.isEmpty() ? QStringList() : QStringList(id));
    if (!id.isEmpty() && !before.isEmpty()) QCOMPARE(told[0].place.line, 1 + whole.left(at).count('\n'));
    if (!id.isEmpty()) QCOMPARE(told[0].file, path);
}

/// A slip in the tag of a required element costs what the lack of the element costs.
void TestCheck::tellsWhatASlipInATagCosts()
{
    const QString path = _root.path() + "/connectors/9.xml";
    const auto file = std::find_if(_files.begin(), _files.end(), [&](const Victim& each) { return each.path == path; });
    put(path, QString(file->text).replace("ShortName>", "ShortNme>").toUtf8());
    const Findings told = findings();
    put(path, file->bytes);
    QCOMPARE(told.size(), 1u);
    QCOMPARE(told[0].kind->id, QString("unknown-element"));
    QCOMPARE(told[0].cost, QString("this \"Connector\" is left out"));
}

/// A mistake in a file that has none yet.
std::pair<const Victim*, Planted>
TestCheck::plantSomewhere(Plant plant, const std::map<const Victim*, Planted>& planted, Random& random) const
{
    const auto kind =
        std::find_if(std::begin(PLANTS), std::end(PLANTS), [&](const auto& row) { return row.second == plant; });
    while (true) {
        const Victim& file = _files[std::size_t(pick(random, int(_files.size())))];
        if (planted.count(&file) != 0) continue;
        auto mistake = plant(file, pick(random, int(file.source.elements().size())), random);
        if (!mistake) continue;
        mistake->plant = std::size_t(kind - std::begin(PLANTS));
        return {&file, *mistake};
    }
}

void TestCheck::letsHarmlessEditsPass()
{
    const auto everywhere = [this](const std::function<QByteArray(QString)>& edit) {
        for (const Victim& file : _files) put(file.path, edit(file.text));
        QCOMPARE(findings().size(), 0u);
    };
    everywhere([](QString text) { return text.replace('\n', "\r\n").toUtf8(); });
    everywhere([](const QString& text) { return "\xEF\xBB\xBF" + text.toUtf8(); });
    everywhere([](QString text) { return text.replace("/>", "  />").replace("\n  ", "\n\t").toUtf8(); });
    everywhere(
        [](QString text) { return text.replace(" Type=", "\n   Type = ").replace(" Value=", " Value\t=").toUtf8(); });
    everywhere([](QString text) { return text.replace("</DCS>", "<!-- the end --></DCS>\n<!-- behind -->").toUtf8(); });
    for (const Victim& file : _files) put(file.path, file.bytes);
}

QTEST_GUILESS_MAIN(TestCheck)
#include "test_check.moc"
