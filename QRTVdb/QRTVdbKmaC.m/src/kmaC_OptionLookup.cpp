#include "kmaC_OptionLookup.h"

#include "atr_translate.h"
#include "nex_Exceptions.h"

#include <algorithm>
#include <iterator>

namespace
{

constexpr const char* source = "QRTVdb/QRTVdbKmaC.m/src/kmaC_MaterialOptionShortcut";

/// The words of a material's options, in the order in which they are tried. The Mullins effect, shear, soft
/// rock plasticity and superelasticity have none.
constexpr const char* optionWords[] = {"acousticMedium",
                                       "brittleCracking",
                                       "capPlasticity",
                                       "clayPlasticity",
                                       "concrete",
                                       "conductivity",
                                       "creep",
                                       "ductileDamageInitiation",
                                       "fldDamageInitiation",
                                       "flsdDamageInitiation",
                                       "johnsonCookDamageInitiation",
                                       "maxeDamageInitiation",
                                       "maxsDamageInitiation",
                                       "maxpeDamageInitiation",
                                       "maxpsDamageInitiation",
                                       "mkDamageInitiation",
                                       "msfldDamageInitiation",
                                       "quadeDamageInitiation",
                                       "quadsDamageInitiation",
                                       "shearDamageInitiation",
                                       "hashinDamageInitiation",
                                       "laRC05DamageInitiation",
                                       "hosfordCoulombDamageInitiation",
                                       "damping",
                                       "deformationPlasticity",
                                       "density",
                                       "depvar",
                                       "dielectric",
                                       "diffusivity",
                                       "druckerPrager",
                                       "elastic",
                                       "electricalConductivity",
                                       "eos",
                                       "expansion",
                                       "crushableFoam",
                                       "fluidLeakoff",
                                       "gapFlow",
                                       "gapConductance",
                                       "gapConvection",
                                       "gapRadiation",
                                       "gel",
                                       "heatGeneration",
                                       "hyperelastic",
                                       "hyperfoam",
                                       "hypoelastic",
                                       "inelasticHeatFraction",
                                       "jouleHeatFraction",
                                       "latentHeat",
                                       "regularization",
                                       "gasketMembraneElastic",
                                       "magneticPermeability",
                                       "meanFieldHomogenization",
                                       "mohrCoulombPlasticity",
                                       "moistureSwelling",
                                       "permeability",
                                       "piezoelectric",
                                       "plastic",
                                       "poreFluidExpansion",
                                       "porousBulkModuli",
                                       "porousElastic",
                                       "porousMetalPlasticity",
                                       "solubility",
                                       "sorption",
                                       "specificHeat",
                                       "swelling",
                                       "gasketThicknessBehavior",
                                       "gasketTransverseShearElastic",
                                       "userDefinedField",
                                       "userMaterial",
                                       "userOutputVariables",
                                       "viscoelastic",
                                       "viscous",
                                       "viscosity",
                                       "castIronPlasticity",
                                       "concreteDamagedPlasticity",
                                       "lowDensityFoam",
                                       "crushStress",
                                       "plasticityCorrection"};

/// The words of the sub-options of one class, in the order in which they are tried.
struct Suboptions
{
    const char* parent;
    /// What is thrown for any other word; null where any other word leads to the parent itself.
    const char* failure;
    const char* words[6];
};

constexpr Suboptions suboptions[] = {
    {"kmaC_BrittleCracking",
     "Unknown material option name for brittle cracking",
     {"brittleShear", "brittleFailure"}},
    {"kmaC_CapPlasticity",
     "Unknown material option name for cap plasticity",
     {"capCreepCohesion", "capCreepConsolidation", "capHardening"}},
    {"kmaC_ClayPlasticity", "Unknown material option name for clay plasticity", {"clayHardening"}},
    {"kmaC_Concrete",
     "Unknown material option name for concrete",
     {"failureRatios", "shearRetention", "tensionStiffening"}},
    {"kmaC_Creep", "Unknown material option name for creep", {"ornl", "potential"}},
    {"kmaC_Diffusivity", "Unknown material option name for diffusivity", {"soretEffect", "pressureEffect"}},
    {"kmaC_DruckerPrager",
     "Unknown material option name for drucker prager",
     {"druckerPragerCreep", "druckerPragerHardening", "rateDependent", "triaxialTestData"}},
    {"kmaC_Elastic", "Unknown material option name for elastic", {"failStress", "failStrain"}},
    {"kmaC_Eos", "Unknown material option name in eos", {"eosCompaction", "detonationPoint"}},
    {"kmaC_Foam", "Unknown material option name for foam", {"crushableFoamHardening", "rateDependent"}},
    {"kmaC_Hyperelastic",
     "Unknown material option name for hyperelastic",
     {"biaxialTestData", "planarTestData", "uniaxialTestData", "volumetricTestData", "hysteresis"}},
    {"kmaC_Hyperfoam",
     "Unknown material option name for hyperfoam",
     {"biaxialTestData", "planarTestData", "uniaxialTestData", "volumetricTestData", "simpleShearTestData"}},
    {"kmaC_MoistureSwelling", "Unknown material option name for moisture swelling", {"ratios"}},
    {"kmaC_Permeability",
     "Unknown material option name for permeability",
     {"saturationDependence", "velocityDependence"}},
    {"kmaC_Plastic",
     "Unknown material option name for plastic",
     {"rateDependent", "potential", "cyclicHardening", "ornl", "cycledPlastic", "annealTemperature"}},
    {"kmaC_PorousMetalPlasticity",
     "Unknown material option name for porous metal plasticity",
     {"porousFailureCriteria", "voidNucleation"}},
    {"kmaC_Swelling", "Unknown material option name for swelling", {"ratios"}},
    {"kmaC_Viscoelastic",
     "Unknown material option name for viscoelastic",
     {"combinedTestData", "shearTestData", "trs", "volumetricTestData"}},
    {"kmaC_ThicknessBehavior", "Unknown material option name for thickness behavior", {"contactArea"}},
    {"kmaC_CastIronPlasticity",
     "Unknown material option name for cast iron plasticity",
     {"castIronCompressionHardening", "castIronTensionHardening"}},
    {"kmaC_MohrCoulomb",
     "Unknown material option name for Mohr Coulomb plasticity",
     {"mohrCoulombHardening", "tensionCutOff"}},
    {"kmaC_ConcreteDamagedPlasticity",
     "Unknown material option name for Concrete Damaged Plasticity",
     {"concreteCompressionHardening", "concreteTensionStiffening", "concreteCompressionDamage",
      "concreteTensionDamage"}},
    {"kmaC_DamageInitiation",
     nullptr,
     {"damageEvolution", "damageStabilization", "damageStabilizationCohesive"}},
    {"kmaC_LowDensityFoam",
     "Unknown material option name for low-density foam",
     {"uniaxialCompressionTestData", "uniaxialTensionTestData"}},
};

[[noreturn]] void Raise(const char* message, int line)
{
    nex_CmdException<atr_String, 2>(atr_translate(message, 0).Result(0), 0).Throw(source, line);
}

template <std::size_t N>
bool Contains(const char* const (&words)[N], const cow_String& word)
{
    return std::any_of(std::begin(words), std::end(words),
                       [&word](const char* known) { return known && word == known; });
}

} // namespace

