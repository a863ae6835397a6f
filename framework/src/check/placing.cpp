#include "placing.h"

#include <algorithm>

namespace lcdcheck {

namespace {

std::size_t addressOf(const reading::Location& location) { return reinterpret_cast<std::size_t>(location.address); }

bool isSame(const reading::Location& one, const reading::Location& other)
{
    return one.address == other.address && *one.type == *other.type;
}

/// Whether the field is a part of the record, and not all of it.
bool holds(const reading::Location& record, const reading::Location& field)
{
    return addressOf(field) >= addressOf(record) && addressOf(field) + field.size <= addressOf(record) + record.size &&
           record.size > field.size;
}

} // namespace

void Placing::enter(const reading::Location& record)
{
    reading::Location place;
    for (const Span& aside : _asides)
        if (isSame(aside.record, record)) place = aside.place;
    _begun.push_back(_spans.size());
    _spans.push_back({record, place});
}

void Placing::leave(const reading::Location& record)
{
    const std::size_t begin = _begun.back();
    _begun.pop_back();
    // What was read on the way is done. The record itself may go on to be filled by the reader that holds it, which is
    // done when the one around it is; but what was built aside is moved away at once.
    _spans.resize(begin + 1);
    const bool goesOn = std::any_of(_begun.begin(), _begun.end(),
                                    [&](std::size_t index) { return isSame(_spans[index].record, record); });
    if (goesOn || _spans.back().place.address == nullptr) return;
    _spans.pop_back();
    _asides.erase(std::remove_if(_asides.begin(), _asides.end(),
                                 [&record](const Span& aside) { return isSame(aside.record, record); }),
                  _asides.end());
}

void Placing::standsFor(const reading::Location& aside, const reading::Location& place)
{
    // An aside of an earlier reading may have stood at the same address.
    for (Span& known : _asides)
        if (isSame(known.record, aside)) {
            known.place = place;
            return;
        }
    _asides.push_back({aside, place});
}

void Placing::clear()
{
    _spans.clear();
    _begun.clear();
    _asides.clear();
}

FieldPlace Placing::placeBefore(std::size_t end, const reading::Location& field) const
{
    for (std::size_t index = end; index-- > 0;) {
        const reading::Location& record = _spans[index].record;
        if (holds(record, field)) return {record.type, addressOf(field) - addressOf(record), field.type};
    }
    return {};
}

FieldPlace Placing::memberOf(const reading::Location& record) const
{
    for (std::size_t index = _spans.size(); index-- > 0;) {
        const Span& span = _spans[index];
        if (!isSame(span.record, record)) continue;
        FieldPlace member = placeBefore(index, span.place.address != nullptr ? span.place : record);
        if (member.record != nullptr) member.type = record.type;
        return member;
    }
    return {};
}

FieldPlace Placing::fieldOf(const reading::Location& field, const reading::Location& record) const
{
    if (field.address == nullptr) return {};
    if (!isSame(field, record)) return {record.type, addressOf(field) - addressOf(record), field.type};
    const FieldPlace member = memberOf(field);
    return member.record != nullptr ? member : placeBefore(_spans.size(), field);
}

} // namespace lcdcheck
