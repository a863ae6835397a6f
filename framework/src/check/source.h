// The text of one configuration file as its author wrote it: where every tag, attribute, text and comment stands, and
// every fault of the syntax. The DOM knows none of these places, and its parser stops at the first fault; this reading
// goes on behind each with the most likely meaning, so that the rest of a faulty file can be judged too.
#ifndef LCDCHECK_SOURCE_H
#define LCDCHECK_SOURCE_H

#include "finding.h"
#include "reading/xmlparse.h"

#include <QByteArray>
#include <QDomDocument>
#include <QHash>
#include <QString>
#include <QStringView>

#include <optional>
#include <span>
#include <vector>

namespace lcdcheck {

class Source {
public:
    /// A stretch of text(), in UTF-16 units; place() tells where that is for a person.
    struct Span {
        int begin = 0;
        int end = 0;
        [[nodiscard]] bool isEmpty() const { return begin >= end; }
    };

    struct Attribute {
        Span name;
        Span value; ///< Inside the quotes, as written. Empty, behind the name, where the author wrote none.
    };

    struct Element {
        Span tag;    ///< From "<" to behind the name.
        Span name;   ///< The qualified name as written.
        int end = 0; ///< Behind the start tag.
        Span endTag; ///< "</Name>"; empty where there is none.
        int parent = -1;
        int firstAttribute = 0;
        int attributeCount = 0;
        int firstText = -1;      ///< Index into texts() of its first text or CDATA; -1 without one.
        bool selfClosed = false; ///< By "/>".
    };

    /// A text or CDATA section. As in the DOM, white space alone is no text; of a CDATA section it is.
    struct Text {
        Span span; ///< As written; of a CDATA section its inside.
        int parent = 0;
        int next = 0; ///< The element that begins next in the file, whatever its parent; elements().size() at the end.
        bool cdata = false;
    };

    struct Comment {
        Span span; ///< From "<!--" to behind "-->".
        Span text; ///< Between them.
        int element =
            -1; ///< The element before which it stands, with nothing between them but white space and comments.
    };

    struct Fault {
        /// What is misread is well-formed, but the panel's parser makes something else of it.
        enum class Kind { Syntax, Encoding, Misread };
        Place place;
        QString message; ///< One line, without a full stop.
        Kind kind = Kind::Syntax;
        bool fatal = true; ///< The panel's parser refuses the whole file for it; otherwise it misreads, or is lenient.
        std::optional<Place> opened; ///< The start tag that the message speaks of.
        Span span;
    };

    /// No more faults than these are kept, the first ones of each kind of search; see hasMoreFaults().
    static constexpr int MOST_FAULTS = 1000;
    /// A file beyond this many bytes is not read, which is its one fault. The panel does not read it either.
    static constexpr int MOST_BYTES = LCD::MainConfigImpl::reading::LARGEST_FILE;

    /// Reads a file's content. Never fails: an empty one is a source without elements and with a fault.
    static Source read(const QByteArray& bytes);
    /// Reads the file of that path; nothing when it can't be opened.
    static std::optional<Source> readFile(const QString& path);

    /// Whether the panel's parser takes the file.
    [[nodiscard]] bool isWellFormed() const { return !_fatal; }
    /// In the order of their places.
    [[nodiscard]] const std::vector<Fault>& faults() const { return _faults; }
    [[nodiscard]] bool hasMoreFaults() const { return _moreFaults; }

    /// In the order of their start tags, which is the document order of the DOM. A parent precedes its children.
    [[nodiscard]] const std::vector<Element>& elements() const { return _elements; }
    [[nodiscard]] const std::vector<Text>& texts() const { return _texts; }
    [[nodiscard]] const std::vector<Comment>& comments() const { return _comments; }
    /// The attributes of an element as written, with duplicates and namespace declarations.
    [[nodiscard]] std::span<const Attribute> attributes(const Element& element) const
    {
        return std::span(_attributes).subspan(size_t(element.firstAttribute), size_t(element.attributeCount));
    }
    /// The attribute that the DOM gives for that name: without regard to prefixes, the last one. Null without one.
    [[nodiscard]] const Attribute* attribute(const Element& element, QStringView name) const;

