#include "QRTOvuGeom.h"
#include "RowRecorder.h"
#include "gsl_ModelSegment.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{
/// Brings the library up for a test.
class gsl_RecordTest : public testing::Test
{
protected:
    gsl_RecordTest() { QRTOvuGeom_initialize(tally); }
    ~gsl_RecordTest() override { QRTOvuGeom_finalize(tally); }

    int tally = 0;
};

TEST_F(gsl_RecordTest, ADotComesBackAsItWas)
{
    const gsl_Dot dot(gsl_Point{1.0, -2.5, 1e300});
    const auto row = RecordRow(dot);
    EXPECT_EQ(row->classId, gsl_Dot::TypeId());
    EXPECT_EQ(CompareWithDescription(*row), "");
    const gsl_Dot stored = ReadRow<gsl_Dot>(row);
    EXPECT_EQ(stored, dot);
    EXPECT_EQ(RecordRow(stored)->uid, row->uid);
}

TEST_F(gsl_RecordTest, ASegmentComesBackAsItWas)
{
    const gsl_ModelSegment segment(gsl_Dot(gsl_Point{1.0, 2.0, 3.0}), gsl_Dot(gsl_Point{4.0, 5.0, 6.0}));
    const auto row = RecordRow(segment);
    EXPECT_EQ(row->classId, gsl_ModelSegment::TypeId());
    EXPECT_EQ(CompareWithDescription(*row), "");
    const gsl_ModelSegment stored = ReadRow<gsl_ModelSegment>(row);
    EXPECT_EQ(stored, segment);
    EXPECT_EQ(RecordRow(stored)->uid, row->uid);
}

TEST_F(gsl_RecordTest, UnusualNumbersAreKept)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const gsl_Dot stored = ReadRow<gsl_Dot>(RecordRow(gsl_Dot(gsl_Point{-0.0, -infinity, std::nan("")})));
    EXPECT_TRUE(std::signbit(stored.GetPoint().x));
    EXPECT_EQ(stored.GetPoint().y, -infinity);
    EXPECT_TRUE(std::isnan(stored.GetPoint().z));
}

TEST_F(gsl_RecordTest, WhatIsWrittenIsNotWrittenAgain)
{
    EXPECT_TRUE(RecordRow(gsl_Dot(), true)->fields.empty());
    EXPECT_TRUE(RecordRow(gsl_ModelSegment(), true)->fields.empty());
}

TEST_F(gsl_RecordTest, EachNewOneHasAnIdentityOfItsOwn)
{
    const gsl_Dot first;
    const gsl_Dot second;
    const gsl_Dot copy(first);
    EXPECT_FALSE(RecordRow(first)->uid.IsBlank());
    EXPECT_NE(RecordRow(first)->uid, RecordRow(second)->uid);
    EXPECT_EQ(RecordRow(first)->uid, RecordRow(copy)->uid);
    EXPECT_NE(RecordRow(gsl_ModelSegment(first, second))->uid,
              RecordRow(gsl_ModelSegment(first, second))->uid);
}

TEST_F(gsl_RecordTest, TheDescriptionBuildsAndDeletesObjects)
{
    const cls_ClassMetadata* metadata =
        omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(gsl_Dot::TypeId());
    ASSERT_NE(metadata, nullptr);
    const auto row = RecordRow(gsl_Dot(gsl_Point{1.0, 2.0, 3.0}));
    const cls_ReadVisitor visitor(new row_recorder::Reader(row));
    const std::size_t before = mem_BlocksInUse();
    void* object = metadata->Ctor(visitor);
    EXPECT_EQ(*static_cast<gsl_Dot*>(object), gsl_Dot(gsl_Point{1.0, 2.0, 3.0}));
    metadata->Delete(object);
    metadata->Delete(nullptr);
    EXPECT_EQ(mem_BlocksInUse(), before);
}
} // namespace
