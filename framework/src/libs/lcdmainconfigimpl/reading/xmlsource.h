// The text that the parser is given: the whole document, decoded, and cut off where its entities would expand to too
// much. The parser expands an entity by itself and tells nobody, so that the last place to see what it is about to do
// is the reference in the text, before the parser has it.
#ifndef LCDMAINCONFIGIMPL_READING_XMLSOURCE_H
#define LCDMAINCONFIGIMPL_READING_XMLSOURCE_H

#include <QHash>
#include <QXmlInputSource>

class QIODevice;

namespace LCD::MainConfigImpl::reading {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

class XmlSource final : public QXmlInputSource {
public:
    /// Reads the device to its end, or a little beyond LARGEST_FILE.
    explicit XmlSource(QIODevice& device);

    QChar next() override { return _at != _pause ? *_at++ : afterPause(); }

    /// Which bound the text went beyond, and was cut off for; empty when it was not.
    [[nodiscard]] const QString& refusal() const { return _refusal; }

    /// Remembers that the parser has reported all markup so far.
    void mark() { _mark = _at; }
    /// Whether a tag was opened since, which the parser has not reported yet.
    [[nodiscard]] bool isInTag() const;

    /// Parentheses are counted from now on, until the document type ends.
    void beginDocumentType();
    void endDocumentType() { _inDocumentType = false; }
    /// References to the entity are counted from now on. The name of a parameter entity starts with a percent sign.
    void declare(const QString& name, const QString& text);

private:
    QChar afterPause();
    bool count(QChar start);
    bool expand(const QString& name, int depth);
    [[nodiscard]] bool isWatched(QChar character) const;
    bool refuse(const QString& why);
    void decode(QIODevice& device);

    QString _text;
    const QChar* _at = nullptr;    // What next() returns.
    const QChar* _pause = nullptr; // Where it looks what comes before going on.
    const QChar* _end = nullptr;
    const QChar* _mark = nullptr;
    QString _refusal;
    QHash<QString, QString> _entities; // By name, with the percent sign or ampersand that refers to it.
    bool _inDocumentType = false;
    int _expanded = 0;
    int _parentheses = 0;
};

#pragma GCC diagnostic pop

} // namespace LCD::MainConfigImpl::reading

#endif
