#include "BrokenStore.h"
#include "MaterialSupport.h"
#include "mem_Allocation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

TEST(kmaC_MaterialOption, IsOfItsParentClassesButNotOfItsOwn)
{
    LibraryEnvironment::Require();
    const kmaC_Elastic option;
    EXPECT_TRUE(option.IsA(kmaC_MaterialOption::TypeId()));
    EXPECT_FALSE(option.IsA(kmaC_Elastic::TypeId()));
    EXPECT_FALSE(option.IsA(kmaC_Plastic::TypeId()));
    EXPECT_FALSE(option.IsA(kmaC_Material::TypeId()));
    EXPECT_FALSE(option.IsA(0));
}

TEST(kmaC_Material, HasEmptySlotsByDefault)
{
    const kmaC_Material material;
    int slots = 0;
    for (const cls_Attribute& attribute : kmaC_Material::Description().Attributes())
    {
        const cls_KindEnm kind = attribute.kind->Id();
        if (kind == cls_KindEnm::String)
            continue;
        ++slots;
        EXPECT_TRUE(kind == cls_KindEnm::Optional || kind == cls_KindEnm::Pending);
        EXPECT_TRUE(attribute.kind->Export(attribute.Member(&material)).IsNull()) << attribute.word;
    }
    EXPECT_EQ(82, slots);
    EXPECT_TRUE(material.description.IsEmpty());
    EXPECT_TRUE(material.materialIdentifier.IsEmpty());
    EXPECT_EQ(passes, Verdict(material));
}

TEST(kmaC_Material, NeedsNoMoreThanACountForAnEmptySlotAndNothingForACopy)
{
    const auto& attributes = kmaC_Material::Description().Attributes();
    const auto slots = std::count_if(attributes.begin(), attributes.end(),
                                     [](const cls_Attribute& attribute)
                                     { return attribute.kind->Id() == cls_KindEnm::Optional; });
    const std::size_t before = mem_BlocksInUse();
    const kmaC_Material material;
    const std::size_t made = mem_BlocksInUse();
    EXPECT_EQ(static_cast<std::size_t>(slots), made - before);
    const kmaC_Material copy(material);
    EXPECT_EQ(made, mem_BlocksInUse());
    EXPECT_LE(sizeof(kmaC_Material) + static_cast<std::size_t>(slots) * sizeof(int), 2048u);
}

TEST(kmaC_Material, IsSharedWithoutAllocating)
{
    const kmaC_Option<kmaC_Material> material(new kmaC_Material);
    const std::size_t before = mem_BlocksInUse();
    {
        const kmaC_Option<kmaC_Material> other(material);
        EXPECT_EQ(before, mem_BlocksInUse());
        EXPECT_EQ(2, material.ShareCount());
    }
    EXPECT_EQ(before, mem_BlocksInUse());
}

template <class T>
kmaC_Option<T> Invalid()
{
    T option;
    if constexpr (requires { option.dependencies; })
        option.dependencies = -1;
    return kmaC_Option<T>(option);
}

kmaC_Option<kmaC_Hyperelastic> InvalidHyperelastic()
{
    kmaC_Hyperelastic option;
    option.hysteresis = WithBlankTable<kmaC_Hysteresis>();
    return kmaC_Option<kmaC_Hyperelastic>(option);
}

kmaC_Option<kmaC_Hyperfoam> InvalidHyperfoam()
{
    kmaC_Hyperfoam option;
    option.n = 7;
    return kmaC_Option<kmaC_Hyperfoam>(option);
}

kmaC_Option<kmaC_Viscoelastic> InvalidViscoelastic()
{
    kmaC_Viscoelastic option;
    option.nmax = 14;
    return kmaC_Option<kmaC_Viscoelastic>(option);
}

kmaC_Option<kmaC_LowDensityFoam> InvalidLowDensityFoam()
{
    kmaC_LowDensityFoam option;
    option.maxAllowablePrincipalStress = 0.0;
    return kmaC_Option<kmaC_LowDensityFoam>(option);
}

kmaC_Option<kmaC_Elastic> InvalidElastic()
{
    kmaC_Elastic option;
    option.noCompression = true;
    option.noTension = true;
    return kmaC_Option<kmaC_Elastic>(option);
}

const std::string bothExcluded =
    "No compression and No tension are mutually exclusive. Please unselect one of them.";
const std::string lowStressLimit =
    "The value of maximum allowable principal tensile stress should be greater than zero.";

using T = kmaC_Material;

/// A slot whose rules are asked, what is put in it, and what then comes of the material.
struct Slot
{
    const char* name;
    std::function<void(T&)> breakRule;
    std::string verdict;
};

