// Lists that hold their elements by value cannot hold just any element that a store may have.

#include "BrokenStore.h"
#include "tst_EveryKind.h"

#include <gtest/gtest.h>

namespace
{

class ValueList : public testing::Test
{
protected:
    ValueList()
    {
        tst_RequireEveryKind();
        tst_EveryKind object;
        object.leaves.Append(tst_Leaf());
        Save(tst_EveryKind::TypeId(), &object);
    }

    void Save(unsigned classId, const void* object) const { store.Save(classId, object); }

    void Execute(const char* sql) const { store.Execute(sql); }

    std::string MessageOfReading(unsigned classId = tst_EveryKind::TypeId()) const
    {
        return store.MessageOfReading(classId);
    }

    BrokenStore store;
};

TEST_F(ValueList, IsReadAsItIs)
{
    EXPECT_EQ("nothing thrown", MessageOfReading());
}

TEST_F(ValueList, RefusesAnAbsentElement)
{
    Execute("UPDATE rom_Element SET \"Target#OID\" = NULL, \"##Check\" = NULL WHERE \"Target#ClassID\" = "
            "0x7F000001");
    EXPECT_EQ("an element that is no object of class tst_Leaf", MessageOfReading());
}

TEST_F(ValueList, RefusesAnElementOfADerivedClass)
{
    tst_RequireTwigHolder();
    tst_TwigHolder object;
    object.branches.Append(tst_BranchElement(new tst_Wing));
    object.twigs.Append(tst_Twig());
    Save(tst_TwigHolder::TypeId(), &object);
    EXPECT_EQ("nothing thrown", MessageOfReading(tst_TwigHolder::TypeId()));
    // The list of twigs takes over the element of the list of branches.
    Execute("UPDATE rom_Element SET \"Target#ClassID\" = 0x7F000005, \"Target#OID\" = 1, \"##Check\" = NULL"
            " WHERE \"Target#ClassID\" = 0x7F000003");
    EXPECT_EQ("an element that is no object of class tst_Twig", MessageOfReading(tst_TwigHolder::TypeId()));
}

TEST_F(ValueList, TakesANewIdentityWithANewValue)
{
    cls_xoList<rgnC_Region> regions;
    const cls_Uid first = regions.Uid();
    cow_List<rgnC_Region> plain;
    plain.Append(rgnC_Region("Set-1"));
    regions = plain;
    EXPECT_NE(first, regions.Uid());
    const cls_Uid second = regions.Uid();
    cls_xoList<rgnC_Region>& same = regions;
    regions = same;
    EXPECT_EQ(second, regions.Uid());
    EXPECT_EQ(1, regions.Count());
}

TEST_F(ValueList, IsImportedWholeOrNotAtAll)
{
    const cls_Description& description = tst_EveryKind::Description();
    tst_EveryKind object;
    object.regions.Append(rgnC_Region("kept"));
    const cls_Value wrong(cls_Value::Object{
        {"regions", cls_Value::Array{cls_Value::Object{{"name", "new"}}, cls_Value::Object{{"flags", 1}}}}});
    try
    {
        description.Import(&object, wrong);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_STREQ("regions[1].flags: no such member; there are name, flag, kinds", error.what());
    }
    ASSERT_EQ(1, object.regions.Count());
    EXPECT_STREQ("kept", object.regions[0].Name().CString());
}

} // namespace
