// From the bytes of a file to its text, as the panel's parser decodes them, and to the lines of that text.
#ifndef LCDCHECK_SOURCE_DECODE_H
#define LCDCHECK_SOURCE_DECODE_H

#include "source.h"

class QTextCodec;

namespace lcdcheck {

class SourceDecoder {
public:
    explicit SourceDecoder(Source& source) : _source(source) {}
    /// Fills the text, its encoding and its lines, and reports what is wrong with its bytes and characters.
    void decode(const QByteArray& bytes);

private:
    /// How many bytes had no meaning, and whether the last character was cut off.
    struct Damage {
        int invalid = 0;
        bool truncated = false;
    };

    QString convert(const QTextCodec& codec, const QByteArray& bytes);
    void chooseText(const QByteArray& bytes);
    void readCharacters();
    void checkCharacter(int offset);
    void fault(Source::Span span, const QString& message, Source::Fault::Kind kind, bool fatal);

    Source& _source;
    Damage _damage;
    bool _unicode = true;
};

} // namespace lcdcheck

#endif
