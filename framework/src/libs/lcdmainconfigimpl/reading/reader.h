// The words in which every reader is written. A Reader stands on one element; a row of a reader names a child element,
// what its absence costs, the record it fills and the cells that fill it. A cell is anything that can be called with a
// Reader and a record: an attribute with its read default, a list, or a reader function.
//
// All look-ups of all readers pass through a few functions of this class, and each of them knows its element: text()
// and hasAttribute() for attributes, field() for what was no number, find(), has() and each() for children. They are
// where an observer would listen to what was asked for and what was there.
#ifndef LCDMAINCONFIGIMPL_READING_READER_H
#define LCDMAINCONFIGIMPL_READING_READER_H

#include "convert.h"
#include "literal.h"

#include <QDomElement>

#include <functional>
#include <optional>
#include <utility>

namespace LCD::MainConfigImpl::reading {

/// What the absence of an element costs.
enum class OnNull {
    Fail,         ///< The message is set, and the reader ends with false.
    FailAndLog,   ///< The same, with a log line.
    Note,         ///< The message is set, and the walk goes on.
    NoteAndLog,   ///< The same, with a log line.
    Skip,         ///< Silence; the target keeps its values.
    ReadDefaults, ///< Silence; a null element is read all the same, so that every read default is stored.
};

/// How a list is walked, always in document order.
enum class Walk {
    Any,         ///< Every child element.
    First,       ///< The first child element alone, whatever its tag.
    Named,       ///< Every child element with the tag.
    FirstNamed,  ///< From the first child element with the tag on, every following element of any tag.
    Descendants, ///< Every element with the tag below, however deep.
};

/// tr() of the class in whose name messages are given.
using Translate = QString (*)(const char* text, const char* disambiguation, int n);

/// The message for an absent element; the only place that words it.
inline constexpr char INVALID_NODE[] = "Invalid [%1] node.";

/// Where the messages of one read go.
struct Report {
    QString& error;                         ///< Receives the last message.
    Translate translate = nullptr;          ///< Null: the texts stand as they are.
    const char* invalidNode = INVALID_NODE; ///< For the kinds of file that word an absent element in their own way.

    /// The text, passed through `translate` where there is one.
    [[nodiscard]] QString say(const char* text) const;
    /// The same with `value` in place of "%1", which some wordings of a message do not have.
    [[nodiscard]] QString say(const char* text, const QString& value) const;
};

class Reader {
public:
    /// `failed` receives true when a row of this reader, or of one below it in the same scope, fails.
    Reader(const QDomElement& element, const Report& report, bool& failed);

    /// Whether a row has failed; every later row of the scope does nothing.
    [[nodiscard]] bool failed() const { return *_failed; }
    [[nodiscard]] bool has(Literal tag) const { return !_element.firstChildElement(tag.string()).isNull(); }
    [[nodiscard]] bool hasAttribute(Literal name) const { return _element.hasAttribute(name.string()); }
    /// Whether the element holds anything at all, be it only a comment.
    [[nodiscard]] bool hasContent() const { return _element.hasChildNodes(); }
    [[nodiscard]] QString tag() const { return _element.tagName(); }
    /// The element itself, for helpers whose signature takes one.
    [[nodiscard]] const QDomElement& element() const { return _element; }

    /// Fails the scope with a message about `tag`, for rows whose wording or tag is not the usual one.
    void fail(Literal tag, const char* message = nullptr) const;
    /// Sets a message about `tag` and goes on.
    void note(Literal tag, const char* message = nullptr) const;

    /// The message that was left last, for subtrees that log theirs in a way of their own.
    [[nodiscard]] const QString& message() const { return _report->error; }

    /// The attribute's text, or the read default when it is absent.
    [[nodiscard]] QString text(Literal name, Literal readDefault = "") const;
    /// Reads one attribute into a field. False when its text was no number of the field's kind.
    template <class Field, class Convert = Plain>
    bool field(Literal name, Literal readDefault, Field& target, const Convert& convert = {}) const
    {
        return convert(text(name, readDefault), target);
    }

    /// Applies cells to the element itself.
    template <class Record, class... Cells> void read(Record& record, const Cells&... cells) const
    {
        (readCell(record, cells), ...);
    }

