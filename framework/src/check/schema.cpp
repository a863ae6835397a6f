#include "schema.h"

#include "reference.h"

#include <QMap>
#include <QXmlStreamWriter>

#include <algorithm>

namespace lcdcheck {

using reading::Kind;

namespace {

/// A number as the library converts it: spaces around it, a sign, decimal digits.
struct NumberType {
    Kind kind;
    const char* name;
    const char* base;
    const char* least;
    const char* most;
};

// clang-format off
constexpr NumberType NUMBERS[] = {
    {Kind::Int,        "int",        "xs:int",           nullptr, nullptr},
    {Kind::Signed64,   "int64",      "xs:long",          nullptr, nullptr},
    {Kind::Unsigned64, "uint64",     "xs:unsignedLong",  nullptr, nullptr},
    {Kind::Unsigned32, "uint32",     "xs:unsignedInt",   nullptr, nullptr},
    {Kind::Unsigned16, "uint16",     "xs:unsignedShort", nullptr, nullptr},
    {Kind::Float,      "float",      "xs:float",         nullptr, nullptr},
    {Kind::Double,     "double",     "xs:double",        nullptr, nullptr},
    {Kind::Hundredths, "hundredths", "xs:float",         "-21474836.48", "21474836.47"},
};
// clang-format on

const char* typeOf(Kind kind)
{
    for (const NumberType& number : NUMBERS)
        if (number.kind == kind) return number.name;
    return "xs:string";
}

/// Writes one schema. Elements that stand in lists that take every tag are declared globally: such a list is a
/// wildcard, and a wildcard knows the elements in it by global declarations alone. Several that share a tag share a
/// type that allows what any of them holds.
class Schema {
public:
    explicit Schema(const Grammar& grammar) : _grammar(grammar), _out(&_text)
    {
        for (const Element* const element : grammar.all())
            if (isGlobal(*element))
                for (const QString& tag : tagsOf(*element)) addGlobal(tag, element);
    }

    QString write()
    {
        _out.setAutoFormatting(true);
        _out.setAutoFormattingIndent(1);
        _out.writeStartDocument();
        start("schema");
        _out.writeNamespace(XS, "xs");
        document(QString(infoOf(_grammar.kind()).title) + ": " + infoOf(_grammar.kind()).summary +
                 ". Made by lcdcheck.");
        for (const NumberType& number : NUMBERS) writeNumber(number);
        writeElement(_grammar.root().tag, {&_grammar.root()});
        for (auto global = _globals.cbegin(); global != _globals.cend(); ++global)
            writeElement(global.key(), global.value());
        _out.writeEndElement();
        _out.writeEndDocument();
        return _text;
    }

private:
    using Elements = std::vector<const Element*>;

    static inline const QString XS = QStringLiteral("http://www.w3.org/2001/XMLSchema");

    static QStringList tagsOf(const Element& element)
    {
        return element.anyTag ? element.likelyTags : QStringList(element.tag);
    }
    /// Whether anything may stand in it beside what it holds.
    static bool isOpen(const Element& element)
    {
        return element.takesAnyTag() ||
               std::any_of(element.children.begin(), element.children.end(), [](const auto& child) {
                   return child->isEntry() && child->visits.front().walk == reading::Walk::Descendants;
               });
    }
    static bool isGlobal(const Element& element) { return element.parent != nullptr && isOpen(*element.parent); }
    void addGlobal(const QString& tag, const Element* element)
    {
        Elements& known = _globals[tag];
        const Element* const body = &element->body();
        if (std::find(known.begin(), known.end(), body) == known.end()) known.push_back(body);
    }

    void start(const char* name) { _out.writeStartElement(XS, name); }

    void document(const QString& words)
    {
        start("annotation");
        _out.writeTextElement(XS, "documentation", words);
        _out.writeEndElement();
    }

    void writeNumber(const NumberType& number)
    {
        start("simpleType");
        _out.writeAttribute("name", number.name);
        start("restriction");
        _out.writeAttribute("base", number.base);
        if (number.least != nullptr) {
            start("minInclusive");
            _out.writeAttribute("value", number.least);
            _out.writeEndElement();
            start("maxInclusive");
            _out.writeAttribute("value", number.most);
            _out.writeEndElement();
        }
        _out.writeEndElement();
        _out.writeEndElement();
    }

