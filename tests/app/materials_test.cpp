#include "Program.h"
#include "app_TableHeadings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using testing::HasSubstr;
using testing::Not;

TEST(MaterialLibrary, KeepsItsRules)
{
    const Answer answer = RunProgram({"check", Example("materials.json")});
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    EXPECT_EQ(Example("materials.json") + ": 5 objects, all rules hold\n", answer.out);
}

class MaterialStore : public testing::Test
{
protected:
    MaterialStore()
    {
        const Answer answer = RunProgram({"import", Example("materials.json"), store});
        EXPECT_EQ(0, answer.exitCode) << answer.err;
    }

    std::string Show(const std::string& path) const
    {
        const Answer answer = RunProgram({"show", store, path});
        EXPECT_EQ(0, answer.exitCode) << answer.err;
        return answer.out;
    }

    ScratchFolder folder;
    std::string store = folder.Path("materials.vdb");
};

TEST_F(MaterialStore, IsExportedAsItWasImported)
{
    const Answer exported = RunProgram({"export", store});
    EXPECT_EQ(0, exported.exitCode) << exported.err;
    const std::string again = folder.Path("again.vdb");
    EXPECT_EQ(0, RunProgram({"import", folder.Write("again.json", exported.out), again}).exitCode);
    EXPECT_EQ(exported.out, RunProgram({"export", again}).out);
}

TEST_F(MaterialStore, IsShownAsAnAnalystReadsIt)
{
    const std::string steel = Show("materials['steel S355']");
    EXPECT_THAT(steel, HasSubstr("materials['steel S355']  Material (kmaC_Material)"));
    EXPECT_THAT(steel, HasSubstr("Young's modulus  Poisson's ratio\n"));
    EXPECT_THAT(steel, HasSubstr("yield stress  plastic strain\n"));
    EXPECT_THAT(steel, HasSubstr("4 rows of 2\n"));
    EXPECT_THAT(steel, Not(HasSubstr("depvar"))) << "places without a behaviour are left out";
    EXPECT_THAT(steel, Not(HasSubstr("none\n")));
    EXPECT_THAT(Show("materials['PVB interlayer']"), HasSubstr("relaxation time"));
    EXPECT_THAT(RunProgram({"show", store}).out, HasSubstr("elastic, plastic"));
}

cls_Value OwnerOf(const char* type, bool temperature, int dependencies)
{
    return cls_Value::Object{{"class", "kmaC_Elastic"},
                             {"type", type},
                             {"temperatureDependency", temperature},
                             {"dependencies", dependencies}};
}

TEST(TableHeadings, FitTheColumnsOrAreLeftOut)
{
    using Texts = std::vector<std::string>;
    const Texts isotropic{"Young's modulus", "Poisson's ratio"};
    EXPECT_EQ(isotropic, app_HeadingsOf(OwnerOf("ISOTROPIC", false, 0), "table", 2));
    EXPECT_EQ(Texts(), app_HeadingsOf(OwnerOf("ISOTROPIC", false, 0), "table", 3));
    EXPECT_EQ((Texts{"Young's modulus", "Poisson's ratio", "temperature", "field 1", "field 2"}),
              app_HeadingsOf(OwnerOf("ISOTROPIC", true, 2), "table", 5));
    EXPECT_EQ((Texts{"shear modulus"}), app_HeadingsOf(OwnerOf("SHEAR", false, 0), "table", 1));
    EXPECT_EQ(Texts(), app_HeadingsOf(OwnerOf("SHORT_FIBER", false, 0), "table", 2));
    EXPECT_EQ(Texts(), app_HeadingsOf(OwnerOf("ISOTROPIC", false, 0), "other", 2));
    EXPECT_EQ(Texts(), app_HeadingsOf(OwnerOf("ISOTROPIC", true, 2147483647), "table", 5));
    EXPECT_EQ(Texts(), app_HeadingsOf(cls_Value(), "table", 2));
}

} // namespace
