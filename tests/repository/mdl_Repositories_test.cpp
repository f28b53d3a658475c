#include "mdl_TestContainers.h"

#include "MementoMocks.h"
#include "VirtualSlot.h"
#include "ddr_Model.h"
#include "omu_ChangeHistory.h"
#include "thr_ThreadSingleton.h"

#include <functional>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

class Repositories : public testing::Test
{
protected:
    void SetUp() override
    {
        tst_RegisterContainers();
        History().Clear();
    }

    static omu_ChangeHistory& History() { return *thr_ThreadSingleton<omu_ChangeHistory>::Instance(); }

    /// The changes since the last call, as text.
    static std::string Changes()
    {
        const std::string text = History().AsText().CString();
        History().Clear();
        return text;
    }

    template <class K>
    static std::string TextOf(const cow_List<K>& list)
    {
        omu_PrimTuple tuple;
        tuple.Put(list);
        return tuple[0].AsRepr().CString();
    }
};

TEST_F(Repositories, BeginEmpty)
{
    kamC_AmplitudeContainer named;
    EXPECT_TRUE(named.IsEmpty());
    EXPECT_EQ(named.Size(), 0);
    EXPECT_FALSE(named.IsChanged());
    EXPECT_TRUE(named.Path().IsEmpty());
    EXPECT_GT(named.TimeStamp(), 0.0);
    EXPECT_EQ(named.DeltaList().Count(), 0);
    EXPECT_STREQ(kamC_AmplitudeContainer::DBClassName(), "kamC_AmplitudeContainer");
    EXPECT_EQ(named.GetValue(), &named);
    EXPECT_EQ(Changes(), "");
}

TEST_F(Repositories, InsertionsAreRecorded)
{
    kamC_AmplitudeContainer named;
    EXPECT_TRUE(named.Insert("A", NewDecay(1.0)));
    EXPECT_EQ(History().At(0).change.Capacity(), 4);
    EXPECT_EQ(Changes(), "(\"Insert\", \"A\", -99)\n");
    EXPECT_TRUE(named.IsChanged());
    EXPECT_TRUE(named.IsMember("A"));
    EXPECT_FALSE(named.IsEmpty());
    EXPECT_EQ(TextOf(named.DeltaList()), "('A',)");
}

TEST_F(Repositories, AClashOfNamesIsARemovalAndAnInsertion)
{
    kamC_AmplitudeContainer named;
    named.Insert("A", NewDecay(1.0));
    Changes();
    EXPECT_TRUE(named.Insert("A", NewDecay(2.0)));
    EXPECT_EQ(History().At(0).change.Capacity(), 2);
    EXPECT_EQ(Changes(), "(\"Remove\", \"A\")\n(\"Insert\", \"A\", -99)\n");
    EXPECT_EQ(named.Size(), 1);
    EXPECT_EQ(InitialOf(named.ConstGet("A")), 2.0);
}

TEST_F(Repositories, ReportUnderTheirPath)
{
    kamC_AmplitudeContainer named("amplitudes");
    named.Insert("A", NewDecay(1.0));
    named.Get("A");
    named.Remove("A");
    EXPECT_EQ(Changes(), "amplitudes: (\"Insert\", \"A\", -99)\namplitudes: (\"Modify\", \"A\")\n"
                         "amplitudes: (\"Remove\", \"A\")\n");
    EXPECT_EQ(named.Path(), "amplitudes");
}

TEST_F(Repositories, WritableAccessIsAChange)
{
    kamC_AmplitudeContainer named;
    named.Insert("A", NewDecay(1.0));
    Changes();
    const double before = named.TimeStamp();
    EXPECT_NE(named.Get("A"), nullptr);
    EXPECT_EQ(History().At(0).change.Capacity(), 4);
    EXPECT_EQ(History().At(0).change.Count(), 2);
    EXPECT_EQ(Changes(), "(\"Modify\", \"A\")\n");
    EXPECT_GT(named.TimeStamp(), before);
}

