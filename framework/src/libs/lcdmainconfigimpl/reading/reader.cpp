#include "reader.h"

#include <QDebug>

namespace LCD::MainConfigImpl::reading {

QString Report::say(const char* text) const
{
    return translate != nullptr ? translate(text, nullptr, -1) : QString::fromUtf8(text);
}

QString Report::say(const char* text, const QString& value) const
{
    return say(text).replace(QLatin1String("%1"), value);
}

Reader::Reader(const QDomElement& element, const Report& report, bool& failed)
    : _element(element), _report(&report), _failed(&failed)
{}

Reader Reader::scoped(bool& failed) const
{
    if (listener() != nullptr) [[unlikely]]
        listener()->scopeBegins(&failed, _element);
    return {_element, *_report, failed};
}

void Reader::leave(const QString& tag, const char* message, bool log) const
{
    _report->error = _report->say(message != nullptr ? message : _report->invalidNode, tag);
    if (log) qWarning().noquote() << "Log:" << _report->error;
}

void Reader::fail(Literal tag, const char* message) const
{
    if (failed() || (listener() != nullptr && listener()->failed(_element, tag.string(), _failed))) return;
    leave(tag.string(), message, false);
    *_failed = true;
}

void Reader::note(Literal tag, const char* message) const
{
    if (!failed()) leave(tag.string(), message, false);
}

bool Reader::has(Literal tag) const
{
    const bool found = !_element.firstChildElement(tag.string()).isNull();
    return listener() != nullptr ? listener()->childTested(_element, tag.string(), found) : found;
}

bool Reader::hasAttribute(Literal name) const
{
    const bool found = _element.hasAttribute(name.string());
    return listener() != nullptr ? listener()->attributeTested(_element, name.string(), found) : found;
}

bool Reader::hasContent() const
{
    const bool found = _element.hasChildNodes();
    return listener() != nullptr ? listener()->contentTested(_element, found) : found;
}

bool Reader::is(Literal tag) const
{
    const bool same = _element.tagName() == tag.string();
    return listener() != nullptr ? listener()->tagTested(_element, tag.string(), same) : same;
}

QString Reader::attribute(Literal name, Literal readDefault) const
{
    // No text of a file is this very string, so that only an absent attribute costs its default.
    static const QString absent(QStringLiteral("absent"));
    QString text = _element.attribute(name.string(), absent);
    return text.isSharedWith(absent) ? readDefault.string() : text;
}

QString Reader::text(Literal name, Literal readDefault) const
{
    tell(name, readDefault, Kind::Text);
    return attribute(name, readDefault);
}

void Reader::content(Literal tag, OnNull onNull, std::string& target) const
{
    const auto child = find(tag, onNull);
    if (!child) return;
    child->tell("", "", Kind::Text, true, locationOf(target), locationOf(target));
    target = child->_element.firstChild().nodeValue().toStdString();
}

void Reader::tell(Literal name, Literal readDefault, Kind kind, bool good, const Location& field,
                  const Location& record) const
{
    if (listener() == nullptr) return;
    const QString& attribute = name.string();
    const bool present = attribute.isEmpty() ? _element.hasChildNodes() : _element.hasAttribute(attribute);
    listener()->asked(_element, {attribute, kind, readDefault.string(), present, good, field, record});
}

std::optional<Reader> Reader::find(const QString& tag, OnNull onNull) const
{
    if (failed()) return {};
    QDomElement child = _element.firstChildElement(tag);
    if (listener() != nullptr) [[unlikely]]
        child = listener()->child(_element, tag, onNull, _failed, child);
    if (!child.isNull() || onNull == OnNull::ReadDefaults) return Reader(child, *_report, *_failed);
    if (onNull == OnNull::Skip) return {};
    leave(tag, nullptr, onNull == OnNull::FailAndLog || onNull == OnNull::NoteAndLog);
    if (onNull == OnNull::Fail || onNull == OnNull::FailAndLog) *_failed = true;
    return {};
}

std::optional<Reader> Reader::firstChild() const
{
    if (failed()) return {};
    const QDomElement child = first(Walk::First, "");
    if (child.isNull()) return {};
    if (listener() != nullptr) listener()->visited(child, Walk::First, {});
    return Reader(child, *_report, *_failed);
}

Reader Reader::required(Literal tag) const { return find(tag, OnNull::Fail).value_or(Reader({}, *_report, *_failed)); }

QDomElement Reader::first(Walk walk, Literal tag) const
{
    if (listener() != nullptr) [[unlikely]]
        listener()->walked(_element, walk, tag.string());
    if (walk == Walk::Descendants) return nextBelow(_element, tag);
    const bool named = walk == Walk::Named || walk == Walk::FirstNamed;
    return named ? _element.firstChildElement(tag.string()) : _element.firstChildElement();
}

QDomElement Reader::next(const QDomElement& child, Walk walk, Literal tag) const
{
    if (walk == Walk::First) return {};
    if (walk == Walk::Descendants) return nextBelow(child, tag);
    return walk == Walk::Named ? child.nextSiblingElement(tag.string()) : child.nextSiblingElement();
}

QDomElement Reader::nextBelow(QDomElement element, Literal tag) const
{
    do {
        QDomElement after = element.firstChildElement();
        for (; after.isNull() && element != _element; element = element.parentNode().toElement())
            after = element.nextSiblingElement();
        element = after;
    } while (!element.isNull() && element.localName() != tag.string());
    return element;
}

} // namespace LCD::MainConfigImpl::reading
