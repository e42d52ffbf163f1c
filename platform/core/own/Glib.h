#pragma once

#include <glib-object.h>

#include <utility>

/// What the rooms on GLib share. This room itself doesn't link it.
namespace Glib {

/// Owns one reference to a GObject, or none.
template <typename T>
class Ref
{
public:
    Ref() = default;
    /// Takes over the caller's reference.
    explicit Ref(T *object)
        : m_object(object)
    {
    }
    Ref(const Ref &other)
        : m_object(other.m_object)
    {
        if (m_object)
            g_object_ref(m_object);
    }
    Ref(Ref &&other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    Ref &operator=(Ref other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~Ref()
    {
        if (m_object)
            g_object_unref(m_object);
    }

    T *get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    bool operator==(const Ref &) const = default;

private:
    T *m_object = nullptr;
};

/// A main context of the calling thread's own, as long as it lives: what asynchronous calls and
/// objects that are made meanwhile have to say comes there, and no other event loop is served.
class ThreadContext
{
public:
    ThreadContext() { g_main_context_push_thread_default(m_context); }
    ~ThreadContext()
    {
        // What was left to be called here frees subscriptions to the bus's signals.
        while (g_main_context_iteration(m_context, FALSE)) {
        }
        g_main_context_pop_thread_default(m_context);
        g_main_context_unref(m_context);
    }
    ThreadContext(const ThreadContext &) = delete;
    ThreadContext &operator=(const ThreadContext &) = delete;

    void serveUntil(const bool &done)
    {
        while (!done)
            g_main_context_iteration(m_context, TRUE);
    }

private:
    GMainContext *const m_context = g_main_context_new();
};

} // namespace Glib
