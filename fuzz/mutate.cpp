#include "mutate.h"

#include "seeds.h"
#include "try.h"

#include "check/grammar.h"
#include "reading/xmlparse.h"

#include <QBuffer>
#include <QDomDocument>

#include <map>
#include <vector>

namespace fuzz {

using lcdcheck::FileKind;

namespace {

/// Names and values that mean something in files of the kind, and values that should mean nothing.
struct Dictionary {
    QStringList tags;
    QStringList attributes;
    QStringList values;
};

Dictionary makeDictionary(FileKind kind)
{
    Dictionary words;
    words.values = QStringList{"",
                               "0",
                               "1",
                               "2",
                               "3",
                               "65535",
                               "2147483647",
                               "-2147483648",
                               "-1",
                               " 1",
                               "1.5",
                               "4294967296",
                               "1e308",
                               "nan",
                               "0x10",
                               "x",
                               "1,",
                               "\n",
                               "+1",
                               "9223372036854775808",
                               "\u4e2d\U0001F600",
                               QString(300, '9')};
    for (const lcdcheck::Element* const element : lcdcheck::grammarOf(kind).all()) {
        words.tags.append(element->tag);
        for (const lcdcheck::Attribute& attribute : element->attributes) {
            words.attributes.append(attribute.name);
            for (const lcdcheck::Use& use : attribute.uses) words.values.append(use.readDefault);
        }
    }
    for (QStringList* const list : {&words.tags, &words.attributes, &words.values}) list->removeDuplicates();
    return words;
}

const Dictionary& dictionaryOf(FileKind kind)
{
    static std::map<FileKind, Dictionary> all;
    const auto found = all.find(kind);
    return found != all.end() ? found->second : all.emplace(kind, makeDictionary(kind)).first->second;
}

class Mutation {
public:
    Mutation(FileKind kind, QDomDocument document, std::minstd_rand& random)
        : _kind(kind), _words(dictionaryOf(kind)), _document(std::move(document)), _random(random)
    {}

    void change();

private:
    unsigned below(int bound) { return unsigned(_random()) % unsigned(bound); }
    template <class Entry> const Entry& any(const std::vector<Entry>& list) { return list[below(int(list.size()))]; }
    const QString& any(const QStringList& list) { return list[int(below(list.size()))]; }

    void collect()
    {
        _elements.clear();
        for (QDomNode node = _document.documentElement(); !node.isNull(); node = following(node))
            if (node.isElement()) _elements.push_back(node.toElement());
    }
    static QDomNode following(QDomNode node)
    {
        if (node.hasChildNodes()) return node.firstChild();
        while (!node.isNull() && node.nextSibling().isNull()) node = node.parentNode();
        return node.nextSibling();
    }
    [[nodiscard]] bool isRoot(const QDomElement& element) const { return element == _document.documentElement(); }
    static QString pathOf(QDomElement element)
    {
        QString path = element.tagName();
        for (int depth = 0; depth < 50 && element.parentNode().isElement(); ++depth) {
            element = element.parentNode().toElement();
            path.prepend(element.tagName() + '/');
        }
        return path;
    }

    void rename(QDomElement element) { element.setTagName(any(_words.tags)); }
    void drop(const QDomElement& element)
    {
        if (!isRoot(element)) element.parentNode().removeChild(element);
    }
    void move(const QDomElement& element)
    {
        QDomElement place = any(_elements);
        for (QDomNode above = place; !above.isNull(); above = above.parentNode())
            if (above == element) return;
        place.insertBefore(element, place.childNodes().at(int(below(4))));
    }
    void repeat(const QDomElement& element)
    {
        if (isRoot(element)) return;
        for (int times = below(8) == 0 ? 40 : 1; times > 0; --times)
            element.parentNode().insertAfter(element.cloneNode(), element);
    }
    /// Puts in what readers ask for there, with all below it at times.
    void grow(QDomElement element)
    {
        const lcdcheck::Element* const known = lcdcheck::grammarOf(_kind).at(pathOf(element));
        if (known == nullptr || known->body().children.empty()) return setAttribute(element);
        const auto& children = known->body().children;
        QDomDocument part;
        part.setContent(grown(*children[below(int(children.size()))], int(below(3))));
        element.appendChild(_document.importNode(part.documentElement(), true));
    }
    void wrap(const QDomElement& element)
    {
        if (isRoot(element)) return;
        QDomElement around = _document.createElement(any(_words.tags));
        element.parentNode().replaceChild(around, element);
        around.appendChild(element);
    }
    void addText(QDomElement element)
    {
        const QString& text = any(_words.values);
        switch (below(3)) {
        case 0:
            element.insertBefore(_document.createComment(text), element.firstChild());
            break;
        case 1:
            element.insertBefore(_document.createCDATASection(text), element.firstChild());
            break;
        default:
            element.insertBefore(_document.createTextNode(text), element.firstChild());
        }
    }
    QString attributeFor(const QDomElement& element)
    {
        const lcdcheck::Element* const known = lcdcheck::grammarOf(_kind).at(pathOf(element));
        if (known == nullptr || known->body().attributes.empty() || below(8) == 0) return any(_words.attributes);
        const auto& attributes = known->body().attributes;
        return attributes[below(int(attributes.size()))].name;
    }
    void setAttribute(QDomElement element)
    {
        if (!_words.attributes.isEmpty()) element.setAttribute(attributeFor(element), any(_words.values));
    }
    QDomAttr anyAttribute(const QDomElement& element)
    {
        const QDomNamedNodeMap all = element.attributes();
        return all.isEmpty() ? QDomAttr() : all.item(int(below(all.count()))).toAttr();
    }
    void dropAttribute(QDomElement element)
    {
        const QDomAttr attribute = anyAttribute(element);
        if (!attribute.isNull()) element.removeAttributeNode(attribute);
    }
    void swapValues(const QDomElement& one, const QDomElement& other)
    {
        QDomAttr first = anyAttribute(one);
        QDomAttr second = anyAttribute(other);
        if (first.isNull() || second.isNull()) return;
        const QString value = first.value();
        first.setValue(second.value());
        second.setValue(value);
    }

    FileKind _kind;
    const Dictionary& _words;
    QDomDocument _document;
    std::minstd_rand& _random;
    std::vector<QDomElement> _elements;
};

void Mutation::change()
{
    collect();
    const QDomElement element = any(_elements);
    switch (below(12)) {
    case 0:
        return rename(element);
    case 1:
        return drop(element);
    case 2:
        return move(element);
    case 3:
        return repeat(element);
    case 4:
    case 5:
        return grow(element);
    case 6:
        return wrap(element);
    case 7:
        return addText(element);
    case 8:
        return dropAttribute(element);
    case 9:
        return swapValues(element, any(_elements));
    default:
        return setAttribute(element);
    }
}

} // namespace

QByteArray mutateDocument(FileKind kind, const QByteArray& content, std::minstd_rand& random)
{
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QDomDocument document;
    LCD::MainConfigImpl::reading::ParseFailure failure;
    if (!LCD::MainConfigImpl::reading::parseXml(buffer, document, failure)) return {};
    Mutation mutation(kind, document, random);
    for (unsigned changes = 1 + unsigned(random()) % 4; changes > 0; --changes) mutation.change();
    return document.toByteArray(-1);
}

QByteArray anyName(std::minstd_rand& random)
{
    const auto& kinds = lcdcheck::xmlKinds();
    const std::size_t choice = random() % (kinds.size() + 2);
    if (choice < kinds.size()) return kinds[choice].name;
    return choice == kinds.size() ? FACTORY_SETTINGS : USER_SETTINGS;
}

} // namespace fuzz
