#include "PrimRecorder.h"
#include "QRTOvuBasicUtils.h"
#include "RowRecorder.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimInt.h"
#include "omu_PrimList.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"
#include "omu_PrimTuple.h"
#include "typ_ArchCompTable.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace
{

class PrimValue : public testing::Test
{
protected:
    void SetUp() override { QRTOvuBasicUtils_initialize(tally); }

    void TearDown() override { QRTOvuBasicUtils_finalize(tally); }

private:
    int tally = 0;
};

template <class... Values>
omu_PrimTuple TupleOf(const Values&... values)
{
    omu_PrimTuple tuple(static_cast<int>(sizeof...(values)), '(');
    (tuple.Put(values), ...);
    return tuple;
}

template <class... Values>
omu_PrimList ListOf(const Values&... values)
{
    omu_PrimList list;
    (list.Add(values), ...);
    return list;
}

/// One primitive of each class, with what it says of itself.
struct Sample
{
    std::unique_ptr<omu_Primitive> primitive;
    const char* type;
    const char* text;
    const char* repr;
    const char* visited;
    omu_PrimKindEnm kind;
    unsigned id;
    const char* className;
};

std::vector<Sample> Samples()
{
    using enum omu_PrimKindEnm;
    std::vector<Sample> samples;
    const auto add = [&samples](const omu_Primitive& primitive, const char* type, const char* text,
                                const char* repr, const char* visited, omu_PrimKindEnm kind, unsigned id,
                                const char* className)
    {
        samples.push_back({std::unique_ptr<omu_Primitive>(primitive.Copy()), type, text, repr, visited, kind,
                           id, className});
    };
    add(omu_PrimNone(), "NoneType", "None", "None", "none", None, 0xB0004, "omu_PrimNone");
    add(omu_PrimBool(true), "bool", "True", "True", "bool", Bool, 0xB0005, "omu_PrimBool");
    add(omu_PrimInt(-99), "int", "-99", "-99", "int", Int, 0xB0006, "omu_PrimInt");
    add(omu_PrimDouble(1.0), "float", "1.0", "1.0", "double", Double, 0xB0007, "omu_PrimDouble");
    add(omu_PrimString("it's"), "str", "it's", "\"it's\"", "string", String, 0xB0002, "omu_PrimString");
    add(TupleOf("Insert", "A", -99), "tuple", "(\"Insert\", \"A\", -99)", "('Insert', 'A', -99)", "tuple",
        Tuple, 0xB0009, "omu_PrimTuple");
    add(ListOf(omu_PrimNone(), TupleOf(0.5), omu_PrimString("b")), "list", "[None, (0.5,), \"b\"]",
        "[None, (0.5,), 'b']", "list", List, 0xB000A, "omu_PrimList");
    return samples;
}

TEST_F(PrimValue, SaysWhatItIs)
{
    for (const Sample& sample : Samples())
    {
        EXPECT_EQ(sample.primitive->TypeString(), sample.type);
        EXPECT_EQ(sample.primitive->AsString(0), sample.text);
        EXPECT_EQ(sample.primitive->AsRepr(), sample.repr);
        EXPECT_EQ(sample.primitive->Kind(), sample.kind);
        EXPECT_EQ(sample.primitive->DynTypeId(), sample.id);
        EXPECT_STREQ(typ_ArchCompTable::GetName(sample.id), sample.className);
        PrimRecorder recorder;
        sample.primitive->Accept(&recorder);
        EXPECT_EQ(recorder.kind, sample.visited);
        EXPECT_EQ(recorder.seen, sample.primitive.get());
    }
}

TEST_F(PrimValue, EqualsItsCopyAndNothingOfAnotherClass)
{
    const std::vector<Sample> samples = Samples();
    for (const Sample& one : samples)
    {
        const std::unique_ptr<omu_Primitive> copy(one.primitive->Copy());
        EXPECT_TRUE(*copy == *one.primitive) << one.repr;
        for (const Sample& other : samples)
        {
            if (&one != &other)
            {
                EXPECT_FALSE(*one.primitive == *other.primitive) << one.repr << ", " << other.repr;
            }
        }
    }
}

TEST_F(PrimValue, DiffersByValue)
{
    EXPECT_FALSE(omu_PrimBool(true) == omu_PrimBool(false));
    EXPECT_FALSE(omu_PrimInt(1) == omu_PrimInt(2));
    EXPECT_FALSE(omu_PrimString("a") == omu_PrimString("A"));
    EXPECT_FALSE(omu_PrimDouble(std::nan("")) == omu_PrimDouble(std::nan("")));
    EXPECT_TRUE(omu_PrimNone() == omu_PrimNone());
    EXPECT_FALSE(TupleOf(1, 2) == TupleOf(1));
    EXPECT_FALSE(TupleOf(1, 2) == TupleOf(1, 2.0));
    EXPECT_FALSE(omu_PrimTuple() == omu_PrimList()) << "empty, but of two classes";
    const omu_PrimInt whole(1);
    EXPECT_FALSE(static_cast<const omu_Primitive&>(whole) == omu_PrimDouble(1.0));
}

TEST_F(PrimValue, WritesEmptySequencesAndTuplesOfOne)
{
    EXPECT_EQ(omu_PrimTuple().AsRepr(), "()");
    EXPECT_EQ(TupleOf("a").AsRepr(), "('a',)");
    EXPECT_EQ(omu_PrimList().AsRepr(), "[]");
    EXPECT_EQ(ListOf(omu_PrimInt(1)).AsRepr(), "[1]");
    omu_PrimTuple bracketed(1, '[');
    bracketed.Put(1);
    EXPECT_EQ(bracketed.AsRepr(), "[1]");
}

TEST_F(PrimValue, SharesElementsUntilOneIsChanged)
{
    omu_PrimTuple tuple = TupleOf(1, "a");
    const omu_PrimTuple copy(tuple);
    EXPECT_EQ(&copy[1], &tuple[1]);
    tuple.Put(true);
    EXPECT_EQ(copy.AsRepr(), "(1, 'a')");
    EXPECT_EQ(tuple.AsRepr(), "(1, 'a', True)");
}

TEST_F(PrimValue, PutsListsAsTuples)
{
    omu_PrimTuple tuple(4);
    cow_List<double> numbers(0.0, 1.5);
    tuple.Put(numbers);
    tuple.Put(cow_List<int>(7));
    tuple.Put(cow_List<bool>(true, false));
    tuple.Put(cow_List<cow_String>("x"));
    EXPECT_EQ(tuple.AsRepr(), "((0.0, 1.5), (7,), (True, False), ('x',))");
    EXPECT_EQ(tuple.Capacity(), 4);
}

TEST_F(PrimValue, ScalarsAreReadBackAsTheyWereStored)
{
    for (const Sample& sample : Samples())
    {
        if (dynamic_cast<const omu_PrimSequence*>(sample.primitive.get()))
            continue;
        const auto row = RecordRow(*sample.primitive);
        const std::unique_ptr<omu_Primitive> copy(sample.primitive->Copy());
        EXPECT_EQ(RecordRow(*copy)->uid, row->uid) << "a copy is the same row";
        EXPECT_EQ(CompareWithDescription(*row), "") << sample.className;
        ASSERT_NE(row->base, nullptr);
        EXPECT_EQ(row->base->classId, omu_Primitive::TypeId());
        const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(sample.id);
        ASSERT_NE(metadata, nullptr);
        const cls_ReadVisitor visitor(new row_recorder::Reader(row));
        const std::unique_ptr<omu_Primitive> read(static_cast<omu_Primitive*>(metadata->Ctor(visitor)));
        EXPECT_TRUE(*read == *sample.primitive);
        EXPECT_EQ(RecordRow(*read)->uid, row->uid);
    }
}

} // namespace
