#include "grow.h"

#include "grower.h"

#include <QSet>

namespace lcdcheck {

namespace {

/// What every attribute says in one reading; a null text leaves them all out. Some readers look at one attribute before
/// they ask for another, so that each is asked with the few small numbers that mean something to them.
const QStringList& trials()
{
    static const QStringList texts{QString(), "0", "1", "2", "3"};
    return texts;
}

/// An attribute that is asked for in one trial alone depends on a number; it is that of the attribute asked before it.
void findConditions(Element& element, const Grower& grower)
{
    for (std::size_t index = 1; index < element.attributes.size(); ++index) {
        Attribute& attribute = element.attributes[index];
        const QStringList heard = grower.trialsOf(element, attribute.name);
        if (heard.size() == 1) attribute.condition = Condition{element.attributes[index - 1].name, heard.first()};
    }
    for (const auto& child : element.children) findConditions(*child, grower);
}

/// Takes out what only stood in for something: elements of any tag that turned out to be told apart by their tags, and
/// what was read of an element that repeats another.
void prune(Element& element)
{
    const auto isGone = [](const std::unique_ptr<Element>& child) { return child->tag.isEmpty(); };
    element.children.erase(std::remove_if(element.children.begin(), element.children.end(), isGone),
                           element.children.end());
    for (const auto& child : element.children) {
        if (child->sameAs != nullptr) {
            child->attributes.clear();
            child->children.clear();
        }
        prune(*child);
    }
}

} // namespace

Grammar grow(FileKind kind)
{
    Grower grower(kind);
    int known = -1;
    while (known != grower.known()) {
        known = grower.known();
        for (const QString& trial : trials()) {
            grower.prepare(trial);
            drive(kind, grower);
        }
    }
    std::unique_ptr<Element> root = grower.take();
    findConditions(*root, grower);
    prune(*root);
    return {kind, std::move(root)};
}

} // namespace lcdcheck
