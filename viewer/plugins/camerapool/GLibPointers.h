// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <arv.h>

#include <memory>

#include <QString>

namespace CameraPool {

/// The references of GLib as owners of C++. A `GObjectPtr` owns one reference to its object and
/// gives it back with `g_object_unref`; null owns nothing.
struct GObjectUnref
{
    void operator()(gpointer object) const
    {
        g_object_unref(object);
    }
};

template <class Type>
using GObjectPtr = std::unique_ptr<Type, GObjectUnref>;

struct GFree
{
    void operator()(gpointer memory) const
    {
        g_free(memory);
    }
};

/// Memory that GLib allocated.
template <class Type>
using GMemoryPtr = std::unique_ptr<Type, GFree>;

/// The place that a GLib function writes its error to, as in `f(..., error.out())`. One call each:
/// `out` forgets an earlier error.
class CGError
{
public:
    CGError() = default;
    ~CGError()
    {
        g_clear_error(&m_error);
    }

    Q_DISABLE_COPY_MOVE(CGError)

    GError **out()
    {
        g_clear_error(&m_error);
        return &m_error;
    }

    explicit operator bool() const
    {
        return m_error != nullptr;
    }

    bool is(GQuark domain, int code) const
    {
        return g_error_matches(m_error, domain, code);
    }

    /// GLib's text, empty without an error.
    QString message() const
    {
        return m_error ? QString::fromUtf8(m_error->message) : QString();
    }

private:
    GError *m_error = nullptr;
};

} // namespace CameraPool
