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
#include "typ_ArchCompEntry.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace
{

constexpr unsigned rootId = 1;
constexpr unsigned repositoryId = 0xA0001;
constexpr unsigned extensionId = 0xA000D;

struct Module
{
    unsigned number;
    const char* prefix;
    unsigned rowCount;
    typ_ArchCompEntry (*archEntry)();
    std::vector<unsigned> reservedRows;
};

void PrintTo(const Module& module, std::ostream* stream)
{
    *stream << module.prefix << " under " << module.number;
}

const std::vector<Module>& Modules()
{
    static const std::vector<Module> modules = {
        {844, "kefC_", 26, kefC_ArchEntry, {0}},
        {772, "ktbC_", 75, ktbC_ArchEntry, {0, 43, 44, 45}},
        {680, "kbeC_", 73, kbeC_ArchEntry, {0, 70, 71, 72}},
        {863, "kipC_", 1, kipC_ArchEntry, {0}},
        {580, "kamC_", 29, kamC_ArchEntry, {0}},
        {612, "kbpC_", 23, kbpC_ArchEntry, {0}},
        {849, "kflC_", 14, kflC_ArchEntry, {0}},
        {568, "kmaC_", 177, kmaC_ArchEntry, {0, 10, 36}},
        {732, "klcC_", 8, klcC_ArchEntry, {0}},
        {858, "kfdC_", 10, kfdC_ArchEntry, {0}},
        {720, "kcoC_", 21, kcoC_ArchEntry, {0}},
        {855, "karC_", 6, karC_ArchEntry, {0}},
        {616, "kadC_", 17, kadC_ArchEntry, {0}},
        {932, "kopC_", 126, kopC_ArchEntry, {0, 2, 3, 65, 66, 76, 77}},
    };
    return modules;
}

bool IsReserved(const typ_Entry& row)
{
    return row.name == nullptr;
}

/// The named rows of all modules by class id.
std::map<unsigned, typ_Entry> NamedRows()
{
    std::map<unsigned, typ_Entry> rows;
    for (const Module& module : Modules())
    {
        const typ_ArchCompEntry entry = module.archEntry();
        for (unsigned index = 0; index < entry.Count(); ++index)
            if (!IsReserved(entry.Rows()[index]))
                rows.emplace(module.number << 16 | index, entry.Rows()[index]);
    }
    return rows;
}

bool IsHostId(unsigned id)
{
    return id == rootId || id == repositoryId || id == extensionId;
}

/// Whether a stored name is that of a step of a shortcut path: XxxInYyyShortcut.
bool IsStepName(std::string_view name)
{
    if (!name.ends_with("Shortcut"))
        return false;
    for (std::size_t at = name.find("In"); at != std::string_view::npos; at = name.find("In", at + 1))
        if (at > 0 && at + 2 < name.size() && name[at - 1] >= 'a' && name[at - 1] <= 'z' &&
            name[at + 2] >= 'A' && name[at + 2] <= 'Z')
            return true;
    return false;
}

class TypeTable : public testing::TestWithParam<Module>
{};

TEST_P(TypeTable, HasItsFixedNumberOfRows)
{
    EXPECT_EQ(GetParam().archEntry().Count(), GetParam().rowCount);
}

TEST_P(TypeTable, IsOneTableHoweverOftenItIsAskedFor)
{
    EXPECT_EQ(GetParam().archEntry().Rows(), GetParam().archEntry().Rows());
}

TEST_P(TypeTable, NamesAllRowsButTheReservedOnes)
{
    const typ_ArchCompEntry entry = GetParam().archEntry();
    std::vector<unsigned> reserved;
    for (unsigned index = 0; index < entry.Count(); ++index)
    {
        const typ_Entry& row = entry.Rows()[index];
        if (!IsReserved(row))
        {
            EXPECT_EQ(row.flags, 7u) << row.name;
            continue;
        }
        reserved.push_back(index);
        EXPECT_EQ(row.flags, 0u) << "row " << index;
        EXPECT_EQ(row.parent, rootId) << "row " << index;
    }
    EXPECT_EQ(reserved, GetParam().reservedRows);
}

TEST_P(TypeTable, NamesBeginWithTheModulesPrefix)
{
    const typ_ArchCompEntry entry = GetParam().archEntry();
    for (unsigned index = 0; index < entry.Count(); ++index)
    {
        if (IsReserved(entry.Rows()[index]))
            continue;
        const std::string_view name = entry.Rows()[index].name;
        const std::string_view prefix = GetParam().prefix;
        EXPECT_TRUE(name.starts_with(prefix)) << name;
        EXPECT_GT(name.size(), prefix.size());
    }
}

TEST_P(TypeTable, ParentsOfTheModuleItselfStandUnderItsNumber)
{
    const typ_ArchCompEntry entry = GetParam().archEntry();
    for (unsigned index = 0; index < entry.Count(); ++index)
    {
        const unsigned parent = entry.Rows()[index].parent;
        if (IsHostId(parent))
            continue;
        EXPECT_EQ(parent >> 16, GetParam().number) << "row " << index;
        ASSERT_LT(parent & 0xFFFF, entry.Count()) << "row " << index;
        EXPECT_NE(parent & 0xFFFF, index);
        EXPECT_FALSE(IsReserved(entry.Rows()[parent & 0xFFFF])) << "row " << index;
    }
}

INSTANTIATE_TEST_SUITE_P(Modules, TypeTable, testing::ValuesIn(Modules()),
                         [](const auto& info) { return std::string(info.param.prefix, 4); });

TEST(TypeTables, StandUnderFourteenNumbers)
{
    std::set<unsigned> numbers;
    for (const Module& module : Modules())
        numbers.insert(module.number);
    EXPECT_EQ(numbers.size(), 14u);
}

TEST(TypeTables, GiveNoNameTwice)
{
    std::set<std::string> names;
    for (const auto& [id, row] : NamedRows())
        EXPECT_TRUE(names.insert(row.name).second) << row.name << " again at 0x" << std::hex << id;
}

TEST(TypeTables, LeadFromEveryRowToAHostTypeOrTheRoot)
{
    const std::map<unsigned, typ_Entry> rows = NamedRows();
    for (const auto& [id, row] : rows)
    {
        std::set<unsigned> seen{id};
        unsigned parent = row.parent;
        while (!IsHostId(parent))
        {
            ASSERT_TRUE(seen.insert(parent).second) << row.name << " is its own ancestor";
            const auto found = rows.find(parent);
            ASSERT_NE(found, rows.end()) << row.name << " leads to the unknown 0x" << std::hex << parent;
            parent = found->second.parent;
        }
    }
}

TEST(TypeTables, PutTheStepsOfShortcutsUnderAbstractSteps)
{
    const std::map<unsigned, typ_Entry> rows = NamedRows();
    for (const auto& [id, row] : rows)
    {
        const std::string_view name = row.name;
        if (IsStepName(name))
        {
            const auto parent = rows.find(row.parent);
            ASSERT_NE(parent, rows.end()) << name;
            EXPECT_TRUE(std::string_view(parent->second.name).ends_with("IMPLSC")) << name;
        }
        else if (name.ends_with("Shortcut") || name.ends_with("IMPLSC"))
        {
            EXPECT_EQ(row.parent, rootId) << name;
        }
    }
}

TEST(TypeTables, PutRepositoriesAndWrappersUnderTheHosts)
{
    for (const auto& [id, row] : NamedRows())
    {
        const std::string_view name = row.name;
        if (name.ends_with("Container") || name == "klcC_LoadCaseCont")
        {
            EXPECT_EQ(row.parent, repositoryId) << name;
        }
        if (name.ends_with("Wrapper") || name == "kefC_EngineeringFeatures")
        {
            EXPECT_EQ(row.parent, extensionId) << name;
        }
    }
}

struct KnownRow
{
    unsigned id;
    const char* name;
    unsigned parent;
};

// Rows of every module, by class id: stored models name them, so none may ever change.
constexpr KnownRow knownRows[] = {
    {0x2440001, "kamC_BaselineCorrection", 1},
    {0x2440002, "kamC_Amplitude", 1},
    {0x2440008, "kamC_Tabular", 0x2440002},
    {0x244000C, "kamC_AmplitudeContainer", 0xA0001},
    {0x244000E, "kamC_AmplitudeInAmplitudeContainerShortcut", 0x244000F},
    {0x2440015, "kamC_BaselineCorrectionIMPLSC", 1},
    {0x2440017, "kamC_ACWrapper", 0xA000D},
    {0x2440018, "kamC_BaselineCorrectionInAmplitudeShortcut", 0x2440015},
    {0x244001C, "kamC_CorrelationComponent", 1},
    {0x34C0001, "kefC_EngineeringFeatures", 0xA000D},
    {0x34C0002, "kefC_Inertia", 1},
    {0x34C0004, "kefC_PointMassInertia", 0x34C0002},
    {0x34C000D, "kefC_NonstructuralMass", 0x34C0002},
    {0x34C0012, "kefC_XFEMCrack", 0x34C0006},
    {0x34C0014, "kefC_DebondVCCT", 0x34C0006},
    {0x34C0019, "kefC_DataImperfection", 0x34C0015},
    {0x3040001, "ktbC_TableCollection", 1},
    {0x304000B, "ktbC_ParameterTable", 1},
    {0x3040013, "ktbC_CompositeColTable", 1},
    {0x304001A, "ktbC_DataColumn", 1},
    {0x3040025, "ktbC_PropertyTable", 1},
    {0x3040027, "ktbC_PropertyTableData", 1},
    {0x304002E, "ktbC_EventSeriesType", 1},
    {0x3040040, "ktbC_ActivateElem", 1},
    {0x3040047, "ktbC_ElemProgressiveActivation", 1},
    {0x2A80003, "kbeC_Stops", 0x2A80008},
    {0x2A80006, "kbeC_Friction", 0x2A80009},
    {0x2A80008, "kbeC_ConnectorBehaviorOption", 1},
    {0x2A8000B, "kbeC_ContactForce", 1},
    {0x2A8000D, "kbeC_TangentialBehavior", 1},
    {0x2A8000F, "kbeC_Damage", 0x2A80008},
    {0x2A80015, "kbeC_PotentialContainer", 0xA0001},
    {0x2A80019, "kbeC_ConnectorStop", 0x2A80008},
    {0x2A8001E, "kbeC_ConnectorDamage", 0x2A80008},
    {0x2A8001F, "kbeC_ConnectorPotential", 1},
    {0x2A8002D, "kbeC_CDCTerm", 1},
    {0x2A8003E, "kbeC_ConnectorOptions", 1},
    {0x2640001, "kbpC_BeamProfile", 1},
    {0x2640002, "kbpC_GeneralizedProfile", 0x2640001},
    {0x2640007, "kbpC_BoxProfile", 0x2640001},
    {0x2640008, "kbpC_BeamProfileContainer", 0xA0001},
    {0x264000E, "kbpC_BeamProfileContainerShortcut", 1},
    {0x2640011, "kbpC_BeamProfileInBeamProfileContainerShortcut", 0x2640012},
    {0x2640012, "kbpC_BeamProfileIMPLSC", 1},
    {0x2640013, "kbpC_BeamProfileContainerInModelShortcut", 0x264000F},
    {0x2640015, "kbpC_CbeamProfile", 0x2640001},
    {0x2640016, "kbpC_HatProfile", 0x2640001},
    {0x3510002, "kflC_Filter", 1},
    {0x3510003, "kflC_ButterworthFilter", 0x3510002},
    {0x3510004, "kflC_Chebyshev1Filter", 0x3510002},
    {0x3510005, "kflC_Chebyshev2Filter", 0x3510002},
    {0x351000D, "kflC_OperatorFilter", 0x3510002},
    {0x2380001, "kmaC_Material", 1},
    {0x2380002, "kmaC_MaterialOption", 1},
    {0x2380003, "kmaC_AcousticBulkModulus", 0x2380002},
    {0x238001E, "kmaC_Elastic", 0x2380002},
    {0x238003C, "kmaC_Plastic", 0x2380002},
    {0x2380058, "kmaC_MaterialTable", 1},
    {0x2380059, "kmaC_Unimplemented", 0x2380002},
    {0x238005A, "kmaC_MaterialContainer", 0xA0001},
    {0x2380060, "kmaC_EosShear", 0x2380002},
    {0x2380068, "kmaC_MaterialInMaterialContainerShortcut", 0x2380069},
    {0x238006E, "kmaC_MaterialOptionInMaterialOptionShortcut", 0x238006F},
    {0x238007C, "kmaC_MaterialContainerInModelShortcut", 0x238006B},
    {0x2380082, "kmaC_MullinsEffect", 0x2380002},
    {0x2380085, "kmaC_DamageInitiation", 0x2380002},
    {0x2380088, "kmaC_MatOptionListShortcut", 1},
    {0x238008B, "kmaC_UniaxialTestsListInMaterialOptionShortcut", 0x2380089},
    {0x2380094, "kmaC_TensileClayHardening", 0x2380002},
    {0x238009D, "kmaC_MeanFieldInclusion", 0x23800A0},
    {0x23800A0, "kmaC_MeanFieldConstituent", 1},
    {0x23800A9, "kmaC_TensileFailure", 0x2380002},
    {0x23800B0, "kmaC_DamageEvolutionListInMaterialOptionShortcut", 0x2380089},
    {0x2DC0001, "klcC_LoadCase", 1},
    {0x2DC0002, "klcC_LoadCaseCont", 0xA0001},
    {0x2DC0003, "klcC_LoadCaseIMPLSC", 1},
    {0x2DC0005, "klcC_LoadCaseInLoadCaseContShortcut", 0x2DC0003},
    {0x2DC0007, "klcC_LoadCaseContShortcut", 1},
    {0x35A0001, "kfdC_Field", 1},
    {0x35A0002, "kfdC_AnalyticalFieldContainer", 0xA0001},
    {0x35A0003, "kfdC_AnalyticalField", 0x35A0001},
    {0x35A0004, "kfdC_ExpressionField", 0x35A0003},
    {0x35A0006, "kfdC_DiscreteField", 0x35A0001},
    {0x35A0008, "kfdC_MappedField", 0x35A0003},
    {0x35A0009, "kfdC_VdbMeshRegionData", 1},
    {0x2D00001, "kcoC_Constraint", 1},
    {0x2D00002, "kcoC_Equation", 0x2D00001},
    {0x2D00006, "kcoC_ConstraintContainer", 0xA0001},
    {0x2D00008, "kcoC_ConstraintInConstraintContainerShortcut", 0x2D00009},
    {0x2D0000B, "kcoC_ConstraintContainerIMPLSC", 1},
    {0x2D00011, "kcoC_ConstraintContainerInModelShortcut", 0x2D0000B},
    {0x2D00012, "kcoC_CCWrapper", 0xA000D},
    {0x2D00013, "kcoC_MPC", 0x2D00001},
    {0x2D00014, "kcoC_AdjustPoints", 0x2D00001},
    {0x3570001, "karC_RemeshingRuleContainer", 0xA0001},
    {0x3570002, "karC_RemeshingRule", 1},
    {0x3570003, "karC_RemeshingRuleShortcut", 1},
    {0x3570004, "karC_RemeshingRuleInRemeshingRuleContainerShortcut", 0x3570005},
    {0x3570005, "karC_RemeshingRuleIMPLSC", 1},
    {0x2680001, "kadC_AdptMeshCtrl", 1},
    {0x2680002, "kadC_AdptMeshDomain", 1},
    {0x2680003, "kadC_AdptMeshCtrlContainer", 0xA0001},
    {0x2680009, "kadC_AdptMeshCtrlContainerInModelShortcut", 0x2680008},
    {0x268000B, "kadC_AdptMeshDomainContainer", 0xA0001},
    {0x2680010, "kadC_AdptMeshDomainContainerIMPLSC", 1},
    {0x3A40001, "kopC_BaseOptimization", 1},
    {0x3A40004, "kopC_Task", 0x3A40001},
    {0x3A40007, "kopC_NucleonTask", 0x3A40004},
    {0x3A40009, "kopC_ShapeTask", 0x3A40007},
    {0x3A4000F, "kopC_ObjectiveFunction", 0x3A40001},
    {0x3A40018, "kopC_Objective", 1},
    {0x3A40022, "kopC_GeometricRestriction", 0x3A40001},
    {0x3A40025, "kopC_NucleonGeometricRestriction", 0x3A40022},
    {0x3A40035, "kopC_DesignResponse", 0x3A40040},
    {0x3A40038, "kopC_NucleonDesignResponse", 0x3A40035},
    {0x3A40040, "kopC_BaseVariable", 0x3A40001},
    {0x3A40046, "kopC_NucleonVariable", 0x3A40043},
    {0x3A4004E, "kopC_FrozenArea", 0x3A40025},
    {0x3A40059, "kopC_StepOption", 1},
    {0x3A4007D, "kopC_TopologyRibDesign", 0x3A40025},
};

TEST(TypeTables, KeepTheRowsThatStoredModelsName)
{
    const std::map<unsigned, typ_Entry> rows = NamedRows();
    for (const KnownRow& known : knownRows)
    {
        const auto found = rows.find(known.id);
        ASSERT_NE(found, rows.end()) << known.name;
        EXPECT_STREQ(found->second.name, known.name);
        EXPECT_EQ(found->second.parent, known.parent) << known.name;
    }
}

} // namespace
