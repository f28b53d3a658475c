// Descriptions of classes, the sets that hold them, and identities.

#include "cls_ExtQuant.h"
#include "cls_MetadataRegistrar.h"
#include "cls_Uid.h"
#include "nex_Exceptions.h"
#include "rom_Transporter.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using Bytes = std::array<unsigned char, cls_Uid::Size>;

Bytes BytesOf(const cls_Uid& uid)
{
    Bytes bytes{};
    uid.ToBytes(bytes.data());
    return bytes;
}

TEST(cls_Uid, IsBlankUntilItIsAllocated)
{
    cls_Uid uid;
    EXPECT_TRUE(uid.IsBlank());
    EXPECT_EQ(cls_Uid(), uid);
    uid.AllocateUid();
    EXPECT_FALSE(uid.IsBlank());
    EXPECT_NE(cls_Uid(), uid);
}

TEST(cls_Uid, IsFreshEachTime)
{
    std::set<Bytes> seen;
    cls_Uid uid;
    for (int i = 0; i < 1000; ++i)
    {
        const cls_Uid before = uid;
        if (i % 2 == 0)
            uid.AllocateUid();
        else
            uid.NewUid();
        EXPECT_NE(before, uid);
        EXPECT_TRUE(seen.insert(BytesOf(uid)).second) << i;
    }
}

TEST(cls_Uid, IsKeptByCopiesAndItsStoredForm)
{
    cls_Uid uid;
    uid.AllocateUid();
    const cls_Uid copy(uid);
    cls_Uid assigned;
    assigned = uid;
    EXPECT_EQ(uid, copy);
    EXPECT_EQ(uid, assigned);
    EXPECT_EQ(uid, cls_Uid::FromBytes(BytesOf(uid).data()));
    EXPECT_TRUE(cls_Uid::FromBytes(BytesOf(cls_Uid()).data()).IsBlank());
}

TEST(cls_Uid, IsNotTakenTwiceByAForkedProcess)
{
    cls_Uid first;
    first.AllocateUid();
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    const pid_t child = fork();
    ASSERT_NE(-1, child);
    cls_Uid next;
    next.AllocateUid();
    if (child == 0)
    {
        const Bytes bytes = BytesOf(next);
        const bool isWritten = write(ends[1], bytes.data(), bytes.size()) == cls_Uid::Size;
        _exit(isWritten ? 0 : 1);
    }
    Bytes fromChild{};
    EXPECT_EQ(static_cast<ssize_t>(cls_Uid::Size), read(ends[0], fromChild.data(), fromChild.size()));
    int status = 1;
    EXPECT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
    EXPECT_NE(BytesOf(next), fromChild);
    close(ends[0]);
    close(ends[1]);
}

TEST(cls_ClassRegistrar, ChainsWhatAddsToADescription)
{
    cls_ClassRegistrar registrar;
    auto* const metadata = new cls_ClassMetadata("test_Root", 0xF0200001, 203, nullptr, cls_RootId);
    EXPECT_EQ(metadata, registrar.AddClassMD(metadata));
    EXPECT_EQ(metadata,
              metadata->AddDtor([](cls_ErasedHandle*) {})
                  ->AddTableExtentQuantum(16)
                  ->AddAttribute(cls_FieldHandle(0, "a"), cls_TypeInt, cls_RootId, cls_CollectionNone)
                  ->AddAttribute(cls_FieldHandle(-1, "b"), cls_TypeObject, cls_ListTypeId,
                                 cls_CollectionListDouble));
    EXPECT_EQ(metadata, registrar.Find(0xF0200001));
    EXPECT_EQ(metadata->Name(), "test_Root");
    EXPECT_EQ(203, metadata->Version());
    EXPECT_FALSE(metadata->HasBase());
    EXPECT_NE(nullptr, metadata->Dtor());
    EXPECT_EQ(16, metadata->TableExtentQuantum());
    ASSERT_EQ(2u, metadata->Attributes().size());
    const cls_AttributeMetadata& second = metadata->Attributes()[1];
    EXPECT_EQ(-1, second.field.Index());
    EXPECT_EQ(second.field.Name(), "b");
    EXPECT_EQ(cls_TypeObject, second.type);
    EXPECT_EQ(cls_ListTypeId, second.typeId);
    EXPECT_EQ(cls_CollectionListDouble, second.collectionType);
}

TEST(cls_ClassRegistrar, MakesADescriptionInOneStep)
{
    cls_ClassRegistrar registrar;
    const cls_ClassMetadata* metadata =
        registrar.CreateClassMD("test_Layer", 0xF0200002, 430, nullptr, 0xF0200001);
    EXPECT_EQ(metadata, registrar.Find(0xF0200002));
    EXPECT_EQ(metadata->Name(), "test_Layer");
    EXPECT_EQ(0xF0200002u, metadata->ClassId());
    EXPECT_EQ(430, metadata->Version());
    EXPECT_EQ(0xF0200001u, metadata->BaseClassId());
    EXPECT_TRUE(metadata->HasBase());
    EXPECT_EQ(nullptr, metadata->Dtor());
    EXPECT_EQ(0, metadata->TableExtentQuantum());
    EXPECT_FALSE(metadata->IsConcrete());
}

