#include "reader.h"

#include <QDebug>

namespace LCD::MainConfigImpl::reading {

QString Report::say(const char* text) const
{
    return translate != nullptr ? translate(text, nullptr, -1) : QString::fromUtf8(text);
}

Reader::Reader(QDomElement element, const Report& report, bool& failed)
    : _element(std::move(element)), _report(&report), _failed(&failed)
{}

void Reader::leave(const char* tag, const char* message, bool log) const
{
    _report->error = _report->say(message).arg(QLatin1String(tag));
    if (log) qWarning().noquote() << "Log:" << _report->error;
}

void Reader::fail(const char* tag, const char* message) const
{
    if (failed()) return;
    leave(tag, message, false);
    *_failed = true;
}

void Reader::note(const char* tag, const char* message) const
{
    if (!failed()) leave(tag, message, false);
}

QString Reader::text(const char* name, const char* readDefault) const
{
    return _element.attribute(QLatin1String(name), QLatin1String(readDefault));
}

void Reader::content(const char* tag, OnNull onNull, std::string& target) const
{
    if (const auto child = find(tag, onNull)) target = child->_element.firstChild().nodeValue().toStdString();
}

std::optional<Reader> Reader::find(const char* tag, OnNull onNull) const
{
    if (failed()) return {};
    QDomElement child = _element.firstChildElement(QLatin1String(tag));
    if (!child.isNull() || onNull == OnNull::ReadDefaults) return Reader(std::move(child), *_report, *_failed);
    if (onNull == OnNull::Skip) return {};
    leave(tag, INVALID_NODE, onNull == OnNull::FailAndLog || onNull == OnNull::NoteAndLog);
    if (onNull == OnNull::Fail || onNull == OnNull::FailAndLog) *_failed = true;
    return {};
}

std::optional<Reader> Reader::firstChild() const
{
    QDomElement child = first(Walk::Any, "");
    if (failed() || child.isNull()) return {};
    return Reader(std::move(child), *_report, *_failed);
}

Reader Reader::required(const char* tag) const
{
    return find(tag, OnNull::Fail).value_or(Reader({}, *_report, *_failed));
}

QDomElement Reader::first(Walk walk, const char* tag) const
{
    return walk == Walk::Any ? _element.firstChildElement() : _element.firstChildElement(QLatin1String(tag));
}

QDomElement Reader::next(const QDomElement& child, Walk walk, const char* tag)
{
    return walk == Walk::Named ? child.nextSiblingElement(QLatin1String(tag)) : child.nextSiblingElement();
}

} // namespace LCD::MainConfigImpl::reading
