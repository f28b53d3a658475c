#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_assert.h"

// Rules that many options share.

/// The rules of an option, if it is present.
template <class T>
void kmaC_AssertOption(const kmaC_Option<T>& option)
{
    if (!option.IsNull())
        option->AssertValid();
}

template <unsigned ClassId>
void kmaC_AssertOption(const cls_Pending<ClassId>&)
{}

/// The rules of each option that is present, in this order.
template <class... Options>
void kmaC_AssertOptions(const Options&... options)
{
    (kmaC_AssertOption(options), ...);
}

/// A count of field variables that is not negative.
inline void kmaC_AssertDependencies(int dependencies)
{
    kmaC_Assert(dependencies >= 0, 0);
}

/// The count of field variables, then the table that depends on them.
template <class T>
void kmaC_AssertDependentTable(const T& option)
{
    kmaC_AssertDependencies(option.dependencies);
    option.table.AssertValid();
}
