#include "cmd_Value.h"

#include "cls_Value.h"
#include "cmd_Error.h"
#include "cmd_Statement.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstring>
#include <limits>

namespace
{

using Call = cmd_Value::Call;
using Dictionary = cmd_Value::Dictionary;
using List = cmd_Value::List;
using Symbol = cmd_Value::Symbol;
using Tuple = cmd_Value::Tuple;

TEST(Value, IsWrittenAsPythonWritesIt)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const struct
    {
        cmd_Value value;
        const char* text;
    } rows[] = {
        {cmd_Value(), "None"},
        {true, "True"},
        {false, "False"},
        {0, "0"},
        {-7, "-7"},
        {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {1.0, "1.0"},
        {0.1, "0.1"},
        {100000.0, "100000.0"},
        {1e15, "1000000000000000.0"},
        {1e16, "1e+16"},
        {123456789012345678.0, "1.2345678901234568e+17"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {1.5e-7, "1.5e-07"},
        {5e-324, "5e-324"},
        {1.7976931348623157e308, "1.7976931348623157e+308"},
        {infinity, "float('inf')"},
        {-infinity, "float('-inf')"},
        {std::numeric_limits<double>::quiet_NaN(), "float('nan')"},
        {"", "''"},
        {"ramp", "'ramp'"},
        {"it's", "\"it's\""},
        {"say \"so\"", "'say \"so\"'"},
        {"it's \"so\"", "'it\\'s \"so\"'"},
        {"back\\slash", "'back\\\\slash'"},
        {"a\nb\rc\td", "'a\\nb\\rc\\td'"},
        {"\x01\x1b\x7f", "'\\x01\\x1b\\x7f'"},
        {"Größe 1 µm", "'Größe 1 µm'"},
        {"\xc2\xa0\xc2\x85\xc2\xad", "'\\xa0\\x85\\xad'"},
        {"\xe2\x80\xa8", "'\\u2028'"},
        {"\xff\xc3(", "'\\udcff\\udcc3('"},
        {"\xed\xa0\x80", "'\\udced\\udca0\\udc80'"},
        {Symbol{"STEP"}, "STEP"},
        {Tuple{}, "()"},
        {Tuple{{1.0}}, "(1.0,)"},
        {Tuple{{1.0, 2.0}}, "(1.0, 2.0)"},
        {List{}, "[]"},
        {List{{1.0}}, "[1.0]"},
        {Dictionary{}, "{}"},
        {Dictionary{{"a'b", 1}, {"c", Tuple{}}}, "{\"a'b\": 1, 'c': ()}"},
        {Call{"BaselineCorrection", {}}, "BaselineCorrection()"},
        {Call{"F", {{"a", 1}, {"b", Call{"G", {{"c", "x"}}}}}}, "F(a=1, b=G(c='x'))"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.text, row.value.Text());
}

TEST(Value, IsShortInMessages)
{
    const std::string longText(100, 'x');
    EXPECT_EQ("'ramp'", cmd_Value("ramp").Summary());
    EXPECT_EQ('\'' + std::string(59, 'x') + "...", cmd_Value(longText).Summary());
    EXPECT_EQ("a tuple of 100", cmd_Value(Tuple{cmd_Value::Elements(100, 1.0)}).Summary());
    EXPECT_EQ("a list of 100", cmd_Value(List{cmd_Value::Elements(100, 1.0)}).Summary());
    EXPECT_EQ("a dictionary of 1", cmd_Value(Dictionary{{longText, 1}}).Summary());
    EXPECT_EQ("F(...)", cmd_Value(Call{"F", {{"a", longText}}}).Summary());
    std::string umlauts;
    for (int i = 0; i < 50; ++i)
        umlauts += "ü";
    EXPECT_EQ('\'' + umlauts.substr(0, 58) + "...", cmd_Value(umlauts).Summary());
}

TEST(Value, OfAPlainOne)
{
    const cls_Value plain = cls_Value::Object{{"a", cls_Value::Array{1, 2.5, true, cls_Value()}},
                                              {"b", cls_Value::Object{{"c", "text"}}}};
    EXPECT_EQ("{'a': (1, 2.5, True, None), 'b': {'c': 'text'}}", cmd_ValueOfPlain(plain).Text());
}

/// Any value but one that is no value of Python: symbols that are its constants.
rc::Gen<cmd_Value> AnyValue(int depth)
{
    const auto text = rc::gen::map(rc::gen::container<std::string>(rc::gen::inRange(1, 256)),
                                   [](std::string bytes) { return bytes; });
    const auto scalar = rc::gen::oneOf(
        rc::gen::just(cmd_Value()), rc::gen::map<bool>([](bool value) { return cmd_Value(value); }),
        rc::gen::map<std::int64_t>([](std::int64_t value) { return cmd_Value(value); }),
        rc::gen::map<std::uint64_t>(
            [](std::uint64_t bits)
            {
                double number = 0.0;
                std::memcpy(&number, &bits, sizeof number);
                return cmd_Value(number == number ? number : 0.5);
            }),
        rc::gen::map(text, [](std::string value) { return cmd_Value(std::move(value)); }),
        rc::gen::element(cmd_Value(Symbol{"STEP"}), cmd_Value(Symbol{"_a1"})));
    if (depth == 0)
        return scalar;
    const auto elements = rc::gen::container<cmd_Value::Elements>(AnyValue(depth - 1));
    const auto entries = rc::gen::container<Dictionary>(rc::gen::pair(text, AnyValue(depth - 1)));
    return rc::gen::oneOf(
        scalar,
        rc::gen::map(elements, [](cmd_Value::Elements parts) { return cmd_Value(Tuple{std::move(parts)}); }),
        rc::gen::map(elements, [](cmd_Value::Elements parts) { return cmd_Value(List{std::move(parts)}); }),
        rc::gen::map(entries, [](Dictionary parts) { return cmd_Value(std::move(parts)); }),
        rc::gen::map(AnyValue(depth - 1),
                     [](cmd_Value value) {
                         return cmd_Value(Call{"Word", {{"a", value}, {"b", value}}});
                     }));
}

RC_GTEST_PROP(Value, ReadsBackFromItsText, ())
{
    const cmd_Value value = *rc::gen::resize(8, AnyValue(3));
    const std::string text = value.Text();
    RC_ASSERT(text.find('\n') == std::string::npos);
    const cmd_Value again = cmd_ParseValue(text);
    RC_ASSERT(again == value);
    RC_ASSERT(again.Text() == text);
}

RC_GTEST_PROP(Value, AnyTextIsReadOrRefused, (const std::string& text))
{
    for (const std::string& line : {text, "model.a['" + text, "model.F(a=" + text})
    {
        try
        {
            cmd_ParseStatement(line);
        }
        catch (const cmd_Error& error)
        {
            RC_ASSERT(std::string(error.what()).rfind("column ", 0) == 0);
        }
    }
}

} // namespace
