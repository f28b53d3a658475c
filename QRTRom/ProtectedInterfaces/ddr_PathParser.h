#pragma once

#include "ddr_Shortcut.h"
#include "nex_Exceptions.h"

/// A path that can't be read as a shortcut. The text names the path, the column and what is expected there.
class OVR_EXPORT ddr_PathException : public nex_CmdException<atr_String, 2>
{
public:
    ddr_PathException(const atr_String& text, int column) noexcept;
    ddr_PathException(const ddr_PathException&) noexcept = default;
    ddr_PathException& operator=(const ddr_PathException&) noexcept = default;
    ~ddr_PathException() override;

    /// Place of the error in the path, counted from 1 in characters of one byte.
    int Column() const noexcept { return column; }

protected:
    [[noreturn]] void Raise() const override;

private:
    int column;
};

/// The shortcut that a path such as "amplitudes['ramp'].baselineCorrection" stands for; "model." may stand
/// before it. It takes everything that `PythonPath` of a shortcut gives, and `Path` too. Where a path can be
/// read in several ways, because a key holds quotes and brackets, the shortest key that leads to the end of
/// the path is meant; in double quotes a key is written in one way only. Where several steps have the same
/// word, the shortcut has that which does for most classes. Whether the objects are there is not asked.
/// Throws ddr_PathException.
OVR_EXPORT ddr_AnyShortcut ddr_ParsePath(const cow_String& path);

/// The same for a shortcut that must lead to a `T`.
template <class T>
ddr_Shortcut<T> ddr_ParsePathTo(const cow_String& path);

namespace ddr_detail
{

[[noreturn]] OVR_EXPORT void RaiseOtherTarget(const cow_String& path, unsigned expected, unsigned found);

} // namespace ddr_detail

template <class T>
ddr_Shortcut<T> ddr_ParsePathTo(const cow_String& path)
{
    const ddr_AnyShortcut shortcut = ddr_ParsePath(path);
    const ddr_Shortcut<T>* found = shortcut.As<T>();
    if (!found)
        ddr_detail::RaiseOtherTarget(path, T::TypeId(), shortcut.Class().targetId);
    return *found;
}