    void writeElement(const QString& tag, const Elements& elements)
    {
        start("element");
        _out.writeAttribute("name", tag);
        const ReferenceElement shown = referenceOf(*elements.front());
        QStringList words{shown.meaning, shown.count, shown.absence, shown.note};
        words.removeAll(QString());
        document(words.join("; "));
        if (isAnything(elements))
            writeAnything();
        else if (elements.front()->content)
            writeText();
        else
            writeType(elements);
        _out.writeEndElement();
    }

    static bool isAnything(const Elements& elements)
    {
        return std::none_of(elements.begin(), elements.end(), [](const Element* element) { return element->isRead(); });
    }

    /// What nobody reads may hold anything.
    void writeAnything()
    {
        start("complexType");
        _out.writeAttribute("mixed", "true");
        start("sequence");
        writeWildcard("skip");
        _out.writeEndElement();
        start("anyAttribute");
        _out.writeAttribute("processContents", "skip");
        _out.writeEndElement();
        _out.writeEndElement();
    }

    void writeWildcard(const char* process)
    {
        start("any");
        _out.writeAttribute("minOccurs", "0");
        _out.writeAttribute("maxOccurs", "unbounded");
        _out.writeAttribute("processContents", process);
        _out.writeEndElement();
    }

    void writeText()
    {
        start("complexType");
        start("simpleContent");
        start("extension");
        _out.writeAttribute("base", "xs:string");
        _out.writeEndElement();
        _out.writeEndElement();
        _out.writeEndElement();
    }

    void writeType(const Elements& elements)
    {
        start("complexType");
        writeChildren(elements);
        QStringList written;
        for (const Element* const element : elements)
            for (const Attribute& attribute : element->attributes)
                if (!written.contains(attribute.name)) {
                    written.append(attribute.name);
                    writeAttribute(attribute);
                }
        // It is custom on every root, whether it is looked at or not.
        if (elements.front()->parent == nullptr && !written.contains("version"))
            writeAttribute({"version", {}, {}, false});
        _out.writeEndElement();
    }

    /// Where a tag stands for elements with a list of any tag and for others without, the list is held to the tags that
    /// are custom: a wildcard would take every misspelling of the others.
    void writeChildren(const Elements& elements)
    {
        QMap<QString, Elements> byTag;
        QStringList order;
        bool allAreOpen = true;
        for (const Element* const element : elements) {
            allAreOpen = allAreOpen && (isOpen(*element) || element->children.empty());
            for (const auto& child : element->children)
                for (const QString& tag : tagsOf(*child)) {
                    if (!byTag.contains(tag)) order.append(tag);
                    byTag[tag].push_back(&child->body());
                }
        }
        if (order.isEmpty()) return;
        start(allAreOpen ? "sequence" : "choice");
        if (allAreOpen) {
            writeWildcard("lax");
        } else {
            _out.writeAttribute("minOccurs", "0");
            _out.writeAttribute("maxOccurs", "unbounded");
            for (const QString& tag : order) writeElement(tag, byTag[tag]);
        }
        _out.writeEndElement();
    }

    void writeAttribute(const Attribute& attribute)
    {
        start("attribute");
        _out.writeAttribute("name", attribute.name);
        _out.writeAttribute("type", attribute.uses.empty() ? "xs:string" : typeOf(attribute.uses.front().kind));
        const ReferenceAttribute shown = referenceOf(attribute);
        QStringList words = shown.meanings;
        words.append(shown.kind + (shown.readDefault.isEmpty() ? "; empty" : "; " + shown.readDefault) +
                     " when absent");
        document(words.join(' '));
        _out.writeEndElement();
    }

    const Grammar& _grammar;
    QString _text;
    QXmlStreamWriter _out;
    QMap<QString, Elements> _globals;
};

} // namespace

QString writeSchema(const Grammar& grammar) { return Schema(grammar).write(); }

} // namespace lcdcheck
