// What the readers asked of each element of a file, and what was there: the ground of all that the checker says about
// one file. It is heard, not written down a second time, so a rule that would need to know a tag needs another event.
#ifndef LCDCHECK_HEARD_H
#define LCDCHECK_HEARD_H

#include "source.h"

#include "reading/document.h"
#include "reading/xmlparse.h"

#include <QHash>

#include <compare>
#include <cstddef>
#include <functional>
#include <optional>
#include <typeindex>
#include <vector>

namespace lcdcheck {

namespace reading = LCD::MainConfigImpl::reading;

/// A field of a record. Of a list of plain numbers it is the list.
struct Field {
    std::type_index record = typeid(void);
    std::ptrdiff_t offset = 0;

    friend bool operator==(const Field&, const Field&) = default;
    friend auto operator<=>(const Field&, const Field&) = default;
};

/// The field that a member pointer names, in the record that the readers fill, which may be derived from the member's.
template <class Record, class Member, class Owner> Field fieldOf(Member Owner::*member)
{
    static const Record record{};
    const Member Record::*inRecord = member;
    return {typeid(Record),
            reinterpret_cast<const char*>(&(record.*inRecord)) - reinterpret_cast<const char*>(&record)};
}

/// A field of a record that is itself a member of another one.
template <class Record, class Owner, class Member, class InnerOwner, class Inner>
Field fieldOf(Member Owner::*member, Inner InnerOwner::*inner)
{
    return {typeid(Record), fieldOf<Record>(member).offset + fieldOf<Member>(inner).offset};
}

/// An attribute that was asked for. Where readers ask for it several times, the last one that fills a field counts.
struct HeardAttribute {
    QString name; ///< Empty: the element's text.
    reading::Kind kind = reading::Kind::Text;
    QString readDefault;
    bool present = false;
    bool good = true; ///< Whether what is there is of the kind.
    QString stranger; ///< An attribute that nobody asked for and that was probably meant to be this absent one.
    Field field;
    Field outer;        ///< The same field in the record around that of the element; nothing for entries of lists.
    bool whole = false; ///< The field is all that its record holds.
};

/// A child that was looked up by its tag.
struct HeardChild {
    QString tag;
    int element = -1;    ///< Which one was found; -1: none.
    bool tested = false; ///< Only whether it is there was asked.
};

struct HeardWalk {
    reading::Walk walk = reading::Walk::Any;
    QString tag;
};

/// A child that was looked up in vain and whose absence costs something.
struct Missing {
    int parent = -1;
    QString tag;
    reading::OnNull cost = reading::OnNull::Note;
    int scope = -1;     ///< The element that is lost with it; -1: the file.
    bool entry = false; ///< The scope is an entry of a list.
};

struct HeardElement {
    bool found = false; ///< A look-up or a walk has come to it.
    bool read = false;  ///< Something in it was asked for. What nobody reads can hold anything.
    std::vector<HeardAttribute> attributes;
    std::vector<HeardChild> children;
    std::vector<HeardWalk> walks;  ///< Lists that were walked below it.
    std::vector<HeardWalk> visits; ///< Walks that came to it.
    QStringList testedTags;        ///< Tags that its own was compared with, up to the one that it has.
    bool tagFits = false;          ///< It had one of them.
    QString meant;                 ///< The tag under which it was read, where that is not its own.
    std::optional<Missing> lack;   ///< What the panel misses since the tag is another, where that costs something.

    [[nodiscard]] const HeardAttribute* attribute(const QString& name) const;
    [[nodiscard]] const HeardAttribute* attribute(QLatin1String name) const;
};

/// Why a file was not read, or not as it stands.
struct Refused {
    reading::Refusal why;
    reading::ParseFailure failure; ///< Of a file that is not well-formed.
};

struct HeardFile {
    QString path;
    const reading::Frame* frame = nullptr;
    Source source;
    std::vector<HeardElement> elements; ///< In the order of source.elements().
    std::vector<Missing> missing;
    std::vector<Refused> refusals;
    bool wasRead = false; ///< Something was asked of it, beyond its frame.
    QString cost;         ///< What the loss of the whole file costs.

