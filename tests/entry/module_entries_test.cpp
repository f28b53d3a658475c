// What every module's entries do by themselves, and in which order the library calls them.

#include "QRTVdbAttrEO2.h"
#include "QRTVdbKadC.h"
#include "QRTVdbKamC.h"
#include "QRTVdbKarC.h"
#include "QRTVdbKbeC.h"
#include "QRTVdbKbpC.h"
#include "QRTVdbKcoC.h"
#include "QRTVdbKefC.h"
#include "QRTVdbKfdC.h"
#include "QRTVdbKflC.h"
#include "QRTVdbKipC.h"
#include "QRTVdbKlcC.h"
#include "QRTVdbKmaC.h"
#include "QRTVdbKopC.h"
#include "QRTVdbKtbC.h"
#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"
#include "ddr_Model.h"
#include "mdl_Repository.h"
#include "typ_ArchCompTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace
{

struct ModuleEntries
{
    std::string prefix; ///< as "Kam"
    unsigned short number;
    void (*initialize)(int&);
    void (*finalize)(int&);
    bool hasFormalize;

    /// As "kam".
    std::string LowerPrefix() const { return "k" + prefix.substr(1); }
};

void PrintTo(const ModuleEntries& module, std::ostream* stream)
{
    *stream << module.prefix;
}

/// In the order in which the library brings them up.
const std::vector<ModuleEntries>& Modules()
{
    static const std::vector<ModuleEntries> modules = {
        {"Kef", 844, QRTVdbKefC_initialize, QRTVdbKefC_finalize, false},
        {"Ktb", 772, QRTVdbKtbC_initialize, QRTVdbKtbC_finalize, false},
        {"Kbe", 680, QRTVdbKbeC_initialize, QRTVdbKbeC_finalize, true},
        {"Kip", 863, QRTVdbKipC_initialize, QRTVdbKipC_finalize, true},
        {"Kam", 580, QRTVdbKamC_initialize, QRTVdbKamC_finalize, false},
        {"Kbp", 612, QRTVdbKbpC_initialize, QRTVdbKbpC_finalize, false},
        {"Kfl", 849, QRTVdbKflC_initialize, QRTVdbKflC_finalize, true},
        {"Kma", 568, QRTVdbKmaC_initialize, QRTVdbKmaC_finalize, false},
        {"Klc", 732, QRTVdbKlcC_initialize, QRTVdbKlcC_finalize, true},
        {"Kfd", 858, QRTVdbKfdC_initialize, QRTVdbKfdC_finalize, false},
        {"Kco", 720, QRTVdbKcoC_initialize, QRTVdbKcoC_finalize, false},
        {"Kar", 855, QRTVdbKarC_initialize, QRTVdbKarC_finalize, true},
        {"Kad", 616, QRTVdbKadC_initialize, QRTVdbKadC_finalize, true},
        {"Kop", 932, QRTVdbKopC_initialize, QRTVdbKopC_finalize, false},
    };
    return modules;
}

class EveryModule : public testing::TestWithParam<ModuleEntries>
{};

TEST_P(EveryModule, MovesTheTallyWithTheFirstInitializeAndTheLastFinalize)
{
    const ModuleEntries& module = GetParam();
    typ_ArchCompTable::RemoveEntry(module.number);
    int tally = 5;
    module.initialize(tally);
    EXPECT_EQ(6, tally);
    EXPECT_GT(typ_ArchCompTable::Entry(module.number).Count(), 0u) << "its classes have ids";

    typ_ArchCompTable::RemoveEntry(module.number);
    module.initialize(tally);
    EXPECT_EQ(6, tally);
    EXPECT_EQ(0u, typ_ArchCompTable::Entry(module.number).Count()) << "the second one does nothing";
    module.finalize(tally);
    EXPECT_EQ(6, tally);
    module.finalize(tally);
    EXPECT_EQ(5, tally);
}

TEST_P(EveryModule, DoesNotClampItsCounter)
{
    const ModuleEntries& module = GetParam();
    typ_ArchCompTable::RemoveEntry(module.number);
    int tally = 5;
    module.finalize(tally);
    EXPECT_EQ(5, tally);
    module.initialize(tally);
    EXPECT_EQ(5, tally);
    EXPECT_EQ(0u, typ_ArchCompTable::Entry(module.number).Count())
        << "the initialization after one finalization too many does nothing";
    module.initialize(tally);
    EXPECT_EQ(6, tally);
    module.finalize(tally);
    EXPECT_EQ(5, tally);
}

TEST_P(EveryModule, IsExported)
{
    const ModuleEntries& module = GetParam();
    void* library = dlopen(OVR_LIBRARY, RTLD_NOW);
    ASSERT_NE(nullptr, library) << dlerror();
    const auto has = [library](const std::string& name) { return dlsym(library, name.c_str()) != nullptr; };
    EXPECT_TRUE(has("_Z21QRTVdb" + module.prefix + "C_initializeRi"));
    EXPECT_TRUE(has("_Z19QRTVdb" + module.prefix + "C_finalizeRi"));
    EXPECT_TRUE(has("_Z14" + module.LowerPrefix() + "C_ArchEntryv"));
    EXPECT_EQ(module.hasFormalize, has("_Z14" + module.LowerPrefix() + "C_formalizev"));
    dlclose(library);
}

INSTANTIATE_TEST_SUITE_P(Library, EveryModule, testing::ValuesIn(Modules()),
                         [](const auto& info) { return info.param.prefix; });

TEST(ModuleFormalize, DoesNothing)
{
    for (void (*formalize)() :
         {kadC_formalize, karC_formalize, kbeC_formalize, kflC_formalize, kipC_formalize, klcC_formalize})
    {
        formalize();
        EXPECT_EQ(0, QRTVdbAttrEO2_counters().outerCount);
    }
}

/// Begins with registrars that have nothing from tests before.
void ForgetRegistrations()
{
    omi_Singleton<cls_MetadataRegistrar>::Finalize();
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
}

/// The module numbers in the order of their first class.
std::vector<unsigned> ModulesOf(const std::vector<unsigned>& classIds)
{
    std::vector<unsigned> numbers;
    for (const unsigned id : classIds)
    {
        if (std::find(numbers.begin(), numbers.end(), id >> 16) == numbers.end())
            numbers.push_back(id >> 16);
    }
    return numbers;
}

/// Those of all modules that are among `numbers`, in the library's order.
std::vector<unsigned> InOrder(const std::vector<unsigned>& numbers)
{
    std::vector<unsigned> ordered;
    for (const ModuleEntries& module : Modules())
    {
        if (std::find(numbers.begin(), numbers.end(), module.number) != numbers.end())
            ordered.push_back(module.number);
    }
    return ordered;
}

TEST(LibraryEntry, BringsItsModulesUpInTheirOrder)
{
    ForgetRegistrations();
    int tally = 0;
    QRTVdbAttrEO2_initialize(tally);
    std::vector<unsigned> ids;
    const cls_ClassRegistrar& classes = omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
    for (std::size_t i = 0; i < classes.Count(); ++i)
    {
        // The host's own classes have lower ids.
        if (const unsigned id = classes.At(i)->ClassId(); id >> 16 >= 568)
            ids.push_back(id);
    }
    const std::vector<unsigned> numbers = ModulesOf(ids);
    EXPECT_EQ(InOrder(numbers), numbers);
    EXPECT_THAT(numbers, testing::IsSupersetOf({580u, 612u, 849u, 568u, 732u, 855u, 616u}));

    std::vector<unsigned> oldIds;
    const dbc_OldClassRegistrar& versions = *omi_Singleton<dbc_OldClassRegistrar>::Instance();
    for (std::size_t i = 0; i < versions.Count(); ++i)
    {
        cls_ClassRegistrar described;
        versions.Version(i).InitializeMetadata(described);
        oldIds.push_back(described.At(0)->ClassId());
    }
    const std::vector<unsigned> oldNumbers = ModulesOf(oldIds);
    EXPECT_EQ(InOrder(oldNumbers), oldNumbers);
    EXPECT_THAT(oldNumbers, testing::IsSupersetOf({580u, 612u, 849u, 568u, 732u, 855u, 616u}));
    QRTVdbAttrEO2_finalize(tally);
}

/// A container that notes, when the model lets go of it, its name and how far the tally is by then.
class NotingContainer : public mdl_Extension
{
public:
    using Note = std::pair<std::string, int>;

    NotingContainer(const char* name, const int& tally, std::vector<Note>& notes)
        : name(name), tally(tally), notes(notes)
    {}

    ~NotingContainer() override { notes.emplace_back(name, tally); }

    NotingContainer* Copy() const override { return new NotingContainer(*this); }
    mdl_Repository* GetValue() override { return nullptr; }
    const mdl_Repository* ConstGetValue() const override { return nullptr; }
    unsigned DynTypeId() const override { return TypeId(); }

private:
    const char* name;
    const int& tally;
    std::vector<Note>& notes;
};

TEST(LibraryEntry, TakesItsModulesDownInReverseEachWithTheTallyFirst)
{
    int tally = 0;
    QRTVdbAttrEO2_initialize(tally);
    const int whole = tally;
    std::vector<NotingContainer::Note> notes;
    ddr_Model::RegisterAmplitudeContainer(NotingContainer("Kam", tally, notes));
    ddr_Model::RegisterBeamProfileContainer(NotingContainer("Kbp", tally, notes));
    ddr_Model::RegisterFilterContainer(NotingContainer("Kfl", tally, notes));
    ddr_Model::RegisterMaterialContainer(NotingContainer("Kma", tally, notes));
    ddr_Model::RegisterAdaptiveMeshControlContainer(NotingContainer("Kad", tally, notes));
    notes.clear();
    QRTVdbAttrEO2_finalize(tally);
    EXPECT_EQ(0, tally);

    const std::string noting[] = {"Kam", "Kbp", "Kfl", "Kma", "Kad"};
    // The library takes 2 before anything else, each module 1 before it lets its containers go.
    std::vector<NotingContainer::Note> expected;
    int left = whole - 2;
    for (auto module = Modules().rbegin(); module != Modules().rend(); ++module)
    {
        --left;
        if (std::find(std::begin(noting), std::end(noting), module->prefix) != std::end(noting))
            expected.emplace_back(module->prefix, left);
    }
    EXPECT_EQ(expected, notes);
}

struct ContainerRow
{
    const char* name;
    void (*initialize)(int&);
    void (*finalize)(int&);
    const mdl_Repository* (ddr_Model::*get)() const;
    unsigned repositoryId;
};

TEST(ModuleEntry, PlugsItsContainersIntoNewModels)
{
    const ContainerRow rows[] = {
        {"adaptive mesh controls", QRTVdbKadC_initialize, QRTVdbKadC_finalize,
         &ddr_Model::ConstGetAdaptiveMeshControls, 0x2680003},
        {"amplitudes", QRTVdbKamC_initialize, QRTVdbKamC_finalize, &ddr_Model::ConstGetAmplitudes, 0x244000C},
        {"beam profiles", QRTVdbKbpC_initialize, QRTVdbKbpC_finalize, &ddr_Model::ConstGetBeamProfiles,
         0x2640008},
        {"filters", QRTVdbKflC_initialize, QRTVdbKflC_finalize, &ddr_Model::ConstGetFilters, 0x3510001},
        {"materials", QRTVdbKmaC_initialize, QRTVdbKmaC_finalize, &ddr_Model::ConstGetMaterials, 0x238005A},
    };
    for (const ContainerRow& row : rows)
    {
        int tally = 0;
        row.initialize(tally);
        const ddr_Model model;
        const mdl_Repository* const repository = (model.*row.get)();
        ASSERT_NE(nullptr, repository) << row.name;
        EXPECT_EQ(row.repositoryId, repository->DynTypeId()) << row.name;
        EXPECT_EQ(0, repository->Size()) << row.name;
        row.finalize(tally);
        EXPECT_EQ(nullptr, (ddr_Model().*row.get)()) << row.name;
        EXPECT_EQ(repository, (model.*row.get)()) << row.name << " of a model made before";
    }
}

} // namespace
