#pragma once

#include <QString>

#include <arv.h>
#include <memory>

namespace Viewer::Camera::GenICam {

struct CObjectDeleter
{
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// Owns one reference to a GObject.
template <typename T>
using CObjectPointer = std::unique_ptr<T, CObjectDeleter>;

/// Takes the error of a call, for one call: `f(..., error.receive())`.
class CErrorGuard
{
public:
    CErrorGuard() = default;
    ~CErrorGuard() { g_clear_error(&m_error); }
    CErrorGuard(const CErrorGuard &) = delete;
    CErrorGuard &operator=(const CErrorGuard &) = delete;

    [[nodiscard]] GError **receive() { return &m_error; }
    explicit operator bool() const { return m_error != nullptr; }
    [[nodiscard]] bool is(ArvDeviceError code) const
    {
        return m_error && g_error_matches(m_error, ARV_DEVICE_ERROR, code);
    }
    [[nodiscard]] QString getMessage() const
    {
        return m_error ? QString::fromUtf8(m_error->message) : QString();
    }

private:
    GError *m_error = nullptr;
};

} // namespace Viewer::Camera::GenICam
