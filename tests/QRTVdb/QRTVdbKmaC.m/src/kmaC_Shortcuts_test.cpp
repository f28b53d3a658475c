#include "MaterialSupport.h"
#include "ddr_PathParser.h"
#include "kmaC_Shortcuts.h"

#include <gtest/gtest.h>

namespace
{

kmaC_MaterialContainerShortcut ToMaterials()
{
    return kmaC_MaterialContainerShortcut(
        new kmaC_MaterialContainerInModelShortcut(ddr_Shortcut<ddr_Model>()));
}

kmaC_MaterialShortcut ToMaterial(const char* name)
{
    return kmaC_MaterialShortcut(new kmaC_MaterialInMaterialContainerShortcut(name, ToMaterials()));
}

kmaC_MaterialOptionShortcut ToOption(const char* word)
{
    return kmaC_MaterialOptionShortcut(new kmaC_MaterialOptionInMaterialShortcut(word, ToMaterial("steel")));
}

kmaC_MaterialOptionShortcut ToSuboption(const char* word, const char* suboption)
{
    return kmaC_MaterialOptionShortcut(
        new kmaC_MaterialOptionInMaterialOptionShortcut(suboption, ToOption(word)));
}

template <int N>
kmaC_MatOptionListShortcut ToList(const char* word)
{
    return kmaC_MatOptionListShortcut(
        new ddr_MemberShortcut<kmaC_MaterialOption, kmaC_MatOptionList, N>(ToOption(word)));
}

/// Text and place of what `act` throws, or "nothing thrown".
template <class Act>
std::string Error(Act act)
{
    try
    {
        act();
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        return std::string(error.GetText().CString()) + " @ " + error.File();
    }
    catch (const nex_CmdException<cow_String, 9>& error)
    {
        return std::string("unknown ") + error.GetText().CString();
    }
    return "nothing thrown";
}

const std::string place = " @ QRTVdb/QRTVdbKmaC.m/src/kmaC_MaterialOptionShortcut";

template <class T>
kmaC_Option<T> New()
{
    return kmaC_Option<T>(new T);
}

class MaterialShortcut : public testing::Test
{
protected:
    MaterialShortcut()
    {
        LibraryEnvironment::Require();
        kmaC_Material steel;
        steel.creep = New<kmaC_Creep>();
        steel.deformationPlasticity = New<kmaC_DeformationPlasticity>();
        steel.elastic = New<kmaC_Elastic>();
        steel.foam = New<kmaC_Foam>();
        steel.hyperelastic = New<kmaC_Hyperelastic>();
        steel.hyperfoam = New<kmaC_Hyperfoam>();
        steel.hypoelastic = New<kmaC_Hypoelastic>();
        steel.lowDensityFoam = New<kmaC_LowDensityFoam>();
        steel.plastic = New<kmaC_Plastic>();
        steel.plastic.Get()->ornl = New<kmaC_Ornl>();
        steel.plasticityCorrection = New<kmaC_PlasticityCorrection>();
        steel.regularization = New<kmaC_Regularization>();
        steel.shear = New<kmaC_Shear>();
        steel.viscoelastic = New<kmaC_Viscoelastic>();
        steel.viscous = New<kmaC_Viscous>();
        Materials().Insert("steel", steel);
    }

    kmaC_MaterialContainer& Materials()
    {
        return dynamic_cast<kmaC_MaterialContainer&>(*container.GetModel()->GetMaterials());
    }

    const kmaC_Material& Steel() { return *Materials().ConstGet("steel"); }

