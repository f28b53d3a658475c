#include "ddr_TestSteps.h"

#include "RowRecorder.h"
#include "VirtualSlot.h"
#include "ddr_PathParser.h"
#include "nex_Exceptions.h"
#include "omu_ChangeHistory.h"
#include "ovr_Export.h"
#include "thr_ThreadSingleton.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <langinfo.h>
#include <memory>
#include <string>

namespace
{

/// While it lives, the locale in force has another encoding, whatever locales the machine has.
class Encoding
{
public:
    explicit Encoding(std::string name) : name(std::move(name)) { current = this; }
    Encoding(const Encoding&) = delete;
    Encoding& operator=(const Encoding&) = delete;
    ~Encoding() { current = nullptr; }

    static char* Name() { return current == nullptr ? nullptr : current->name.data(); }

private:
    static inline Encoding* current = nullptr;
    std::string name;
};

} // namespace

/// Goes before that of the C library, which is asked when no test has an encoding of its own.
extern "C" OVR_EXPORT char* nl_langinfo(nl_item item) noexcept
{
    if (item == CODESET && Encoding::Name() != nullptr)
        return Encoding::Name();
    static const auto next = reinterpret_cast<char* (*)(nl_item)>(dlsym(RTLD_NEXT, "nl_langinfo"));
    return next(item);
}

namespace
{

kamC_AmplitudeContainer& AmplitudesOf(ddr_DdbContainer& container)
{
    return dynamic_cast<kamC_AmplitudeContainer&>(*container.GetModel()->GetAmplitudes());
}

kamC_BaselineCorrectionHandle CorrectionOf(double interval)
{
    kamC_BaselineCorrection correction;
    correction.intervals.Append(interval);
    return kamC_BaselineCorrectionHandle(correction);
}

class Shortcut : public testing::Test
{
protected:
    void SetUp() override
    {
        tst_RegisterSteps();
        kamC_AmplitudeContainer& amplitudes = AmplitudesOf(container);
        amplitudes.Insert("decay", new kamC_Decay);
        kamC_Tabular tabular;
        tabular.baselineCorrection = CorrectionOf(1.0);
        amplitudes.Insert("tabular", tabular);
        kamC_EquallySpaced equallySpaced;
        equallySpaced.baselineCorrection = CorrectionOf(2.0);
        amplitudes.Insert("equal", equallySpaced);
        amplitudes.Insert("bare", new kamC_Tabular);
        amplitudes.Insert("nothing", kamC_AmplitudeContainer::Handle());
    }

    /// What `act` throws: the name that is not there, or the message.
    template <class Act>
    static std::string Error(Act act)
    {
        try
        {
            act();
        }
        catch (const nex_CmdException<cow_String, 9>& error)
        {
            EXPECT_STREQ(error.File(), "QRTRom/ProtectedInterfaces/ddr_Shortcut");
            EXPECT_GT(error.Line(), 0);
            return std::string("unknown ") + error.GetText().CString();
        }
        catch (const nex_CmdException<atr_String, 2>& error)
        {
            return std::string(error.GetText().CString()) + " @ " + error.File();
        }
        return "";
    }

