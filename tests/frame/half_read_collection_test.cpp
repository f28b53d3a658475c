// A collection that cannot be read to its end gives back what it has read: the sanitizers' build looks for
// leaks.

#include "BrokenStore.h"
#include "tst_EveryKind.h"

#include <gtest/gtest.h>

namespace
{

tst_BranchElement Twig(int number)
{
    auto twig = std::make_unique<tst_Twig>();
    twig->number = number;
    return tst_BranchElement(twig.release());
}

void FillList(tst_EveryKind& object)
{
    for (int i = 0; i < 3; ++i)
        object.branches.Append(Twig(i));
}

void FillValueList(tst_EveryKind& object)
{
    for (int i = 0; i < 3; ++i)
        object.leaves.Append(tst_Leaf());
}

void FillMapByName(tst_EveryKind& object)
{
    for (int i = 0; i < 3; ++i)
        object.byName.InsertUnlessMember(std::to_string(i).c_str(), Twig(i));
}

void FillMapByNumber(tst_EveryKind& object)
{
    for (int i = 0; i < 3; ++i)
        object.byNumber.InsertUnlessMember(i, Twig(i));
}

struct Row
{
    const char* collection;
    void (*fill)(tst_EveryKind& object);
};

class HalfReadCollection : public testing::TestWithParam<Row>
{};

TEST_P(HalfReadCollection, IsReleasedWhenAnElementIsMissing)
{
    tst_RequireEveryKind();
    tst_EveryKind object;
    GetParam().fill(object);
    const BrokenStore store;
    store.Save(tst_EveryKind::TypeId(), &object);
    EXPECT_EQ("nothing thrown", store.MessageOfReading(tst_EveryKind::TypeId()));
    store.Execute("UPDATE rom_Element SET \"Target#OID\" = 99, \"##Check\" = NULL WHERE Position = 2");
    EXPECT_NE("nothing thrown", store.MessageOfReading(tst_EveryKind::TypeId()));
}

INSTANTIATE_TEST_SUITE_P(Library, HalfReadCollection,
                         testing::Values(Row{"List", FillList}, Row{"ValueList", FillValueList},
                                         Row{"MapByName", FillMapByName},
                                         Row{"MapByNumber", FillMapByNumber}),
                         [](const testing::TestParamInfo<Row>& info)
                         { return std::string(info.param.collection); });

} // namespace
