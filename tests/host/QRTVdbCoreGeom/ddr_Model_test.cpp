#include "TestContainer.h"
#include "ddr_DdbContainer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace
{
/// Everything that belongs to one slot of the model.
struct SlotCase
{
    const char* word;
    mdl_Repository* (ddr_Model::*get)();
    const mdl_Repository* (ddr_Model::*constGet)() const;
    void (*registerPrototype)(const mdl_Extension&); ///< Null where nothing can be registered.
    void (*unRegister)();
};

const SlotCase slotCases[] = {
    {"adaptiveMeshControls", &ddr_Model::GetAdaptiveMeshControls, &ddr_Model::ConstGetAdaptiveMeshControls,
     ddr_Model::RegisterAdaptiveMeshControlContainer, ddr_Model::UnRegisterAdaptiveMeshControlContainer},
    {"amplitudes", &ddr_Model::GetAmplitudes, &ddr_Model::ConstGetAmplitudes,
     ddr_Model::RegisterAmplitudeContainer, ddr_Model::UnRegisterAmplitudeContainer},
    {"profiles", &ddr_Model::GetBeamProfiles, &ddr_Model::ConstGetBeamProfiles,
     ddr_Model::RegisterBeamProfileContainer, ddr_Model::UnRegisterBeamProfileContainer},
    {"connectors", &ddr_Model::GetConnectors, &ddr_Model::ConstGetConnectors, nullptr, nullptr},
    {"constraints", &ddr_Model::GetConstraints, &ddr_Model::ConstGetConstraints,
     ddr_Model::RegisterConstraintContainer, ddr_Model::UnRegisterConstraintContainer},
    {"eventSeriesDatas", &ddr_Model::GetEventSeriesDatas, &ddr_Model::ConstGetEventSeriesDatas,
     ddr_Model::RegisterEventSeriesCont, ddr_Model::UnRegisterEventSeriesCont},
    {"eventSeriesTypes", &ddr_Model::GetEventSeriesTypes, &ddr_Model::ConstGetEventSeriesTypes,
     ddr_Model::RegisterEventSeriesTypeCont, ddr_Model::UnRegisterEventSeriesTypeCont},
    {"filters", &ddr_Model::GetFilters, &ddr_Model::ConstGetFilters, ddr_Model::RegisterFilterContainer,
     ddr_Model::UnRegisterFilterContainer},
    {"materials", &ddr_Model::GetMaterials, &ddr_Model::ConstGetMaterials,
     ddr_Model::RegisterMaterialContainer, ddr_Model::UnRegisterMaterialContainer},
    {"tableCollections", &ddr_Model::GetTableCollections, &ddr_Model::ConstGetTableCollections,
     ddr_Model::RegisterTableCollContainer, ddr_Model::UnRegisterTableCollContainer},
    {"optimizationTasks", &ddr_Model::GetTasks, &ddr_Model::ConstGetTasks, nullptr, nullptr},
};

/// Leaves no registration behind.
class ddr_ModelTest : public testing::Test
{
protected:
    ddr_ModelTest() { TestContainer::copies = 0; }

    ~ddr_ModelTest() override
    {
        for (const SlotCase& each : slotCases)
        {
            if (each.unRegister)
                each.unRegister();
        }
    }

    /// Registers in each slot a container whose size is the slot's position plus 1.
    void RegisterAll()
    {
        int size = 0;
        for (const SlotCase& each : slotCases)
        {
            ++size;
            if (each.registerPrototype)
                each.registerPrototype(TestContainer(size));
        }
    }

    void Resize(mdl_Repository* repository, int size)
    {
        static_cast<TestRepository*>(repository)->Resize(size);
    }
};

TEST_F(ddr_ModelTest, SlotsAreListedByTheirWordsInStoredOrder)
{
    std::vector<std::string> expected;
    for (const SlotCase& each : slotCases)
        expected.emplace_back(each.word);
    const std::vector<std::string> words(ddr_Model::Slots().begin(), ddr_Model::Slots().end());
    EXPECT_EQ(words, expected);
}

TEST_F(ddr_ModelTest, ASlotIsNullWhereNothingIsRegistered)
{
    ddr_Model model;
    for (const SlotCase& each : slotCases)
    {
        EXPECT_EQ((model.*each.get)(), nullptr) << each.word;
        EXPECT_EQ((model.*each.constGet)(), nullptr) << each.word;
        EXPECT_EQ(model.Get(each.word), nullptr) << each.word;
        EXPECT_EQ(model.ConstGet(each.word), nullptr) << each.word;
    }
}

TEST_F(ddr_ModelTest, EachRegistrationFillsItsOwnSlot)
{
    for (const SlotCase& registered : slotCases)
    {
        if (!registered.registerPrototype)
            continue;
        registered.registerPrototype(TestContainer(7));
        const ddr_Model model;
        registered.unRegister();
        for (const SlotCase& each : slotCases)
        {
            const mdl_Repository* repository = (model.*each.constGet)();
            EXPECT_EQ(repository != nullptr, each.word == registered.word) << each.word << registered.word;
            EXPECT_EQ(model.ConstGet(each.word), repository) << each.word;
        }
        EXPECT_EQ((model.*registered.constGet)()->Size(), 7);
    }
}

TEST_F(ddr_ModelTest, WordAndAccessorReachTheSameRepository)
{
    RegisterAll();
    ddr_Model model;
    for (const SlotCase& each : slotCases)
    {
        mdl_Repository* writable = (model.*each.get)();
        EXPECT_EQ(model.Get(each.word), writable) << each.word;
        EXPECT_EQ((model.*each.constGet)(), writable) << each.word;
    }
}

TEST_F(ddr_ModelTest, AnUnknownWordReachesNothing)
{
    RegisterAll();
    ddr_Model model;
    for (const char* word : {"", "Amplitudes", "amplitude", "amplitudes ", "beamProfiles"})
    {
        EXPECT_EQ(model.Get(word), nullptr) << word;
        EXPECT_EQ(model.ConstGet(word), nullptr) << word;
    }
}

TEST_F(ddr_ModelTest, RegistrationKeepsACopyOfItsOwn)
{
    {
        TestContainer prototype(3);
        ddr_Model::RegisterMaterialContainer(prototype);
        Resize(prototype.GetValue(), 4);
    }
    EXPECT_EQ(ddr_Model().ConstGetMaterials()->Size(), 3);
}

TEST_F(ddr_ModelTest, ALaterRegistrationReplacesTheEarlier)
{
    ddr_Model::RegisterMaterialContainer(TestContainer(3));
    ddr_Model::RegisterMaterialContainer(TestContainer(5));
    EXPECT_EQ(ddr_Model().ConstGetMaterials()->Size(), 5);
}

TEST_F(ddr_ModelTest, RegistrationsDoNotChangeModelsThatStand)
{
    const ddr_Model before;
    ddr_Model::RegisterMaterialContainer(TestContainer(3));
    const ddr_Model during;
    ddr_Model::UnRegisterMaterialContainer();
    const ddr_Model after;
    EXPECT_EQ(before.ConstGetMaterials(), nullptr);
    ASSERT_NE(during.ConstGetMaterials(), nullptr);
    EXPECT_EQ(during.ConstGetMaterials()->Size(), 3);
    EXPECT_EQ(after.ConstGetMaterials(), nullptr);
}

TEST_F(ddr_ModelTest, UnRegisteringTwiceOrNothingIsFine)
{
    ddr_Model::UnRegisterFilterContainer();
    ddr_Model::UnRegisterFilterContainer();
    EXPECT_EQ(ddr_Model().ConstGetFilters(), nullptr);
}

TEST_F(ddr_ModelTest, NewModelsShareThePrototypeUntilTheyWrite)
{
    ddr_Model::RegisterAmplitudeContainer(TestContainer(0));
    ddr_Model first;
    const ddr_Model second;
    EXPECT_EQ(first.ConstGetAmplitudes(), second.ConstGetAmplitudes());
    Resize(first.GetAmplitudes(), 9);
    EXPECT_EQ(first.ConstGetAmplitudes()->Size(), 9);
    EXPECT_EQ(second.ConstGetAmplitudes()->Size(), 0);
    EXPECT_EQ(ddr_Model().ConstGetAmplitudes()->Size(), 0);
}

TEST_F(ddr_ModelTest, CopyingCopiesNoContainer)
{
    RegisterAll();
    ddr_Model model;
    Resize(model.GetMaterials(), 1000000);
    TestContainer::copies = 0;
    const std::unique_ptr<ddr_Model> copy(model.Copy());
    ddr_Model assigned;
    assigned = model;
    EXPECT_EQ(TestContainer::copies, 0);
    for (const SlotCase& each : slotCases)
    {
        EXPECT_EQ((copy.get()->*each.constGet)(), (model.*each.constGet)()) << each.word;
        EXPECT_EQ((assigned.*each.constGet)(), (model.*each.constGet)()) << each.word;
    }
}

TEST_F(ddr_ModelTest, WritingCopiesOneSharedContainerOnce)
{
    RegisterAll();
    ddr_Model model;
    const ddr_Model snapshot(model);
    TestContainer::copies = 0;
    Resize(model.GetFilters(), 50);
    Resize(model.GetFilters(), 51);
    EXPECT_EQ(TestContainer::copies, 1);
    EXPECT_EQ(model.ConstGetFilters()->Size(), 51);
    EXPECT_EQ(snapshot.ConstGetFilters()->Size(), 8);
    EXPECT_EQ(model.ConstGetMaterials(), snapshot.ConstGetMaterials());
}

TEST_F(ddr_ModelTest, ConstAccessCopiesNothing)
{
    RegisterAll();
    const ddr_Model model;
    const ddr_Model snapshot(model);
    TestContainer::copies = 0;
    for (const SlotCase& each : slotCases)
        EXPECT_EQ((model.*each.constGet)(), (snapshot.*each.constGet)()) << each.word;
    EXPECT_EQ(TestContainer::copies, 0);
}

TEST_F(ddr_ModelTest, AHandleOnAModelIsASnapshot)
{
    RegisterAll();
    ddr_ModelHandle model(new ddr_Model);
    const ddr_ModelHandle snapshot(model);
    EXPECT_EQ(model.ConstGet(), snapshot.ConstGet());
    Resize(model.Get()->GetMaterials(), 77);
    EXPECT_NE(model.ConstGet(), snapshot.ConstGet());
    EXPECT_EQ(model->ConstGetMaterials()->Size(), 77);
    EXPECT_EQ(snapshot->ConstGetMaterials()->Size(), 9);
}

TEST_F(ddr_ModelTest, IdsAreTheSameByClassAndByObject)
{
    EXPECT_EQ(ddr_Model().DynTypeId(), ddr_Model::TypeId());
    EXPECT_EQ(ddr_Model::TypeId(), 0xA0002u);
}

TEST_F(ddr_ModelTest, CowDtorGivesBackOneShare)
{
    ddr_Model::CowDtor(nullptr);
    const std::size_t before = mem_BlocksInUse();
    cow_CountedHld<ddr_Model>* holder = cow_NewHolder(new ddr_Model);
    ddr_Model::CowDtor(reinterpret_cast<cls_ErasedHandle*>(holder));
    EXPECT_EQ(mem_BlocksInUse(), before);
}

using ddr_DdbContainerTest = ddr_ModelTest;

TEST_F(ddr_DdbContainerTest, ANewOneHoldsANewModel)
{
    ddr_Model::RegisterAmplitudeContainer(TestContainer(2));
    const ddr_DdbContainer container;
    EXPECT_EQ(container.ConstGetModel()->ConstGetAmplitudes()->Size(), 2);
}

TEST_F(ddr_DdbContainerTest, SharesTheModelThatItIsGivenUntilItWrites)
{
    ddr_Model::RegisterAmplitudeContainer(TestContainer(2));
    const ddr_ModelHandle model(new ddr_Model);
    ddr_DdbContainer container(model);
    EXPECT_EQ(container.ConstGetModel(), model.ConstGet());
    Resize(container.GetModel()->GetAmplitudes(), 3);
    EXPECT_EQ(container.ConstGetModel()->ConstGetAmplitudes()->Size(), 3);
    EXPECT_EQ(model->ConstGetAmplitudes()->Size(), 2);
}

TEST_F(ddr_DdbContainerTest, ACopyIsASnapshot)
{
    ddr_Model::RegisterAmplitudeContainer(TestContainer(2));
    ddr_DdbContainer container;
    const ddr_DdbContainer snapshot(container);
    EXPECT_EQ(snapshot.Handle().ConstGet(), container.ConstGetModel());
    Resize(container.GetModel()->GetAmplitudes(), 3);
    EXPECT_EQ(snapshot.ConstGetModel()->ConstGetAmplitudes()->Size(), 2);
    const ddr_Model* inPlace = container.ConstGetModel();
    EXPECT_EQ(container.GetModel(), inPlace);
}
} // namespace
