#include "BrokenStore.h"
#include "tst_EveryKind.h"

#include <gtest/gtest.h>

namespace
{

class Pending : public testing::Test
{
protected:
    Pending()
    {
        tst_RequireEveryKind();
        tst_EveryKind object;
        object.branch = tst_BranchHandle(new tst_Twig);
        store.Save(tst_EveryKind::TypeId(), &object);
    }

    BrokenStore store;
};

TEST_F(Pending, IsStoredAndReadAsAbsent)
{
    EXPECT_EQ("nothing thrown", store.MessageOfReading(tst_EveryKind::TypeId()));
}

TEST_F(Pending, RefusesAnObjectThatIsThere)
{
    store.Execute("UPDATE tst_EveryKind SET \"pending#ClassID\" = 0x7F000003, \"pending#OID\" = 1, "
                  "\"##Check\" = NULL");
    EXPECT_EQ("an object of class tst_Twig, which no attribute can hold yet",
              store.MessageOfReading(tst_EveryKind::TypeId()));
}

TEST_F(Pending, TakesNullAndNothingElse)
{
    const cls_Description& description = tst_EveryKind::Description();
    tst_EveryKind object;
    EXPECT_NO_THROW(description.Import(&object, cls_Value::Object{{"pending", cls_Value()}}));
    try
    {
        description.Import(&object, cls_Value::Object{{"pending", 5}});
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_STREQ("pending: expected null, as the class tst_Twig is not built, found 5", error.what());
    }
}

} // namespace
