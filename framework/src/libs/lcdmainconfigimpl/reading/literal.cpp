#include "literal.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>

namespace LCD::MainConfigImpl::reading {
namespace {

struct Made {
    const char* text;
    QString string;
};

// Every string that was made stands here, at the place that the address of its text gives or behind it. There are four
// times as many places as the library has literals. Strings are only ever added, so that a look-up takes no lock; and
// nothing belongs to a thread, which would keep the library from being unloaded for as long as the thread lives.
constexpr unsigned BITS = 13;
constinit std::array<std::atomic<const Made*>, std::size_t{1} << BITS> places{};

/// The literal's place, or the free one where it belongs.
std::atomic<const Made*>& placeOf(const char* text)
{
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U;
    for (std::size_t at = (reinterpret_cast<std::uintptr_t>(text) * spread) >> (64U - BITS);; ++at) {
        std::atomic<const Made*>& place = places[at % places.size()];
        const Made* const made = place.load(std::memory_order_acquire);
        if (made == nullptr || made->text == text) return place;
    }
}

const Made& make(const char* text)
{
    static std::mutex lock;
    static std::deque<Made> strings;
    const std::lock_guard guard(lock);
    std::atomic<const Made*>& place = placeOf(text);
    if (place.load(std::memory_order_relaxed) == nullptr) {
        strings.push_back({text, QString::fromLatin1(text)});
        place.store(&strings.back(), std::memory_order_release);
    }
    return *place.load(std::memory_order_relaxed);
}

} // namespace

const QString& Literal::string() const
{
    const Made* const made = placeOf(_text).load(std::memory_order_acquire);
    return made != nullptr ? made->string : make(_text).string;
}

} // namespace LCD::MainConfigImpl::reading
