// The XML declaration, DOCTYPE, and the entities that it declares.
#include "source_scan.h"

#include <algorithm>
#include <array>
#include <limits>

namespace lcdcheck {
namespace {

constexpr int LONGEST_ENTITY = 4096; ///< The parser refuses an entity that grows beyond.
constexpr int DEEPEST_ENTITY = 64;
constexpr int MOST_INSERTED = 16 * 1024 * 1024; ///< Of replacement texts with elements in them, over the whole file.

} // namespace

void SourceScanner::xmlDeclaration()
{
    constexpr std::array<QStringView, 3> known = {u"version", u"encoding", u"standalone"};
    size_t next = 0;
    int i = 5;
    const auto wrong = [&](const QString& message) {
        fault({i, std::min(i + 1, _end)}, message);
        while (i < _end && _data[i] != u'>' && _data[i] != u'<') ++i;
    };
    while (true) {
        const int name = skipSpace(i);
        const bool spaced = name > i;
        i = name;
        if (lookingAt(i, u"?>")) {
            if (next == 0) wrong(QStringLiteral("the XML declaration names no version"));
            break;
        }
        const Span span{i, nameEnd(i)};
        const auto found = std::find(known.begin() + next, known.end(), _source.slice(span));
        if (!spaced || found == known.end() || (next == 0 && found != known.begin())) {
            wrong(at(i) == '>'
                      ? QStringLiteral("the XML declaration is not ended by \"?>\"")
                      : QStringLiteral(
                            "the XML declaration holds version, encoding and standalone alone, in this order"));
            break;
        }
        i = skipSpace(span.end);
        const int quote = at(i) == '=' ? skipSpace(i + 1) : i;
        int end = quote + 1;
        while (end < _end && _data[end] != _data[quote] && _data[end] != u'<') ++end;
        if (at(i) != '=' || (at(quote) != '"' && at(quote) != '\'') || at(end) != at(quote)) {
            wrong(QStringLiteral("\"%1\" of the XML declaration has no value in quotes").arg(shown(span)));
            break;
        }
        const QStringView value = _source.slice({quote + 1, end});
        if (found == known.end() - 1 && value != u"yes" && value != u"no") {
            i = quote + 1;
            wrong(QStringLiteral("\"standalone\" is neither \"yes\" nor \"no\""));
            break;
        }
        i = end + 1;
        next = size_t(found - known.begin()) + 1;
    }
    if (lookingAt(i, u"?>")) ++i;
    _position = at(i) == '>' ? i + 1 : i;
}

/// "<!" that is neither a comment nor a CDATA section.
void SourceScanner::documentType()
{
    const int begin = _position;
    const Span keyword{begin + 2, nameEnd(begin + 2)};
    const bool isDocumentType = _source.slice(keyword).compare(u"DOCTYPE", Qt::CaseInsensitive) == 0;
    if (!isDocumentType || !_open.empty() || !_source._elements.empty()) {
        fault({begin, keyword.end}, QStringLiteral("\"<!\" that begins neither a comment nor a CDATA section"));
        int i = keyword.end;
        while (i < _end && _data[i] != u'>' && _data[i] != u'<') ++i;
        _position = at(i) == '>' ? i + 1 : i;
        return;
    }
    const Span name{skipSpace(keyword.end), nameEnd(skipSpace(keyword.end))};
    if (_source.slice(keyword) != u"DOCTYPE")
        fault({begin, keyword.end}, QStringLiteral("\"DOCTYPE\" is written in capitals"));
    else if (name.isEmpty() || name.begin == keyword.end)
        fault({begin, keyword.end}, QStringLiteral("DOCTYPE without the name of the root element"));
    Span subset;
    const int end = _documentTypeIsOpen ? -1 : endOfDocumentType(name.end, subset);
    if (end < 0) {
        _documentTypeIsOpen = true;
        fault({begin, keyword.end}, QStringLiteral("DOCTYPE that is not ended by \">\""));
        int i = name.end;
        while (i < _end && _data[i] != u'>' && _data[i] != u'<') ++i;
        _position = at(i) == '>' ? i + 1 : i;
        return;
    }
    _position = end;
    entities(subset);
}

/// Behind the ">" of a DOCTYPE, or -1.
int SourceScanner::endOfDocumentType(int begin, Span& subset)
{
    bool inSubset = false;
    for (int i = begin; i < _end; ++i) {
        const ushort c = _data[i].unicode();
        if (c == '[' && !inSubset) {
            inSubset = true;
            subset = {i + 1, i + 1};
        } else if (c == ']' && inSubset) {
            inSubset = false;
            subset.end = i;
        } else if (c == '>' && !inSubset) {
            return i + 1;
        } else if (c == '"' || c == '\'') {
            const int quote = i++;
            while (i < _end && _data[i] != _data[quote]) ++i;
        } else if (lookingAt(i, u"<!--")) {
            const int end = find(_commentEnd, i + 4);
            if (end < 0) return -1;
            i = end + 2;
        } else if (c == '<' && !inSubset) {
            return -1;
        }
    }
    return -1;
}

void SourceScanner::entities(Span subset)
{
    for (int i = subset.begin; i < subset.end; ++i) {
        if (lookingAt(i, u"<!--")) {
            i = find(_commentEnd, i + 4) + 2;
        } else if (lookingAt(i, u"<!ENTITY") && skipSpace(i + 8) > i + 8) {
            int end = i;
            while (end < subset.end && _data[end] != u'>') {
                const QChar c = _data[end++];
                if (c != u'"' && c != u'\'') continue;
                while (end < subset.end && _data[end] != c) ++end;
                ++end;
            }
            entityDeclaration({skipSpace(i + 8), std::min(end, subset.end)});
            i = end;
        }
    }
}

/// What stands behind "<!ENTITY". Parameter entities matter to no element.
void SourceScanner::entityDeclaration(Span declaration)
{
    const Span name{declaration.begin, nameEnd(declaration.begin)};
    const QString key = _source.slice(name).toString();
    if (key == QLatin1String("%") || _source._entities.contains(key)) return;
    Source::Entity entity;
    const int quote = skipSpace(name.end);
    if (at(quote) != '"' && at(quote) != '\'') {
        entity.external = true;
    } else {
        // References to characters are replaced at once, those to entities where they are used.
        const QStringView raw = _source.slice({quote + 1, std::max(quote + 1, declaration.end - 1)});
        int i = 0;
        while (i < raw.size() && raw[i] != _data[quote]) {
            const Source::Reference reference = raw[i] == u'&' ? Source::referenceAt(raw, i) : Source::Reference();
            const QStringView whole = raw.mid(i, reference.length);
            if (whole.startsWith(u"&#"))
                _source.appendDecoded(entity.value, whole);
            else
                entity.value += whole;
            i += reference.length;
        }
    }
    _source._entities.insert(key, entity);
}

/// Finds out once what an entity grows to.
void SourceScanner::measure(Source::Entity& entity, int depth)
{
    using State = Source::Entity::State;
    if (entity.state == State::Busy || depth > DEEPEST_ENTITY) entity.state = State::Recursive;
    if (entity.state != State::Unknown) return;
    entity.state = State::Busy;
    entity.markup = entity.value.contains(u'<');
    qint64 length = entity.value.size();
    for (int i = entity.value.indexOf(u'&'); i >= 0 && entity.state == State::Busy;
         i = entity.value.indexOf(u'&', i + 1)) {
        const Source::Reference reference = Source::referenceAt(entity.value, i);
        if (reference.kind != Source::Reference::Kind::Entity) continue;
        const auto inner = _source._entities.find(reference.name.toString());
        if (inner == _source._entities.end()) continue;
        measure(*inner, depth + 1);
        entity.markup |= inner->markup;
        length += inner->length;
        if (inner->state == State::Recursive || inner->state == State::TooLarge) entity.state = inner->state;
    }
    entity.length = int(std::min<qint64>(length, LONGEST_ENTITY + 1));
    if (entity.state == State::Busy) entity.state = length > LONGEST_ENTITY ? State::TooLarge : State::Usable;
}

bool SourceScanner::reference(int position, bool inAttribute)
{
    using State = Source::Entity::State;
    const Source::Reference found = Source::referenceAt(QStringView(_data, _end), position);
    const Span span{position, position + found.length};
    if (found.kind == Source::Reference::Kind::Bare) {
        fault(span, QStringLiteral("\"&\" that begins no reference, a plain one is written \"&amp;\""));
        return false;
    }
    if (!found.terminated) {
        fault(span, QStringLiteral("the reference \"%1\" is not ended by \";\"").arg(shown(span)));
        return false;
    }
    if (found.kind == Source::Reference::Kind::Character) {
        const uint code = found.code;
        const bool control = code < 0x20 && code != '\t' && code != '\n' && code != '\r';
        if (control || (code >= 0xD800 && code < 0xE000) || code == 0xFFFE || code == 0xFFFF || code > 0x10FFFF)
            fault(span, QStringLiteral("\"%1\" is no character of XML").arg(shown(span)),
                  code == std::numeric_limits<uint>::max());
        else if (code > 0xFFFF)
            misread(span,
                    QStringLiteral("\"%1\" is read as another character, written itself it is read").arg(shown(span)));
        return false;
    }
    const auto entity = _source._entities.find(found.name.toString());
    if (entity == _source._entities.end()) {
        fault(span, QStringLiteral("unknown entity \"%1\", it is left out").arg(shown(span)), false);
        return false;
    }
    measure(*entity, 0);
    if (entity->external) {
        const QString message = QStringLiteral("the entity \"%1\" is in another file, it is left out").arg(shown(span));
        if (inAttribute)
            fault(span, message);
        else
            misread(span, message);
        return false;
    }
    if (entity->state != State::Usable) {
        const bool recursive = entity->state == State::Recursive;
        fault(span, (recursive ? QStringLiteral("the entity \"%1\" refers to itself")
                               : QStringLiteral("the entity \"%1\" grows too large"))
                        .arg(shown(span)));
        return false;
    }
    if (entity->markup && inAttribute)
        fault(span, QStringLiteral("the entity \"%1\" has a \"<\" in it, and stands in an attribute").arg(shown(span)));
    return entity->markup && !inAttribute;
}

void SourceScanner::references(Span span)
{
    const QStringView value = _source.slice(span);
    for (int i = int(value.indexOf(u'&')); i >= 0; i = int(value.indexOf(u'&', i + 1))) reference(span.begin + i, true);
}

/// Puts the replacement text behind all text and reads there before it goes on behind the reference.
void SourceScanner::enterEntity(int position)
{
    const Source::Reference found = Source::referenceAt(QStringView(_data, _end), position);
    const QString name = found.name.toString();
    const Span span{position, position + found.length};
    _position = span.end;
    const QString value = _source._entities.value(name).value;
    const int begin = int(_source._text.size());
    if (begin - _source._fileLength + value.size() > MOST_INSERTED) {
        fault(span, QStringLiteral("the entities of the file grow too large"));
        return;
    }
    _source._added.push_back({begin, span});
    _source._text += value;
    _data = _source._text.constData();
    _frames.push_back({_position, _end, name});
    _position = begin;
    _end = begin + int(value.size());
}

bool SourceScanner::leaveEntity()
{
    if (_frames.empty()) return false;
    _position = _frames.back().position;
    _end = _frames.back().end;
    _frames.pop_back();
    return true;
}

} // namespace lcdcheck
