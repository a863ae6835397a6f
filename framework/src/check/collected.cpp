#include "collected.h"

#include <algorithm>

namespace lcdcheck {
namespace {

Value valueOf(const HeardFile& file, int element, const HeardAttribute& asked)
{
    const Source& source = file.source;
    const Source::Element& written = source.elements()[std::size_t(element)];
    Value value{
        0, element, asked.readDefault, asked.present, asked.good && asked.stranger.isEmpty(), source.place(written)};
    if (asked.name.isEmpty()) {
        if (written.firstText >= 0) value.text = source.value(source.texts()[std::size_t(written.firstText)]);
        return value;
    }
    if (const Source::Attribute* const attribute = source.attribute(written, asked.name)) {
        value.text = source.value(*attribute);
        value.place = source.place(attribute->name);
        value.good = value.good && !file.isFaulty(*attribute);
    } else {
        // An absent number has a read default that may well be no number.
        value.good = asked.stranger.isEmpty();
    }
    return value;
}

} // namespace

QString CollectedFile::pathOf(int element) const
{
    QString tagPath;
    for (int at = element; at >= 0; at = parents[std::size_t(at)])
        tagPath.prepend(tagPath.isEmpty() ? tags[std::size_t(at)] : tags[std::size_t(at)] + '/');
    return tagPath;
}

bool CollectedFile::isWithin(int element, int ancestor) const
{
    // A parent has a smaller number than what stands below it.
    while (element > ancestor) element = parents[std::size_t(element)];
    return element == ancestor;
}

void Collected::add(const HeardFile& file)
{
    CollectedFile kept{file.path, {}, {}, {}, !file.isCut(0)};
    const int number = int(_files.size());
    for (std::size_t element = 0; element < file.elements.size(); ++element) {
        const Source::Element& written = file.source.elements()[element];
        kept.parents.push_back(written.parent);
        kept.tags.push_back(file.tagOf(int(element)));
        kept.places.push_back(file.source.place(written));
        for (const HeardAttribute& asked : file.elements[element].attributes) {
            for (const Field& field : {asked.field, asked.outer}) {
                if (!_wanted.contains(field)) continue;
                Value value = valueOf(file, int(element), asked);
                value.file = number;
                _values[field].push_back(std::move(value));
            }
        }
    }
    _files.push_back(std::move(kept));
}

const std::vector<Value>& Collected::all(const Field& field) const
{
    static const std::vector<Value> none;
    const auto found = _values.find(field);
    return found == _values.end() ? none : found->second;
}

const Value* Collected::above(const Value& value, const Field& field) const
{
    const CollectedFile& file = fileOf(value);
    const std::vector<Value>& values = all(field);
    for (int element = value.element; element >= 0; element = file.parents[std::size_t(element)]) {
        const auto hit = std::lower_bound(values.begin(), values.end(), std::pair{value.file, element},
                                          [](const Value& entry, const std::pair<int, int>& wanted) {
                                              return std::pair{entry.file, entry.element} < wanted;
                                          });
        if (hit != values.end() && hit->file == value.file && hit->element == element) return &*hit;
    }
    return nullptr;
}

std::vector<const Value*> Collected::within(int file, int element, const Field& field) const
{
    const std::vector<Value>& values = all(field);
    auto hit = std::lower_bound(values.begin(), values.end(), std::pair{file, element},
                                [](const Value& entry, const std::pair<int, int>& wanted) {
                                    return std::pair{entry.file, entry.element} < wanted;
                                });
    std::vector<const Value*> found;
    for (; hit != values.end() && hit->file == file && _files[std::size_t(file)].isWithin(hit->element, element); ++hit)
        found.push_back(&*hit);
    return found;
}

} // namespace lcdcheck
