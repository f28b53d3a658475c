#include "strnatcmp.h"

#include <cstring>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>

namespace
{
int Sign(int order)
{
    return (order > 0) - (order < 0);
}

struct OrderCase
{
    const char* lower;
    const char* higher;
};

TEST(strnatcmp, SortsNumbersByValue)
{
    const OrderCase cases[] = {
        {"", "a"},
        {nullptr, "0"},
        {"a", "a0"},
        {"a9", "a10"},
        {"a9b", "a10a"},
        {"a2", "a10"},
        {"1.9", "1.10"},
        {"10", "a"},
        {" 9", "10"},
        {"a 10", "a10"},
        {"A2", "a1"},
        {"-1", "-2"},
        {"part-2", "part-10"},
        {"x9y9", "x9y10"},
        {"x09y9", "x9y10"},
        {"x99999999999999999998", "x99999999999999999999"},
        {"x99999999999999999999", "x100000000000000000000"},
        {"größe2", "größe10"},
        {"z", "é"},
        {"é", "日本"},
    };
    for (const OrderCase& order : cases)
    {
        EXPECT_LT(strnatcmp(order.lower, order.higher), 0) << order.higher;
        EXPECT_GT(strnatcmp(order.higher, order.lower), 0) << order.higher;
    }
}

TEST(strnatcmp, LeadingZerosBreakTies)
{
    EXPECT_LT(strnatcmp("a001", "a01"), 0);
    EXPECT_LT(strnatcmp("a01", "a1"), 0);
    EXPECT_LT(strnatcmp("a0", "a00"), 0);
    EXPECT_LT(strnatcmp("a1", "a01b"), 0);
    EXPECT_LT(strnatcmp("a01x2", "a1x10"), 0);
}

TEST(strnatcmp, EqualTextsAreEqual)
{
    EXPECT_EQ(strnatcmp("", nullptr), 0);
    EXPECT_EQ(strnatcmp(nullptr, nullptr), 0);
    EXPECT_EQ(strnatcmp("a10b", "a10b"), 0);
}

/// Texts so short and of so few characters that ties and near ties are frequent.
rc::Gen<std::string> Texts()
{
    return rc::gen::resize(3, rc::gen::container<std::string>(rc::gen::element('0', '1', 'a', '\xC3')));
}

RC_GTEST_PROP(strnatcmp, IsATotalOrder, ())
{
    const std::string a = *Texts();
    const std::string b = *Texts();
    const std::string c = *Texts();
    const int ab = Sign(strnatcmp(a.c_str(), b.c_str()));
    const int bc = Sign(strnatcmp(b.c_str(), c.c_str()));
    const int ac = Sign(strnatcmp(a.c_str(), c.c_str()));
    RC_ASSERT(ab == -Sign(strnatcmp(b.c_str(), a.c_str())));
    RC_ASSERT((ab == 0) == (a == b));
    if (ab <= 0 && bc <= 0)
        RC_ASSERT(ac <= 0);
    if (ab < 0 && bc <= 0)
        RC_ASSERT(ac < 0);
}

RC_GTEST_PROP(strnatcmp, IsStrcmpWithoutDigits, ())
{
    const auto letters = rc::gen::container<std::string>(rc::gen::inRange('A', 'z'));
    const std::string a = *letters;
    const std::string b = *letters;
    RC_ASSERT(Sign(strnatcmp(a.c_str(), b.c_str())) == Sign(std::strcmp(a.c_str(), b.c_str())));
}

RC_GTEST_PROP(strnatcmp, NumbersSortByValue, (unsigned a, unsigned b))
{
    const std::string left = "part" + std::to_string(a) + "x";
    const std::string right = "part" + std::to_string(b) + "x";
    RC_ASSERT(Sign(strnatcmp(left.c_str(), right.c_str())) == (a > b) - (a < b));
}
} // namespace
