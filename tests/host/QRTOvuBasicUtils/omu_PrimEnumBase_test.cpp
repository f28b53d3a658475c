#include "omu_PrimEnumBase.h"

#include "PrimRecorder.h"
#include "RowRecorder.h"
#include "cls_ClassRegistrar.h"
#include "nex_Exceptions.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace
{
/// An enumeration of three values, the last of which has no plain letters.
class Stage : public omu_PrimEnumBase
{
public:
    Stage() = default;
    explicit Stage(const char* text) { SetString(text); }
    explicit Stage(const cls_ReadVisitor& visitor) : omu_PrimEnumBase(visitor) {}

    Stage* Copy() const override { return new Stage(*this); }

    bool SetValue(const char* text) override
    {
        if (!PermissibleValues().IsMember(text))
            return false;
        SetString(text);
        return true;
    }

    cow_Map<cow_String, unsigned> PermissibleValues() const override
    {
        cow_Map<cow_String, unsigned> values;
        values.Insert("TOTAL", 1);
        values.Insert("STEP", 0);
        values.Insert("GRÖSSE", 2);
        return values;
    }

    template <class Value>
    void Refuse(const char* message, Value value) const
    {
        RaiseNotAllowed(message, value);
    }

protected:
    cow_String NamesInOrder() const override { return "TOTAL, STEP, GRÖSSE"; }
};

TEST(omu_PrimEnumBase, ShowsItsText)
{
    const Stage stage("GRÖSSE");
    const omu_Primitive& primitive = stage;
    EXPECT_EQ(stage.GetString(), "GRÖSSE");
    EXPECT_EQ(primitive.AsString(0), "GRÖSSE");
    EXPECT_EQ(primitive.AsRepr(), "GRÖSSE");
    EXPECT_EQ(primitive.TypeString(), "SymbolicConstant");
    EXPECT_EQ(primitive.Kind(), omu_PrimKindEnm::Enum);
    EXPECT_EQ(primitive.DynTypeId(), omu_PrimEnumBase::TypeId());
    EXPECT_EQ(stage.PermissibleValuesAsString(), "TOTAL, STEP, GRÖSSE");
    EXPECT_EQ(Stage().AsString(0), "");
}

TEST(omu_PrimEnumBase, IsEqualByText)
{
    const Stage step("STEP");
    const omu_Primitive& same = step;
    EXPECT_TRUE(Stage("STEP") == same);
    EXPECT_FALSE(Stage("TOTAL") == same);
    EXPECT_FALSE(Stage() == same);
}

TEST(omu_PrimEnumBase, CopiesEveryField)
{
    const Stage stage("STEP");
    const omu_Primitive& primitive = stage;
    const std::unique_ptr<omu_Primitive> copy(primitive.Copy());
    EXPECT_NE(dynamic_cast<const Stage*>(copy.get()), nullptr);
    EXPECT_TRUE(*copy == primitive);
    EXPECT_EQ(stage.GetString().ShareCount(), 2);
    const auto row = RecordRow(stage);
    const auto copied = RecordRow(*copy);
    EXPECT_EQ(copied->uid, row->uid);
    EXPECT_EQ(copied->base->uid, row->base->uid);
}

TEST(omu_PrimEnumBase, IsVisitedAsAnEnumeration)
{
    Stage stage("STEP");
    PrimRecorder recorder;
    stage.Accept(&recorder);
    EXPECT_EQ(recorder.kind, "enum");
    EXPECT_EQ(recorder.seen, &stage);
}

TEST(omu_PrimEnumBase, IsStoredAndReadBack)
{
    const Stage stage("GRÖSSE");
    const auto row = RecordRow(stage);
    EXPECT_EQ(row->classId, 0xB0003u);
    ASSERT_NE(row->base, nullptr);
    EXPECT_EQ(row->base->classId, 0xB0001u);
    EXPECT_NE(row->uid, row->base->uid);
    const Stage read = ReadRow<Stage>(row);
    EXPECT_EQ(read.GetString(), "GRÖSSE");
    EXPECT_EQ(read.Kind(), omu_PrimKindEnm::Enum);
    const auto again = RecordRow(read);
    EXPECT_EQ(again->uid, row->uid);
    EXPECT_EQ(again->base->uid, row->base->uid);
}

TEST(omu_PrimEnumBase, ARowThatIsWrittenStaysAsItIs)
{
    const auto row = RecordRow(Stage("STEP"), true);
    EXPECT_TRUE(row->fields.empty());
    EXPECT_EQ(row->base, nullptr);
}

TEST(omu_PrimEnumBase, IsDescribedAsItIsStored)
{
    cls_ClassRegistrar registrar;
    omu_Primitive::InitializeMetadata(registrar);
    omu_PrimEnumBase::InitializeMetadata(registrar);
    const auto row = RecordRow(Stage("STEP"));
    for (const RecordedRow* layer : {row.get(), row->base.get()})
    {
        const cls_ClassMetadata* metadata = registrar.Find(layer->classId);
        ASSERT_NE(metadata, nullptr);
        ASSERT_EQ(metadata->Attributes().size(), 1u);
        ASSERT_EQ(layer->fields.size(), 1u);
        EXPECT_EQ(layer->fields[0].name, metadata->Attributes()[0].field.Name().CString());
        EXPECT_TRUE(row_recorder::IsOfKind(layer->fields[0], metadata->Attributes()[0]));
    }
}

struct RefusalCase
{
    const char* message;
    const char* expected;
};

TEST(omu_PrimEnumBase, RefusesWithTheListOfTexts)
{
    const RefusalCase cases[] = {
        {"value not allowed: %s  Permissible: %s", "value not allowed: %s  Permissible: TOTAL, STEP, GRÖSSE"},
        {"str not allowed: %s", "str not allowed: %s"},
    };
    for (const RefusalCase& refusal : cases)
    {
        try
        {
            Stage().Refuse(refusal.message, "%s");
            ADD_FAILURE() << refusal.message;
        }
        catch (const nex_CmdException<atr_String, 2>& caught)
        {
            EXPECT_STREQ(caught.what(), refusal.expected);
            EXPECT_STREQ(caught.File(), "QRTOvuOvarisUtilities/ProtectedInterfaces/omu_PrimEnum");
            EXPECT_GT(caught.Line(), 0);
        }
    }
    EXPECT_THROW(Stage().Refuse("%d", -7), QRTBasException);
    try
    {
        Stage().Refuse("not allowed: %d", -7);
    }
    catch (const QRTBasException& caught)
    {
        EXPECT_STREQ(caught.what(), "not allowed: -7");
    }
}
} // namespace
