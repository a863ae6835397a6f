// Between a source and the DOM: the recovered tree as a document, and a parsed document laid beside its source.
#include "source.h"

#include "reading/xmlparse.h"

#include <algorithm>

namespace lcdcheck {

namespace reading = LCD::MainConfigImpl::reading;

QDomDocument Source::toDocument(std::vector<QDomElement>* placed) const
{
    QDomDocument document;
    std::vector<QDomElement> built(_elements.size());
    std::vector<int> depths(_elements.size());
    qint64 levels = 0;
    auto text = _texts.begin();
    const auto textsBefore = [&](int index) {
        for (; text != _texts.end() && text->next <= index; ++text) {
            QDomElement& parent = built[size_t(text->parent)];
            levels += depths[size_t(text->parent)] + 1;
            if (parent.isNull() || levels > reading::MOST_LEVELS) continue;
            if (text->cdata)
                parent.appendChild(document.createCDATASection(value(*text)));
            else
                parent.appendChild(document.createTextNode(value(*text)));
        }
    };
    for (size_t i = 0; i < _elements.size(); ++i) {
        const Element& element = _elements[i];
        textsBefore(int(i));
        const bool isRoot = i == 0;
        const QDomElement parent = isRoot || element.parent < 0 ? QDomElement() : built[size_t(element.parent)];
        depths[i] = element.parent < 0 ? 1 : depths[size_t(element.parent)] + 1;
        if (depths[i] > reading::DEEPEST_NESTING || (parent.isNull() && !isRoot)) continue;
        const auto written =
            attributes(element).first(size_t(std::min(element.attributeCount, reading::MOST_ATTRIBUTES)));
        levels += qint64(depths[i]) * (1 + qint64(written.size()));
        if (levels > reading::MOST_LEVELS) continue;
        built[i] = document.createElementNS(QString(), tag(element));
        for (const Attribute& attribute : written) {
            const QString name = slice(attribute.name).toString();
            if (name != QLatin1String("xmlns") && !name.startsWith(QLatin1String("xmlns:")))
                built[i].setAttributeNS(QString(), name, value(attribute));
        }
        // The document itself is null until it has created something.
        QDomNode(isRoot ? QDomNode(document) : QDomNode(parent)).appendChild(built[i]);
    }
    textsBefore(int(_elements.size()));
    if (placed != nullptr) *placed = std::move(built);
    return document;
}

std::vector<QDomElement> Source::match(const QDomDocument& document) const
{
    std::vector<QDomElement> found;
    found.reserve(_elements.size());
    const auto elementFrom = [](QDomNode node) {
        while (!node.isNull() && !node.isElement()) node = node.nextSibling();
        return node.toElement();
    };
    QDomElement element = document.documentElement();
    int parent = -1;
    while (!element.isNull()) {
        const size_t index = found.size();
        if (index == _elements.size() || _elements[index].parent != parent ||
            element.tagName() != localName(slice(_elements[index].name)))
            return {};
        found.push_back(element);
        QDomElement next = elementFrom(element.firstChild());
        if (!next.isNull()) {
            parent = int(index);
        } else {
            next = elementFrom(element.nextSibling());
            while (next.isNull() && parent >= 0) {
                next = elementFrom(found[size_t(parent)].nextSibling());
                parent = _elements[size_t(parent)].parent;
            }
        }
        element = next;
    }
    return found.size() == _elements.size() ? found : std::vector<QDomElement>();
}

} // namespace lcdcheck
