#include "dbc_DeclaredVersion.h"

#include "LibraryEnvironment.h"
#include "MemoryRow.h"
#include "QRTVdbKamC.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_Fields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

void* Upgrade_tst_Whole(const dbc_Row&, dbc_Row&, int)
{
    return nullptr;
}

void* Finish_tst_Whole(const dbc_Table&, dbc_Table&)
{
    return nullptr;
}

constexpr auto shared = dbc_Attributes(dbc_Int("first"), dbc_Bool("second"), dbc_Text("third"));

DBC_OLD_CLASS(tst_Plain, 100, dbc_Root(0x7F0001), dbc_Step(200), dbc_Enum(4, "kind"), dbc_Double(2, "size"))

DBC_OLD_CLASS(tst_Empty, 100, dbc_Derived(0x7F0002, 0x7F0001), dbc_NoStep, dbc_NoAttributes)

DBC_OLD_CLASS(tst_Shared, 100, dbc_Root(0x7F0003), dbc_Step(200), shared)

DBC_OLD_CLASS(tst_Shared, 200, dbc_Root(0x7F0003), dbc_Step(300, DBC_FUNCTION(Upgrade_tst_Whole)),
              dbc_Without(shared, "second"), dbc_Collection("fourth", cls_CollectionMapInt2Obj),
              dbc_Collection("fifth", cls_CollectionListText), dbc_Object("sixth", 0x2440001))

DBC_OLD_CLASS(tst_Retired, 300, dbc_Root(0x7F0004).Deleted().RenamedTo("tst_Successor"),
              dbc_Step(400, DBC_FUNCTION(Upgrade_tst_Whole), DBC_FUNCTION(Finish_tst_Whole)),
              dbc_NoAttributes)

/// A version that is an object with members, and moves tables.
class tst_Whole_300 : public dbc_DeclaredVersion
{
    DBC_OLD_FORM(tst_Whole, 300, dbc_Root(0x7F0005), dbc_Step(300), dbc_Int("count"))

    void TablesToRename(dbc_DatabaseConverter&) override { ++moves; }

    int moves = 0;
    std::vector<std::string> names = {"a", "b"};
};

std::string Described(dbc_OldClassVersion& version)
{
    cls_ClassRegistrar classes;
    version.InitializeMetadata(classes);
    const cls_ClassMetadata& form = *classes.At(0);
    std::string text = std::string(form.Name().View()) + ' ' + std::to_string(form.ClassId() & 0xFFFF) + ' ' +
                       std::to_string(form.Version()) + ' ' + std::to_string(form.BaseClassId() & 0xFFFF);
    for (const cls_AttributeMetadata& attribute : form.Attributes())
        text += ", " + std::to_string(attribute.field.Index()) + ' ' +
                std::string(attribute.field.Name().View()) + ' ' + std::to_string(attribute.type) + ' ' +
                std::to_string(attribute.typeId) + ' ' + std::to_string(attribute.collectionType);
    return text;
}

TEST(DeclaredVersion, DescribesTheOldForm)
{
    tst_Plain_100 plain;
    EXPECT_EQ("tst_Plain 1 100 1, 4 kind 14 1 0, 2 size 10 1 0", Described(plain));
    tst_Empty_100 empty;
    EXPECT_EQ("tst_Empty 2 100 1", Described(empty));
    tst_Shared_100 first;
    EXPECT_EQ("tst_Shared 3 100 1, 0 first 5 1 0, 1 second 13 1 0, 2 third 11 1 0", Described(first));
    tst_Shared_200 second;
    EXPECT_EQ("tst_Shared 3 200 1, 0 first 5 1 0, 1 third 11 1 0, 2 fourth 15 " + std::to_string(0x230002) +
                  " 3, 3 fifth 15 " + std::to_string(0x230001) + " 55, 4 sixth 15 " +
                  std::to_string(0x2440001) + " 0",
              Described(second));
    tst_Whole_300 whole;
    EXPECT_EQ("tst_Whole 5 300 1, 0 count 5 1 0", Described(whole));
}

TEST(DeclaredVersion, CannotBeBuiltFromItsRecord)
{
    cls_ClassRegistrar classes;
    tst_Plain_100().InitializeMetadata(classes);
    EXPECT_EQ(nullptr, classes.At(0)->Dtor());
}

TEST(DeclaredVersion, DeclaresItsOneStep)
{
    dbc_DatabaseConverter converter;
    tst_Plain_100().SchemaChanges(converter);
    tst_Shared_200().SchemaChanges(converter);
    tst_Retired_300().SchemaChanges(converter);
    tst_Empty_100().SchemaChanges(converter);
    tst_Whole_300().SchemaChanges(converter);
    ASSERT_EQ(3u, converter.Converters().size());

    const dbc_ClassConverter& plain = converter.GetConverter(200).Steps().at(0);
    EXPECT_EQ(cow_String("tst_Plain"), plain.Name());
    EXPECT_EQ(0x7F0001u, plain.ClassId());
    EXPECT_EQ(100, plain.FromVersion());
    EXPECT_EQ(nullptr, plain.ConversionFunction());
    EXPECT_EQ(nullptr, plain.FinalizeFunction());

    const std::deque<dbc_ClassConverter>& to300 = converter.GetConverter(300).Steps();
    ASSERT_EQ(2u, to300.size());
    EXPECT_EQ(&Upgrade_tst_Whole, to300[0].ConversionFunction());
    EXPECT_EQ(cow_String("Upgrade_tst_Whole"), to300[0].ConversionName());
    EXPECT_EQ(300, to300[1].FromVersion()) << "a class may ask for the converter of its own number";

    const dbc_ClassConverter& retired = converter.GetConverter(400).Steps().at(0);
    EXPECT_EQ(&Finish_tst_Whole, retired.FinalizeFunction());
    EXPECT_EQ(cow_String("Finish_tst_Whole"), retired.FinalizeName());
}

