// The checker against mistakes that people make, planted one at a time at random places of the example: each is found
// on its line under its name and nothing else is said, and edits that change nothing are let pass.
#include "check/check.h"
#include "check/expect.h"
#include "check/grammar.h"
#include "check/source.h"
#include "check/vocabulary.h"
#include "support.h"

#include <QDirIterator>
#include <QProcess>

#include <random>

using namespace lcdcheck;

namespace {

/// A mistake in one file: its new content, and what is to be said about it.
struct Planted {
    QByteArray bytes;
    QStringList ids; ///< Each of them would be right.
    int line = 1;
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
    void findsWhatIsPlanted_data();
    void findsWhatIsPlanted();
    void letsHarmlessEditsPass();

private:
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

void TestCheck::findsWhatIsPlanted_data()
{
    QTest::addColumn<int>("plant");
    for (int plant = 0; plant < int(std::size(PLANTS)); ++plant) QTest::newRow(PLANTS[plant].first) << plant;
}

/// The share that may be missed, for places where a mistake makes another file that is right again.
void TestCheck::findsWhatIsPlanted()
{
    QFETCH(int, plant);
    static const int wanted = qEnvironmentVariableIsSet("LCD_PLANTS") ? qEnvironmentVariableIntValue("LCD_PLANTS") : 24;
    Random random(unsigned(plant) * 7919U + 1);
    int planted = 0;
    int found = 0;
    int alone = 0;
    for (int tries = 0; planted < wanted && tries < 200000; ++tries) {
        const Victim& file = _files[std::size_t(pick(random, int(_files.size())))];
        const int index = pick(random, int(file.source.elements().size()));
        const auto mistake = PLANTS[plant].second(file, index, random);
        if (!mistake) continue;
        ++planted;
        put(file.path, mistake->bytes);
        const Findings told = findings();
        put(file.path, file.bytes);
        const bool hit = std::any_of(told.begin(), told.end(), [&](const Finding& finding) {
            return finding.file == file.path && finding.place.line == mistake->line &&
                   mistake->ids.contains(finding.kind->id);
        });
        found += hit ? 1 : 0;
        alone += hit && told.size() == 1 ? 1 : 0;
        if (hit && told.size() == 1) continue;
        qInfo("%s, line %d of %s:", qPrintable(mistake->ids[0]), mistake->line, qPrintable(file.path));
        for (const Finding& finding : told)
            qInfo("  %s:%d: %s [%s]", qPrintable(finding.file), finding.place.line, qPrintable(finding.message),
                  finding.kind->id);
    }
    qInfo("%d planted, %d found, %d of them alone", planted, found, alone);
    QCOMPARE(planted, wanted);
    QVERIFY(100 * found >= 99 * planted);
    QVERIFY(100 * alone >= 95 * planted);
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