TEST_F(Repositories, WritableAccessToAnAbsentNameIsAChangeToo)
{
    kamC_AmplitudeContainer named;
    const double before = named.TimeStamp();
    EXPECT_EQ(named.Get("B"), nullptr);
    EXPECT_EQ(Changes(), "(\"Modify\", \"B\")\n");
    EXPECT_EQ(TextOf(named.DeltaList()), "('B',)");
    EXPECT_GT(named.TimeStamp(), before);
    EXPECT_FALSE(named.IsMember("B"));
    EXPECT_EQ(named.Size(), 0);
}

TEST_F(Repositories, ReadingChangesNothing)
{
    kamC_AmplitudeContainer named;
    named.Insert("A", NewDecay(1.0));
    Changes();
    const double before = named.TimeStamp();
    const std::string delta = TextOf(named.DeltaList());
    EXPECT_NE(named.ConstGet("A"), nullptr);
    EXPECT_EQ(named.ConstGet("B"), nullptr);
    EXPECT_EQ(named.TimeStamp(), before);
    EXPECT_EQ(TextOf(named.DeltaList()), delta);
    EXPECT_EQ(Changes(), "");
}

TEST_F(Repositories, AnEmptyNameIsRecordedButNoDelta)
{
    kamC_AmplitudeContainer named;
    EXPECT_TRUE(named.Insert("", NewDecay(1.0)));
    EXPECT_NE(named.Get(""), nullptr);
    EXPECT_TRUE(named.Remove(""));
    EXPECT_EQ(Changes(), "(\"Insert\", \"\", -99)\n(\"Modify\", \"\")\n(\"Remove\", \"\")\n");
    EXPECT_EQ(named.DeltaList().Count(), 0);
    named.UpdateTimeStamp("");
    EXPECT_EQ(named.DeltaList().Count(), 0);
}

TEST_F(Repositories, RemovalTellsWhetherTheNameWasThere)
{
    kamC_AmplitudeContainer named;
    const double before = named.TimeStamp();
    EXPECT_FALSE(named.Remove("A"));
    EXPECT_EQ(named.TimeStamp(), before);
    EXPECT_EQ(named.DeltaList().Count(), 0);
    EXPECT_EQ(Changes(), "");
    named.Insert("A", NewDecay(1.0));
    EXPECT_TRUE(named.Remove("A"));
    EXPECT_EQ(named.Size(), 0);
}

TEST_F(Repositories, EveryChangeTakesTheTimeAndItsNameIntoTheDelta)
{
    const struct
    {
        const char* what;
        std::function<void(kamC_AmplitudeContainer&)> change;
        const char* recorded;
    } rows[] = {
        {"insert", [](auto& named) { named.Insert("B", NewDecay(1.0)); }, "(\"Insert\", \"B\", -99)\n"},
        {"replace", [](auto& named) { named.Insert("B", NewDecay(2.0)); },
         "(\"Remove\", \"B\")\n(\"Insert\", \"B\", -99)\n"},
        {"access", [](auto& named) { named.Get("B"); }, "(\"Modify\", \"B\")\n"},
        {"remove", [](auto& named) { named.Remove("B"); }, "(\"Remove\", \"B\")\n"},
        {"update", [](auto& named) { named.UpdateTimeStamp("B"); }, ""},
    };
    kamC_AmplitudeContainer named;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.what);
        const double before = named.TimeStamp();
        Changes();
        row.change(named);
        EXPECT_GT(named.TimeStamp(), before);
        EXPECT_EQ(Changes(), row.recorded);
        EXPECT_EQ(TextOf(named.DeltaList()), "('B',)");
    }
}

TEST_F(Repositories, TheDeltaGrowsOnlyAndStaysInOrder)
{
    kamC_AmplitudeContainer named;
    for (const char* name : {"C", "A", "B"})
        named.Insert(name, NewDecay(1.0));
    named.Remove("C");
    named.UpdateTimeStamp("D");
    EXPECT_EQ(TextOf(named.DeltaList()), "('A', 'B', 'C', 'D')");
    named.Clear();
    EXPECT_EQ(TextOf(named.DeltaList()), "('A', 'B', 'C', 'D')");
    EXPECT_TRUE(named.IsEmpty());
    EXPECT_EQ(TextOf(named.Keys()), "()");
}

