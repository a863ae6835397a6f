// Linear searches, the first match wins. Catalogues are small, and nothing is cached.
#ifndef LCDMAINCONFIGIMPL_SEARCH_H
#define LCDMAINCONFIGIMPL_SEARCH_H

#include <algorithm>
#include <functional>
#include <memory>

namespace LCD::MainConfigImpl {

/// The first entry whose `key`, a member or a function of the entry, equals `wanted`; null when there is none.
template <class List, class Key, class Wanted>
const typename List::value_type* firstWhere(const List& list, const Key& key, const Wanted& wanted)
{
    const auto hit =
        std::find_if(list.begin(), list.end(), [&](const auto& entry) { return std::invoke(key, entry) == wanted; });
    return hit == list.end() ? nullptr : &*hit;
}

/// A copy in a new object that the caller owns alone.
template <class Record> std::shared_ptr<Record> newCopy(const Record& record)
{
    return std::make_shared<Record>(record);
}

/// The same of what a search has found; null when it found nothing.
template <class Record> std::shared_ptr<Record> copyOrNull(const Record* record)
{
    return record != nullptr ? newCopy(*record) : nullptr;
}

} // namespace LCD::MainConfigImpl

#endif