TEST(cls_ClassRegistrar, TakesALaterDescriptionInPlaceOfAnEarlier)
{
    cls_ClassRegistrar registrar;
    registrar.CreateClassMD("test_A", 0xF0200001, 203, nullptr, cls_RootId);
    registrar.CreateClassMD("test_B", 0xF0200002, 203, nullptr, cls_RootId);
    registrar.CreateClassMD("test_A", 0xF0200001, 424, nullptr, cls_RootId);
    ASSERT_EQ(2u, registrar.Count());
    EXPECT_EQ(424, registrar.At(0)->Version());
    EXPECT_EQ(0xF0200002u, registrar.At(1)->ClassId());
}

TEST(cls_ClassRegistrar, DropsAClassByNameAndId)
{
    cls_ClassRegistrar registrar;
    registrar.CreateClassMD("test_A", 0xF0200001, 203, nullptr, cls_RootId);
    registrar.CreateClassMD("test_B", 0xF0200002, 203, nullptr, cls_RootId);
    registrar.DeleteClass("test_B", 0xF0200001);
    registrar.DeleteClass("test_A", 0xF0200003);
    EXPECT_EQ(2u, registrar.Count());
    registrar.DeleteClass("test_A", 0xF0200001);
    EXPECT_EQ(nullptr, registrar.Find(0xF0200001));
    ASSERT_EQ(1u, registrar.Count());
    EXPECT_EQ(registrar.At(0)->Name(), "test_B");
}

TEST(rom_Transporter, KnowsTheTablesOfItsClasses)
{
    cls_ClassRegistrar registrar;
    const cls_ClassMetadata* metadata =
        registrar.CreateClassMD("test_A", 0xF0200001, 203, nullptr, cls_RootId);
    const rom_Transporter transporter(registrar);
    EXPECT_EQ(metadata, transporter.GetTableMetadata(0xF0200001));
    EXPECT_EQ(nullptr, transporter.GetTableMetadata(0xF0200002));
}

TEST(cls_ExtQuant, GivesTwoStepsOfGrowth)
{
    const cls_ExtQuant& quanta = *omi_Singleton<cls_ExtQuant>::Instance();
    EXPECT_GT(quanta.ExtentQuantumConstSmall(), 0);
    EXPECT_GT(quanta.ExtentQuantumConstMedium(), quanta.ExtentQuantumConstSmall());
}

TEST(cls_ClassMetadata, SaysWhatItCannotDoByItself)
{
    cls_ClassRegistrar registrar;
    const cls_ClassMetadata& plain = *registrar.CreateClassMD("test_A", 0xF0200001, 203, nullptr, cls_RootId);
    const auto message = [](auto act)
    {
        try
        {
            act();
        }
        catch (const nex_CmdException<atr_String, 2>& error)
        {
            return std::string(error.what());
        }
        return std::string("nothing thrown");
    };
    int object = 0;
    EXPECT_EQ("The class test_A is described without a way to delete its objects.",
              message([&] { plain.Delete(&object); }));
    EXPECT_EQ("nothing thrown", message([&] { plain.Delete(nullptr); }));
    EXPECT_EQ("The class test_A has no root that can delete its handles.",
              message([&] { plain.DeleteCow(nullptr); }));
}

int described = 0;

void DescribeOnce(cls_ClassRegistrar& registrar)
{
    ++described;
    registrar.CreateClassMD("test_A", 0xF0200001, 203, nullptr, cls_RootId);
}

void DescribeOther(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("test_B", 0xF0200002, 203, nullptr, cls_RootId);
}

TEST(cls_MetadataRegistrar, CallsEachFunctionOnceWhenADescriptionIsAskedFor)
{
    described = 0;
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    const std::size_t count = registrar.Count();
    registrar.initClassMetadata(DescribeOnce);
    registrar.initClassMetadata(DescribeOnce, 3);
    registrar.initClassMetadata(DescribeOther, 4);
    EXPECT_EQ(count + 2, registrar.Count());
    EXPECT_EQ(0, described);
    ASSERT_NE(nullptr, registrar.Find(0xF0200001));
    EXPECT_EQ(1, described);
    EXPECT_EQ(7u, registrar.Mask(0xF0200001)) << "the default, and that of the first time";
    EXPECT_EQ(4u, registrar.Mask(0xF0200002));
    EXPECT_EQ(0u, registrar.Mask(0xF0200003));
    registrar.Classes();
    EXPECT_EQ(1, described);
}

} // namespace
