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

void Reader::leave(const QString& tag, const char* message, bool log) const
{
    _report->error = _report->say(message != nullptr ? message : _report->invalidNode, tag);
    if (log) qWarning().noquote() << "Log:" << _report->error;
}

void Reader::fail(Literal tag, const char* message) const
{
    if (failed()) return;
    leave(tag.string(), message, false);
    *_failed = true;
}

void Reader::note(Literal tag, const char* message) const
{
    if (!failed()) leave(tag.string(), message, false);
}

QString Reader::text(Literal name, Literal readDefault) const
{
    return _element.attribute(name.string(), readDefault.string());
}

void Reader::content(Literal tag, OnNull onNull, std::string& target) const
{
    if (const auto child = find(tag, onNull)) target = child->_element.firstChild().nodeValue().toStdString();
}

std::optional<Reader> Reader::find(const QString& tag, OnNull onNull) const
{
    if (failed()) return {};
    const QDomElement child = _element.firstChildElement(tag);
    if (!child.isNull() || onNull == OnNull::ReadDefaults) return Reader(child, *_report, *_failed);
    if (onNull == OnNull::Skip) return {};
    leave(tag, nullptr, onNull == OnNull::FailAndLog || onNull == OnNull::NoteAndLog);
    if (onNull == OnNull::Fail || onNull == OnNull::FailAndLog) *_failed = true;
    return {};
}

std::optional<Reader> Reader::firstChild() const
{
    const QDomElement child = first(Walk::Any, "");
    if (failed() || child.isNull()) return {};
    return Reader(child, *_report, *_failed);
}

Reader Reader::required(Literal tag) const { return find(tag, OnNull::Fail).value_or(Reader({}, *_report, *_failed)); }

QDomElement Reader::first(Walk walk, Literal tag) const
{
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
