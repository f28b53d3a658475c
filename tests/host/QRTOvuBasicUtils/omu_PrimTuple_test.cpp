#include "nex_Exceptions.h"
#include "omu_Arguments.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimEnumBase.h"
#include "omu_PrimInt.h"
#include "omu_PrimList.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{

/// An enumeration of two texts.
class Span : public omu_PrimEnumBase
{
public:
    Span() { SetString("STEP"); }

    Span* Copy() const override { return new Span(*this); }

    bool SetValue(const char* text) override
    {
        if (std::strcmp(text, "STEP") != 0 && std::strcmp(text, "TOTAL") != 0)
            return false;
        SetString(text);
        return true;
    }

    cow_Map<cow_String, unsigned> PermissibleValues() const override { return {}; }

protected:
    cow_String NamesInOrder() const override { return "STEP, TOTAL"; }
};

template <class Sequence>
std::string ErrorAtEnd(Sequence& values, const char* name = "")
{
    try
    {
        values.End(name);
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        return error.GetText().CString();
    }
    return "";
}

TEST(PrimTuple, GivesItsValuesInOrder)
{
    omu_PrimTuple tuple(6, '(');
    tuple.Put(true);
    tuple.Put(7);
    tuple.Put(2.5);
    tuple.Put("text");
    tuple.Put(cow_List<double>(1.0, 2.0));
    omu_PrimTuple inner(1);
    inner.Put("inner");
    tuple.Put(inner);

    bool truth = false;
    int whole = 0;
    double number = 0.0;
    cow_String text;
    cow_List<double> numbers;
    omu_PrimTuple nested(0, '(');
    tuple.Begin();
    tuple.Get(truth);
    EXPECT_FALSE(tuple.Alternative());
    tuple.Get(whole);
    tuple.Get(number);
    tuple.Get(text);
    tuple.Get(numbers);
    tuple.Get(nested);
    EXPECT_FALSE(tuple.Alternative());
    tuple.End("");
    EXPECT_TRUE(truth);
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(number, 2.5);
    EXPECT_EQ(text, "text");
    ASSERT_EQ(numbers.Count(), 2);
    EXPECT_EQ(numbers[1], 2.0);
    EXPECT_EQ(nested.AsRepr(), "('inner',)");
    EXPECT_EQ(&nested[0], &static_cast<const omu_PrimTuple&>(tuple[5])[0]) << "the values are shared";
}

TEST(PrimTuple, CanBeReadAgain)
{
    omu_PrimTuple tuple;
    tuple.Put(1);
    int value = 0;
    for (int round = 0; round < 2; ++round)
    {
        tuple.Begin();
        tuple.Get(value);
        EXPECT_EQ(ErrorAtEnd(tuple), "");
        tuple.Begin();
        EXPECT_EQ(ErrorAtEnd(tuple), "Expected 0 values, found 1.");
    }
}

TEST(PrimTuple, LeavesTheVariableAloneWhereNoValueStands)
{
    omu_PrimTuple tuple;
    tuple.Put(omu_PrimNone());
    double value = 4.0;
    tuple.Begin();
    tuple.Get(value);
    EXPECT_TRUE(tuple.Alternative());
    tuple.Get(value);
    EXPECT_TRUE(tuple.Alternative()) << "nothing is left";
    EXPECT_EQ(value, 4.0);
    EXPECT_EQ(ErrorAtEnd(tuple), "");
}

TEST(PrimTuple, TakesAWholeNumberForADouble)
{
    omu_PrimTuple tuple;
    tuple.Put(3);
    omu_PrimList mixed;
    mixed.Add(omu_PrimInt(1));
    mixed.Add(omu_PrimDouble(0.5));
    tuple.Put(mixed);
    double number = 0.0;
    cow_List<double> numbers;
    tuple.Begin();
    tuple.Get(number);
    tuple.Get(numbers);
    tuple.End("");
    EXPECT_EQ(number, 3.0);
    ASSERT_EQ(numbers.Count(), 2);
    EXPECT_EQ(numbers[0], 1.0);
}

TEST(PrimTuple, TakesASymbolOrATextForAnEnumeration)
{
    Span total;
    total.SetValue("TOTAL");
    omu_PrimTuple tuple;
    tuple.Put(total);
    tuple.Put("STEP");
    Span value;
    tuple.Begin();
    tuple.Get(value);
    EXPECT_EQ(value.GetString(), "TOTAL");
    EXPECT_FALSE(tuple.Alternative());
    tuple.Get(value);
    EXPECT_EQ(value.GetString(), "STEP");
    tuple.End("");
}

