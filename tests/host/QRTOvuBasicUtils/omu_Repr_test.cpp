#include "omu_Repr.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace
{

TEST(Repr, WritesNumbersAsPythonDoes)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct
    {
        double number;
        const char* text;
    } rows[] = {{0.0, "0.0"},
                {-0.0, "-0.0"},
                {1.0, "1.0"},
                {-2.5, "-2.5"},
                {0.1, "0.1"},
                {100.0, "100.0"},
                {123456.789, "123456.789"},
                {0.0001, "0.0001"},
                {0.00012, "0.00012"},
                {0.00001, "1e-05"},
                {1.5e-7, "1.5e-07"},
                {1e15, "1000000000000000.0"},
                {1e16, "1e+16"},
                {12345678901234567.0, "1.2345678901234568e+16"},
                {1234567890123456.0, "1234567890123456.0"},
                {1e22, "1e+22"},
                {1e100, "1e+100"},
                {5e-324, "5e-324"},
                {1.7976931348623157e308, "1.7976931348623157e+308"},
                {2.0 / 3.0, "0.6666666666666666"},
                {infinity, "inf"},
                {-infinity, "-inf"},
                {std::nan(""), "nan"}};
    for (const auto& row : rows)
        EXPECT_STREQ(omu_TextOfDouble(row.number).CString(), row.text);
}

TEST(Repr, CallsForWhatHasNoLiteral)
{
    EXPECT_EQ(omu_ReprOfDouble(1.0), "1.0");
    EXPECT_EQ(omu_ReprOfDouble(std::nan("")), "float('nan')");
    EXPECT_EQ(omu_ReprOfDouble(std::numeric_limits<double>::infinity()), "float('inf')");
    EXPECT_EQ(omu_ReprOfDouble(-std::numeric_limits<double>::infinity()), "float('-inf')");
}

RC_GTEST_PROP(Repr, NumbersReadBackAsTheyWere, (std::uint64_t bits))
{
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    RC_PRE(std::isfinite(number));
    const double again = std::strtod(omu_TextOfDouble(number).CString(), nullptr);
    RC_ASSERT(std::memcmp(&again, &number, sizeof number) == 0);
}

TEST(Repr, QuotesTexts)
{
    const struct
    {
        const char* text;
        const char* repr;
        const char* quoted;
    } rows[] = {
        {"", "''", "\"\""},
        {"ramp", "'ramp'", "\"ramp\""},
        {"it's", "\"it's\"", "\"it's\""},
        {"say \"a\"", "'say \"a\"'", "\"say \\\"a\\\"\""},
        {"'\"", "'\\'\"'", "\"'\\\"\""},
        {"a\\b", "'a\\\\b'", "\"a\\\\b\""},
        {"a\nb\tc\rd", "'a\\nb\\tc\\rd'", "\"a\\nb\\tc\\rd\""},
        {"\x01\x7f", "'\\x01\\x7f'", "\"\\x01\\x7f\""},
        {"Größe €", "'Größe €'", "\"Größe €\""},
        {"\xC2\x85\xC2\xA0\xC2\xAD", "'\\x85\\xa0\\xad'", "\"\\x85\\xa0\\xad\""},
        {"\xC2\xA1\xE2\x80\xA8\xE2\x80\xA9", "'\xC2\xA1\\u2028\\u2029'", "\"\xC2\xA1\\u2028\\u2029\""},
        {"\xF0\x9F\x98\x80", "'\xF0\x9F\x98\x80'", "\"\xF0\x9F\x98\x80\""},
        {"\xff"
         "a",
         "'\\udcffa'", "\"\\udcffa\""},
        {"\xC3", "'\\udcc3'", "\"\\udcc3\""},
        {"\xC0\x80", "'\\udcc0\\udc80'", "\"\\udcc0\\udc80\""},
        {"\xE0\x80\x80", "'\\udce0\\udc80\\udc80'", "\"\\udce0\\udc80\\udc80\""},
        {"\xED\xA0\x80", "'\\udced\\udca0\\udc80'", "\"\\udced\\udca0\\udc80\""},
        {"\xF4\x90\x80\x80", "'\\udcf4\\udc90\\udc80\\udc80'", "\"\\udcf4\\udc90\\udc80\\udc80\""},
        {"100%s", "'100%s'", "\"100%s\""}};
    for (const auto& row : rows)
    {
        EXPECT_STREQ(omu_ReprOfText(row.text).CString(), row.repr);
        EXPECT_STREQ(omu_QuotedText(row.text).CString(), row.quoted);
    }
}

} // namespace
