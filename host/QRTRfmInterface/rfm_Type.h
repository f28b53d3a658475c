#pragma once

/// Stored codes of the kinds of numbers that an array holds.
enum rfm_Type : int
{
    rfm_TypeBool = 1,  ///< one byte each, 0 or 1
    rfm_TypeInt = 2,   ///< four bytes each, two's complement, lowest byte first
    rfm_TypeDouble = 4 ///< eight bytes each, IEEE 754, lowest byte first
};

/// Bytes of one number of this kind; 0 for a code that is none.
constexpr int rfm_SizeOf(long long type)
{
    switch (type)
    {
    case rfm_TypeBool:
        return 1;
    case rfm_TypeInt:
        return 4;
    case rfm_TypeDouble:
        return 8;
    default:
        return 0;
    }
}
