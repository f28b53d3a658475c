#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>
#include <iterator>

namespace
{
constexpr typ_Entry hostTypes[] = {{0, 1, nullptr}, {7, 1, "test_Root"}, {7, 0xF0010001, "test_Layer"}};
constexpr typ_Entry moduleTypes[] = {
    {0, 1, nullptr},
    {7, 1, "test_Base"},
    {7, 0xF0020001, "test_Derived"},
    {7, 0xF0010002, "test_AcrossModules"},
    {7, 0xF0FF0001, "test_OfUnknownModule"},
    {7, 0xF0020006, "test_CircleA"},
    {7, 0xF0020005, "test_CircleB"},
    {7, 0xF0020007, "test_OwnParent"},
    {7, 1, nullptr},
};

class typ_ArchCompTableTest : public testing::Test
{
protected:
    void SetUp() override
    {
        typ_ArchCompTable::InsertEntry(0xF002, typ_ArchCompEntry(moduleTypes, std::size(moduleTypes)));
        typ_ArchCompTable::InsertEntry(0xF001, typ_ArchCompEntry(hostTypes, std::size(hostTypes)));
    }
    void TearDown() override
    {
        typ_ArchCompTable::RemoveEntry(0xF001);
        typ_ArchCompTable::RemoveEntry(0xF002);
    }
};

TEST_F(typ_ArchCompTableTest, NamesClasses)
{
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xF0020001), "test_Base");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xF0010002), "test_Layer");
    for (const unsigned unknown :
         {0xF0020000u, 0xF0020008u, 0xF0020009u, 0xF002FFFFu, 0xF0FF0001u, 0u, 1u, 0xFFFFFFFFu})
        EXPECT_STREQ(typ_ArchCompTable::GetName(unknown), "") << unknown;
}

TEST_F(typ_ArchCompTableTest, TellsParents)
{
    EXPECT_EQ(typ_ArchCompTable::Parent(0xF0020002), 0xF0020001u);
    EXPECT_EQ(typ_ArchCompTable::Parent(0xF0020001), 1u);
    EXPECT_EQ(typ_ArchCompTable::Parent(0xF0020000), 0u);
    EXPECT_EQ(typ_ArchCompTable::Parent(0xF0FF0001), 0u);
    EXPECT_TRUE(typ_ArchCompTable::IsKnown(0xF0020008));
    EXPECT_FALSE(typ_ArchCompTable::IsKnown(0xF0020009));
    EXPECT_FALSE(typ_ArchCompTable::IsKnown(0xF0020000));
}

struct LineCase
{
    unsigned ancestor;
    unsigned descendant;
    bool isParent;
};

TEST_F(typ_ArchCompTableTest, FollowsTheLineOfParents)
{
    const LineCase cases[] = {
        {0xF0020001, 0xF0020002, true},
        {0xF0020002, 0xF0020001, false},
        {0xF0020002, 0xF0020002, false},
        {1, 0xF0020002, true},
        {1, 1, false},
        {0xF0010002, 0xF0020003, true},
        {0xF0010001, 0xF0020003, true},
        {0xF0020001, 0xF0020003, false},
        {0xF0FF0001, 0xF0020004, true},
        {1, 0xF0020004, false},
        {0xF0020001, 0xF0FF0001, false},
        {0xF0FF0001, 0xF0FF0001, false},
        {0xF0020005, 0xF0020006, true},
        {0xF0020001, 0xF0020005, false},
        {0xF0020005, 0xF0020005, false},
        {0xF0020007, 0xF0020007, false},
        {0xF0020001, 0xF0020007, false},
        {1, 0xF0020000, false},
    };
    for (const LineCase& line : cases)
        EXPECT_EQ(typ_ArchCompTable::IsParent(line.ancestor, line.descendant), line.isParent)
            << std::hex << line.ancestor << " of " << line.descendant;
}

TEST_F(typ_ArchCompTableTest, ListsModulesFromTheLowestOn)
{
    const std::vector<unsigned short> modules = typ_ArchCompTable::Modules();
    const std::vector<unsigned short> expected{0xF001, 0xF002};
    EXPECT_EQ(modules, expected);
    EXPECT_EQ(typ_ArchCompTable::Entry(0xF002).Rows(), moduleTypes);
    EXPECT_EQ(typ_ArchCompTable::Entry(0xF002).Count(), std::size(moduleTypes));
    EXPECT_EQ(typ_ArchCompTable::Entry(0xF003).Count(), 0u);
}

TEST_F(typ_ArchCompTableTest, FindsNames)
{
    EXPECT_EQ(typ_ArchCompTable::FindByName("test_AcrossModules"), 0xF0020003u);
    EXPECT_EQ(typ_ArchCompTable::FindByName("test_Nothing"), 0u);
    EXPECT_EQ(typ_ArchCompTable::FindByName(""), 0u);
    constexpr typ_Entry same[] = {{0, 1, nullptr}, {7, 1, "test_Base"}, {7, 1, "test_Added"}};
    typ_ArchCompTable::InsertEntry(0xF003, typ_ArchCompEntry(same, 3));
    EXPECT_EQ(typ_ArchCompTable::FindByName("test_Added"), 0xF0030002u);
    EXPECT_EQ(typ_ArchCompTable::FindByName("test_Base"), 0xF0020001u);
    typ_ArchCompTable::RemoveEntry(0xF003);
    EXPECT_EQ(typ_ArchCompTable::FindByName("test_Added"), 0u);
}

TEST_F(typ_ArchCompTableTest, AModuleEnteredAgainReplacesItself)
{
    typ_ArchCompTable::InsertEntry(0xF002, typ_ArchCompEntry(hostTypes, std::size(hostTypes)));
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xF0020001), "test_Root");
    EXPECT_FALSE(typ_ArchCompTable::IsKnown(0xF0020003));
    EXPECT_EQ(typ_ArchCompTable::Modules().size(), 2u);
}

TEST_F(typ_ArchCompTableTest, AModuleWithTheReservedRowAloneIsEntered)
{
    constexpr typ_Entry reserved[] = {{0, 1, nullptr}};
    typ_ArchCompTable::InsertEntry(0xFFFF, typ_ArchCompEntry(reserved, 1));
    EXPECT_EQ(typ_ArchCompTable::Modules().back(), 0xFFFF);
    EXPECT_FALSE(typ_ArchCompTable::IsKnown(0xFFFF0000));
    typ_ArchCompTable::RemoveEntry(0xFFFF);
    EXPECT_EQ(typ_ArchCompTable::Modules().size(), 2u);
}
} // namespace
