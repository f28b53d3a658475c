#include "cow_String.h"

#include "atr_String.h"
#include "mem_Allocation.h"

#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <string>
#include <type_traits>

namespace
{
static_assert(sizeof(cow_String) == 2 * sizeof(void*));
static_assert(!std::is_convertible_v<cow_String, atr_String> &&
              !std::is_convertible_v<atr_String, cow_String>);
static_assert(std::is_nothrow_copy_constructible_v<cow_String> &&
              std::is_nothrow_move_constructible_v<cow_String>);
static_assert(cow_IsRelocatable<cow_String> && cow_IsRelocatable<atr_String>);

TEST(cow_String, EmptyTextsHoldNothing)
{
    const char* none = nullptr;
    const std::size_t blocks = mem_BlocksInUse();
    const cow_String texts[] = {
        cow_String(),        cow_String(""),       cow_String(none),         cow_String("abc", 0),
        cow_String(none, 3), cow_String("\0b", 2), cow_String("x").Substr(1)};
    EXPECT_EQ(mem_BlocksInUse(), blocks);
    for (const cow_String& text : texts)
    {
        EXPECT_STREQ(text.CString(), "");
        EXPECT_EQ(text.Length(), 0);
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(text.ShareCount(), 0);
        EXPECT_EQ(text, cow_String());
        EXPECT_EQ(text, none);
    }
}

TEST(cow_String, TakesTextAndLength)
{
    EXPECT_STREQ(cow_String("STEP").CString(), "STEP");
    EXPECT_STREQ(cow_String("STEP", 2).CString(), "ST");
    EXPECT_STREQ(cow_String("STEP", 99).CString(), "STEP");
    EXPECT_STREQ(cow_String("a\0b", 3).CString(), "a");
    EXPECT_EQ(cow_String("Größe").Length(), 7);
    EXPECT_STREQ(cow_String(std::string(100000, 'x').c_str()).CString(), std::string(100000, 'x').c_str());
}

struct NumberCase
{
    cow_String text;
    const char* expected;
};

TEST(cow_String, TakesNumbers)
{
    const NumberCase cases[] = {
        {cow_String(0), "0"},
        {cow_String(-17), "-17"},
        {cow_String(INT_MIN), "-2147483648"},
        {cow_String(INT_MAX), "2147483647"},
        {cow_String(0.0), "0"},
        {cow_String(-0.0), "-0"},
        {cow_String(0.1), "0.1"},
        {cow_String(1e300), "1e+300"},
        {cow_String(std::numeric_limits<double>::max()), "1.7976931348623157e+308"},
        {cow_String(std::numeric_limits<double>::infinity()), "inf"},
        {cow_String(-std::numeric_limits<double>::infinity()), "-inf"},
        {cow_String(std::numeric_limits<double>::quiet_NaN()), "nan"},
        {cow_String(-std::numeric_limits<double>::quiet_NaN()), "nan"},
    };
    for (const NumberCase& number : cases)
        EXPECT_STREQ(number.text.CString(), number.expected);
}

RC_GTEST_PROP(cow_String, DoublesReadBack, (double number))
{
    RC_ASSERT(std::strtod(cow_String(number).CString(), nullptr) == number);
}

TEST(cow_String, CopiesShare)
{
    cow_String a("ramp");
    EXPECT_EQ(a.ShareCount(), 1);
    cow_String b(a);
    cow_String c;
    c = b;
    EXPECT_EQ(a.ShareCount(), 3);
    EXPECT_EQ(a.CString(), c.CString());
    b.Delete();
    EXPECT_TRUE(b.IsEmpty());
    EXPECT_EQ(a.ShareCount(), 2);
    b.Delete();
    EXPECT_EQ(a.ShareCount(), 2);
    cow_String& alias = a;
    a = alias;
    EXPECT_EQ(a, "ramp");
    EXPECT_EQ(a.ShareCount(), 2);
}

TEST(cow_String, TheLastShareFreesTheText)
{
    const std::size_t blocks = mem_BlocksInUse();
    {
        cow_String a("ramp");
        const cow_String b(a);
        a.append("s");
        EXPECT_EQ(mem_BlocksInUse(), blocks + 2);
        a.Delete();
        EXPECT_EQ(mem_BlocksInUse(), blocks + 1);
    }
    EXPECT_EQ(mem_BlocksInUse(), blocks);
}

TEST(cow_String, MovingLeavesTheSourceEmpty)
{
    cow_String a("ramp");
    cow_String b(std::move(a));
    EXPECT_EQ(a, "");
    EXPECT_EQ(b.ShareCount(), 1);
    a = std::move(b);
    EXPECT_EQ(a, "ramp");
    EXPECT_EQ(b, "");
}

TEST(cow_String, TheTwoClassesShareTexts)
{
    const cow_String name("ramp");
    const atr_String label(name);
    EXPECT_EQ(label.CString(), name.CString());
    EXPECT_EQ(cow_String(label).ShareCount(), 3);
    EXPECT_TRUE(name == label);
}

TEST(cow_String, AssignsText)
{
    cow_String text("first");
    const cow_String copy(text);
    text = "second";
    EXPECT_EQ(text, "second");
    EXPECT_EQ(copy, "first");
    text = text.CString() + 3;
    EXPECT_EQ(text, "ond");
    text = static_cast<const char*>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(cow_String, Appends)
{
    cow_String text;
    text.append("ab").append("cdef", 2).append(cow_String("ef")).append(atr_String("g"));
    EXPECT_EQ(text, "abcdefg");
    const cow_String copy(text);
    text.append(text).append(text.CString() + 10);
    EXPECT_EQ(text, "abcdefgabcdefgdefg");
    EXPECT_EQ(copy, "abcdefg");
    text.append("").append(static_cast<const char*>(nullptr)).append("x", 0).append(cow_String());
    EXPECT_EQ(text.Length(), 18);
    cow_String shared;
    shared.append(copy);
    EXPECT_EQ(shared.CString(), copy.CString());
}

RC_GTEST_PROP(cow_String, AppendsAsAPlainTextDoes, (const std::vector<std::string>& parts, bool keepCopies))
{
    cow_String text;
    std::string model;
    std::vector<cow_String> copies;
    std::vector<std::string> models;
    for (const std::string& part : parts)
    {
        text.append(part.c_str());
        model += part.c_str();
        if (!keepCopies)
            continue;
        copies.push_back(text);
        models.push_back(model);
    }
    RC_ASSERT(std::string(text.CString()) == model);
    RC_ASSERT(text.Length() == static_cast<int>(model.size()));
    for (std::size_t i = 0; i < copies.size(); ++i)
        RC_ASSERT(copies[i] == models[i].c_str());
}

struct PartCase
{
    int position;
    int count;
    const char* part;
    const char* rest;
};

TEST(cow_String, TakesAndErasesParts)
{
    const PartCase cases[] = {
        {0, 3, "abc", "def"},
        {2, 2, "cd", "abef"},
        {4, 99, "ef", "abcd"},
        {3, -1, "def", "abc"},
        {0, 6, "abcdef", ""},
        {6, 1, "", "abcdef"},
        {99, 1, "", "abcdef"},
        {1, 0, "", "abcdef"},
        {-2, 1, "a", "bcdef"},
        {1, INT_MAX, "bcdef", "a"},
        {INT_MIN, INT_MAX, "abcdef", ""},
    };
    for (const PartCase& part : cases)
    {
        const cow_String whole("abcdef");
        EXPECT_EQ(whole.Substr(part.position, part.count), part.part) << part.position << "," << part.count;
        cow_String erased(whole);
        erased.Erase(part.position, part.count);
        EXPECT_EQ(erased, part.rest) << part.position << "," << part.count;
        EXPECT_EQ(whole, "abcdef");
    }
    cow_String all("abc");
    EXPECT_EQ(all.Substr(0).CString(), all.CString());
    all.Erase();
    EXPECT_TRUE(all.IsEmpty());
    all.Erase();
    EXPECT_TRUE(all.IsEmpty());
}

TEST(cow_String, Finds)
{
    const cow_String text("one two one");
    EXPECT_EQ(text.Find("one"), 0);
    EXPECT_EQ(text.Find("one", 1), 8);
    EXPECT_EQ(text.Find("one", 9), -1);
    EXPECT_EQ(text.Find("One"), -1);
    EXPECT_EQ(text.Find(cow_String("two")), 4);
    EXPECT_EQ(text.Find("two", -5), 4);
    EXPECT_EQ(text.Find("one", 99), -1);
    EXPECT_EQ(text.Find("", 3), 3);
    EXPECT_EQ(text.Find(static_cast<const char*>(nullptr)), 0);
    EXPECT_EQ(cow_String().Find("a"), -1);
}

TEST(cow_String, UpperCaseTouchesPlainLettersAlone)
{
    const cow_String text("aZ_09 größe");
    EXPECT_EQ(text.ToUpper(), "AZ_09 GRößE");
    EXPECT_EQ(text, "aZ_09 größe");
    const cow_String upper("SOLVER_DEFAULT");
    EXPECT_EQ(upper.ToUpper().CString(), upper.CString());
    EXPECT_EQ(cow_String().ToUpper(), "");
}

TEST(cow_String, Compares)
{
    EXPECT_TRUE(cow_String("a") == cow_String("a"));
    EXPECT_TRUE(cow_String("a") != cow_String("A"));
    EXPECT_TRUE(cow_String("a") == "a");
    EXPECT_TRUE("a" == cow_String("a"));
    EXPECT_TRUE(cow_String("ab") != "a");
    EXPECT_TRUE(cow_String("a") < cow_String("ab"));
    EXPECT_TRUE(cow_String("") < cow_String("a"));
    EXPECT_TRUE(cow_String("B") < "a");
    EXPECT_TRUE(cow_String("z") < cow_String("é"));
    EXPECT_TRUE(cow_String("a") >= "a");
}

RC_GTEST_PROP(cow_String, ComparesAsStrcmpDoes, (const std::string& a, const std::string& b))
{
    const int order = std::strcmp(a.c_str(), b.c_str());
    const cow_String left(a.c_str());
    const cow_String right(b.c_str());
    RC_ASSERT((left == right) == (order == 0));
    RC_ASSERT((left < right) == (order < 0));
    RC_ASSERT((left > b.c_str()) == (order > 0));
}

class NaturalOrder : public testing::Test
{
protected:
    void TearDown() override { atr_setNaturalOrder(false); }
};

TEST_F(NaturalOrder, KeysSortByTheFlagAtTheMomentOfComparing)
{
    const cow_String two("part2");
    const cow_String ten("part10");
    using Order = cow_KeyOrder<cow_String>;
    EXPECT_FALSE(atr_getNaturalOrder());
    EXPECT_GT(Order::Compare(two, ten), 0);
    atr_setNaturalOrder(true);
    EXPECT_TRUE(atr_getNaturalOrder());
    EXPECT_LT(Order::Compare(two, ten), 0);
    EXPECT_EQ(Order::Compare(two, cow_String("part2")), 0);
    EXPECT_NE(Order::Compare(two, cow_String("part02")), 0);
    EXPECT_EQ(Order::Compare(cow_String(), cow_String("")), 0);
    atr_setNaturalOrder(false);
    EXPECT_GT(Order::Compare(two, ten), 0);
}
} // namespace