TEST_F(Repositories, CopiesShareUntilOneIsChanged)
{
    kamC_AmplitudeContainer named("amplitudes");
    named.Insert("A", NewDecay(1.0));
    const std::unique_ptr<kamC_AmplitudeContainer> copy(named.Copy());
    EXPECT_EQ(copy->ConstGet("A"), named.ConstGet("A"));
    EXPECT_EQ(copy->Uid(), named.Uid());
    EXPECT_EQ(copy->Path(), "amplitudes");
    copy->Insert("B", NewDecay(2.0));
    EXPECT_FALSE(named.IsMember("B"));
    dynamic_cast<kamC_Decay&>(*copy->Get("A")).initial = 7.0;
    EXPECT_EQ(InitialOf(named.ConstGet("A")), 1.0);
    EXPECT_EQ(InitialOf(copy->ConstGet("A")), 7.0);
}

TEST_F(Repositories, AnAssignedOneIsTheSameRow)
{
    kamC_AmplitudeContainer named;
    named.Insert("A", NewDecay(1.0));
    kamC_AmplitudeContainer other;
    other = named;
    EXPECT_EQ(other.Uid(), named.Uid());
    EXPECT_EQ(other.ConstGetMap().Uid(), named.ConstGetMap().Uid());
    EXPECT_EQ(other.ConstGet("A"), named.ConstGet("A"));
}

TEST_F(Repositories, InsertInEveryForm)
{
    kamC_AmplitudeContainer named;
    kamC_Decay decay;
    decay.initial = 3.0;
    EXPECT_TRUE(named.Insert("copy", decay));
    EXPECT_NE(named.ConstGet("copy"), &decay);
    const kamC_AmplitudeContainer::Handle handle(NewDecay(4.0));
    EXPECT_TRUE(named.Insert("share", handle));
    EXPECT_EQ(handle.ShareCount(), 2);
    EXPECT_EQ(named.ConstGet("share"), handle.ConstGet());
    EXPECT_TRUE(named.Insert("nothing", kamC_AmplitudeContainer::Handle()));
    EXPECT_TRUE(named.IsMember("nothing"));
    EXPECT_EQ(named.Get("nothing"), nullptr);
    EXPECT_EQ(TextOf(named.Keys()), "('copy', 'nothing', 'share')");
}

TEST_F(Repositories, TakeAnObjectOfTheirOwnAgain)
{
    kamC_AmplitudeContainer named;
    named.Insert("A", NewDecay(1.0));
    const kamC_Amplitude* object = named.ConstGet("A");
    Changes();
    const auto& entry = **named.ConstGetMap().Root();
    EXPECT_TRUE(named.Insert(entry.Key(), entry.Value()));
    EXPECT_EQ(named.ConstGet("A"), object);
    EXPECT_EQ(Changes(), "(\"Remove\", \"A\")\n(\"Insert\", \"A\", -99)\n");
    EXPECT_TRUE(named.Remove((*named.ConstGetMap().Root())->Key()));
    EXPECT_EQ(Changes(), "(\"Remove\", \"A\")\n");
    EXPECT_EQ(TextOf(named.DeltaList()), "('A',)");
}

