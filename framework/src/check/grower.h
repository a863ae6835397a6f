// Listens to readers and puts in what they ask for: the document grows, and with it the grammar, until nothing new is
// asked. There is one element in the document for each element of the grammar.
#ifndef LCDCHECK_GROWER_H
#define LCDCHECK_GROWER_H

#include "drive.h"
#include "grammar.h"
#include "placing.h"

#include <QHash>

#include <map>

namespace lcdcheck {

class Grower final : public Feeder {
public:
    explicit Grower(FileKind kind);

    /// Gets ready for another reading, in which every attribute known so far has this text; none has for a null text.
    void prepare(const QString& trial);
    /// How much is known by now; it only grows.
    [[nodiscard]] int known() const { return _known; }
    /// The texts with which the attribute was asked for.
    [[nodiscard]] QStringList trialsOf(const Element& element, const QString& attribute) const;
    std::unique_ptr<Element> take() { return std::move(_root); }

    bool refused(const QString& path, const reading::Frame& frame, reading::Refusal why,
                 const reading::ParseFailure& failure, QDomDocument& document) override;
    void asked(const QDomElement& element, const reading::Asked& asked) override;
    bool attributeTested(const QDomElement& element, const QString& name, bool found) override;
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
    void readingEnds(const reading::Location& record) override { _placing.leave(record); }
    void standsFor(const reading::Location& aside, const reading::Location& place) override;

private:
    /// The grammar's element that the document's stands for; null where the reader has strayed.
    Element* of(const QDomElement& element);
    Attribute& attributeOf(Element& element, const QString& name);
    Element& childOf(Element& parent, const QString& tag);
    QDomElement put(const QDomElement& parent, Element& child);
    void setAttributes(QDomElement element, const QString& trial);
    [[nodiscard]] bool fillsRecordAbove(const Element& element, const reading::Location& record) const;
    [[nodiscard]] const Element* lostWith(const bool* scope) const;
    void recognise(Element& element, const reading::Location& record);

    FileKind _kind;
    std::unique_ptr<Element> _root;
    std::vector<Element*> _elements; ///< By the number that the document's elements are marked with.
    std::map<const Element*, reading::Location> _records; ///< What each was read into first in this visit.
    std::map<const bool*, const Element*> _scopes;        ///< What is lost with a failure.
    QHash<QString, QStringList> _trials;
    QString _trial;
    QHash<QString, bool> _found; ///< Of each tag, whether the last test found it.
    QDomElement _strayed;        ///< A list takes this element for an entry, and it is none.
    Placing _placing;
    int _known = 0;
};

} // namespace lcdcheck

#endif