    ddr_DdbContainer container;
};

TEST_F(MaterialShortcut, PrintsItsPath)
{
    const struct
    {
        const omu_ShortcutBase& shortcut;
        const char* name;
        const char* path;
        const char* python;
    } rows[] = {
        {ToMaterials(), "materials", "model.materials", "model.materials"},
        {ToMaterial("steel"), "steel", "model.materials['steel']", "model.materials['steel']"},
        {ToMaterial("it's"), "it's", "model.materials['it's']", "model.materials[\"it's\"]"},
        {ToOption("plastic"), "plastic", "model.materials['steel'].options['plastic']",
         "model.materials['steel'].options['plastic']"},
        {ToOption("it's"), "it's", "model.materials['steel'].options[\"it's\"]",
         "model.materials['steel'].options[\"it's\"]"},
        {ToSuboption("plastic", "ornl"), "ornl",
         "model.materials['steel'].options['plastic'].options['ornl']",
         "model.materials['steel'].options['plastic'].options['ornl']"},
        {ToList<1>("plastic"), "uniaxialTests", "model.materials['steel'].options['plastic'].uniaxialTests",
         "model.materials['steel'].options['plastic'].uniaxialTests"},
        {ToList<2>("plastic"), "biaxialTests", "model.materials['steel'].options['plastic'].biaxialTests",
         "model.materials['steel'].options['plastic'].biaxialTests"},
        {ToList<3>("plastic"), "planarTests", "model.materials['steel'].options['plastic'].planarTests",
         "model.materials['steel'].options['plastic'].planarTests"},
        {ToList<4>("plastic"), "DamageEvolutionList",
         "model.materials['steel'].options['plastic'].DamageEvolutionList",
         "model.materials['steel'].options['plastic'].DamageEvolutionList"},
        {kmaC_MaterialOptionShortcut(new kmaC_MaterialOptionInMatOptionListShortcut(2, ToList<1>("plastic"))),
         "2", "model.materials['steel'].options['plastic'].uniaxialTests[2]",
         "model.materials['steel'].options['plastic'].uniaxialTests[2]"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.shortcut.Name(), row.name);
        EXPECT_EQ(row.shortcut.Path(), row.path);
        EXPECT_EQ(row.shortcut.PythonPath(), row.python);
    }
}

TEST_F(MaterialShortcut, IsReadFromItsPath)
{
    for (const char* path : {"materials", "materials['steel']", "materials['steel'].options['plastic']",
                             "materials['steel'].options['plastic'].options['ornl']",
                             "materials['steel'].options['plastic'].uniaxialTests",
                             "materials['steel'].options['plastic'].DamageEvolutionList[3]"})
    {
        const ddr_AnyShortcut shortcut = ddr_ParsePath(path);
        EXPECT_EQ(shortcut.Path(), cow_String("model.").append(path));
    }
    const ddr_AnyShortcut ornl = ddr_ParsePath("materials['steel'].options['plastic'].options['ornl']");
    EXPECT_EQ(static_cast<const kmaC_MaterialOption*>(Steel().plastic->ornl.ConstGet()),
              ornl.As<kmaC_MaterialOption>()->ConstGet(container));
}

TEST_F(MaterialShortcut, FindsTheOptionOfAWord)
{
    const struct
    {
        const char* word;
        const kmaC_MaterialOption* option;
    } rows[] = {
        {"creep", Steel().creep.ConstGet()},
        {"deformationPlasticity", Steel().deformationPlasticity.ConstGet()},
        {"elastic", Steel().elastic.ConstGet()},
        {"crushableFoam", Steel().foam.ConstGet()},
        {"hyperelastic", Steel().hyperelastic.ConstGet()},
        {"hyperfoam", Steel().hyperfoam.ConstGet()},
        {"hypoelastic", Steel().hypoelastic.ConstGet()},
        {"regularization", Steel().regularization.ConstGet()},
        {"plastic", Steel().plastic.ConstGet()},
        {"viscoelastic", Steel().viscoelastic.ConstGet()},
        {"viscous", Steel().viscous.ConstGet()},
        {"lowDensityFoam", Steel().lowDensityFoam.ConstGet()},
        {"plasticityCorrection", Steel().plasticityCorrection.ConstGet()},
    };
    for (const auto& row : rows)
    {
        ASSERT_NE(nullptr, row.option) << row.word;
        EXPECT_EQ(row.option, ToOption(row.word).ConstGet(container)) << row.word;
    }
}

TEST_F(MaterialShortcut, HasAWordForAllSlotsButFour)
{
    std::string without;
    for (const cls_Attribute& attribute : kmaC_Material::Description().Attributes())
    {
        if (attribute.kind->Id() == cls_KindEnm::String)
            continue;
        const std::string error = Error([&] { kmaC_FindOption(attribute.word); });
        if (error == "nothing thrown")
            EXPECT_EQ(&attribute, &kmaC_FindOption(attribute.word)) << attribute.word;
        else
            without += std::string(attribute.word) + ": " + error + '\n';
    }
    const std::string unknown = ": Unknown material option" + place + '\n';
    EXPECT_EQ("mullinsEffect" + unknown + "shear" + unknown + "softRockPlasticity" + unknown +
                  "superElasticity" + unknown,
              without);
}

TEST_F(MaterialShortcut, RefusesAnyOtherWord)
{
    for (const char* word :
         {"foam", "mohrCoulomb", "thicknessBehavior", "Plastic", "", "description", "shear"})
    {
        EXPECT_EQ("Unknown material option" + place, Error([&] { ToOption(word).ConstGet(container); }))
            << word;
        EXPECT_EQ("Unknown material option" + place, Error([&] { ToOption(word).Get(container); })) << word;
    }
}

TEST_F(MaterialShortcut, LeadsToNullWhereTheSlotIsEmpty)
{
    Materials().Insert("steel", new kmaC_Material);
    for (const char* word : {"plastic", "crushableFoam", "depvar", "ductileDamageInitiation"})
    {
        EXPECT_EQ(nullptr, ToOption(word).ConstGet(container)) << word;
        EXPECT_EQ(nullptr, ToOption(word).Get(container)) << word;
    }
    EXPECT_EQ("unknown plastic", Error([&] { ToSuboption("plastic", "ornl").ConstGet(container); }));
    EXPECT_EQ("unknown iron", Error([&] { ToMaterial("iron").ConstGet(container); }));
}

TEST_F(MaterialShortcut, DetachesWhatItGivesForWriting)
{
    const ddr_DdbContainer snapshot(container);
    const kmaC_MaterialOption* before = ToOption("plastic").ConstGet(container);
    EXPECT_EQ(before, ToOption("plastic").ConstGet(snapshot));
    auto* plastic = dynamic_cast<kmaC_Plastic*>(ToOption("plastic").Get(container));
    plastic->numBackstresses = 4;
    EXPECT_NE(before, plastic);
    EXPECT_EQ(plastic, ToOption("plastic").ConstGet(container));
    EXPECT_EQ(before, ToOption("plastic").ConstGet(snapshot)) << "a snapshot keeps what it had";
    const kmaC_MaterialOption* ornl = ToSuboption("plastic", "ornl").ConstGet(container);
    EXPECT_EQ(ornl, ToSuboption("plastic", "ornl").ConstGet(snapshot));
    dynamic_cast<kmaC_Ornl&>(*ToSuboption("plastic", "ornl").Get(container)).a = 0.5;
    EXPECT_EQ(0.3, dynamic_cast<const kmaC_Ornl&>(*ToSuboption("plastic", "ornl").ConstGet(snapshot)).a);
}

struct Suboptions
{
    const cls_Description& parent;
    std::vector<const char*> words;
    const char* failure;
};

TEST_F(MaterialShortcut, FindsTheSubOptionsOfAClass)
{
    const Suboptions rows[] = {
        {kmaC_Creep::Description(), {"ornl", "potential"}, "Unknown material option name for creep"},
        {kmaC_Elastic::Description(),
         {"failStress", "failStrain"},
         "Unknown material option name for elastic"},
        {kmaC_Foam::Description(),
         {"crushableFoamHardening", "rateDependent"},
         "Unknown material option name for foam"},
        {kmaC_Hyperelastic::Description(),
         {"biaxialTestData", "planarTestData", "uniaxialTestData", "volumetricTestData", "hysteresis"},
         "Unknown material option name for hyperelastic"},
        {kmaC_Hyperfoam::Description(),
         {"biaxialTestData", "planarTestData", "uniaxialTestData", "volumetricTestData",
          "simpleShearTestData"},
         "Unknown material option name for hyperfoam"},
        {kmaC_Plastic::Description(),
         {"rateDependent", "potential", "cyclicHardening", "ornl", "cycledPlastic", "annealTemperature"},
         "Unknown material option name for plastic"},
        {kmaC_Viscoelastic::Description(),
         {"combinedTestData", "shearTestData", "trs", "volumetricTestData"},
         "Unknown material option name for viscoelastic"},
        {kmaC_LowDensityFoam::Description(),
         {"uniaxialCompressionTestData", "uniaxialTensionTestData"},
         "Unknown material option name for low-density foam"},
    };
    for (const Suboptions& row : rows)
    {
        for (const char* word : row.words)
        {
            const cls_Attribute* attribute = kmaC_FindSuboption(row.parent, word);
            ASSERT_NE(nullptr, attribute) << row.parent.Name() << ' ' << word;
            EXPECT_STREQ(word, attribute->word);
            EXPECT_EQ(cls_KindEnm::Optional, attribute->kind->Id());
        }
        for (const char* word : {"", "table", "tensileFailure", "foamHardening", "eosCompaction"})
            EXPECT_EQ(row.failure + place, Error([&] { kmaC_FindSuboption(row.parent, word); }))
                << row.parent.Name() << ' ' << word;
    }
}

TEST_F(MaterialShortcut, RefusesSubOptionsOfClassesThatHaveNone)
{
    for (const cls_Description* parent :
         {&kmaC_Viscous::Description(), &kmaC_Ornl::Description(), &kmaC_Shear::Description(),
          &kmaC_Regularization::Description(), &kmaC_MaterialOption::Description()})
        EXPECT_EQ("Material option has no suboptions" + place,
                  Error([&] { kmaC_FindSuboption(*parent, "potential"); }));
    EXPECT_EQ("Material option has no suboptions" + place,
              Error([&] { ToSuboption("viscous", "potential").ConstGet(container); }));
    EXPECT_EQ("Unknown material option name for elastic" + place,
              Error([&] { ToSuboption("elastic", "ornl").Get(container); }));
    EXPECT_EQ(nullptr, ToSuboption("elastic", "failStress").ConstGet(container));
}

TEST_F(MaterialShortcut, RefusesListsOfOtherOptions)
{
    const std::string failures[] = {"uniaxial tests exists only for Mullins Effect object.",
                                    "biaxial tests exists only for Mullins Effect object.",
                                    "planar tests exists only for Mullins Effect object.",
                                    "damage evolution list exists only for damage initiation object."};
    EXPECT_EQ(failures[0] + place, Error([&] { ToList<1>("plastic").ConstGet(container); }));
    EXPECT_EQ(failures[1] + place, Error([&] { ToList<2>("elastic").Get(container); }));
    EXPECT_EQ(failures[2] + place, Error([&] { ToList<3>("creep").ConstGet(container); }));
    EXPECT_EQ(failures[3] + place, Error([&] { ToList<4>("plastic").Get(container); }));
}

TEST_F(MaterialShortcut, FindsTheElementOfAList)
{
    using Step = ddr_SequenceStepOf<kmaC_MatOptionList, kmaC_MaterialOption, 1>;
    kmaC_MatOptionList list;
    list.Insert(0, new kmaC_UniaxialTestData);
    list.Insert(1, new kmaC_PlanarTestData);
    const kmaC_MatOptionList copy(list);
    EXPECT_EQ(kmaC_PlanarTestData::TypeId(), Step::ConstGet(list, 1)->DynTypeId());
    EXPECT_EQ(copy.ConstGet(1), Step::ConstGet(list, 1));
    EXPECT_NE(copy.ConstGet(1), Step::Get(list, 1)) << "an element is private when it is given for writing";
    EXPECT_EQ("unknown 2", Error([&] { Step::ConstGet(list, 2); }));
    EXPECT_EQ("unknown -1", Error([&] { Step::ConstGet(list, -1); }));
}

} // namespace
