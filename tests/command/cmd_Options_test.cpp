#include "LibraryEnvironment.h"
#include "cmd_Error.h"
#include "cmd_Script.h"
#include "kmaC_MaterialContainer.h"

#include <gtest/gtest.h>

namespace
{

class Options : public testing::Test
{
protected:
    Options()
    {
        session.SetJournal([this](const std::string& line) { journal.push_back(line); });
        Run("model.Material(name='steel')");
    }

    std::string Run(const std::string& line) { return cmd_Run(session, line); }

    /// The message with which the line is refused, or "nothing thrown".
    std::string Refusal(const std::string& line)
    {
        try
        {
            Run(line);
        }
        catch (const cmd_Error& error)
        {
            return error.what();
        }
        return "nothing thrown";
    }

    const kmaC_Material& Steel() const
    {
        return *dynamic_cast<const kmaC_MaterialContainer&>(*session.Model()->ConstGetMaterials())
                    .ConstGet("steel");
    }

    cmd_Session session;
    std::vector<std::string> journal;
};

TEST_F(Options, AreMadeInTheirSlots)
{
    Run("model.materials['steel'].Elastic(table=((210000, 0.3),))");
    ASSERT_FALSE(Steel().elastic.IsNull());
    EXPECT_EQ(210000.0, Steel().elastic->table.Value(0, 0));
    EXPECT_EQ(0.3, Steel().elastic->table.Value(0, 1));
    Run("model.materials['steel'].Plastic(table=((355, 0), (450, 0.05)))");
    Run("model.materials['steel'].options['plastic'].Ornl(a=0.5)");
    Run("model.materials['steel'].plastic.RateDependent(type=YIELD_RATIO, table=((1, 0),))");
    EXPECT_EQ(0.5, Steel().plastic->ornl->a);
    EXPECT_EQ(kmaC_RateDependent::TypeEnm::YIELD_RATIO, Steel().plastic->rateDependent->type);
    Run("model.materials['steel'].CrushableFoam(hardening=ISOTROPIC)");
    Run("model.materials['steel'].options['crushableFoam'].CrushableFoamHardening(table=((1, 2),))");
    EXPECT_EQ(2.0, Steel().foam->foamHardening->table.Value(0, 1));
}

TEST_F(Options, AreReachedByTheirPaths)
{
    Run("model.materials['steel'].Plastic(table=((355, 0), (450, 0.05)), ornl=Ornl(a=0.5))");
    const struct
    {
        const char* path;
        const char* text;
    } rows[] = {
        {"model.materials['steel'].options['plastic'].table", "((355.0, 0.0), (450.0, 0.05))"},
        {"model.materials['steel'].options['plastic'].table[1][0]", "450.0"},
        {"model.materials['steel'].options['plastic'].table.allowEmptyFirstRow", "False"},
        {"model.materials['steel'].options['plastic'].table.table[0]", "(355.0, 0.0)"},
        {"model.materials['steel'].options['plastic'].options['ornl'].a", "0.5"},
        {"model.materials['steel'].plastic.ornl.a", "0.5"},
        {"model.materials['steel'].options['plastic'].hardening", "ISOTROPIC"},
        {"model.materials['steel'].options['elastic']", "None"},
        {"model.materials['steel'].options['depvar']", "None"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.text, Run(row.path)) << row.path;
    EXPECT_EQ(0u, Run("model.materials['steel'].options['plastic'].options['ornl']").find("Ornl(a=0.5, h="));
}

TEST_F(Options, AreSetAndUndoneByTheirPaths)
{
    Run("model.materials['steel'].Plastic(table=((355, 0),), ornl=Ornl())");
    Run("model.materials['steel'].options['plastic'].setValues(hardening=KINEMATIC)");
    EXPECT_EQ("model.materials['steel'].options['plastic'].setValues(hardening=KINEMATIC)", journal.back());
    EXPECT_EQ(kmaC_Plastic::HardeningEnm::KINEMATIC, Steel().plastic->hardening);
    Run("model.materials['steel'].options['plastic'].options['ornl'].a = 0.25");
    EXPECT_EQ(0.25, Steel().plastic->ornl->a);
    Run("model.undo()");
    EXPECT_EQ(0.3, Steel().plastic->ornl->a);
    Run("model.undo()");
    EXPECT_EQ(kmaC_Plastic::HardeningEnm::ISOTROPIC, Steel().plastic->hardening);
}

TEST_F(Options, ComeBackFromTheJournal)
{
    Run("model.materials['steel'].Elastic(table=((210000, 0.3),))");
    Run("model.materials['steel'].Viscoelastic(table=((0, 0, 0), (0.5, 0, 1)), domain=TIME)");
    Run("model.materials['steel'].options['viscoelastic'].setValues(volumetricTable={'table': ((1,),), "
        "'allowEmptyFirstRow': False})");
    cmd_Session other;
    for (const std::string& line : journal)
        cmd_Run(other, line);
    for (const char* path :
         {"model.materials['steel'].options['elastic']", "model.materials['steel'].options['viscoelastic']"})
        EXPECT_EQ(Run(path), cmd_Run(other, path));
    EXPECT_TRUE(Steel().viscoelastic->table.allowEmptyFirstRow) << "plain rows leave the flag alone";
    EXPECT_FALSE(Steel().viscoelastic->volumetricTable.allowEmptyFirstRow);
    EXPECT_EQ("{'table': ((1.0,),), 'allowEmptyFirstRow': False}",
              Run("model.materials['steel'].options['viscoelastic'].volumetricTable"));
}

TEST_F(Options, RefuseWhatDoesNotFit)
{
    Run("model.materials['steel'].Elastic(table=((210000, 0.3),))");
    Run("model.materials['steel'].LowDensityFoam()");
    const struct
    {
        const char* line;
        const char* refusal;
    } rows[] = {
        {"model.materials['steel'].options['foam']",
         "model.materials['steel'].options['foam']: Unknown material option"},
        {"model.materials['steel'].options['softRockPlasticity']",
         "model.materials['steel'].options['softRockPlasticity']: Unknown material option"},
        {"model.materials['steel'].options['elastic'].options['ornl']",
         "model.materials['steel'].options['elastic'].options['ornl']: Unknown material option name for "
         "elastic"},
        {"model.materials['steel'].options", "model.materials['steel'].options: expected a name behind it, "
                                             "as model.materials['steel'].options['name']"},
        {"model.materials['steel'].options['elastic'].setValues(table=5)",
         "kmaC_Elastic.table: expected rows of numbers, found 5"},
        {"model.materials['steel'].options['elastic'].setValues(table=((1, 'x'),))",
         "kmaC_Elastic.table[0][1]: expected a number, found 'x'"},
        {"model.materials['steel'].options['elastic'].setValues(table={'rows': ((1, 2),)})",
         "kmaC_Elastic.table.rows: the class kmaC_MaterialTable has no such attribute"},
        {"model.materials['steel'].options['lowDensityFoam'].UniaxialTestData()",
         "model.materials['steel'].options['lowDensityFoam']: UniaxialTestData fits the attributes "
         "uniaxialTensionTestData and uniaxialCompressionTestData, expected setValues with one of them"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.refusal, Refusal(row.line)) << row.line;
    EXPECT_NE(std::string::npos,
              Refusal("model.materials['steel'].Depvar()").find("has no constructor Depvar"));
    Run("model.materials['steel'].options['lowDensityFoam'].setValues(uniaxialTensionTestData="
        "UniaxialTestData())");
    EXPECT_FALSE(Steel().lowDensityFoam->uniaxialTensionTestData.IsNull());
}

TEST_F(Options, KeepTheirRules)
{
    const std::string before = Run("model.materials['steel'].elastic");
    try
    {
        Run("model.materials['steel'].Elastic(noCompression=True, noTension=True)");
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const nex_PrimException<atr_String, 1>& rule)
    {
        EXPECT_STREQ(
            "model.materials['steel']: kmaC:36 No compression and No tension are mutually exclusive. "
            "Please unselect one of them.",
            rule.what());
    }
    EXPECT_EQ(before, Run("model.materials['steel'].elastic"));
}

} // namespace