TEST_F(Repositories, ByNumberRecordTheNumber)
{
    tst_Numbered numbered("numbered");
    EXPECT_TRUE(numbered.Insert(7, NewDecay(1.0)));
    EXPECT_TRUE(numbered.Insert(-2, NewDecay(2.0)));
    EXPECT_TRUE(numbered.Insert(7, NewDecay(3.0)));
    EXPECT_EQ(InitialOf(numbered.Get(7)), 3.0);
    EXPECT_EQ(numbered.Get(8), nullptr);
    EXPECT_TRUE(numbered.Remove(7));
    EXPECT_FALSE(numbered.Remove(7));
    EXPECT_EQ(Changes(), "numbered: (\"Insert\", 7, -99)\nnumbered: (\"Insert\", -2, -99)\n"
                         "numbered: (\"Remove\", 7)\nnumbered: (\"Insert\", 7, -99)\n"
                         "numbered: (\"Modify\", 7)\nnumbered: (\"Modify\", 8)\nnumbered: (\"Remove\", 7)\n");
    EXPECT_EQ(TextOf(numbered.Keys()), "(-2,)");
    EXPECT_EQ(numbered.ConstGet(7), nullptr);
    const double before = numbered.TimeStamp();
    numbered.UpdateTimeStamp();
    EXPECT_GT(numbered.TimeStamp(), before);
}

