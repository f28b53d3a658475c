#include "RowRecorder.h"
#include "VirtualSlot.h"
#include "cls_KindOf.h"
#include "kamC_CorrelationComponent.h"
#include "kamC_Tabular.h"
#include "nex_Exceptions.h"
#include "omu_PrimEnum.h"

#include <gtest/gtest.h>

#include <memory>

OMU_NAMESPACE_ENUM(TestSignEnm, MINUS = -1, ZERO, PLUS, OTHER_PLUS = 1, FAR = 2147483647)

namespace
{

using Approach = kamC_CorrelationComponent::CorrelationApproachEnm;
using ApproachPrim = omu_PrimEnum<Approach, 1>;
using SpanPrim = omu_PrimEnum<kamC_Amplitude::TimeSpanEnm, 1>;
using SmoothPrim = omu_PrimEnum<kamC_Tabular::SmoothEnm, 1>;
using SignPrim = omu_PrimEnum<TestSignEnm, 1>;

/// The message of the exception that `make` throws, and its place.
template <class Make>
std::string Refusal(Make make)
{
    try
    {
        make();
    }
    catch (const nex_CmdException<atr_String, 2>& exception)
    {
        EXPECT_STREQ("QRTOvuOvarisUtilities/ProtectedInterfaces/omu_PrimEnum", exception.File());
        EXPECT_GT(exception.Line(), 0);
        return exception.what();
    }
    return "nothing thrown";
}

TEST(omu_PrimEnum, HasItsRowsInTheOrderOfDefinition)
{
    const char* const names[] = {"CORRELATED", "UNCORRELATED", "USER", "MOVING_NOISE"};
    const int values[] = {0, 1, 3, 2};
    for (int row = 0; row < 4; ++row)
    {
        EXPECT_STREQ(names[row], ApproachPrim::Name(row));
        EXPECT_EQ(values[row], ApproachPrim::Value(row));
    }
    EXPECT_EQ(nullptr, ApproachPrim::table[4].name);
    EXPECT_EQ(4, ApproachPrim::Table().rowCount);
    EXPECT_EQ("kamC_CorrelationComponent::CorrelationApproachEnm", ApproachPrim::Table().enumName);
    EXPECT_EQ("TestSignEnm", SignPrim::Table().enumName);
}

TEST(omu_PrimEnum, CountsOnFromARowWithoutAValue)
{
    const int values[] = {-1, 0, 1, 1, 2147483647};
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(values[row], SignPrim::Value(row));
    EXPECT_EQ(static_cast<int>(TestSignEnm::PLUS), 1);
}

TEST(omu_PrimEnum, TakesTheFirstOfTwoRowsWithOneValue)
{
    EXPECT_EQ(SignPrim(TestSignEnm::OTHER_PLUS).GetString(), "PLUS");
    SignPrim sign(TestSignEnm::ZERO);
    EXPECT_TRUE(sign.SetValue("OTHER_PLUS"));
    EXPECT_EQ(sign.GetString(), "OTHER_PLUS");
    EXPECT_EQ(1, static_cast<int>(sign.Value()));
}

TEST(omu_PrimEnum, IsBuiltByValueAndByName)
{
    const ApproachPrim byValue(Approach::USER);
    EXPECT_EQ(byValue.GetString(), "USER");
    EXPECT_EQ(byValue.AsString(0), "USER");
    const ApproachPrim byName(cow_String("MOVING_NOISE"));
    EXPECT_EQ(Approach::MOVING_NOISE, byName.Value());
    const ApproachPrim byOther(static_cast<const omu_PrimEnumBase&>(byValue));
    EXPECT_EQ(Approach::USER, byOther.Value());
}

TEST(omu_PrimEnum, RefusesAValueOutsideItsTable)
{
    EXPECT_EQ("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 7  Permissible: STEP, TOTAL",
              Refusal([] { SpanPrim(static_cast<kamC_Amplitude::TimeSpanEnm>(7)); }));
    EXPECT_EQ("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: -1  Permissible: STEP, TOTAL",
              Refusal([] { SpanPrim(static_cast<kamC_Amplitude::TimeSpanEnm>(-1)); }));
}

TEST(omu_PrimEnum, RefusesATextOutsideItsTable)
{
    const char* const texts[] = {"step", "Step", " STEP", "STEP ", "STE", "STEPS", "TOTAL%s"};
    for (const char* text : texts)
    {
        EXPECT_EQ(std::string("omu_PrimEnum(const cow_String&) - str not allowed: ") + text +
                      "  Permissible: STEP, TOTAL",
                  Refusal([text] { SpanPrim{cow_String(text)}; }));
    }
    EXPECT_EQ("omu_PrimEnum(const cow_String&) - str not allowed:   Permissible: STEP, TOTAL",
              Refusal([] { SpanPrim{cow_String()}; }));
}

TEST(omu_PrimEnum, RefusesAnotherEnumerationsTextWithoutAList)
{
    const ApproachPrim user(Approach::USER);
    EXPECT_EQ("omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: USER",
              Refusal([&user] { SpanPrim(static_cast<const omu_PrimEnumBase&>(user)); }));
}

TEST(omu_PrimEnum, SetsByTextOrLeavesTheObjectAlone)
{
    ApproachPrim approach(Approach::UNCORRELATED);
    for (const char* text : {"user", "", "NOISE"})
    {
        EXPECT_FALSE(approach.SetValue(text));
        EXPECT_EQ(approach.GetString(), "UNCORRELATED");
        EXPECT_EQ(Approach::UNCORRELATED, approach.Value());
    }
    EXPECT_FALSE(approach.SetValue(static_cast<const char*>(nullptr)));
    EXPECT_TRUE(approach.SetValue("USER"));
    EXPECT_EQ(Approach::USER, approach.Value());
    EXPECT_FALSE(approach.SetValue(static_cast<Approach>(9)));
    EXPECT_EQ(approach.GetString(), "USER");
    EXPECT_TRUE(approach.SetValue(Approach::MOVING_NOISE));
    EXPECT_EQ(approach.GetString(), "MOVING_NOISE");
}

TEST(omu_PrimEnum, MayHaveOneRow)
{
    EXPECT_EQ(SmoothPrim(kamC_Tabular::SmoothEnm::SOLVER_DEFAULT).GetString(), "SOLVER_DEFAULT");
    EXPECT_EQ(0, static_cast<int>(SmoothPrim(cow_String("SOLVER_DEFAULT")).Value()));
    EXPECT_EQ("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 1  Permissible: SOLVER_DEFAULT",
              Refusal([] { SmoothPrim(static_cast<kamC_Tabular::SmoothEnm>(1)); }));
    EXPECT_EQ(1, SmoothPrim(kamC_Tabular::SmoothEnm::SOLVER_DEFAULT).PermissibleValues().Count());
}

TEST(omu_PrimEnum, MapsEachNameToItsValue)
{
    const cow_Map<cow_String, unsigned> values = ApproachPrim(Approach::USER).PermissibleValues();
    EXPECT_EQ(4, values.Count());
    ASSERT_NE(nullptr, values.ConstGet("MOVING_NOISE"));
    EXPECT_EQ(2u, *values.ConstGet("MOVING_NOISE"));
    EXPECT_EQ(3u, *values.ConstGet("USER"));
}

TEST(omu_PrimEnum, CopiesItsFields)
{
    const ApproachPrim approach(Approach::USER);
    ApproachPrim* copy = approach.Copy();
    EXPECT_EQ(Approach::USER, copy->Value());
    EXPECT_EQ(approach.GetString().CString(), copy->GetString().CString()) << "the text is shared";
    EXPECT_TRUE(approach == *copy);
    EXPECT_TRUE(copy->SetValue(Approach::CORRELATED));
    EXPECT_EQ(Approach::USER, approach.Value());
    EXPECT_FALSE(approach == *copy);
    delete copy;
}

TEST(omu_PrimEnum, CopiesItsIdentities)
{
    const ApproachPrim approach(Approach::USER);
    const std::unique_ptr<ApproachPrim> copy(approach.Copy());
    const std::shared_ptr<RecordedRow> row = RecordRow(approach);
    const std::shared_ptr<RecordedRow> copiedRow = RecordRow(*copy);
    EXPECT_EQ(row->uid, copiedRow->uid);
    EXPECT_EQ(row->base->uid, copiedRow->base->uid) << "that of the primitive";
    EXPECT_NE(row->uid, row->base->uid);
    EXPECT_EQ(omu_PrimKindEnm::Enum, copy->Kind());
}

TEST(omu_PrimEnum, IsReadFromARecord)
{
    const std::shared_ptr<RecordedRow> row = RecordRow(ApproachPrim(Approach::USER));
    EXPECT_EQ(Approach::USER, ReadRow<ApproachPrim>(row).Value());
    EXPECT_EQ("omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: USER  Permissible: STEP, TOTAL",
              Refusal([&row] { ReadRow<SpanPrim>(row); }));
}

TEST(omu_PrimEnum, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(2u, VirtualSlotOf(&SpanPrim::TypeString));
    EXPECT_EQ(3u, VirtualSlotOf(&SpanPrim::AsString));
    EXPECT_EQ(4u, VirtualSlotOf(&SpanPrim::AsRepr));
    EXPECT_EQ(5u, VirtualSlotOf<bool (SpanPrim::*)(const omu_Primitive&) const>(&SpanPrim::operator==));
    EXPECT_EQ(6u, VirtualSlotOf(&SpanPrim::Accept));
    EXPECT_EQ(7u, VirtualSlotOf(&SpanPrim::Copy));
    EXPECT_EQ(8u, VirtualSlotOf(&SpanPrim::DynTypeId));
    EXPECT_EQ(9u, VirtualSlotOf(&SpanPrim::DBWrite));
    EXPECT_EQ(10u, VirtualSlotOf<bool (SpanPrim::*)(const char*)>(&SpanPrim::SetValue));
    EXPECT_EQ(11u, VirtualSlotOf(&SpanPrim::PermissibleValues));
}

// The texts of every enumeration of the family, as they stand in stores: a text here must never change.
TEST(omu_PrimEnum, KeepsTheTextsOfTheAmplitudes)
{
    struct Row
    {
        const omu_EnumTable& table;
        const char* names;
    };
    const Row rows[] = {
        {SpanPrim::Table(), "STEP, TOTAL"},
        {ApproachPrim::Table(), "CORRELATED, UNCORRELATED, USER, MOVING_NOISE"},
        {SmoothPrim::Table(), "SOLVER_DEFAULT"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(omu_NamesOf(row.table), row.names);
}

} // namespace
