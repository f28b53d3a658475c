#pragma once

#include "nex_Exceptions.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

/// What an object is refused with when it is valid.
inline const std::string passes = "passes";

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The message with which `object` is refused, or `passes`.
template <class T>
std::string Verdict(const T& object)
{
    try
    {
        object.AssertValid();
    }
    catch (const nex_PrimException<atr_String, 1>& exception)
    {
        return exception.what();
    }
    return passes;
}

/// One line of a table of rules: what is done to a valid object, and what then comes of it.
template <class T>
struct RuleRow
{
    const char* input;
    std::function<void(T&)> change;
    std::string verdict;
};

/// Runs every line on a fresh copy of `valid`, which must pass as it is.
template <class T>
void CheckRules(const T& valid, const std::vector<RuleRow<T>>& rows)
{
    EXPECT_EQ(passes, Verdict(valid)) << "the object that the rows start from";
    for (const RuleRow<T>& row : rows)
    {
        T object(valid);
        row.change(object);
        EXPECT_EQ(row.verdict, Verdict(object)) << row.input;
    }
}