    /// The tags from the root to an element, under which it was read, as "DCS/Device/Slots".
    [[nodiscard]] QString pathOf(int element) const;
    [[nodiscard]] QString tagOf(int element) const;
    /// Whether the syntax is at fault in an attribute, so that its value tells nothing.
    [[nodiscard]] bool isFaulty(const Source::Attribute& attribute) const;
    /// Whether the text ends before an element does, so that nobody knows what else was to stand in it. Of the root it
    /// tells whether the file is cut off.
    [[nodiscard]] bool isCut(int element) const;
};

/// The names that a place of a file may hold. It is asked only where something is missing.
class Vocabulary {
public:
    virtual ~Vocabulary() = default;
    /// Whether an element of that path, in the file of that frame and folder, may hold a child of that tag.
    [[nodiscard]] virtual bool mayHold(const QString& file, const QString& path, const QString& tag) const = 0;
    /// Whether it may have an attribute of that name.
    [[nodiscard]] virtual bool mayHave(const QString& file, const QString& path, const QString& attribute) const = 0;
    /// The tag under which a child of that tag may stand elsewhere; empty when it is known nowhere.
    [[nodiscard]] virtual QString homeOfElement(const QString& file, const QString& tag) const = 0;
    /// The tag of an element that has such an attribute; empty when none does, or many do.
    [[nodiscard]] virtual QString homeOfAttribute(const QString& file, const QString& attribute) const = 0;
};

/// Hears whole reads, file by file. A reader that would stop goes on: a required child that is missing is read from an
/// empty element beside the document, a file that is not well-formed from what could be recovered of it, and an element
/// whose tag is misspelt under the tag that was probably meant. So one mistake hides no other.
class Hearing final : public reading::Listener {
public:
    /// `heard` receives each file when the next one begins, and the last one from finish(). Both must outlive this.
    explicit Hearing(std::function<void(HeardFile&)> heard, const Vocabulary* vocabulary = nullptr)
        : _heard(std::move(heard)), _vocabulary(vocabulary)
    {}

    void finish();
    /// What the loss of a file costs, from the next file on.
    void setCostOfFile(const QString& cost) { _cost = cost; }
    /// Has this file be read in the place of the one that the readers open.
    void readInstead(const QString& path) { _instead = path; }
    /// Whether something was mended since the beginning, so that the readers hold more than the files give.
    [[nodiscard]] bool hasMended() const { return _mended; }

    void parsed(const QString& path, const reading::Frame& frame, QDomDocument& document) override;
    bool refused(const QString& path, const reading::Frame& frame, reading::Refusal why,
                 const reading::ParseFailure& failure, QDomDocument& document) override;
    bool attributeTested(const QDomElement& element, const QString& name, bool found) override;
    void asked(const QDomElement& element, const reading::Asked& asked) override;
    QDomElement child(const QDomElement& parent, const QString& tag, reading::OnNull cost, const bool* scope,
                      const QDomElement& found) override;
    void scopeBegins(const bool* scope, const QDomElement& element) override;
    bool childTested(const QDomElement& parent, const QString& tag, bool found) override;
    bool contentTested(const QDomElement& element, bool found) override;
    bool tagTested(const QDomElement& element, const QString& tag, bool is) override;
    void walked(const QDomElement& parent, reading::Walk walk, const QString& tag) override;
    void visited(const QDomElement& element, reading::Walk walk, const QString& tag) override;
    bool failed(const QDomElement& element, const QString& tag, const bool* scope) override;
    void reading(const QDomElement& element, const reading::Location& record) override;
    void readingEnds(const reading::Location& record) override;
    void standsFor(const reading::Location& aside, const reading::Location& place) override;

private:
    void begin(const QString& path, const reading::Frame& frame);
    QDomDocument recovered(const reading::Frame& frame);
    void number(const std::vector<QDomElement>& elements);
    [[nodiscard]] int indexOf(const QDomElement& element);
    [[nodiscard]] HeardElement* heardOf(const QDomElement& element);
    [[nodiscard]] Field fieldAt(const reading::Asked& asked) const;
    [[nodiscard]] Field around(const reading::Location& location) const;
    [[nodiscard]] Missing missing(int parent, const QString& tag, reading::OnNull cost, const bool* scope) const;
    void miss(const Missing& missing);
    [[nodiscard]] QDomElement putIn(int parent, const QString& tag);
    [[nodiscard]] bool isStranger(int parent, const QString& tag);
    QDomElement adopt(const QDomElement& parent, int index, const QString& tag);
    bool rename(QDomElement element, const QString& tag);

    std::function<void(HeardFile&)> _heard;
    const Vocabulary* _vocabulary;
    QString _instead;
    QString _cost;
    HeardFile _file;
    QDomDocument _putInFrom;              ///< Makes the elements that are put in.
    std::vector<QDomDocument> _documents; ///< Of the file. As long as they live, no other node has a node's address.
    QHash<const void*, int> _numbers;     ///< Of their elements in the source, by the address of the node.
    const void* _lastNode = nullptr;
    int _lastIndex = -1;
    bool _mended = false;
    QHash<QString, QDomElement> _putIn; ///< By parent and tag, so that a second look-up finds the same.
    QHash<const bool*, int> _scopes;
    std::vector<reading::Location> _records; ///< Those that may still be filled, in the order of their beginning.
    std::vector<std::size_t> _begun;         ///< Those of them that are being read into, the innermost last.
    std::vector<std::pair<reading::Location, reading::Location>> _asides;
};

} // namespace lcdcheck

#endif