TEST_F(Repositories, ByPositionKeepTheOrder)
{
    tst_Ordered ordered;
    EXPECT_TRUE(ordered.Insert(0, NewDecay(1.0)));
    EXPECT_TRUE(ordered.Insert(1, NewDecay(3.0)));
    EXPECT_TRUE(ordered.Insert(1, NewDecay(2.0)));
    EXPECT_FALSE(ordered.Insert(4, NewDecay(9.0)));
    EXPECT_FALSE(ordered.Insert(-1, NewDecay(9.0)));
    ASSERT_EQ(ordered.Size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(InitialOf(ordered.ConstGet(i)), i + 1.0);
    EXPECT_EQ(ordered.ConstGet(3), nullptr);
    EXPECT_EQ(ordered.ConstGet(-1), nullptr);
    Changes();
    EXPECT_EQ(InitialOf(ordered.Get(2)), 3.0);
    EXPECT_EQ(ordered.Get(3), nullptr);
    EXPECT_TRUE(ordered.Remove(0));
    EXPECT_FALSE(ordered.Remove(2));
    EXPECT_EQ(Changes(), "(\"Modify\", 2)\n(\"Modify\", 3)\n(\"Remove\", 0)\n");
    EXPECT_EQ(InitialOf(ordered.ConstGet(0)), 2.0);

    const std::unique_ptr<tst_Ordered> copy(ordered.Copy());
    dynamic_cast<kamC_Decay&>(*copy->Get(0)).initial = 8.0;
    EXPECT_EQ(InitialOf(ordered.ConstGet(0)), 2.0);
}

/// A repository of the kind with two objects and an empty place.
template <class R>
R Filled();

template <>
kamC_AmplitudeContainer Filled()
{
    kamC_AmplitudeContainer named;
    named.Insert("a", NewDecay(1.0));
    named.Insert("b", new kamC_Tabular);
    named.Insert("c", kamC_AmplitudeContainer::Handle());
    return named;
}

template <>
tst_Numbered Filled()
{
    tst_Numbered numbered;
    numbered.Insert(-1, NewDecay(1.0));
    numbered.Insert(4, new kamC_Tabular);
    numbered.Insert(5, tst_Numbered::Handle());
    return numbered;
}

template <>
tst_Ordered Filled()
{
    tst_Ordered ordered;
    ordered.Insert(0, NewDecay(1.0));
    ordered.Insert(1, new kamC_Tabular);
    ordered.Insert(2, tst_Ordered::Handle());
    return ordered;
}

template <class R>
class StoredRepository : public testing::Test
{
protected:
    void SetUp() override { tst_RegisterContainers(); }

    static cls_Value ValueOf(const R& repository)
    {
        return R::Description().Export(static_cast<const mdl_Extension*>(&repository));
    }
};

using Kinds = testing::Types<kamC_AmplitudeContainer, tst_Numbered, tst_Ordered>;
TYPED_TEST_SUITE(StoredRepository, Kinds);

TYPED_TEST(StoredRepository, IsReadBackAsItWasWritten)
{
    const TypeParam repository = Filled<TypeParam>();
    const std::unique_ptr<TypeParam> read(repository.DeepCopy());
    EXPECT_EQ(this->ValueOf(*read), this->ValueOf(repository));
    EXPECT_EQ(read->Uid(), repository.Uid());
    EXPECT_EQ(read->Size(), 3);
    EXPECT_FALSE(read->IsChanged());
    EXPECT_TRUE(read->Path().IsEmpty());
    EXPECT_GT(read->TimeStamp(), repository.TimeStamp());
}

TYPED_TEST(StoredRepository, IsReadBackWithinItsWrapper)
{
    const TypeParam repository = Filled<TypeParam>();
    const mdl_ExtensionWrapper<TypeParam> wrapper(repository);
    const mdl_Extension* root = &wrapper;
    const std::unique_ptr<mdl_Extension> read(
        static_cast<mdl_Extension*>(DDB_DeepCopyPtr(root, wrapper.DynTypeId())));
    const auto& inner = dynamic_cast<const TypeParam&>(*read->ConstGetValue());
    EXPECT_EQ(this->ValueOf(inner), this->ValueOf(repository));
    EXPECT_EQ(inner.Uid(), repository.Uid());
}

TYPED_TEST(StoredRepository, IsHeldByItsWrapperAsACopy)
{
    TypeParam repository = Filled<TypeParam>();
    mdl_ExtensionWrapper<TypeParam> wrapper(repository);
    EXPECT_NE(wrapper.ConstGetValue(), &repository);
    EXPECT_EQ(wrapper.ConstGetValue(), wrapper.GetValue());
    repository.Clear();
    EXPECT_EQ(wrapper.ConstGetValue()->Size(), 3);
    const std::unique_ptr<mdl_Extension> copy(wrapper.Copy());
    dynamic_cast<TypeParam&>(*copy->GetValue()).Clear();
    EXPECT_EQ(wrapper.ConstGetValue()->Size(), 3);
    const cls_Uid before = wrapper.Uid();
    wrapper.NewUid();
    EXPECT_NE(wrapper.Uid(), before);
}

/// The rows that the writing of an extension begins: class id and identity. The fields in between are noted
/// by their name, under number 0.
class BegunRows
{
public:
    struct Row
    {
        unsigned classId;
        cls_Uid uid;
        std::string field;
    };

    explicit BegunRows(const mdl_Extension& extension, bool isWrittenAlready = false)
    {
        using testing::_;
        using testing::Return;
        ON_CALL(memento, StartWrite)
            .WillByDefault(
                [this, isWrittenAlready](unsigned classId, const cls_Uid& uid)
                {
                    rows.push_back({classId, uid, ""});
                    return isWrittenAlready ? 0 : 1;
                });
        ON_CALL(memento, OpenBase).WillByDefault(Return(&memento));
        ON_CALL(memento, OpenField)
            .WillByDefault(
                [this](const cls_FieldHandle& field, const cls_ErasedHandle*)
                {
                    EXPECT_EQ(field.Index(), -1);
                    rows.push_back({0, cls_Uid(), field.Name().CString()});
                    return &memento;
                });
        ON_CALL(memento, OpenList).WillByDefault(Return(&list));
        ON_CALL(memento, OpenMapString2Obj).WillByDefault(Return(&map));
        ON_CALL(memento, OpenMapInt2Obj).WillByDefault(Return(&numberedMap));
        extension.DBWrite(cls_WriteVisitor(&memento));
    }

    /// As "0xA0001 0xA000D map 0x230002".
    std::string AsText() const
    {
        std::ostringstream text;
        for (const Row& row : rows)
        {
            text << (text.tellp() == 0 ? "" : " ");
            if (row.field.empty())
                text << "0x" << std::hex << std::uppercase << row.classId;
            else
                text << row.field;
        }
        return text.str();
    }

    cls_Uid UidOf(unsigned classId) const
    {
        for (const Row& row : rows)
        {
            if (row.classId == classId)
                return row.uid;
        }
        return cls_Uid();
    }

private:
    testing::NiceMock<WriteMementoMock> memento;
    testing::NiceMock<WriteListMock> list;
    testing::NiceMock<WriteMapMock<cls_WriteMapString2Obj, const cow_String&>> map;
    testing::NiceMock<WriteMapMock<cls_WriteMapInt2Obj, int>> numberedMap;
    std::vector<Row> rows;
};

TEST_F(Repositories, WriteTheirBaseThenTheirCollection)
{
    EXPECT_EQ(BegunRows(kamC_AmplitudeContainer()).AsText(), "0x244000C 0xA0001 0xA000D map 0x230002");
    EXPECT_EQ(BegunRows(tst_Numbered()).AsText(), "0x3E70001 0xA0001 0xA000D map 0x230002");
    EXPECT_EQ(BegunRows(tst_Ordered()).AsText(), "0x3E70003 0xA0001 0xA000D list 0x230001");
    EXPECT_EQ(BegunRows(kamC_ACWrapper()).AsText(),
              "0x2440017 0xA000D extension 0x244000C 0xA0001 0xA000D map 0x230002");
    EXPECT_EQ(BegunRows(kamC_AmplitudeContainer(), true).AsText(), "0x244000C") << "once is enough";
    EXPECT_EQ(BegunRows(kamC_ACWrapper(), true).AsText(), "0x2440017");
}

TEST_F(Repositories, CountAsChangedAfterReadingIfTheReaderSaysSo)
{
    using testing::Return;
    testing::NiceMock<ReadMementoMock> memento;
    testing::NiceMock<ReadMapMock<cls_ReadMapString2Obj, cow_String>> noRows;
    ON_CALL(memento, OpenBase).WillByDefault(Return(&memento));
    ON_CALL(memento, OpenField).WillByDefault(Return(&memento));
    ON_CALL(memento, OpenMapString2Obj).WillByDefault(Return(&noRows));
    EXPECT_FALSE(kamC_AmplitudeContainer(cls_ReadVisitor(&memento)).IsChanged());
    EXPECT_FALSE(kamC_AmplitudeContainer(cls_ReadVisitor(&memento), false).IsChanged());
    EXPECT_TRUE(kamC_AmplitudeContainer(cls_ReadVisitor(&memento), true).IsChanged());
}

TYPED_TEST(StoredRepository, TakesANewIdentityInEveryLayer)
{
    using Wrapper = mdl_ExtensionWrapper<TypeParam>;
    const auto check = [](mdl_Extension& extension, std::initializer_list<unsigned> layers)
    {
        const BegunRows before(extension);
        extension.NewUid();
        const BegunRows after(extension);
        for (const unsigned layer : layers)
        {
            EXPECT_FALSE(after.UidOf(layer).IsBlank());
            EXPECT_NE(after.UidOf(layer), before.UidOf(layer)) << std::hex << layer;
        }
    };
    TypeParam repository;
    check(repository, {TypeParam::TypeId(), mdl_Repository::TypeId(), mdl_Extension::TypeId()});
    Wrapper wrapper;
    check(wrapper, {Wrapper::TypeId(), mdl_Extension::TypeId()});
}

TYPED_TEST(StoredRepository, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(VirtualSlotOf(&TypeParam::Copy), 2u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::GetValue), 3u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::ConstGetValue), 4u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::DynTypeId), 5u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::DBWrite), 6u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::NewUid), 7u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::Size), 8u);
    EXPECT_EQ(VirtualSlotOf(&TypeParam::DeepCopy), 9u);
    using Wrapper = mdl_ExtensionWrapper<TypeParam>;
    EXPECT_EQ(VirtualSlotOf(&Wrapper::Copy), 2u);
    EXPECT_EQ(VirtualSlotOf(&Wrapper::GetValue), 3u);
    EXPECT_EQ(VirtualSlotOf(&Wrapper::ConstGetValue), 4u);
    EXPECT_EQ(VirtualSlotOf(&Wrapper::DynTypeId), 5u);
    EXPECT_EQ(VirtualSlotOf(&Wrapper::DBWrite), 6u);
    EXPECT_EQ(VirtualSlotOf(&Wrapper::NewUid), 7u);
}