    /// The qualified tag as written.
    [[nodiscard]] QString tag(const Element& element) const { return slice(element.name).toString(); }
    /// What the DOM holds of it: references are replaced, white space stays as it is.
    [[nodiscard]] QString value(const Attribute& attribute) const { return decoded(attribute.value); }
    [[nodiscard]] QString value(const Text& text) const;

    /// The decoded text. Behind the file's own it holds the replacement texts of entities with elements in them.
    [[nodiscard]] const QString& text() const { return _text; }
    [[nodiscard]] QStringView slice(Span span) const
    {
        return QStringView(_text).mid(span.begin, span.end - span.begin);
    }
    /// Where a stretch stands. One over several lines ends with its first; one from an entity is where it is referred
    /// to.
    [[nodiscard]] Place place(Span span) const;
    [[nodiscard]] Place place(const Element& element) const { return place(element.tag); }
    /// A line of the file without its end; empty for a number that there is not.
    [[nodiscard]] QString line(int number) const;
    [[nodiscard]] int lineCount() const { return int(_lines.size()); }
    /// The encoding that the text was decoded with.
    [[nodiscard]] const QString& encoding() const { return _encoding; }

    /// The recovered tree, with names as namespace processing gives them, but without namespaces' URIs. Elements nested
    /// deeper than reading::DEEPEST_NESTING or beyond reading's other bounds, and further roots with all below them,
    /// are left out. `placed` receives for each element of elements() its element in the document, null for those left
    /// out.
    [[nodiscard]] QDomDocument toDocument(std::vector<QDomElement>* placed = nullptr) const;
    /// The elements of a document that was parsed from the same bytes, in the order of elements(). Empty when the two
    /// don't agree one to one, tags included.
    [[nodiscard]] std::vector<QDomElement> match(const QDomDocument& document) const;

private:
    friend class SourceDecoder;
    friend class SourceScanner;

    struct Entity {
        QString value;
        bool external = false;
        enum class State { Unknown, Busy, Usable, Recursive, TooLarge } state = State::Unknown;
        bool markup = false; ///< Elements or the like stand in it, itself or by what it refers to.
        int length = 0;      ///< Of its replacement text with all references replaced.
    };
    /// A replacement text that was put behind the file's own, and the reference for which it was.
    struct Insertion {
        int begin;
        Span reference;
    };
    /// What stands at a "&".
    struct Reference {
        enum class Kind { Bare, Character, Entity } kind = Kind::Bare;
        bool terminated = false; ///< By ";".
        int length = 1;
        uint code = 0;    ///< Of a character or a predefined entity.
        QStringView name; ///< Of another entity.
    };

    /// Takes back all that was read but the text and its own faults.
    void forget(size_t faults, bool fatal);
    static Reference referenceAt(QStringView text, int position);
    [[nodiscard]] QString decoded(Span span) const;
    void appendDecoded(QString& out, QStringView raw) const;
    [[nodiscard]] int lineIndex(int offset) const;

    QString _text;
    QString _encoding;
    int _fileLength = 0;           ///< The file's own part of _text.
    std::vector<int> _lines;       ///< Where each line begins.
    std::vector<int> _wide;        ///< The second halves of characters of two units.
    std::vector<Insertion> _added; ///< In the order of their beginnings.
    std::vector<Element> _elements;
    std::vector<Attribute> _attributes;
    std::vector<Text> _texts;
    std::vector<Comment> _comments;
    std::vector<Fault> _faults;
    QHash<QString, Entity> _entities;
    bool _fatal = false;
    bool _moreFaults = false;
};

/// The part of a qualified name by which the DOM knows it: what follows the first colon, or all of it.
QStringView localName(QStringView qualified);

/// The letters of names, as the panel's parser has them.
bool beginsName(QChar c);
bool continuesName(QChar c);

} // namespace lcdcheck

#endif
