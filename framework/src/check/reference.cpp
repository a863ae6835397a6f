#include "reference.h"

#include "fields.h"

namespace lcdcheck {

using reading::Kind;
using reading::OnNull;
using reading::Walk;

namespace {

QString inQuotes(const QString& text) { return '"' + text + '"'; }

QString kindWords(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return QStringLiteral("text");
    case Kind::Int:
        return QStringLiteral("whole number");
    case Kind::Signed64:
        return QStringLiteral("whole number, 64 bits");
    case Kind::Unsigned64:
        return QStringLiteral("whole number from 0, 64 bits");
    case Kind::Unsigned32:
        return QStringLiteral("whole number from 0 to 65535; of a larger one the low 16 bits are kept");
    case Kind::Unsigned16:
        return QStringLiteral("whole number from 0 to 65535");
    case Kind::Float:
        return QStringLiteral("number, single precision");
    case Kind::Double:
        return QStringLiteral("number");
    case Kind::Hundredths:
        return QStringLiteral("number with two decimals");
    }
    return {};
}

QString countWords(const Visit& visit, const QString& tag)
{
    switch (visit.walk) {
    case Walk::Any:
        return visit.tag.isEmpty() ? QStringLiteral("list; every child is an entry")
                                   : QStringLiteral("list; a child of another tag is taken for an entry too");
    case Walk::First:
        return QStringLiteral("only as the first child");
    case Walk::Named:
        return QStringLiteral("list");
    case Walk::FirstNamed:
        return QStringLiteral("list; from the first %1 on, every child is taken for an entry").arg(inQuotes(tag));
    case Walk::Descendants:
        return QStringLiteral("list, at any depth");
    }
    return {};
}

QString countOf(const Element& element)
{
    QString words = element.visits.empty() ? QStringLiteral("once; of several the first counts")
                                           : countWords(element.visits.front(), element.tag);
    if (element.parent == nullptr) words = QStringLiteral("the root");
    if (element.anyTag) words += QStringLiteral("; any tag will do");
    return words;
}

QString absenceOf(const Element& element)
{
    if (element.refused)
        return QStringLiteral(
            "best left out: its presence counts as a fault and ends the reading of what it stands in");
    if (element.lookUps.empty())
        return element.presenceAsked ? QStringLiteral("it counts whether it is there") : QString();
    const Element* const scope = element.lookUps.front().scope;
    switch (*element.cost()) {
    case OnNull::Fail:
    case OnNull::FailAndLog:
        return scope != nullptr
                   ? QStringLiteral("required: without it the reading of %1 ends").arg(inQuotes(scope->tag))
                   : QStringLiteral("required: without it the reading of the file ends");
    case OnNull::Note:
    case OnNull::NoteAndLog:
        return QStringLiteral("should be there: a message is left, and its defaults hold");
    case OnNull::Skip:
        return QStringLiteral("optional: its defaults hold");
    case OnNull::ReadDefaults:
        return QStringLiteral("optional: it counts as one without attributes");
    }
    return {};
}

QString noteOf(const Element& element)
{
    if (element.sameAs != nullptr) return QStringLiteral("Holds what %1 holds.").arg(inQuotes(element.sameAs->path()));
    if (element.isRead()) return {};
    return QStringLiteral("Only its presence counts; nothing in it is read.");
}

/// What an absent attribute counts as: a number that is not there is 0.
QString defaultOf(const Use& use)
{
    return use.kind != Kind::Text && use.readDefault.isEmpty() ? QStringLiteral("0") : use.readDefault;
}

int depthOf(const Element& element) { return element.parent != nullptr ? depthOf(*element.parent) + 1 : 0; }

} // namespace

ReferenceAttribute referenceOf(const Attribute& attribute)
{
    ReferenceAttribute shown;
    shown.name = attribute.name.isEmpty() ? QStringLiteral("(text)") : attribute.name;
    if (!attribute.uses.empty()) {
        shown.kind = kindWords(attribute.uses.front().kind);
        shown.readDefault = defaultOf(attribute.uses.front());
    }
    for (const Use& use : attribute.uses) {
        const FieldInfo info = infoOf(use.field);
        if (info.member.isEmpty()) continue;
        shown.fields.append(info.record + '.' + info.member);
        if (!shown.meanings.contains(info.meaning)) shown.meanings.append(info.meaning);
    }
    if (attribute.condition)
        shown.condition =
            QStringLiteral("read only where %1 is %2").arg(attribute.condition->name, attribute.condition->number);
    else if (attribute.presenceAsked)
        shown.condition = QStringLiteral("it also counts whether it is there");
    return shown;
}

ReferenceElement referenceOf(const Element& element)
{
    ReferenceElement shown;
    shown.path = element.path();
    shown.depth = depthOf(element);
    shown.meaning = infoOf(element.record).meaning;
    shown.count = countOf(element);
    shown.absence = absenceOf(element);
    if (element.content) shown.attributes.push_back(referenceOf(*element.content));
    for (const Attribute& attribute : element.attributes) shown.attributes.push_back(referenceOf(attribute));
    shown.note = noteOf(element);
    if (element.likelyTags.size() > 1)
        shown.note += QStringLiteral("Custom has it called %1.").arg(element.likelyTags.join(", "));
    return shown;
}

std::vector<ReferenceElement> referenceOf(FileKind kind)
{
    if (kind == FileKind::Settings) return referenceOfSettings();
    std::vector<ReferenceElement> all;
    for (const Element* const element : grammarOf(kind).all()) all.push_back(referenceOf(*element));
    return all;
}

} // namespace lcdcheck
