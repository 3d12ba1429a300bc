// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <gio/gio.h>

#include <memory>

namespace devices {

struct GlibDeleter
{
    void operator()(char* text) const { g_free(text); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GDateTime* time) const { g_date_time_unref(time); }
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
    template <typename T>
    void operator()(T* object) const
    {
        g_object_unref(object);
    }
};

/// Owns a GLib object (one reference), text or error.
template <typename T>
using GPtr = std::unique_ptr<T, GlibDeleter>;

/// Takes a reference of its own.
template <typename T>
GPtr<T> Share(T* object)
{
    return GPtr<T>(object ? static_cast<T*>(g_object_ref(object)) : nullptr);
}

/// Receives the error of a GLib call: `call(…, ErrorOut(error))`.
class ErrorOut
{
public:
    explicit ErrorOut(GPtr<GError>& error) : m_target(error) { m_target.reset(); }
    ErrorOut(const ErrorOut&) = delete;
    ErrorOut& operator=(const ErrorOut&) = delete;
    ~ErrorOut() { m_target.reset(m_error); }
    operator GError**() { return &m_error; }

private:
    GPtr<GError>& m_target;
    GError* m_error = nullptr;
};

} // namespace devices