    ddr_DdbContainer container;
};

TEST_F(Shortcut, ShowsNameAndPath)
{
    const struct
    {
        const omu_ShortcutBase& shortcut;
        const char* name;
        const char* path;
    } rows[] = {{ddr_Shortcut<ddr_Model>(), "model", "model"},
                {ToAmplitudes(), "amplitudes", "model.amplitudes"},
                {ToAmplitude("A"), "A", "model.amplitudes['A']"},
                {ToAmplitude("it's"), "it's", "model.amplitudes['it's']"},
                {ToAmplitude(""), "", "model.amplitudes['']"},
                {ToCorrection<2>("A"), "baselineCorrection", "model.amplitudes['A'].baselineCorrection"},
                {ToNumber(-3), "-3", "model.numbered[-3]"},
                {kamC_BaselineCorrectionShortcut(new tst_CorrectionOfAmplitude("x", ToAmplitude("A"))), "x",
                 "model.amplitudes['A'].corrections['x']"}};
    for (const auto& row : rows)
    {
        EXPECT_TRUE(row.shortcut.IsPresent());
        EXPECT_EQ(row.shortcut.Name(), row.name);
        EXPECT_EQ(row.shortcut.Path(), row.path);
    }
}

TEST_F(Shortcut, ShowsItsPathAsPython)
{
    EXPECT_EQ(ToCorrection<1>("A").PythonPath(), "model.amplitudes['A'].baselineCorrection");
    EXPECT_EQ(ToAmplitude("it's").PythonPath(), "model.amplitudes[\"it's\"]");
    EXPECT_EQ(ToAmplitude("say \"a\"").PythonPath(), "model.amplitudes['say \"a\"']");
    EXPECT_EQ(ToAmplitude("a\\\n'\"").PythonPath(), "model.amplitudes[\"a\\\\\\n'\\\"\"]");
    EXPECT_EQ(ToAmplitude("Größe").PythonPath(), "model.amplitudes['Größe']");
    EXPECT_EQ(ToNumber(4).PythonPath(), "model.numbered[4]");
}

TEST_F(Shortcut, AnEmptyOneLeadsNowhere)
{
    const kamC_AmplitudeShortcut empty;
    EXPECT_FALSE(empty.IsPresent());
    EXPECT_EQ(empty.Name(), "");
    EXPECT_EQ(empty.Path(), "");
    EXPECT_EQ(empty.PythonPath(), "");
    EXPECT_EQ(empty.DdbName(0), "");
    EXPECT_EQ(empty.Get(container), nullptr);
    EXPECT_EQ(empty.ConstGet(container), nullptr);
    const kamC_BaselineCorrectionShortcut below(new kamC_BaselineCorrectionInTabularShortcut(empty));
    EXPECT_EQ(Error([&] { below.Get(container); }), "unknown ");
    EXPECT_EQ(Error([&] { below.ConstGet(container); }), "unknown ");
}

TEST_F(Shortcut, HandsTheNameOfTheDataBaseThrough)
{
    const kamC_AmplitudeShortcut shortcut(
        new kamC_AmplitudeInAmplitudeContainerShortcut("A", ToAmplitudes("Bridge")));
    EXPECT_EQ(shortcut.DdbName(0), "Bridge");
    EXPECT_EQ(shortcut.DdbName(1), "Bridge");
    EXPECT_EQ(ToAmplitude("A").DdbName(0), "");
}

TEST_F(Shortcut, ConvertsTheNameOfTheDataBaseOnceIfAsked)
{
    const Encoding latin("ISO-8859-1");
    const ddr_Shortcut<ddr_Model> model("Brücke");
    const kamC_AmplitudeContainerShortcut amplitudes = ToAmplitudes("Brücke");
    const kamC_AmplitudeShortcut amplitude(new kamC_AmplitudeInAmplitudeContainerShortcut("A", amplitudes));
    const kamC_BaselineCorrectionShortcut correction(new kamC_BaselineCorrectionInTabularShortcut(amplitude));
    const auto check = [](const auto& shortcut)
    {
        EXPECT_EQ(shortcut.DdbName(0), "Brücke");
        EXPECT_EQ(shortcut.DdbName(1), "Br\xFC"
                                       "cke");
    };
    check(model);
    check(amplitudes);
    check(amplitude);
    check(correction);
    EXPECT_EQ(amplitude.Path(), "model.amplitudes['A']") << "nothing of the name is in the path";
}

TEST_F(Shortcut, IsEqualByPath)
{
    const kamC_AmplitudeShortcut one = ToAmplitude("A");
    const kamC_AmplitudeShortcut other = ToAmplitude("A");
    EXPECT_NE(RecordRow(one)->uid, RecordRow(other)->uid);
    EXPECT_TRUE(one == other);
    EXPECT_FALSE(one == ToAmplitude("a"));
    EXPECT_FALSE(one == kamC_AmplitudeShortcut());
    EXPECT_TRUE(ToCorrection<1>("A") == ToCorrection<3>("A"));
}

TEST_F(Shortcut, FindsTheRepository)
{
    EXPECT_EQ(ToAmplitudes().Get(container), container.GetModel()->GetAmplitudes());
    EXPECT_EQ(ToAmplitudes().ConstGet(container), container.ConstGetModel()->ConstGetAmplitudes());
    EXPECT_EQ(ddr_Shortcut<ddr_Model>().Get(container), container.GetModel());
    EXPECT_EQ(ddr_Shortcut<ddr_Model>().ConstGet(container), container.ConstGetModel());
}

TEST_F(Shortcut, FindsTheObjectAsItIsNow)
{
    const kamC_AmplitudeShortcut shortcut = ToAmplitude("decay");
    const kamC_AmplitudeShortcut copy(shortcut);
    EXPECT_EQ(copy.Impl().ConstGet(), shortcut.Impl().ConstGet()) << "copies share the path";
    EXPECT_EQ(shortcut.ConstGet(container), AmplitudesOf(container).ConstGet("decay"));
    AmplitudesOf(container).Insert("decay", new kamC_Tabular);
    EXPECT_EQ(copy.Get(container)->DynTypeId(), kamC_Tabular::TypeId());
    EXPECT_EQ(copy.ConstGet(container), AmplitudesOf(container).ConstGet("decay"));
}

TEST_F(Shortcut, ThrowsTheNameOfAnObjectThatIsGone)
{
    AmplitudesOf(container).Insert("A", new kamC_Decay);
    const kamC_AmplitudeShortcut shortcut = ToAmplitude("A");
    EXPECT_NE(shortcut.Get(container), nullptr);
    AmplitudesOf(container).Remove("A");
    EXPECT_EQ(Error([&] { shortcut.Get(container); }), "unknown A");
    EXPECT_EQ(Error([&] { shortcut.ConstGet(container); }), "unknown A");
    EXPECT_EQ(Error([&] { ToCorrection<3>("A").ConstGet(container); }), "unknown A");
}

TEST_F(Shortcut, LeadsToNullWhereANameHasNoObject)
{
    EXPECT_EQ(ToAmplitude("nothing").Get(container), nullptr);
    EXPECT_EQ(ToAmplitude("nothing").ConstGet(container), nullptr);
    EXPECT_EQ(Error([&] { ToCorrection<3>("nothing").Get(container); }), "unknown nothing");
}

TEST_F(Shortcut, CountsAsAChangeWhenItIsWrittenThrough)
{
    omu_ChangeHistory& history = *thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    history.Clear();
    EXPECT_NE(ToAmplitude("decay").ConstGet(container), nullptr);
    EXPECT_EQ(history.AsText(), "");
    EXPECT_NE(ToAmplitude("decay").Get(container), nullptr);
    EXPECT_EQ(history.AsText(), "(\"Modify\", \"decay\")\n");
    EXPECT_EQ(Error([&] { ToAmplitude("absent").Get(container); }), "unknown absent");
    EXPECT_EQ(history.Count(), 1) << "a name that is not there is not asked for";
}

TEST_F(Shortcut, ChangesTheModelAndNotItsSnapshot)
{
    const ddr_DdbContainer snapshot(container);
    dynamic_cast<kamC_Decay&>(*ToAmplitude("decay").Get(container)).initial = 5.0;
    ToCorrection<2>("tabular").Get(container)->intervals.Append(9.0);
    const auto initial = [](const ddr_DdbContainer& of)
    { return dynamic_cast<const kamC_Decay&>(*ToAmplitude("decay").ConstGet(of)).initial; };
    EXPECT_EQ(initial(container), 5.0);
    EXPECT_EQ(initial(snapshot), 0.0);
    EXPECT_EQ(ToCorrection<2>("tabular").ConstGet(container)->intervals.Count(), 2);
    EXPECT_EQ(ToCorrection<2>("tabular").ConstGet(snapshot)->intervals.Count(), 1);
}

TEST_F(Shortcut, FindsAMemberOfTheClassThatOwnsIt)
{
    const auto interval = [this](const kamC_BaselineCorrectionShortcut& shortcut)
    {
        EXPECT_EQ(shortcut.Get(container)->intervals[0], shortcut.ConstGet(container)->intervals[0]);
        return shortcut.ConstGet(container)->intervals[0];
    };
    EXPECT_EQ(interval(ToCorrection<1>("equal")), 2.0);
    EXPECT_EQ(interval(ToCorrection<2>("tabular")), 1.0);
    EXPECT_EQ(interval(ToCorrection<3>("equal")), 2.0);
    EXPECT_EQ(interval(ToCorrection<3>("tabular")), 1.0);
    EXPECT_EQ(ToCorrection<2>("bare").Get(container), nullptr);
    EXPECT_EQ(ToCorrection<2>("bare").ConstGet(container), nullptr);
    EXPECT_EQ(ToCorrection<3>("bare").Get(container), nullptr);
    EXPECT_EQ(ToCorrection<3>("decay").Get(container), nullptr);
    EXPECT_EQ(ToCorrection<3>("decay").ConstGet(container), nullptr);
}

TEST_F(Shortcut, RefusesAnotherClass)
{
    const std::string place = " @ QRTVdb/QRTVdbKamC.m/src/kamC_BaselineCorrectionShortcut";
    const auto text = [&place](const char* expected, const char* found)
    {
        return std::string("Expected an object of class ") + expected + ", found one of class " + found +
               '.' + place;
    };
    EXPECT_EQ(Error([&] { ToCorrection<1>("tabular").Get(container); }),
              text("kamC_EquallySpaced (0x2440004)", "kamC_Tabular (0x2440008)"));
    EXPECT_EQ(Error([&] { ToCorrection<1>("decay").ConstGet(container); }),
              text("kamC_EquallySpaced (0x2440004)", "kamC_Decay (0x2440003)"));
    EXPECT_EQ(Error([&] { ToCorrection<2>("equal").ConstGet(container); }),
              text("kamC_Tabular (0x2440008)", "kamC_EquallySpaced (0x2440004)"));
}

/// Puts another container, or none, into the slot of the amplitudes of new models, for as long as it lives.
class OtherAmplitudes
{
public:
    OtherAmplitudes() { ddr_Model::UnRegisterAmplitudeContainer(); }
    explicit OtherAmplitudes(const mdl_Extension& other) { ddr_Model::RegisterAmplitudeContainer(other); }
    OtherAmplitudes(const OtherAmplitudes&) = delete;
    OtherAmplitudes& operator=(const OtherAmplitudes&) = delete;
    ~OtherAmplitudes() { ddr_Model::RegisterAmplitudeContainer(kamC_ACWrapper()); }
};

TEST_F(Shortcut, RefusesAModelWithAnotherRepositoryOrNone)
{
    const auto errors = [](ddr_DdbContainer of)
    {
        const std::string error = Error([&] { ToAmplitudes().Get(of); });
        EXPECT_EQ(Error([&] { ToAmplitudes().ConstGet(of); }), error);
        return error;
    };
    {
        const OtherAmplitudes other{tst_Numbered()};
        EXPECT_EQ(errors(ddr_DdbContainer()),
                  "Expected an object of class kamC_AmplitudeContainer (0x244000C), found one of class "
                  "tst_Numbered (0x3E70001). @ QRTVdb/QRTVdbKamC.m/src/kamC_AmplitudeContainerShortcut");
    }
    {
        const OtherAmplitudes none;
        EXPECT_EQ(errors(ddr_DdbContainer()), "unknown amplitudes");
    }
    EXPECT_EQ(errors(ddr_DdbContainer()), "");
}

TEST_F(Shortcut, FindsAnObjectByNumber)
{
    tst_Numbered& numbered = ddr_MemberStepOf<ddr_Model, tst_Numbered, 1>::Repository();
    numbered.Insert(4, new kamC_Decay);
    EXPECT_EQ(ToNumber(4).ConstGet(container), numbered.ConstGet(4));
    EXPECT_EQ(ToNumber(4).Get(container), numbered.Get(4));
    EXPECT_EQ(Error([&] { ToNumber(5).Get(container); }), "unknown 5");
    EXPECT_EQ(Error([&] { ToNumber(-1).ConstGet(container); }), "unknown -1");
    numbered.Clear();
}

TEST_F(Shortcut, AnswersTheHostsQuestions)
{
    const kamC_AmplitudeShortcut shortcut = ToAmplitude("A");
    const ddr_ShortcutBaseImpl& step = *shortcut.Impl();
    EXPECT_FALSE(step.IsTop());
    EXPECT_TRUE(step.IsStored());
    EXPECT_FALSE(step.IsReadOnly());
}

TEST_F(Shortcut, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeShortcut::IsPresent), 2u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeShortcut::Name), 3u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeShortcut::Path), 4u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeShortcut::PythonPath), 5u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::Name), 2u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::Path), 3u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::PythonPath), 4u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::IsTop), 5u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::IsStored), 6u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::IsReadOnly), 7u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::Copy), 8u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::DdbName), 9u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::ConstGet), 10u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::Get), 11u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::DBWrite), 12u);
    EXPECT_EQ(VirtualSlotOf(&kamC_AmplitudeIMPLSC::DynTypeId), 13u);
}

