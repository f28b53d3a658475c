#include "app_Json.h"

#include "app_Error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstring>

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

std::string ErrorOf(const std::string& text)
{
    try
    {
        app_ParseJson(text, "model.json");
    }
    catch (const app_Error& error)
    {
        return error.what();
    }
    return "";
}

std::string OneLine(const cls_Value& value)
{
    return app_WriteJson(value, app_JsonLayout::OneLine);
}

std::uint64_t BitsOf(double number)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

struct BadText
{
    const char* text;
    const char* place;
    const char* reason;
};

TEST(Json, NamesThePlaceAndTheReasonOfAnError)
{
    const BadText cases[] = {
        {"{\"a\": 1,\n \"b\": }", "model.json:2:7: ", "unexpected '}'"},
        {"{\"a\": 1", "model.json:1:7: ", "unexpected end of input"},
        {"", "model.json:1:1: ", "unexpected end of input"},
        {"{\"a\": 1}\n]", "model.json:2:1: ", "expected end of input"},
        {"{\"a\": 1,\n\n  \"a\": 2}", "model.json:3:5: ", "the name \"a\" stands twice"},
        {"{\"a\\u0000b\": 1}", "model.json:1:11: ", "null character"},
        {"[1e999]", "model.json:1:7: ", "number overflow"},
        {"[\"\xff\"]", "model.json:1:3: ", "ill-formed UTF-8"},
        {"[NaN]", "model.json:1:2: ", "invalid literal"},
    };
    for (const BadText& bad : cases)
    {
        EXPECT_THAT(ErrorOf(bad.text), StartsWith(bad.place)) << bad.text;
        EXPECT_THAT(ErrorOf(bad.text), HasSubstr(bad.reason)) << bad.text;
    }
}

TEST(Json, RefusesHostileNestingWithoutRunningOutOfStack)
{
    EXPECT_THAT(ErrorOf(std::string(1000000, '[')), HasSubstr("nested more than 64 deep"));
    std::string objects;
    for (int i = 0; i < 100000; ++i)
        objects += "{\"a\":";
    EXPECT_THAT(ErrorOf(objects), HasSubstr("nested more than 64 deep"));
    EXPECT_EQ("", ErrorOf(std::string(64, '[') + std::string(64, ']')));
}

TEST(Json, KeepsTheOrderAndTheKindOfMembers)
{
    const char* const text = R"({"z": 1, "a": 1.5, "t": "x", "b": true, "n": null, "l": [1, [2]], "o": {}})";
    EXPECT_EQ(text, OneLine(app_ParseJson(text, "text")));
}

TEST(Json, WritesIntegersBeyondTheRangeAsNumbers)
{
    EXPECT_EQ(
        "[9223372036854775807, -9223372036854775808, 1.8446744073709552e19]",
        OneLine(app_ParseJson("[9223372036854775807, -9223372036854775808, 18446744073709551615]", "text")));
}

TEST(Json, WritesTheShortestNumbers)
{
    const std::pair<double, const char*> cases[] = {{0.0, "0"},
                                                    {1.0, "1"},
                                                    {-0.0, "-0.0"},
                                                    {0.1, "0.1"},
                                                    {100000.0, "100000"},
                                                    {1e22, "1e22"},
                                                    {1.7976931348623157e308, "1.7976931348623157e308"},
                                                    {5e-324, "5e-324"}};
    for (const auto& [number, text] : cases)
        EXPECT_EQ(text, app_JsonNumber(number));
}

RC_GTEST_PROP(Json, NumbersComeBackBitForBit, (std::uint64_t bits))
{
    double number = 0.0;
    std::memcpy(&number, &bits, sizeof number);
    RC_PRE(std::isfinite(number));
    const cls_Value read = app_ParseJson(app_JsonNumber(number), "text");
    RC_ASSERT(BitsOf(cls_DoubleOfValue(read)) == bits);
}

RC_GTEST_PROP(Json, WholeNumbersComeBackBitForBit, (std::int64_t whole))
{
    const double number = static_cast<double>(whole);
    RC_ASSERT(BitsOf(cls_DoubleOfValue(app_ParseJson(app_JsonNumber(number), "text"))) == BitsOf(number));
}

RC_GTEST_PROP(Json, TextsComeBack, (std::string text))
{
    std::string ascii;
    for (const char c : text)
        ascii += static_cast<char>(c & 0x7F);
    RC_ASSERT(*app_ParseJson(app_JsonText(ascii), "text").AsText() == ascii);
}

TEST(Json, ReplacesBytesThatAreNoText)
{
    EXPECT_EQ("\"a\xEF\xBF\xBD\"", app_JsonText("a\xff"));
}

TEST(Json, LaysOutAModelByLines)
{
    const char* const text = "{\n"
                             "  \"a\": [[0, 0], [1, 1]],\n"
                             "  \"b\": {},\n"
                             "  \"c\": {\n"
                             "    \"d\": null\n"
                             "  }\n"
                             "}";
    EXPECT_EQ(text, app_WriteJson(app_ParseJson(text, "text"), app_JsonLayout::Model));
}

TEST(Json, BreaksLongArraysIntoRowsAndLines)
{
    cls_Value::Array rows;
    cls_Value::Array list;
    for (int i = 0; i < 40; ++i)
    {
        rows.push_back(cls_Value::Array{i, i * 0.5});
        list.push_back(1000 + i);
    }
    const std::string table = app_WriteJson(rows, app_JsonLayout::Model);
    EXPECT_THAT(table, StartsWith("[\n  [0, 0],\n  [1, 0.5],\n"));
    const std::string filled = app_WriteJson(list, app_JsonLayout::Model);
    EXPECT_THAT(filled, StartsWith("[\n  1000, 1001, "));
    std::size_t longest = 0;
    for (std::size_t begin = 0; begin < filled.size();)
    {
        const std::size_t end = std::min(filled.find('\n', begin), filled.size());
        longest = std::max(longest, end - begin);
        begin = end + 1;
    }
    EXPECT_LE(longest, 100U);
    EXPECT_EQ(cls_Value(list), app_ParseJson(filled, "text"));
}

TEST(Json, TellsAnObjectFromAModel)
{
    EXPECT_TRUE(app_IsJsonObject(R"({"class": "kamC_Tabular"})"));
    EXPECT_TRUE(app_IsJsonObject(R"({"data": [[1, 2]], "b": {"class": 1}, "class": "kamC_Tabular"})"));
    EXPECT_FALSE(app_IsJsonObject(R"({"amplitudes": {"a": {"class": "kamC_Tabular"}}})"));
    EXPECT_FALSE(app_IsJsonObject(R"({"class": {"a": "kamC_Tabular"}})"));
    EXPECT_FALSE(app_IsJsonObject(R"([{"class": "kamC_Tabular"}])"));
    EXPECT_FALSE(app_IsJsonObject(R"({"class")"));
}

TEST(Json, HandsOverNamedObjectsOneByOne)
{
    std::vector<std::string> seen;
    app_ParseJsonModel(R"({"a": {"x": {"p": [1]}, "y": null}, "b": {}})", "text",
                       [&seen](const std::string& word, const std::string& name, const cls_Value& object,
                               std::size_t) { seen.push_back(word + '/' + name + ' ' + OneLine(object)); },
                       [&seen](const std::string& word) { seen.push_back(word); });
    EXPECT_EQ((std::vector<std::string>{R"(a/x {"p": [1]})", "a/y null", "a", "b"}), seen);
}

} // namespace