/// What a Get of a `T` says of the primitive; the variable must stay as it is.
template <class T>
std::string Refusal(const omu_Primitive& value, T variable)
{
    omu_PrimTuple tuple;
    tuple.Put("first");
    tuple.Put(value);
    cow_String first;
    tuple.Begin();
    tuple.Get(first);
    tuple.Get(variable);
    EXPECT_TRUE(tuple.Alternative());
    return ErrorAtEnd(tuple);
}

TEST(PrimTuple, RefusesOtherTypes)
{
    const omu_PrimString text("abc");
    const omu_PrimInt whole(3);
    const omu_PrimDouble number(2.0);
    const omu_PrimBool truth(true);
    omu_PrimTuple badNumbers;
    badNumbers.Put(1.0);
    badNumbers.Put("x");
    const struct
    {
        std::string found;
        std::string expected;
    } rows[] = {
        {Refusal(whole, false), "Value 2: expected a bool, found the int 3."},
        {Refusal(number, 1), "Value 2: expected an int, found the float 2.0."},
        {Refusal(truth, 1), "Value 2: expected an int, found the bool True."},
        {Refusal(truth, 1.0), "Value 2: expected a float, found the bool True."},
        {Refusal(text, 1.0), "Value 2: expected a float, found the str 'abc'."},
        {Refusal(whole, cow_String("x")), "Value 2: expected a str, found the int 3."},
        {Refusal(whole, cow_List<double>(1.0)), "Value 2: expected a sequence of float, found the int 3."},
        {Refusal(badNumbers, cow_List<double>(1.0)),
         "Value 2: expected a sequence of float, found the tuple (1.0, 'x')."},
        {Refusal(text, omu_PrimTuple()), "Value 2: expected a tuple, found the str 'abc'."},
        {Refusal(text, Span()), "Value 2: expected one of STEP, TOTAL, found the str 'abc'."},
        {Refusal(omu_PrimString("step"), Span()),
         "Value 2: expected one of STEP, TOTAL, found the str 'step'."},
        {Refusal(omu_PrimInt(0), Span()), "Value 2: expected one of STEP, TOTAL, found the int 0."},
        {Refusal(omu_PrimString(std::string(100, 'x').c_str()), 1),
         "Value 2: expected an int, found the str '" + std::string(59, 'x') + "...."},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.found, row.expected);
}

TEST(PrimTuple, LeavesTheVariableAloneWhenItRefuses)
{
    omu_PrimTuple tuple;
    tuple.Put("x");
    tuple.Put("x");
    tuple.Put("x");
    int whole = 5;
    cow_List<double> numbers(1.0, 2.0);
    Span span;
    span.SetValue("TOTAL");
    tuple.Begin();
    tuple.Get(whole);
    tuple.Get(numbers);
    tuple.Get(span);
    EXPECT_EQ(whole, 5);
    EXPECT_EQ(numbers.Count(), 2);
    EXPECT_EQ(span.GetString(), "TOTAL");
    EXPECT_EQ(ErrorAtEnd(tuple, "setValues"), "setValues: Value 1: expected an int, found the str 'x'.")
        << "the first error is the one reported";
}

TEST(PrimTuple, RefusesValuesThatNobodyAskedFor)
{
    omu_PrimTuple tuple;
    tuple.Put(1);
    tuple.Put(2);
    tuple.Put(3);
    int value = 0;
    tuple.Begin();
    tuple.Get(value);
    EXPECT_EQ(ErrorAtEnd(tuple, "pair"), "pair: Expected 1 values, found 3.");
}

TEST(PrimTuple, ThrowsWithItsPlace)
{
    omu_PrimTuple tuple;
    tuple.Put(1);
    tuple.Begin();
    try
    {
        tuple.End("");
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const QRTBasException& error)
    {
        EXPECT_STREQ(error.File(), "host/QRTOvuBasicUtils/omu_PrimTuple");
        EXPECT_GT(error.Line(), 0);
    }
}

TEST(Arguments, BindByPositionThenByKeyword)
{
    omu_Arguments arguments(1);
    arguments.Put("ramp");
    arguments.PutKeyword("end", omu_PrimDouble(2.0));
    arguments.PutKeyword("begin", omu_PrimInt(1));
    arguments.Begin();
    cow_String name;
    double begin = 0.0;
    double end = 0.0;
    bool smooth = true;
    arguments.Get(name, "name");
    EXPECT_FALSE(arguments.ErrorOnPrevious());
    arguments.Get(begin, "begin");
    arguments.Get(end, "end");
    arguments.Get(smooth, "smooth");
    EXPECT_TRUE(arguments.ErrorOnPrevious()) << "left out";
    EXPECT_EQ(ErrorAtEnd(arguments), "");
    EXPECT_EQ(name, "ramp");
    EXPECT_EQ(begin, 1.0);
    EXPECT_EQ(end, 2.0);
    EXPECT_TRUE(smooth);
}