/// A step that leaves its path as Python to the base.
class PlainStep : public ddr_ShortcutBaseImpl
{
public:
    cow_String Name() const override { return "step"; }
    cow_String Path() const override { return "model.step"; }
    bool IsTop() const override { return false; }
    bool IsStored() const override { return false; }
    bool IsReadOnly() const override { return false; }
};

TEST_F(Shortcut, AStepWithoutKeysHasOnePath)
{
    EXPECT_EQ(PlainStep().PythonPath(), "model.step");
}

/// The row of a holder, and those of the steps under it, must be as described.
void ExpectDescribed(const RecordedRow& row)
{
    EXPECT_EQ(CompareWithDescription(row), "") << typ_ArchCompTable::GetName(row.classId);
    for (const RecordedRow::Field& field : row.fields)
    {
        if (const auto* nested = std::get_if<std::shared_ptr<RecordedRow>>(&field.value))
            ExpectDescribed(**nested);
    }
    if (row.base)
        ExpectDescribed(*row.base);
}

TEST_F(Shortcut, IsStoredAndReadBack)
{
    const auto check = [](const auto& shortcut)
    {
        using Holder = std::remove_cvref_t<decltype(shortcut)>;
        const auto row = RecordRow(shortcut);
        ExpectDescribed(*row);
        const Holder read = ReadRow<Holder>(row);
        EXPECT_EQ(read.Path(), shortcut.Path());
        EXPECT_EQ(read.DdbName(0), shortcut.DdbName(0));
        EXPECT_EQ(RecordRow(read)->uid, row->uid);
    };
    check(ToAmplitudes("Bridge"));
    check(ToAmplitude("it's"));
    check(ToCorrection<1>("A"));
    check(ToCorrection<2>("A"));
    check(ToCorrection<3>("A"));
    check(ToNumber(-7));
    check(kamC_BaselineCorrectionShortcut(new tst_CorrectionOfAmplitude("x", ToAmplitude("A"))));
    check(kamC_AmplitudeShortcut());
}

