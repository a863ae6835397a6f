#include "source_decode.h"

#include <QTextCodec>

namespace lcdcheck {
namespace {

enum Mib { Utf8 = 106, Utf16BE = 1013, Utf16LE = 1014, Utf16 = 1015, Utf32 = 1017, Utf32BE = 1018, Utf32LE = 1019 };

/// The encoding that the first bytes show, by a byte order mark or by the "<" that every document begins with.
Mib encodingShown(const QByteArray& bytes)
{
    if (bytes.startsWith(QByteArray("\0\0\xfe\xff", 4)) || bytes.startsWith(QByteArray("\xff\xfe\0\0", 4)))
        return Utf32;
    if (bytes.startsWith(QByteArray("<\0\0\0", 4))) return Utf32LE;
    if (bytes.startsWith(QByteArray("\0\0\0<", 4))) return Utf32BE;
    if (bytes.startsWith("\xfe\xff") || bytes.startsWith("\xff\xfe")) return Utf16;
    if (bytes.startsWith(QByteArray("<\0", 2))) return Utf16LE;
    if (bytes.startsWith(QByteArray("\0<", 2))) return Utf16BE;
    return Utf8;
}

QString hex(ushort code) { return QStringLiteral("%1").arg(code, 4, 16, QLatin1Char('0')).toUpper(); }

/// The value of "encoding" in the XML declaration, by the same lenient search as the parser's.
Source::Span encodingDeclared(const QString& text)
{
    if (!text.startsWith(u"<?xml")) return {};
    const int end = text.indexOf(u'>');
    const int name = text.indexOf(u"encoding");
    if (end < 0 || name < 0) return {};
    const auto quote = [&](int from) {
        while (from < end && text[from] != u'"' && text[from] != u'\'') ++from;
        return from;
    };
    const int first = quote(name) + 1;
    return first < end ? Source::Span{first, quote(first)} : Source::Span{};
}

} // namespace

void SourceDecoder::decode(const QByteArray& bytes)
{
    if (bytes.size() > Source::MOST_BYTES) {
        _source._lines.push_back(0);
        fault({}, QStringLiteral("the file is larger than %1 bytes").arg(Source::MOST_BYTES),
              Source::Fault::Kind::Encoding, true);
        return;
    }
    chooseText(bytes);
    _source._fileLength = _source._text.size();
    readCharacters();
    if (_damage.truncated) {
        const Source::Span end{_source._fileLength, _source._fileLength};
        fault(end, QStringLiteral("the last character is cut off in the middle of its bytes"),
              Source::Fault::Kind::Encoding, false);
    }
}

QString SourceDecoder::convert(const QTextCodec& codec, const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QString text = codec.toUnicode(bytes.constData(), bytes.size(), &state);
    _damage = {state.invalidChars, state.remainingChars > 0};
    _source._encoding = QString::fromLatin1(codec.name());
    _unicode = _source._encoding.startsWith(u"UTF-");
    return text;
}

void SourceDecoder::chooseText(const QByteArray& bytes)
{
    const Mib shown = encodingShown(bytes);
    const QTextCodec& first = *QTextCodec::codecForMib(shown);
    _source._text = convert(first, bytes);
    const Source::Span declared = encodingDeclared(_source._text);
    if (declared.isEmpty()) return;

    const QString name = _source._text.mid(declared.begin, declared.end - declared.begin);
    const QTextCodec* second = QTextCodec::codecForName(name.toLatin1());
    if (second == nullptr) {
        fault(declared, QStringLiteral("unknown encoding \"%1\", read as %2").arg(name.left(60), _source._encoding),
              Source::Fault::Kind::Encoding, false);
        return;
    }
    if (second->mibEnum() == shown) return;
    // The parser believes the declaration and then finds nothing it understands.
    QString text = convert(*second, bytes);
    if (text.startsWith(u"<?xml")) {
        _source._text = std::move(text);
        return;
    }
    convert(first, bytes);
    fault(declared,
          QStringLiteral("the encoding \"%1\" is declared, but the file is written in %2")
              .arg(name.left(60), _source._encoding),
          Source::Fault::Kind::Encoding, true);
}

void SourceDecoder::readCharacters()
{
    const QString& text = _source._text;
    const int size = text.size();
    const QChar* const data = text.constData();
    _source._lines.reserve(size_t(size) / 40 + 1);
    _source._lines.push_back(0);
    for (int i = 0; i < size; ++i) {
        const ushort c = data[i].unicode();
        if (c >= 0x20 && c < 0xD800) continue;
        if (c == '\n' || (c == '\r' && (i + 1 == size || data[i + 1] != u'\n')))
            _source._lines.push_back(i + 1);
        else if (c != '\t' && c != '\r')
            checkCharacter(i);
    }
}

void SourceDecoder::checkCharacter(int offset)
{
    const QString& text = _source._text;
    const QChar c = text[offset];
    const ushort code = c.unicode();
    const Source::Span span{offset, offset + 1};
    if (c.isLowSurrogate() && offset > 0 && text[offset - 1].isHighSurrogate()) {
        _source._wide.push_back(offset);
    } else if (code < 0x20) {
        // One for a whole run.
        if (offset > 0 && text[offset - 1] == c) return;
        fault(span, QStringLiteral("control character U+%1").arg(hex(code)), Source::Fault::Kind::Syntax, false);
    } else if (code >= 0xFFFE) {
        fault(span, QStringLiteral("the parser takes U+%1 for the end of the file").arg(hex(code)),
              Source::Fault::Kind::Syntax, true);
    } else if (code == 0xFFFD && (_damage.invalid > 0 || !_unicode)) {
        if (offset > 0 && text[offset - 1] == c) return;
        Source::Span run = span;
        while (run.end < text.size() && text[run.end] == c) ++run.end;
        fault(run, QStringLiteral("bytes that mean nothing in %1").arg(_source._encoding),
              Source::Fault::Kind::Encoding, false);
    }
}

void SourceDecoder::fault(Source::Span span, const QString& message, Source::Fault::Kind kind, bool fatal)
{
    _source._fatal |= fatal;
    if (int(_source._faults.size()) >= Source::MOST_FAULTS) {
        _source._moreFaults = true;
        return;
    }
    _source._faults.push_back({{}, message, kind, fatal, std::nullopt, span});
}

} // namespace lcdcheck
