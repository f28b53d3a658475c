#pragma once

#include "atr_NaturalOrder.h"
#include "atr_StringBase.h"
#include "cow_COW.h"
#include "cow_KeyOrder.h"
#include "strnatcmp.h"

/// The shared text of names, paths and stored values.
class OVR_EXPORT cow_String : public atr_StringOf<cow_String>
{
public:
    using atr_StringOf<cow_String>::atr_StringOf;
    using atr_StringOf<cow_String>::operator=;

    constexpr cow_String() noexcept = default;
};

template <>
inline constexpr bool cow_IsRelocatable<cow_String> = true;

/// Keys sort by strnatcmp while atr_getNaturalOrder() is true, else by strcmp; the flag is asked each time.
template <>
class cow_KeyOrder<cow_String>
{
public:
    static int Compare(const cow_String& a, const cow_String& b)
    {
        if (atr_getNaturalOrder())
            return strnatcmp(a.CString(), b.CString());
        return std::strcmp(a.CString(), b.CString());
    }

    static void Fetch(const cow_String& key) { __builtin_prefetch(key.CString()); }
};