TEST_F(Shortcut, WritesARowThatIsWrittenOnlyOnce)
{
    const auto row = RecordRow(ToAmplitude("A"), true);
    EXPECT_TRUE(row->fields.empty());
}

struct AttributeRow
{
    const char* name;
    int type;
    unsigned typeId;
};

struct ClassRow
{
    unsigned id;
    const char* name;
    unsigned baseId;
    int quantum;
    std::vector<AttributeRow> attributes;
};

TEST_F(Shortcut, IsDescribedByItsMetadata)
{
    const cls_ExtQuant& quanta = *omi_Singleton<cls_ExtQuant>::Instance();
    const int small = quanta.ExtentQuantumConstSmall();
    const int medium = quanta.ExtentQuantumConstMedium();
    const ClassRow rows[] = {
        {0x244000D, "kamC_AmplitudeShortcut", 1, small, {{"impl", 15, 0x244000F}}},
        {0x244000E,
         "kamC_AmplitudeInAmplitudeContainerShortcut",
         0x244000F,
         small,
         {{"name", 11, 1}, {"parent", 15, 0x2440010}}},
        {0x244000F, "kamC_AmplitudeIMPLSC", 1, small, {}},
        {0x2440010, "kamC_AmplitudeContainerShortcut", 1, small, {{"impl", 15, 0x2440011}}},
        {0x2440011, "kamC_AmplitudeContainerIMPLSC", 1, small, {}},
        {0x2440012, "kamC_BaselineCorrectionShortcut", 1, small, {{"impl", 15, 0x2440015}}},
        {0x2440013,
         "kamC_BaselineCorrectionInEquallySpacedShortcut",
         0x2440015,
         medium,
         {{"parent", 15, 0x244000D}}},
        {0x2440014,
         "kamC_BaselineCorrectionInTabularShortcut",
         0x2440015,
         medium,
         {{"parent", 15, 0x244000D}}},
        {0x2440015, "kamC_BaselineCorrectionIMPLSC", 1, small, {}},
        {0x2440016, "kamC_AmplitudeContainerInModelShortcut", 0x2440011, medium, {{"parent", 15, 0xA0004}}},
        {0x2440018,
         "kamC_BaselineCorrectionInAmplitudeShortcut",
         0x2440015,
         medium,
         {{"parent", 15, 0x244000D}}},
        {0x3E70005,
         "tst_AmplitudeInNumberedShortcut",
         0x244000F,
         medium,
         {{"index", 5, 1}, {"parent", 15, 0x3E70002}}},
    };
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    for (const ClassRow& row : rows)
    {
        const cls_ClassMetadata* metadata = registrar.Find(row.id);
        ASSERT_NE(metadata, nullptr) << row.name;
        EXPECT_EQ(metadata->Name(), row.name);
        EXPECT_STREQ(typ_ArchCompTable::GetName(row.id), row.name);
        EXPECT_EQ(metadata->Version(), 203) << row.name;
        EXPECT_EQ(metadata->BaseClassId(), row.baseId) << row.name;
        EXPECT_EQ(typ_ArchCompTable::Parent(row.id), row.baseId) << row.name;
        EXPECT_EQ(metadata->Dtor() != nullptr, row.baseId == 1) << row.name;
        EXPECT_EQ(metadata->TableExtentQuantum(), row.quantum) << row.name;
        EXPECT_EQ(registrar.Mask(row.id), 7u) << row.name;
        ASSERT_EQ(metadata->Attributes().size(), row.attributes.size()) << row.name;
        for (std::size_t i = 0; i < row.attributes.size(); ++i)
        {
            const cls_AttributeMetadata& attribute = metadata->Attributes()[i];
            EXPECT_EQ(attribute.field.Name(), row.attributes[i].name) << row.name;
            EXPECT_EQ(attribute.field.Index(), -1) << row.name;
            EXPECT_EQ(attribute.type, row.attributes[i].type) << row.name;
            EXPECT_EQ(attribute.typeId, row.attributes[i].typeId) << row.name;
            EXPECT_EQ(attribute.collectionType, 0) << row.name;
        }
    }
}

