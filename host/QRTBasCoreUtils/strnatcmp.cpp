#include "strnatcmp.h"

#include <cstddef>
#include <cstring>

namespace
{
bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Moves `text` behind its leading digits and returns the number they form, without leading zeros.
struct DigitRun
{
    explicit DigitRun(const char*& text)
    {
        while (*text == '0')
            ++text;
        begin = text;
        while (IsDigit(*text))
            ++text;
        length = static_cast<std::size_t>(text - begin);
    }

    const char* begin;
    std::size_t length;
};

/// Compares the numbers at which both texts stand and moves behind them.
int CompareNumbers(const char*& a, const char*& b)
{
    const DigitRun left(a);
    const DigitRun right(b);
    if (left.length != right.length)
        return left.length < right.length ? -1 : 1;
    return std::memcmp(left.begin, right.begin, left.length);
}
} // namespace

int strnatcmp(const char* a, const char* b)
{
    const char* left = a == nullptr ? "" : a;
    const char* right = b == nullptr ? "" : b;
    const char* leftText = left;
    const char* rightText = right;
    for (;;)
    {
        if (IsDigit(*left) && IsDigit(*right))
        {
            if (const int order = CompareNumbers(left, right))
                return order;
            continue;
        }
        if (*left != *right)
            return static_cast<unsigned char>(*left) < static_cast<unsigned char>(*right) ? -1 : 1;
        if (*left == '\0')
            return std::strcmp(leftText, rightText);
        ++left;
        ++right;
    }
}
