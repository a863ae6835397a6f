// Who hears what the readers ask for. In the panel nobody listens, and a reader is silent about almost everything that
// is wrong in a file; a checker that listens learns from the very same readers what each element was asked for, what
// was there and what its absence costs, and can go on where a reader would stop. So no format is described twice.
//
// The events come in the order of the asking. Readers, reports and the settings store tell them, and nothing else does.
#ifndef LCDMAINCONFIGIMPL_READING_LISTENER_H
#define LCDMAINCONFIGIMPL_READING_LISTENER_H

#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <cstddef>
#include <typeinfo>

namespace LCD::MainConfigImpl::reading {

struct Frame;
struct ParseFailure;

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

/// What a text is taken for.
enum class Kind {
    Text,       ///< Any text.
    Int,        ///< A signed 32-bit integer.
    Signed64,   ///< A signed 64-bit integer.
    Unsigned64, ///< An unsigned 64-bit integer.
    Unsigned32, ///< An unsigned 32-bit integer.
    Unsigned16, ///< An unsigned 16-bit integer.
    Float,      ///< A number with decimals, in single precision.
    Double,     ///< A number with decimals.
    Hundredths, ///< A number with decimals that is stored in hundredths.
};

/// A record or field in memory, known by where it stands and its type.
struct Location {
    const void* address = nullptr; ///< Null: what was read goes to no single field.
    std::size_t size = 0;
    const std::type_info* type = nullptr;
};

template <class Object> Location locationOf(const Object& object) { return {&object, sizeof object, &typeid(Object)}; }

/// One question for an attribute, or for the content of an element, and its answer.
struct Asked {
    const QString& name; ///< Empty: the text between the element's tags was asked for.
    Kind kind = Kind::Text;
    const QString& readDefault;
    bool present = false;
    bool good = true;     ///< Whether the text, or else the read default, is of the kind; a bad one is stored as 0.
    Location field = {};  ///< What it fills.
    Location record = {}; ///< The record that the field belongs to; the field itself where it is all there is.
};

/// Why a file was not read.
enum class Refusal {
    CannotOpen,
    NotWellFormed, ///< Or beyond a bound of the parser.
    WrongRoot,
    WrongVersion,
};

class Listener {
public:
    Listener() = default;
    virtual ~Listener() = default;
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// Who listens to all reads that begin from now on; null in the panel.
    static Listener* current() { return _current; }

    // What a file is. The events of readers that follow belong to the document parsed last.

    /// A file was parsed and will be read. Marks may be put into the document.
    virtual void parsed(const QString& /*path*/, const Frame& /*frame*/, QDomDocument& /*document*/) {}
    /// A file is not to be read. True: it is read all the same, from what the listener has put into `document`.
    virtual bool refused(const QString& /*path*/, const Frame& /*frame*/, Refusal /*why*/,
                         const ParseFailure& /*failure*/, QDomDocument& /*document*/)
    {
        return false;
    }

    // What a reader asks of an element. A null element was not there and is read for its defaults.

    /// Whether an attribute is there at all. The result counts.
    virtual bool attributeTested(const QDomElement& /*element*/, const QString& /*name*/, bool found) { return found; }
    /// An attribute, or the content of the element.
    virtual void asked(const QDomElement& /*element*/, const Asked& /*asked*/) {}
    /// The first child of that tag, in a scope of failure. The result is read in the place of `found`, so that a
    /// listener can put in a child that is missing; it need not stand in the document.
    virtual QDomElement child(const QDomElement& /*parent*/, const QString& /*tag*/, OnNull /*cost*/,
                              const bool* /*scope*/, const QDomElement& found)
    {
        return found;
    }
    /// A scope of failure begins: what fails in it costs what is read of this element from here on, and no more. The
    /// address is the scope's name until another scope begins under it.
    virtual void scopeBegins(const bool* /*scope*/, const QDomElement& /*element*/) {}
    /// Whether a child of that tag is there at all; its absence costs nothing yet. The result counts.
    virtual bool childTested(const QDomElement& /*parent*/, const QString& /*tag*/, bool found) { return found; }
    /// Whether the element holds anything. The result counts.
    virtual bool contentTested(const QDomElement& /*element*/, bool found) { return found; }
    /// Whether the element's tag is this one; a reader with several answers asks for each in turn. The result counts.
    virtual bool tagTested(const QDomElement& /*element*/, const QString& /*tag*/, bool is) { return is; }
    /// A list will be walked below the element. The tag counts for the named walks; for the others it names what
    /// belongs there, or is empty where every tag does.
    virtual void walked(const QDomElement& /*parent*/, Walk /*walk*/, const QString& /*tag*/) {}
    /// A walk has come to an element.
    virtual void visited(const QDomElement& /*element*/, Walk /*walk*/, const QString& /*tag*/) {}
    /// A reader ends here with a message about `tag`, for a reason of its own. True: it goes on all the same.
    virtual bool failed(const QDomElement& /*element*/, const QString& /*tag*/, const bool* /*scope*/) { return false; }

    // Where it goes.

    /// The element is read into the record, until the reading ends. Readings are nested.
    virtual void reading(const QDomElement& /*element*/, const Location& /*record*/) {}
    virtual void readingEnds(const Location& /*record*/) {}
    /// What is read into `aside` will be moved to `place`, or appended to it where that is a list.
    virtual void standsFor(const Location& /*aside*/, const Location& /*place*/) {}

    // The settings.

    /// An ini file was opened.
    virtual void settingsOpened(const QString& /*path*/) {}
    /// An entry of it was asked for, by its whole key. `asked.readDefault` is what an absent one gives.
    virtual void settingAsked(const QString& /*key*/, const Asked& /*asked*/) {}

private:
    friend class Listening;
    static inline Listener* _current = nullptr;
};

/// Has a listener hear all reads while it lives. One at a time, and none while another thread reads.
class Listening {
public:
    explicit Listening(Listener& listener) { Listener::_current = &listener; }
    ~Listening() { Listener::_current = nullptr; }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
};

} // namespace LCD::MainConfigImpl::reading

#endif
