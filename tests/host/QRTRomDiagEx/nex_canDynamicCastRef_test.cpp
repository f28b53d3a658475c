#include "nex_canDynamicCastRef.h"

#include "nex_Exceptions.h"
#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>
#include <iterator>

namespace
{
constexpr typ_Entry types[] = {
    {0, 1, nullptr}, {7, 1, "test_Root"}, {7, 0xF0100001, "test_Layer"}, {7, 0xF0100002, "test_Leaf"}};

class nex_canDynamicCastRefTest : public testing::Test
{
protected:
    void SetUp() override
    {
        typ_ArchCompTable::InsertEntry(0xF010, typ_ArchCompEntry(types, std::size(types)));
    }
    void TearDown() override { typ_ArchCompTable::RemoveEntry(0xF010); }
};

TEST_F(nex_canDynamicCastRefTest, LetsTheClassAndItsDescendantsPass)
{
    EXPECT_NO_THROW(nex_canDynamicCastRef(0xF0100001, 0xF0100001, "", 0));
    EXPECT_NO_THROW(nex_canDynamicCastRef(0xF0100001, 0xF0100002, "", 0));
    EXPECT_NO_THROW(nex_canDynamicCastRef(0xF0100001, 0xF0100003, "", 0));
    EXPECT_NO_THROW(nex_canDynamicCastRef(1, 0xF0100003, "", 0));
}

struct CastCase
{
    unsigned expected;
    unsigned actual;
    const char* message;
};

TEST_F(nex_canDynamicCastRefTest, NamesBothClassesOtherwise)
{
    const CastCase cases[] = {
        {0xF0100002, 0xF0100001,
         "Expected an object of class test_Layer (0xF0100002), found one of class test_Root (0xF0100001)."},
        {0xF0100003, 0xF0100002,
         "Expected an object of class test_Leaf (0xF0100003), found one of class test_Layer (0xF0100002)."},
        {0xF0100001, 0xF0990007,
         "Expected an object of class test_Root (0xF0100001), found one of an unknown class (0xF0990007)."},
        {0, 0xF0100001,
         "Expected an object of an unknown class (0x0), found one of class test_Root (0xF0100001)."},
    };
    for (const CastCase& cast : cases)
    {
        try
        {
            nex_canDynamicCastRef(cast.expected, cast.actual, "folder/unit", 12);
            ADD_FAILURE() << cast.message;
        }
        catch (const nex_CmdException<atr_String, 2>& caught)
        {
            EXPECT_STREQ(caught.what(), cast.message);
            EXPECT_STREQ(caught.File(), "folder/unit");
            EXPECT_EQ(caught.Line(), 12);
        }
    }
}
} // namespace
