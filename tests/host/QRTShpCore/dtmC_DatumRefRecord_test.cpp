#include "QRTShpCore.h"
#include "RowRecorder.h"
#include "dtmC_DatumRef.h"

#include <gtest/gtest.h>

namespace
{
/// Brings the library up for a test.
class dtmC_RecordTest : public testing::Test
{
protected:
    dtmC_RecordTest() { QRTShpCore_initialize(tally); }
    ~dtmC_RecordTest() override { QRTShpCore_finalize(tally); }

    int tally = 0;
};

TEST_F(dtmC_RecordTest, ComesBackAsItWas)
{
    for (const char* name : {"", "Csys-1", "Bezugssystem \xC3\xBC"})
    {
        const dtmC_DatumRef datum(name);
        const auto row = RecordRow(datum);
        EXPECT_EQ(row->classId, dtmC_DatumRef::TypeId());
        EXPECT_EQ(CompareWithDescription(*row), "");
        const dtmC_DatumRef stored = ReadRow<dtmC_DatumRef>(row);
        EXPECT_EQ(stored, datum);
        EXPECT_EQ(RecordRow(stored)->uid, row->uid);
    }
}

TEST_F(dtmC_RecordTest, WhatIsWrittenIsNotWrittenAgain)
{
    EXPECT_TRUE(RecordRow(dtmC_DatumRef("Csys-1"), true)->fields.empty());
}

TEST_F(dtmC_RecordTest, EachNewOneHasAnIdentityOfItsOwn)
{
    const dtmC_DatumRef first;
    const dtmC_DatumRef copy(first);
    EXPECT_FALSE(RecordRow(first)->uid.IsBlank());
    EXPECT_NE(RecordRow(first)->uid, RecordRow(dtmC_DatumRef())->uid);
    EXPECT_EQ(RecordRow(first)->uid, RecordRow(copy)->uid);
}
} // namespace
