#include "kamC_CorrelationComponent.h"

#include "nex_Exceptions.h"
#include "omu_PrimNone.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace
{

using Approach = kamC_CorrelationComponent::CorrelationApproachEnm;
using CommandError = nex_CmdException<atr_String, 2>;

template <class... Values>
omu_PrimTuple TupleOf(const Values&... values)
{
    omu_PrimTuple tuple(static_cast<int>(sizeof...(values)), '(');
    (tuple.Put(values), ...);
    return tuple;
}

kamC_CorrelationComponent Example()
{
    kamC_CorrelationComponent component;
    component.approach = Approach::UNCORRELATED;
    component.psd = "noise";
    component.dataList = cow_List<double>(1.0, 2.0);
    return component;
}

std::string TextOf(const kamC_CorrelationComponent& component)
{
    const std::unique_ptr<omu_Primitive> primitive(omu_ReturnPrim(component));
    return primitive->AsRepr().CString();
}

void Read(const omu_PrimTuple& value, kamC_CorrelationComponent& component)
{
    omu_PrimTuple outer = TupleOf(value);
    outer.Begin();
    omu_Get(outer, component);
    outer.End("");
}

TEST(CorrelationComponent, IsTakenFromATuple)
{
    kamC_CorrelationComponent component;
    const cls_Uid before = component.dataList.Uid();
    Read(TupleOf("USER", "noise", cow_List<double>(0.5, 1.5)), component);
    EXPECT_EQ(component.approach, Approach::USER);
    EXPECT_EQ(component.psd, "noise");
    ASSERT_EQ(component.dataList.Count(), 2);
    EXPECT_EQ(component.dataList[1], 1.5);
    EXPECT_NE(component.dataList.Uid(), before) << "a new value has a row of its own";
}

TEST(CorrelationComponent, StaysAsItIsOnAnEmptySlot)
{
    const std::string text = TextOf(Example());
    kamC_CorrelationComponent component = Example();
    omu_PrimTuple nothing;
    nothing.Begin();
    omu_Get(nothing, component);
    nothing.End("");
    EXPECT_EQ(TextOf(component), text);
    omu_PrimTuple none = TupleOf(omu_PrimNone(), omu_PrimTuple());
    none.Begin();
    omu_Get(none, component);
    omu_Get(none, component);
    none.End("");
    EXPECT_EQ(TextOf(component), text);
}

TEST(CorrelationComponent, KeepsFieldsForWhichThereIsNoValue)
{
    kamC_CorrelationComponent component = Example();
    const cls_Uid list = component.dataList.Uid();
    Read(TupleOf(omu_PrimNone(), "other"), component);
    EXPECT_EQ(TextOf(component), "(1, 'other', (1.0, 2.0))");
    EXPECT_EQ(component.dataList.Uid(), list);
}

TEST(CorrelationComponent, ReturnsItsApproachAsANumber)
{
    kamC_CorrelationComponent component;
    component.approach = Approach::USER;
    EXPECT_EQ(TextOf(component), "(3, '', ())");
    const std::unique_ptr<omu_Primitive> primitive(omu_ReturnPrim(component));
    const auto& tuple = dynamic_cast<const omu_PrimTuple&>(*primitive);
    EXPECT_EQ(tuple[0].Kind(), omu_PrimKindEnm::Int);
    EXPECT_EQ(tuple.Capacity(), 3);
}

TEST(CorrelationComponent, DoesNotTakeItsApproachAsANumber)
{
    const std::unique_ptr<omu_Primitive> returned(omu_ReturnPrim(Example()));
    kamC_CorrelationComponent component;
    try
    {
        Read(dynamic_cast<const omu_PrimTuple&>(*returned), component);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        EXPECT_EQ(error.GetText(), "Value 1: expected one of CORRELATED, UNCORRELATED, USER, MOVING_NOISE, "
                                   "found the int 1.");
    }
    EXPECT_EQ(component.approach, Approach::CORRELATED);
}

TEST(CorrelationComponent, RefusesWhatDoesNotFit)
{
    kamC_CorrelationComponent component;
    EXPECT_THROW(Read(TupleOf("USERS"), component), CommandError);
    EXPECT_THROW(Read(TupleOf("USER", 1), component), CommandError);
    EXPECT_THROW(Read(TupleOf("USER", "a", cow_List<double>(), 4), component), CommandError);
    omu_PrimTuple noTuple = TupleOf(5);
    noTuple.Begin();
    omu_Get(noTuple, component);
    EXPECT_THROW(noTuple.End(""), CommandError);
}

TEST(CorrelationComponents, AreReplacedByAList)
{
    cow_List<kamC_CorrelationComponent> list(Example());
    omu_PrimTuple outer = TupleOf(TupleOf(TupleOf("USER", "a"), omu_PrimNone(), TupleOf("CORRELATED", "b")));
    outer.Begin();
    omu_Get(outer, list);
    outer.End("");
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(TextOf(list[0]), "(3, 'a', ())");
    EXPECT_EQ(TextOf(list[1]), "(0, '', ())") << "None gives a default component";
    const std::unique_ptr<omu_Primitive> returned(omu_ReturnPrim(list));
    EXPECT_EQ(returned->AsRepr(), "[(3, 'a', ()), (0, '', ()), (0, 'b', ())]");
}

TEST(CorrelationComponents, StayInTheAlternativeForm)
{
    cow_List<kamC_CorrelationComponent> list(Example());
    omu_PrimTuple outer = TupleOf(omu_PrimNone(), omu_PrimTuple());
    outer.Begin();
    omu_Get(outer, list);
    EXPECT_EQ(list.Count(), 1);
    omu_Get(outer, list);
    EXPECT_EQ(list.Count(), 0) << "an empty tuple is a list without elements";
    omu_Get(outer, list);
    outer.End("");
}

TEST(CorrelationComponents, AreTakenFromAnArgument)
{
    cow_List<kamC_CorrelationComponent> list(Example());
    omu_Arguments arguments(2);
    arguments.PutKeyword("components", TupleOf(TupleOf("USER", "a")));
    arguments.Begin();
    omu_Get(arguments, list, "absent");
    EXPECT_EQ(TextOf(list[0]), TextOf(Example())) << "left out";
    omu_Get(arguments, list, "components");
    arguments.End("");
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(TextOf(list[0]), "(3, 'a', ())");

    omu_Arguments wrong(1);
    wrong.PutKeyword("components", omu_PrimTuple());
    wrong.PutKeyword("other", TupleOf(1));
    wrong.Begin();
    omu_Get(wrong, list, "components");
    EXPECT_EQ(list.Count(), 0);
    EXPECT_THROW(omu_Get(wrong, list, "other"), CommandError);
}

} // namespace