TYPED_TEST(StoredRepository, IsDescribedByItsMetadata)
{
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    const cls_ClassMetadata* metadata = registrar.Find(TypeParam::TypeId());
    ASSERT_NE(metadata, nullptr);
    EXPECT_EQ(metadata->Name(), TypeParam::DBClassName());
    EXPECT_EQ(metadata->Version(), 800);
    EXPECT_EQ(metadata->BaseClassId(), 0xA0001u);
    ASSERT_EQ(metadata->Attributes().size(), 1u);
    EXPECT_EQ(metadata->Attributes()[0].field.Index(), -1);
    const bool isList = std::is_same_v<TypeParam, tst_Ordered>;
    const bool isNumbered = std::is_same_v<TypeParam, tst_Numbered>;
    EXPECT_EQ(metadata->Attributes()[0].field.Name(), isList ? "list" : "map");
    EXPECT_EQ(metadata->Attributes()[0].type, 15);
    EXPECT_EQ(metadata->Attributes()[0].typeId, isList ? 0x230001u : 0x230002u);
    EXPECT_EQ(metadata->Attributes()[0].collectionType, isList ? 1 : isNumbered ? 3 : 2);

    const cls_ClassMetadata* wrapper = registrar.Find(mdl_ExtensionWrapper<TypeParam>::TypeId());
    ASSERT_NE(wrapper, nullptr);
    EXPECT_EQ(wrapper->Version(), 401);
    EXPECT_EQ(wrapper->BaseClassId(), 0xA000Du);
    ASSERT_EQ(wrapper->Attributes().size(), 1u);
    EXPECT_EQ(wrapper->Attributes()[0].field.Index(), -1);
    EXPECT_EQ(wrapper->Attributes()[0].field.Name(), "extension");
    EXPECT_EQ(wrapper->Attributes()[0].type, 15);
    EXPECT_EQ(wrapper->Attributes()[0].typeId, 0x230002u);
    EXPECT_EQ(wrapper->Attributes()[0].collectionType, 2);
}

