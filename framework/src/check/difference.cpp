#include "difference.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace lcdcheck {

namespace {

using Change = Difference::Change;
using Group = std::vector<const TakenElement*>;

/// By these the library finds an element, or its author does; the first that tells all of a list apart counts.
const QStringList& keys()
{
    static const QStringList all{"ModelId",  "ModuleId", "Key",         "Index",          "index",
                                 "Position", "Code",     "Id",          "lcdKey",         "Type",
                                 "Value",    "ScreenId", "ConnectorId", "RectangleIndex", "Order"};
    return all;
}

bool tellsApart(const QString& key, const Group& group)
{
    QSet<QString> seen;
    return std::all_of(group.begin(), group.end(), [&](const TakenElement* element) {
        const QString value = element->value(key);
        if (value.isNull() || seen.contains(value)) return false;
        seen.insert(value);
        return true;
    });
}

/// How the elements of one tag below two matching elements are called: by a key, or counted from 1.
class Names {
public:
    Names(const Group& before, const Group& after) : _alone(before.size() <= 1 && after.size() <= 1)
    {
        for (const QString& key : keys())
            if (_key.isEmpty() && tellsApart(key, before) && tellsApart(key, after)) _key = key;
    }

    [[nodiscard]] QString of(const Group& group, std::size_t index) const
    {
        const QString tag = group[index]->tag;
        if (_alone) return tag;
        if (_key.isEmpty()) return QString("%1[%2]").arg(tag).arg(index + 1);
        return QString("%1[%2=%3]").arg(tag, _key, group[index]->value(_key));
    }

private:
    bool _alone;
    QString _key;
};

class Comparison {
public:
    explicit Comparison(QString file) : _file(std::move(file)) {}

    void compare(const TakenElement& before, const TakenElement& after, const QString& path)
    {
        for (const TakenAttribute& attribute : after.attributes) {
            const QString old = before.value(attribute.name);
            if (old != attribute.value) tell(Change::Changed, path, attribute.name, old, attribute.value);
        }
        for (const TakenAttribute& attribute : before.attributes)
            if (after.value(attribute.name).isNull() && !attribute.value.isEmpty())
                tell(Change::Changed, path, attribute.name, attribute.value, {});
        for (const QString& tag : tagsOf(before, after)) compareGroups(groupOf(before, tag), groupOf(after, tag), path);
    }

    std::vector<Difference> found;

private:
    static QStringList tagsOf(const TakenElement& before, const TakenElement& after)
    {
        QStringList tags;
        for (const TakenElement* const parent : {&before, &after})
            for (const TakenElement& child : parent->children) tags.append(child.tag);
        tags.removeDuplicates();
        return tags;
    }

    static Group groupOf(const TakenElement& parent, const QString& tag)
    {
        Group group;
        for (const TakenElement& child : parent.children)
            if (child.tag == tag) group.push_back(&child);
        return group;
    }

    void compareGroups(const Group& before, const Group& after, const QString& path)
    {
        const Names names(before, after);
        QHash<QString, const TakenElement*> left;
        for (std::size_t index = 0; index < after.size(); ++index) left.insert(names.of(after, index), after[index]);
        for (std::size_t index = 0; index < before.size(); ++index) {
            const QString name = names.of(before, index);
            if (const TakenElement* const match = left.take(name))
                compare(*before[index], *match, path + '/' + name);
            else
                tell(Change::Removed, path + '/' + name);
        }
        for (std::size_t index = 0; index < after.size(); ++index) {
            const QString name = names.of(after, index);
            if (left.contains(name)) tell(Change::Added, path + '/' + name);
        }
    }

    void tell(Change change, const QString& path, const QString& attribute = {}, const QString& before = {},
              const QString& after = {})
    {
        const bool isText = change == Change::Changed && attribute.isEmpty();
        found.push_back({change, _file, path, isText ? QStringLiteral("(text)") : attribute, before, after});
    }

    QString _file;
};

const TakenFile* fileAt(const QString& path, const std::vector<TakenFile>& files)
{
    const auto found =
        std::find_if(files.begin(), files.end(), [&](const TakenFile& candidate) { return candidate.path == path; });
    return found != files.end() ? &*found : nullptr;
}

/// The file of the other root that is this one: that of the same path, or else one of the same name that has moved
/// inside its catalogue.
const TakenFile* counterpart(const TakenFile& file, const std::vector<TakenFile>& own,
                             const std::vector<TakenFile>& others)
{
    if (const TakenFile* const same = fileAt(file.path, others)) return same;
    const auto isMoved = [&](const TakenFile& candidate) {
        return candidate.path.section('/', 0, 0) == file.path.section('/', 0, 0) &&
               QFileInfo(candidate.path).fileName() == QFileInfo(file.path).fileName() &&
               fileAt(candidate.path, own) == nullptr;
    };
    const auto moved = std::find_if(others.begin(), others.end(), isMoved);
    return moved != others.end() ? &*moved : nullptr;
}

} // namespace

std::vector<Difference> differences(const std::vector<TakenFile>& before, const std::vector<TakenFile>& after)
{
    std::vector<Difference> all;
    for (const TakenFile& file : before) {
        const TakenFile* const other = counterpart(file, before, after);
        if (other == nullptr) {
            all.push_back({Change::Removed, file.path, {}, {}, {}, {}});
            continue;
        }
        Comparison comparison(other->path);
        comparison.compare(file.root, other->root, other->root.tag);
        all.insert(all.end(), comparison.found.begin(), comparison.found.end());
    }
    for (const TakenFile& file : after)
        if (counterpart(file, after, before) == nullptr) all.push_back({Change::Added, file.path, {}, {}, {}, {}});
    return all;
}

} // namespace lcdcheck
