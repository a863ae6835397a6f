// The words in which every reader is written. A Reader stands on one element; a row of a reader names a child element,
// what its absence costs, the record it fills and the cells that fill it. A cell is anything that can be called with a
// Reader and a record: an attribute with its read default, a list, or a reader function.
//
// All look-ups of all readers pass through a few functions of this class, each of which knows its element and tells a
// listener, where there is one, what was asked for and what was there.
#ifndef LCDMAINCONFIGIMPL_READING_READER_H
#define LCDMAINCONFIGIMPL_READING_READER_H

#include "convert.h"
#include "listener.h"
#include "literal.h"

#include <QDomElement>

#include <functional>
#include <optional>
#include <utility>

namespace LCD::MainConfigImpl::reading {

/// tr() of the class in whose name messages are given.
using Translate = QString (*)(const char* text, const char* disambiguation, int n);

/// The message for an absent element; the only place that words it. Texts that a class passes through its tr() are
/// marked for translators under the context "reading"; the catalogue gets them once for each such class.
inline constexpr char INVALID_NODE[] = QT_TRANSLATE_NOOP("reading", "Invalid [%1] node.");

/// Where the messages of one read go.
struct Report {
    QString& error;                           ///< Receives the last message.
    Translate translate = nullptr;            ///< Null: the texts stand as they are.
    const char* invalidNode = INVALID_NODE;   ///< For the kinds of file that word an absent element in their own way.
    Listener* listener = Listener::current(); ///< Null in the panel.

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
    [[nodiscard]] bool has(Literal tag) const;
    [[nodiscard]] bool hasAttribute(Literal name) const;
    /// Whether the element holds anything at all, be it only a comment.
    [[nodiscard]] bool hasContent() const;
    /// Whether the element's own tag is this one.
    [[nodiscard]] bool is(Literal tag) const;
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
    /// Reads one attribute into a field of a record. False when its text was no number of the field's kind.
    template <class Field, class Convert = Plain>
    bool field(Literal name, Literal readDefault, Field& target, const Convert& convert, const Location& record) const
    {
        const bool good = convert(attribute(name, readDefault), target);
        if (listener() != nullptr) [[unlikely]]
            tell(name, readDefault, kindOf<Field, Convert>(), good, locationOf(target), record);
        return good;
    }

    /// Applies cells to the element itself.
    template <class Record, class... Cells> void read(Record& record, const Cells&... cells) const
    {
        if (listener() != nullptr) [[unlikely]]
            listener()->reading(_element, locationOf(record));
        (readCell(record, cells), ...);
        if (listener() != nullptr) [[unlikely]]
            listener()->readingEnds(locationOf(record));
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
        child->standsFor(aside, target);
        child->scoped(failed).read(aside, cells...);
        if (!failed) target = std::move(aside);
    }

    /// Reads the child's text, verbatim: the value of its first child node.
    void content(Literal tag, OnNull onNull, std::string& target) const;

    /// Appends one entry to `target`, read from this element; none when the scope fails.
    template <class List, class... Cells> void append(List& target, const Cells&... cells) const
    {
        typename List::value_type entry{};
        standsFor(entry, target);
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
        for (QDomElement child = first(walk, tag); !failed() && !child.isNull(); child = next(child, walk, tag)) {
            if (listener() != nullptr) [[unlikely]]
                listener()->visited(child, walk, tag.string());
            visit(Reader(child, *_report, *_failed));
        }
    }

    /// The first child `tag`, for walks that come back to it. When it is absent the scope fails, and a reader on a null
    /// element is returned, whose rows do nothing.
    [[nodiscard]] Reader required(Literal tag) const;
    /// Fails the scope when there is no child `tag`; nothing in it is read.
    void demand(Literal tag) const { (void)find(tag, OnNull::Fail); }
    /// The first child `tag`; nothing when it is absent (unless a null element is to be read) or the scope has failed.
    [[nodiscard]] std::optional<Reader> find(Literal tag, OnNull onNull) const { return find(tag.string(), onNull); }
    [[nodiscard]] std::optional<Reader> find(const QString& tag, OnNull onNull) const;

    /// The first child of any tag, for files that tell what they hold by it; nothing when there is none.
    [[nodiscard]] std::optional<Reader> firstChild() const;

    /// Tells who listens that what is read into `aside` goes to `place`.
    template <class Aside, class Place> void standsFor(const Aside& aside, const Place& place) const
    {
        if (listener() != nullptr) [[unlikely]]
            listener()->standsFor(locationOf(aside), locationOf(place));
    }

    /// The same element in a scope of failure of its own.
    [[nodiscard]] Reader scoped(bool& failed) const;

private:
    template <class Record, class Cell> void readCell(Record& record, const Cell& cell) const
    {
        if (!failed()) cell(*this, record);
    }
    [[nodiscard]] Listener* listener() const { return _report->listener; }
    [[nodiscard]] QString attribute(Literal name, Literal readDefault) const;
    void tell(Literal name, Literal readDefault, Kind kind, bool good = true, const Location& field = {},
              const Location& record = {}) const;
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
    Reader(element, report, failed).scoped(failed).read(record, cells...);
    return !failed;
}

} // namespace LCD::MainConfigImpl::reading

#endif