TEST_F(Repositories, AreReachedByTextWhateverTheirKey)
{
    tst_Numbered numbered;
    mdl_NamedObjects& objects = numbered;
    const cls_Description& decay = kamC_Decay::Description();
    EXPECT_TRUE(objects.InsertObject("12", cls_AnyObject(decay, decay.Info().create())));
    EXPECT_TRUE(objects.InsertObject("-3", cls_AnyObject(decay, decay.Info().create())));
    for (const char* bad : {"", "x", "1x", " 1", "99999999999"})
    {
        EXPECT_FALSE(objects.InsertObject(bad, cls_AnyObject(decay, decay.Info().create()))) << bad;
        EXPECT_EQ(objects.ConstObject(bad), nullptr) << bad;
        EXPECT_EQ(objects.Object(bad), nullptr) << bad;
        EXPECT_FALSE(objects.RemoveObject(bad)) << bad;
        EXPECT_FALSE(objects.RenameObject("12", bad)) << bad;
        EXPECT_FALSE(objects.RenameObject(bad, "12")) << bad;
    }
    EXPECT_EQ(objects.ObjectNames(), (std::vector<std::string>{"-3", "12"}));
    EXPECT_NE(objects.ConstObject("12"), nullptr);
    EXPECT_NE(objects.Object("12"), nullptr);
    EXPECT_TRUE(objects.RenameObject("12", "13"));
    EXPECT_TRUE(numbered.IsMember(13));
    EXPECT_TRUE(objects.RemoveObject("-3"));
    EXPECT_EQ(objects.ObjectNames(), (std::vector<std::string>{"13"}));
    EXPECT_STREQ(objects.ObjectRoot().Name(), "kamC_Amplitude");
}

TEST_F(Repositories, OfAModelAreItsOwn)
{
    ddr_Model one;
    ddr_Model other;
    dynamic_cast<kamC_AmplitudeContainer&>(*one.GetAmplitudes()).Insert("A", NewDecay(1.0));
    EXPECT_EQ(one.ConstGetAmplitudes()->Size(), 1);
    EXPECT_EQ(other.ConstGetAmplitudes()->Size(), 0);
}

} // namespace
