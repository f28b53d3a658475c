#include "dtmC_DatumRef.h"

#include <gtest/gtest.h>

namespace
{
TEST(dtmC_DatumRef, AnEmptyOneHasNoName)
{
    EXPECT_TRUE(dtmC_DatumRef().Name().IsEmpty());
    EXPECT_EQ(dtmC_DatumRef(), dtmC_DatumRef(cow_String()));
}

TEST(dtmC_DatumRef, EqualityIsThatOfTheNames)
{
    const dtmC_DatumRef first("Csys-1");
    EXPECT_EQ(first, dtmC_DatumRef("Csys-1"));
    EXPECT_TRUE(first != dtmC_DatumRef("csys-1"));
    EXPECT_TRUE(first != dtmC_DatumRef());
    EXPECT_FALSE(first != first);
}

TEST(dtmC_DatumRef, ACopySharesTheName)
{
    const dtmC_DatumRef first("Csys-1");
    const dtmC_DatumRef second(first);
    EXPECT_EQ(second.Name().CString(), first.Name().CString());
}
} // namespace