const cls_Attribute& kmaC_FindOption(const cow_String& word)
{
    if (!Contains(optionWords, word))
        Raise("Unknown material option", __LINE__);
    return *kmaC_Material::Description().FindByWord(word.CString());
}

const cls_Attribute* kmaC_FindSuboption(const cls_Description& parent, const cow_String& word)
{
    for (const Suboptions& row : suboptions)
    {
        if (std::string_view(row.parent) != parent.Name())
            continue;
        if (Contains(row.words, word))
            return parent.FindByWord(word.CString());
        if (row.failure)
            Raise(row.failure, __LINE__);
        return nullptr;
    }
    Raise("Material option has no suboptions", __LINE__);
}

constexpr kmaC_ListMember kmaC_ListMembers[] = {
    {"uniaxialTests", "uniaxialTests", 0x2380082, "uniaxial tests exists only for Mullins Effect object."},
    {"biaxialTests", "biaxialTests", 0x2380082, "biaxial tests exists only for Mullins Effect object."},
    {"planarTests", "planarTests", 0x2380082, "planar tests exists only for Mullins Effect object."},
    {"DamageEvolutionList", "damageEvolutionList", 0x2380085,
     "damage evolution list exists only for damage initiation object."}};

const kmaC_MatOptionList* kmaC_FindList(const kmaC_MaterialOption& parent, const kmaC_ListMember& member)
{
    const cls_Description* description = cls_Descriptions().Find(parent.DynTypeId());
    if (!description || description->Id() != member.ownerId)
        Raise(member.failure, __LINE__);
    return static_cast<const kmaC_MatOptionList*>(description->FindByName(member.attribute)->Member(&parent));
}
