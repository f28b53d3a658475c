#pragma once

#include "nex_Exceptions.h"

#include <gtest/gtest.h>

#include <string>

/// The message with which `raise` throws, or "nothing thrown"; the recorded place must be in `file`.
template <class Raise>
std::string MessageOf(const char* file, Raise raise)
{
    try
    {
        raise();
    }
    catch (const nex_PrimException<atr_String, 1>& exception)
    {
        EXPECT_STREQ(file, exception.File());
        EXPECT_GT(exception.Line(), 0);
        return exception.what();
    }
    return "nothing thrown";
}
