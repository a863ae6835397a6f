// The one instance of a class, made on first use: double-checked, so that only creation and destruction lock.
#ifndef LCDMAINCONFIGIMPL_ONCE_H
#define LCDMAINCONFIGIMPL_ONCE_H

#include <atomic>
#include <mutex>

namespace LCD::MainConfigImpl {

template <class Object, class Make>
Object* createOnce(std::atomic<Object*>& pointer, std::mutex& mutex, const Make& make)
{
    if (Object* const made = pointer.load(std::memory_order_acquire)) return made;
    const std::lock_guard lock(mutex);
    if (pointer.load(std::memory_order_relaxed) == nullptr) pointer.store(make(), std::memory_order_release);
    return pointer.load(std::memory_order_relaxed);
}

template <class Object> void destroyOnce(std::atomic<Object*>& pointer, std::mutex& mutex)
{
    const std::lock_guard lock(mutex);
    delete pointer.exchange(nullptr);
}

} // namespace LCD::MainConfigImpl

#endif