TEST(Arguments, GiveEveryKindByKeyword)
{
    omu_Arguments arguments;
    omu_PrimTuple numbers;
    numbers.Put(0.0);
    Span total;
    total.SetValue("TOTAL");
    arguments.PutKeyword("tuple", numbers);
    arguments.PutKeyword("numbers", numbers);
    arguments.PutKeyword("span", total);
    arguments.PutKeyword("whole", omu_PrimInt(4));
    arguments.PutKeyword("flag", omu_PrimBool(true));
    omu_PrimTuple tuple;
    cow_List<double> list;
    Span span;
    int whole = 0;
    bool flag = false;
    arguments.Begin();
    arguments.Get(flag, "flag");
    arguments.Get(whole, "whole");
    arguments.Get(span, "span");
    arguments.Get(list, "numbers");
    arguments.Get(tuple, "tuple");
    arguments.End("");
    EXPECT_TRUE(flag);
    EXPECT_EQ(whole, 4);
    EXPECT_EQ(span.GetString(), "TOTAL");
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(tuple.AsRepr(), "(0.0,)");
}

TEST(Arguments, NameTheKeywordInErrors)
{
    omu_Arguments arguments;
    arguments.PutKeyword("data", omu_PrimInt(3));
    omu_PrimTuple data;
    arguments.Begin();
    arguments.Get(data, "data");
    EXPECT_TRUE(arguments.ErrorOnPrevious());
    EXPECT_EQ(ErrorAtEnd(arguments, "TabularAmplitude"),
              "TabularAmplitude: Argument 'data': expected a tuple, found the int 3.");
}

TEST(Arguments, RefuseUnknownAndDoubleKeywords)
{
    omu_Arguments unknown;
    unknown.PutKeyword("dta", omu_PrimInt(3));
    unknown.Begin();
    EXPECT_EQ(ErrorAtEnd(unknown), "Unknown argument 'dta'.");

    int value = 0;
    omu_Arguments both;
    both.Put(1);
    both.PutKeyword("value", omu_PrimInt(2));
    both.Begin();
    both.Get(value, "value");
    EXPECT_EQ(value, 1);
    EXPECT_EQ(ErrorAtEnd(both), "Argument 'value' is given twice.");

    omu_Arguments twice;
    twice.PutKeyword("value", omu_PrimInt(2));
    twice.PutKeyword("value", omu_PrimInt(3));
    twice.Begin();
    twice.Get(value, "value");
    EXPECT_EQ(value, 2);
    EXPECT_EQ(ErrorAtEnd(twice), "Argument 'value' is given twice.");

    omu_Arguments tooMany;
    tooMany.Put(1);
    tooMany.Begin();
    EXPECT_EQ(ErrorAtEnd(tooMany), "Expected 0 values, found 1.");
}

TEST(Arguments, ShowThemselvesAsInACall)
{
    omu_Arguments arguments;
    EXPECT_EQ(arguments.AsRepr(), "()");
    arguments.Put(1);
    EXPECT_EQ(arguments.AsRepr(), "(1)");
    arguments.PutKeyword("name", omu_PrimString("it's"));
    EXPECT_EQ(arguments.AsRepr(), "(1, name=\"it's\")");
    EXPECT_EQ(arguments.AsString(0), "(1, name=\"it's\")");
    arguments.Put(2.0);
    EXPECT_EQ(arguments.AsRepr(), "(1, 2.0, name=\"it's\")");
    omu_Arguments keywordOnly;
    keywordOnly.PutKeyword("span", Span());
    keywordOnly.PutKeyword("name", omu_PrimString("ramp"));
    EXPECT_EQ(keywordOnly.AsRepr(), "(span=STEP, name='ramp')");
    EXPECT_EQ(keywordOnly.AsString(0), "(span=STEP, name=\"ramp\")");
    EXPECT_EQ(keywordOnly.Keyword(1), "name");
    ASSERT_NE(keywordOnly.FindKeyword("name"), nullptr);
    EXPECT_EQ(keywordOnly.FindKeyword("name")->AsString(0), "ramp");
    EXPECT_EQ(keywordOnly.FindKeyword("none"), nullptr);
}

TEST(Arguments, AreEqualByValuesAndKeywords)
{
    omu_Arguments one;
    one.Put(1);
    one.PutKeyword("a", omu_PrimInt(2));
    const std::unique_ptr<omu_Arguments> copy(one.Copy());
    EXPECT_TRUE(*copy == one);
    copy->PutKeyword("b", omu_PrimInt(2));
    EXPECT_FALSE(*copy == one);
    omu_Arguments other;
    other.Put(1);
    other.PutKeyword("a", omu_PrimInt(3));
    EXPECT_FALSE(other == one);
    omu_PrimTuple tuple;
    tuple.Put(1);
    const omu_Primitive& plain = tuple;
    EXPECT_FALSE(one == plain);
}

} // namespace
