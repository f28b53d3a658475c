// What every class must do by itself.

#include "DDB_DeepCopyPtr.h"
#include "EveryClass.h"
#include "cls_MetadataRegistrar.h"
#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

TEST_P(EveryClass, IsDescribedByItsMetadata)
{
    const cls_ClassMetadata* metadata =
        omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(description.Id());
    ASSERT_NE(nullptr, metadata);
    EXPECT_EQ(metadata->Name(), description.Name());
    EXPECT_EQ(description.Id(), metadata->ClassId());
    EXPECT_EQ(description.Info().version, metadata->Version());
    EXPECT_EQ(description.Info().baseId, metadata->BaseClassId());
    EXPECT_EQ(!description.IsAbstract(), metadata->IsConcrete());
    EXPECT_EQ(!metadata->HasBase(), metadata->Dtor() != nullptr) << "roots alone delete handles";
    ASSERT_EQ(description.Attributes().size(), metadata->Attributes().size());
    for (std::size_t i = 0; i < description.Attributes().size(); ++i)
    {
        const cls_Attribute& declared = description.Attributes()[i];
        const cls_AttributeMetadata& stored = metadata->Attributes()[i];
        EXPECT_EQ(declared.field.Index(), stored.field.Index());
        EXPECT_EQ(declared.field.Name(), stored.field.Name());
        EXPECT_EQ(declared.kind->Type(), stored.type);
        EXPECT_EQ(declared.kind->TypeId(), stored.typeId);
        EXPECT_EQ(declared.kind->Collection(), stored.collectionType);
        EXPECT_EQ(stored.type == cls_TypeObject, stored.typeId != cls_RootId);
    }
}

TEST_P(EveryClass, HasARowInItsModulesTypeTable)
{
    EXPECT_STREQ(description.Name(), typ_ArchCompTable::GetName(description.Id()));
    EXPECT_EQ(description.Info().baseId, typ_ArchCompTable::Parent(description.Id()));
}

TEST_P(EveryClass, CountsItsAttributesFromZero)
{
    std::set<int> indices;
    std::set<std::string> names;
    std::set<std::string> words;
    for (const cls_Attribute& attribute : description.Attributes())
    {
        EXPECT_TRUE(attribute.field.Index() == -1 || indices.insert(attribute.field.Index()).second);
        EXPECT_TRUE(names.insert(attribute.field.Name().CString()).second)
            << attribute.field.Name().CString();
        EXPECT_TRUE(words.insert(attribute.word).second) << attribute.word;
    }
    EXPECT_EQ(0, indices.empty() ? 0 : *indices.begin());
}

TEST_P(EveryClass, HasEnumerationsWithoutDoubleTexts)
{
    for (const omu_EnumTable* table : description.Enums())
    {
        std::set<std::string> names;
        for (int row = 0; row < table->rowCount; ++row)
            EXPECT_TRUE(names.insert(table->rows[row].name).second) << table->rows[row].name;
        EXPECT_EQ(nullptr, table->rows[table->rowCount].name);
        EXPECT_EQ(0u, table->enumName.find(std::string(description.Name()) + "::")) << table->enumName;
    }
}

TEST_P(EveryConcreteClass, TakesAFreshIdentityByDefault)
{
    const cls_AnyObject one = NewObject();
    const cls_AnyObject other = NewObject();
    const std::vector<cls_Uid> uids = UidsOf(description, one.Get());
    const std::vector<cls_Uid> otherUids = UidsOf(description, other.Get());
    for (std::size_t layer = 0; layer < uids.size(); ++layer)
    {
        EXPECT_FALSE(uids[layer].IsBlank());
        EXPECT_NE(uids[layer], otherUids[layer]);
    }
}

TEST_P(EveryConcreteClass, KnowsItsActualClass)
{
    EXPECT_EQ(description.Id(), description.Info().dynTypeId(NewObject().Get()));
}

TEST_P(EveryConcreteClass, ExportsWhatItImported)
{
    for (std::uint32_t seed = 0; seed < seeds; ++seed)
    {
        cls_Value value;
        const cls_AnyObject object = RandomObject(seed, value);
        EXPECT_EQ(value, description.Export(object.Get())) << "seed " << seed;
    }
}

TEST_P(EveryConcreteClass, CopiesValuesAndIdentities)
{
    cls_Value value;
    const cls_AnyObject object = RandomObject(1, value);
    const cls_AnyObject copy(description, description.Info().copy(object.Get()));
    EXPECT_EQ(value, description.Export(copy.Get()));
    EXPECT_EQ(UidsOf(description, object.Get()), UidsOf(description, copy.Get()));
    cls_Value otherValue = RandomValue(2).ObjectOf(description);
    description.Import(copy.Get(), otherValue);
    EXPECT_EQ(value, description.Export(object.Get())) << "the copy's change reached its source";
}

TEST_P(EveryConcreteClass, IsReadBackAsItWasWritten)
{
    for (std::uint32_t seed = 0; seed < seeds; ++seed)
    {
        cls_Value value;
        const cls_AnyObject object = RandomObject(seed, value);
        const cls_AnyObject read(description, DDB_DeepCopyPtr(object.Get(), description.Id()));
        EXPECT_EQ(value, description.Export(read.Get())) << "seed " << seed;
        EXPECT_EQ(UidsOf(description, object.Get()), UidsOf(description, read.Get())) << "seed " << seed;
    }
}

TEST_P(EveryConcreteClass, RefusesAnUnknownAttribute)
{
    const cls_AnyObject object = NewObject();
    const cls_Value value(cls_Value::Object{{"noSuchAttribute", 1}});
    try
    {
        description.Import(object.Get(), value);
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_EQ("noSuchAttribute", error.Path());
        EXPECT_NE(std::string::npos, error.Message().find(description.Name()));
    }
}

INSTANTIATE_TEST_SUITE_P(Library, EveryClass, testing::ValuesIn(EveryClasses(false)), EveryClassName);
INSTANTIATE_TEST_SUITE_P(Library, EveryConcreteClass, testing::ValuesIn(EveryClasses(true)), EveryClassName);

} // namespace