TEST(DeclaredVersion, DeletesARetiredClassFromBothSides)
{
    dbc_DatabaseConverter converter;
    converter.ClassesToDelete().Append(77u);
    for (cls_ClassRegistrar* classes : {&converter.InputClasses(), &converter.OutputClasses()})
        tst_Retired_300().InitializeMetadata(*classes);
    tst_Plain_100().ClassesToDelete(converter);
    ASSERT_EQ(1, converter.ClassesToDelete().Count());
    tst_Retired_300().ClassesToDelete(converter);
    ASSERT_EQ(2, converter.ClassesToDelete().Count());
    EXPECT_EQ(0x7F0004u, std::as_const(converter.ClassesToDelete())[0]) << "the last one stands in front";
    EXPECT_EQ(nullptr, converter.InputClasses().Find(0x7F0004));
    EXPECT_EQ(nullptr, converter.OutputClasses().Find(0x7F0004));
}

TEST(DeclaredVersion, RenamesAClass)
{
    dbc_DatabaseConverter converter;
    tst_Plain_100().ClassesToRename(converter);
    EXPECT_EQ(0, converter.ClassesToRename().Count());
    tst_Retired_300().ClassesToRename(converter);
    EXPECT_EQ(1, converter.ClassesToRename().Count());
    EXPECT_EQ(cow_String("tst_Successor"), *converter.ClassesToRename().ConstGet("tst_Retired"));
}

TEST(DeclaredVersion, MayBeAnObjectWithMembers)
{
    dbc_DatabaseConverter converter;
    tst_Whole_300 whole;
    dbc_OldClassVersion& version = whole;
    version.TablesToRename(converter);
    EXPECT_EQ(1, whole.moves);
    tst_Plain_100 plain;
    static_cast<dbc_OldClassVersion&>(plain).TablesToRename(converter);
    EXPECT_EQ(sizeof(dbc_OldClassVersion), sizeof plain) << "most versions hold nothing";
}

TEST(OldClasses, AreRegisteredOnceHoweverOftenTheirModuleComesUp)
{
    const dbc_OldClassRegistrar& registrar = *omi_Singleton<dbc_OldClassRegistrar>::Instance();
    const std::size_t count = registrar.Count();
    dbc_RegisterOldClasses<tst_Plain_100, tst_Shared_100>(5);
    dbc_RegisterOldClasses<tst_Shared_200, tst_Plain_100>(4);
    ASSERT_EQ(count + 3, registrar.Count());
    const std::vector<std::pair<const std::type_info*, unsigned>> expected = {
        {&typeid(tst_Plain_100), 5}, {&typeid(tst_Shared_100), 5}, {&typeid(tst_Shared_200), 4}};
    for (std::size_t i = 0; i < expected.size(); ++i)
    {
        const dbc_OldClassVersion& version = registrar.Version(count + i);
        EXPECT_EQ(*expected[i].first, typeid(version)) << i;
        EXPECT_EQ(expected[i].second, registrar.Mask(count + i)) << i;
    }
}

TEST(OldClasses, AreThereBeforeAnythingElseUsesThem)
{
    const dbc_OldClassRegistrar& registrar = *omi_Singleton<dbc_OldClassRegistrar>::Instance();
    EXPECT_GE(registrar.Count(), 7u) << "those of the amplitudes, after the library has come up";
}

TEST(MapText, WritesNewTextsForOldOnes)
{
    const rfm_FieldHandle field = dbc_Field("method");
    const std::initializer_list<dbc_TextPair> pairs = {{"OLD", "NEW"}, {"FIRST_CYCL", "FIRST_CYCLE"}};
    const struct
    {
        const char* input;
        MemoryRow::Fields from;
        dbc_Fold fold;
        MemoryRow::Fields to;
    } rows[] = {
        {"an old text", {{"method", "OLD"}}, dbc_Fold::None, {{"method", "NEW"}}},
        {"the second one", {{"method", "FIRST_CYCL"}}, dbc_Fold::None, {{"method", "FIRST_CYCLE"}}},
        {"another text", {{"method", "NEW"}}, dbc_Fold::None, {}},
        {"lower case", {{"method", "old"}}, dbc_Fold::None, {}},
        {"lower case, folded", {{"method", "old"}}, dbc_Fold::UpperCase, {{"method", "NEW"}}},
        {"part of an old text", {{"method", "OLDER"}}, dbc_Fold::UpperCase, {}},
        {"no value", {{"method", MemoryRow::none}}, dbc_Fold::None, {}},
        {"no field", {}, dbc_Fold::None, {}},
    };
    for (const auto& row : rows)
    {
        MemoryRow output;
        dbc_MapText(MemoryRow(row.from), output, field, pairs, row.fold);
        EXPECT_EQ(row.to, output.All()) << row.input;
    }
}

} // namespace