    /// Reads the first child `tag` into `target`. A failure inside it is a failure of this reader.
    template <class Record, class... Cells>
    void element(Literal tag, OnNull onNull, Record& target, const Cells&... cells) const
    {
        if (const auto child = find(tag, onNull)) child->read(target, cells...);
    }

    /// As element(), but a failure inside ends only this child; what was stored before it stays.
    template <class Record, class... Cells>
    void apart(Literal tag, OnNull onNull, Record& target, const Cells&... cells) const
    {
        bool failed = false;
        if (const auto child = find(tag, onNull)) child->scoped(failed).read(target, cells...);
    }

    /// As apart(), but the child is built aside and stored whole or not at all.
    template <class Record, class... Cells>
    void staged(Literal tag, OnNull onNull, Record& target, const Cells&... cells) const
    {
        bool failed = false;
        Record aside{};
        const auto child = find(tag, onNull);
        if (!child) return;
        child->scoped(failed).read(aside, cells...);
        if (!failed) target = std::move(aside);
    }

    /// Reads the child's text, verbatim: the value of its first child node.
    void content(Literal tag, OnNull onNull, std::string& target) const;

    /// Appends one entry to `target`, read from this element; none when the scope fails.
    template <class List, class... Cells> void append(List& target, const Cells&... cells) const
    {
        typename List::value_type entry{};
        read(entry, cells...);
        if (!failed()) target.push_back(std::move(entry));
    }

    /// Appends one entry to `target` for each element of the walk. A failure inside an entry is one of this reader.
    template <class List, class... Cells> void list(Walk walk, Literal tag, List& target, const Cells&... cells) const
    {
        each(walk, tag, [&](const Reader& in) { in.append(target, cells...); });
    }

    /// As list(), but an entry that fails is dropped and the walk goes on with the next.
    template <class List, class... Cells>
    void stagedList(Walk walk, Literal tag, List& target, const Cells&... cells) const
    {
        each(walk, tag, [&](const Reader& in) {
            bool failed = false;
            in.scoped(failed).append(target, cells...);
        });
    }

    /// Calls `visit(reader)` on each element of the walk until the scope fails. The tag counts for the named walks.
    template <class Visit> void each(Walk walk, Literal tag, const Visit& visit) const
    {
        for (QDomElement child = first(walk, tag); !failed() && !child.isNull(); child = next(child, walk, tag))
            visit(Reader(child, *_report, *_failed));
    }

    /// The first child `tag`, for walks that come back to it. When it is absent the scope fails, and a reader on a null
    /// element is returned, whose rows do nothing.
    [[nodiscard]] Reader required(Literal tag) const;
    /// The first child `tag`; nothing when it is absent (unless a null element is to be read) or the scope has failed.
    [[nodiscard]] std::optional<Reader> find(Literal tag, OnNull onNull) const { return find(tag.string(), onNull); }
    [[nodiscard]] std::optional<Reader> find(const QString& tag, OnNull onNull) const;

    /// The first child of any tag, for files that tell what they hold by it; nothing when there is none.
    [[nodiscard]] std::optional<Reader> firstChild() const;

    /// The same element in a scope of failure of its own.
    [[nodiscard]] Reader scoped(bool& failed) const { return {_element, *_report, failed}; }

private:
    template <class Record, class Cell> void readCell(Record& record, const Cell& cell) const
    {
        if (!failed()) cell(*this, record);
    }
    void leave(const QString& tag, const char* message, bool log) const;
    [[nodiscard]] QDomElement first(Walk walk, Literal tag) const;
    [[nodiscard]] QDomElement next(const QDomElement& child, Walk walk, Literal tag) const;
    [[nodiscard]] QDomElement nextBelow(QDomElement element, Literal tag) const;

    QDomElement _element;
    const Report* _report;
    bool* _failed;
};

/// Reads one element into `record`, in a scope of its own. False when a row failed; what was stored stays.
template <class Record, class... Cells>
bool readElement(const QDomElement& element, const Report& report, Record& record, const Cells&... cells)
{
    bool failed = false;
    Reader(element, report, failed).read(record, cells...);
    return !failed;
}

} // namespace LCD::MainConfigImpl::reading

#endif