/// The word of the repository of objects of this class, which the class itself answers.
std::string RepositoryWordOf(const cls_Description& root)
{
    for (const cls_Word& word : root.Words())
    {
        if (std::string(word.name).ends_with("Repository"))
            return word.word;
    }
    return "";
}

TEST_F(Shortcut, GoesByTheWordThatTheClassHasForItsRepository)
{
    int repositories = 0;
    for (const char* word : ddr_Model::Slots())
    {
        const mdl_Repository* repository = container.ConstGetModel()->ConstGet(word);
        if (!repository)
            continue;
        ++repositories;
        const auto* objects = dynamic_cast<const mdl_NamedObjects*>(repository);
        ASSERT_NE(objects, nullptr) << word;
        EXPECT_EQ(RepositoryWordOf(objects->ObjectRoot()), word);
        const ddr_AnyShortcut shortcut = ddr_ParsePath(word);
        EXPECT_EQ(shortcut.Name(), word);
        EXPECT_EQ(shortcut.Class().targetId, repository->DynTypeId()) << word;
    }
    EXPECT_GE(repositories, 5);
}

TEST_F(Shortcut, IsReleasedThroughItsMetadata)
{
    const auto release = [](unsigned classId, auto* object)
    {
        const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
        metadata->DeleteCow(const_cast<cls_ErasedHandle*>(&cow_Erased(*cow_NewHolder(object))));
    };
    const kamC_AmplitudeShortcut shortcut = ToAmplitude("A");
    const std::size_t blocks = mem_BlocksInUse();
    release(kamC_AmplitudeShortcut::TypeId(), new kamC_AmplitudeShortcut(shortcut));
    EXPECT_EQ(shortcut.Impl().ShareCount(), 1);
    release(kamC_AmplitudeIMPLSC::TypeId(), shortcut.Impl()->Copy());
    EXPECT_EQ(mem_BlocksInUse(), blocks);
}

TEST_F(Shortcut, TheAbstractStepCannotBeBuilt)
{
    const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(0x244000F);
    const cls_ReadVisitor visitor(new row_recorder::Reader(RecordRow(ToAmplitude("A"))));
    EXPECT_EQ(metadata->Ctor(visitor), nullptr);
}

} // namespace
