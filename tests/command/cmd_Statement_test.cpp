#include "cmd_Statement.h"

#include "cmd_Error.h"

#include <gtest/gtest.h>

namespace
{

using Sort = cmd_Statement::Sort;

/// The message with which `read` throws, or "nothing thrown".
template <class Read>
std::string Refusal(Read read)
{
    try
    {
        read();
    }
    catch (const cmd_Error& error)
    {
        return error.what();
    }
    return "nothing thrown";
}

TEST(Statement, IsReadByItsForm)
{
    const struct
    {
        const char* line;
        Sort sort;
        const char* path;
        const char* word;
        const char* arguments;
        const char* value;
    } rows[] = {
        {"", Sort::Empty, "model", "", "{}", "None"},
        {"  \t", Sort::Empty, "model", "", "{}", "None"},
        {"# model.undo()", Sort::Empty, "model", "", "{}", "None"},
        {"model.undo()\r\n", Sort::Call, "model", "undo", "{}", "None"},
        {"model", Sort::Value, "model", "", "{}", "None"},
        {" model . amplitudes [ 'a' ]  # the first", Sort::Value, "model.amplitudes['a']", "", "{}", "None"},
        {"model.amplitudes['a'].data[1][20]", Sort::Value, "model.amplitudes['a'].data[1][20]", "", "{}",
         "None"},
        {"model.a[\"it's\"]", Sort::Value, "model.a[\"it's\"]", "", "{}", "None"},
        {"del model.amplitudes['a']", Sort::Deletion, "model.amplitudes['a']", "", "{}", "None"},
        {"model.F(a=1, b=(2.0,))", Sort::Call, "model", "F", "{'a': 1, 'b': (2.0,)}", "None"},
        {"model.F(a=1,)", Sort::Call, "model", "F", "{'a': 1}", "None"},
        {"model.a['x'].setValues( b = STEP )", Sort::Call, "model.a['x']", "setValues", "{'b': STEP}",
         "None"},
        {"model.a['x'].b = -1.5", Sort::Assignment, "model.a['x']", "b", "{}", "-1.5"},
        {"model.a['x'].b=G(c=None)", Sort::Assignment, "model.a['x']", "b", "{}", "G(c=None)"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.line);
        const cmd_Statement statement = cmd_ParseStatement(row.line);
        EXPECT_EQ(row.sort, statement.sort);
        EXPECT_EQ(row.path, statement.path.Text());
        EXPECT_EQ(row.word, statement.word);
        EXPECT_EQ(row.arguments, cmd_Value(statement.arguments).Text());
        EXPECT_EQ(row.value, statement.value.Text());
    }
}

TEST(Statement, TellsTheColumnOfAFault)
{
    const struct
    {
        const char* line;
        const char* refusal;
    } rows[] = {
        {"amplitudes['a']",
         "column 1: expected a path, as model.amplitudes['ramp'], found \"amplitudes['a']\""},
        {"del amplitudes['a']",
         "column 5: expected a path, as model.amplitudes['ramp'], found \"amplitudes['a']\""},
        {"7", "column 1: expected a path, as model.amplitudes['ramp'], found '7'"},
        {"model.", "column 7: expected a word, found the end of the line"},
        {"model.a[b]", "column 9: expected a name in quotes or a position, found 'b]'"},
        {"model.a[-1]", "column 9: expected a name in quotes or a position, found '-1]'"},
        {"model.a[4294967296]", "column 9: expected a position of at most 4294967295"},
        {"model.a['b'", "column 12: expected \"]\", found the end of the line"},
        {"model.a['b", "column 11: expected the closing ', found the end of the line"},
        {"model.a['ü'] x", "column 14: expected the end of the line, found 'x'"},
        {"model()", "column 6: expected a word before the arguments, found model"},
        {"model.a['b'](c=1)", "column 13: expected a word before the arguments, found model.a['b']"},
        {"model = 1", "column 8: expected a path that ends with the word of an attribute, found model"},
        {"model.F(1)", "column 9: expected a word and its value, as smooth=0.25, found '1)'"},
        {"model.F(a)", "column 10: expected \"=\", found ')'"},
        {"model.F(a=1 b=2)", "column 13: expected \",\", found 'b=2)'"},
        {"model.F(a=1, a=2)", "column 16: the word a is given twice"},
        {"model.F(a=1", "column 12: expected \",\", found the end of the line"},
        {"model.F(a=)", "column 11: expected a value, found ')'"},
        {"model.F(a=(1 2))", "column 14: expected \",\" or \")\", found '2))'"},
        {"model.F(a=[1)", "column 13: expected \",\" or \"]\", found ')'"},
        {"model.F(a=(,))", "column 12: expected a value, found ',))'"},
        {"model.F(a={b: 1})", "column 12: expected a text in quotes, found 'b: 1})'"},
        {"model.F(a={1.5: 1})", "column 15: expected a text in quotes or an integer before \":\""},
        {"model.F(a='\\q')",
         "column 13: expected one of \\ ' \" n r t a b f v x u U behind a backslash, found \"q')\""},
        {"model.F(a='\\x4')", "column 15: expected 2 hexadecimal digits of a character"},
        {"model.F(a='\\x00')", "column 16: no text can hold a null character"},
        {"model.F(a='\\ud800')", "column 18: no character has this number"},
        {"model.F(a='\\U00110000')", "column 22: no character has this number"},
        {"model.F(a=9223372036854775808)",
         "column 11: expected an integer of 64 bits, found '9223372036854775808)'"},
        {"model.F(a=1e999)", "column 11: expected a number that a double can hold, found '1e999)'"},
        {"model.F(a=-inf)", "column 11: expected a number that a double can hold, found '-inf)'"},
        {"model.F(a=.)", "column 11: expected a number that a double can hold, found '.)'"},
        {"model.F(a=1x)", "column 12: expected the end of the number, found 'x)'"},
        {"model.F(a=float('many'))", "column 17: expected 'nan', 'inf' or '-inf', found \"'many'))\""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.refusal, Refusal([&row] { cmd_ParseStatement(row.line); })) << row.line;
}

TEST(Statement, ValuesReadAsInPython)
{
    const struct
    {
        const char* text;
        const char* canonical;
    } rows[] = {
        {"1", "1"},
        {"+1", "1"},
        {"1.", "1.0"},
        {".5", "0.5"},
        {"-1e3", "-1000.0"},
        {"1E-2", "0.01"},
        {"(1)", "1"},
        {"(1,)", "(1,)"},
        {"((1, 2), (3, 4),)", "((1, 2), (3, 4))"},
        {"[ ]", "[]"},
        {"{1: 2, 'a': 3, -4: 5}", "{'1': 2, 'a': 3, '-4': 5}"},
        {"\"a'b\"", "\"a'b\""},
        {"'\\x41\\u00fc\\U0001F600\\a\\b\\f\\v'", "'Aü\U0001F600\\x07\\x08\\x0c\\x0b'"},
        {"'\\udcff'", "'\\udcff'"},
        {"float('nan')", "float('nan')"},
        {"STEP", "STEP"},
        {"Nones", "Nones"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.canonical, cmd_ParseValue(row.text).Text()) << row.text;
}

TEST(Statement, NestsOnlySoDeep)
{
    EXPECT_EQ("nothing thrown", Refusal([] { cmd_ParseValue(std::string(99, '[') + std::string(99, ']')); }));
    EXPECT_EQ("column 101: values are nested more than 100 deep",
              Refusal([] { cmd_ParseValue(std::string(100000, '[')); }));
}

TEST(Place, IsMarkedInWhatCanBeShownOfItsText)
{
    const std::string sixty(60, 'a');
    const struct
    {
        cmd_Place place;
        std::string marked;
    } rows[] = {
        {{"", 0, 0}, "\n^"},
        {{"abc", 0, 0}, "abc\n^"},
        {{"abc", 1, 3}, "abc\n ^~"},
        {{"abc", 3, 3}, "abc\n   ^"},
        {{"Größe 1", 6, 7}, "Größe 1\n    ^"},
        {{"a\tb\xff\x1b"
          "c",
          5, 6},
         "a?b??c\n     ^"},
        {{std::string("a\0b", 3), 1, 1}, "a?b\n ^"},
        {{"a'\\\"", 1, 4}, "a'\\\"\n ^~~"},
        {{"xy" + sixty + "b", 62, 63}, "..." + sixty + "b\n" + std::string(63, ' ') + '^'},
        {{"b" + sixty, 0, 1}, "b" + std::string(20, 'a') + "...\n^"},
        {{sixty, 0, 60}, sixty + "\n^" + std::string(39, '~')},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.marked, cmd_Marked(row.place));
}

TEST(Path, MayLeaveTheModelOut)
{
    EXPECT_EQ("model.amplitudes['a'].data", cmd_ParsePath("amplitudes['a'].data").Text());
    EXPECT_EQ(cmd_ParsePath("model.amplitudes['a']"), cmd_Path::OfObject("amplitudes", "a"));
    EXPECT_EQ("model", cmd_ParsePath("model").Text());
    EXPECT_EQ("column 16: expected the end of the line, found ')'",
              Refusal([] { cmd_ParsePath("amplitudes['a'])"); }));
}

TEST(Nearest, IsWhatWasMeant)
{
    const std::vector<std::string> words{"timeSpan", "smooth", "data", "baselineCorrection", "a_0"};
    const struct
    {
        const char* word;
        const char* nearest;
    } rows[] = {
        {"smooth", "smooth"},
        {"smoth", "smooth"},
        {"smooooth", "smooth"},
        {"sMOOTH", "smooth"},
        {"dta", "data"},
        {"dtaa", "data"},
        {"timespan", "timeSpan"},
        {"baselinecorection", "baselineCorrection"},
        {"frequency", ""},
        {"", ""},
        {"x", ""},
        {"b_0", "a_0"},
        {"date", "data"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.nearest, cmd_Nearest(row.word, words)) << row.word;
    EXPECT_EQ("", cmd_Nearest(std::string(1000, 'a'), {std::string(1000, 'a')}));
}

TEST(Nearest, ClosesAMessage)
{
    EXPECT_EQ("there is none", cmd_ExpectedOneOf("a", {}));
    EXPECT_EQ("expected data", cmd_ExpectedOneOf("xyzzy", {"data"}));
    EXPECT_EQ("expected one of STEP, TOTAL; did you mean TOTAL?",
              cmd_ExpectedOneOf("TOTALE", {"STEP", "TOTAL"}));
    std::vector<std::string> many;
    for (int i = 0; i < 30; ++i)
        many.push_back("w" + std::to_string(i));
    EXPECT_EQ("expected one of w0, w1, w2, w3, w4, w5, w6, w7, w8, w9, w10, w11, w12, w13, w14, w15, w16, "
              "w17, w18, "
              "w19, w20, w21, w22, w23, ... (30 in all)",
              cmd_ExpectedOneOf("elephant", many));
}

} // namespace