/// In the order in which the slots are asked.
std::vector<Slot> AskedSlots()
{
    return {
        {"creep", [](T& m) { m.creep = Invalid<kmaC_Creep>(); }, fewDependencies},
        {"deformationPlasticity",
         [](T& m) { m.deformationPlasticity = WithBlankTable<kmaC_DeformationPlasticity>(); }, blankRow},
        {"elastic", [](T& m) { m.elastic = InvalidElastic(); }, bothExcluded},
        {"foam", [](T& m) { m.foam = Invalid<kmaC_Foam>(); }, fewDependencies},
        {"hyperelastic", [](T& m) { m.hyperelastic = InvalidHyperelastic(); }, blankRow},
        {"hyperfoam", [](T& m) { m.hyperfoam = InvalidHyperfoam(); },
         "Value for n is greater than the maximum."},
        {"plastic", [](T& m) { m.plastic = Invalid<kmaC_Plastic>(); }, fewDependencies},
        {"shear", [](T& m) { m.shear = Invalid<kmaC_Shear>(); }, fewDependencies},
        {"viscoelastic", [](T& m) { m.viscoelastic = InvalidViscoelastic(); },
         "Value for nmax is more than the maximum."},
        {"viscous", [](T& m) { m.viscous = WithBlankTable<kmaC_Viscous>(); }, blankRow},
        {"lowDensityFoam", [](T& m) { m.lowDensityFoam = InvalidLowDensityFoam(); }, lowStressLimit},
    };
}

TEST(kmaC_Material, AsksItsBehavioursInOrder)
{
    const std::vector<Slot> slots = AskedSlots();
    for (std::size_t i = 0; i < slots.size(); ++i)
    {
        T alone;
        slots[i].breakRule(alone);
        EXPECT_EQ(slots[i].verdict, Verdict(alone)) << slots[i].name;
        for (std::size_t j = i + 1; j < slots.size(); ++j)
        {
            T both(alone);
            slots[j].breakRule(both);
            EXPECT_EQ(slots[i].verdict, Verdict(both)) << slots[i].name << " before " << slots[j].name;
        }
    }
}

TEST(kmaC_Material, DoesNotAskThePlasticityCorrection)
{
    T material;
    material.plasticityCorrection = Invalid<kmaC_PlasticityCorrection>();
    EXPECT_EQ(fewDependencies, Verdict(*material.plasticityCorrection));
    EXPECT_EQ(passes, Verdict(material));
}

TEST(kmaC_Material, AcceptsBehavioursWithoutRules)
{
    T material;
    kmaC_Hypoelastic hypoelastic;
    hypoelastic.table = BlankTable();
    material.hypoelastic = kmaC_Option<kmaC_Hypoelastic>(hypoelastic);
    kmaC_Regularization regularization;
    regularization.rtol = -1.0;
    material.regularization = kmaC_Option<kmaC_Regularization>(regularization);
    EXPECT_EQ(passes, Verdict(material));
}

TEST(kmaC_Material, RefusesAStoredObjectOfAClassThatIsNotBuilt)
{
    kmaC_Material material;
    material.elastic = kmaC_Option<kmaC_Elastic>(new kmaC_Elastic);
    const BrokenStore store;
    store.Save(kmaC_Material::TypeId(), &material);
    EXPECT_EQ("nothing thrown", store.MessageOfReading(kmaC_Material::TypeId()));
    store.Execute("UPDATE kmaC_Material SET \"depvar#ClassID\" = 0x2380018, \"depvar#OID\" = 1, "
                  "\"##Check\" = NULL");
    EXPECT_EQ("Nothing is known of the class of the object: kmaC_Depvar (0x2380018).",
              store.MessageOfReading(kmaC_Material::TypeId()));
    store.Execute("UPDATE kmaC_Material SET \"depvar#ClassID\" = 0x238001E");
    EXPECT_EQ(
        "Expected an object of class kmaC_Depvar (0x2380018), found one of class kmaC_Elastic (0x238001E).",
        store.MessageOfReading(kmaC_Material::TypeId()));
}

TEST(kmaC_Material, RefusesWhatIsNotBuilt)
{
    const cls_Kind& kind = cls_KindOf<cls_Pending<0x238006B>>::kind;
    cls_Pending<0x238006B> slot;
    EXPECT_NO_THROW(kind.Import(&slot, cls_Value()));
    try
    {
        kind.Import(&slot, cls_Value::Object{{"class", "kmaC_Depvar"}});
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cls_ValueError& error)
    {
        EXPECT_STREQ("expected null, as the class kmaC_MaterialContainerIMPLSC is not built, found "
                     "an object of 1 members",
                     error.what());
    }
}

} // namespace
