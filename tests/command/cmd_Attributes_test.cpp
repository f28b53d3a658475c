#include "cmd_Attributes.h"

#include "LibraryEnvironment.h"
#include "cmd_Error.h"
#include "kadC_AdptMeshDomain.h"
#include "kamC_SolutionDependent.h"
#include "kamC_Tabular.h"
#include "kmaC_Plastic.h"

namespace
{

struct UnsetRow
{
    const cls_Description& description;
    const char* word;
    std::string symbol;
};

TEST(UnsetSymbol, IsTheOneTextOfAnEnumerationThatBearsTheAttributesNameOrItsEnd)
{
    const UnsetRow rows[] = {
        {kamC_Tabular::Description(), "smooth", "SOLVER_DEFAULT"},
        {kadC_AdptMeshDomain::Description(), "initialMeshSweeps", "DEFAULT"},
        {kadC_AdptMeshDomain::Description(), "meshSweeps", "none"},
        {kadC_AdptMeshDomain::Description(), "frequency", "none"},
        {kamC_SolutionDependent::Description(), "initial", "none"},
        {kmaC_Plastic::Description(), "scaleStress", "none"},
    };
    for (const UnsetRow& row : rows)
    {
        const char* symbol = cmd_UnsetSymbolOf(row.description, *row.description.FindByWord(row.word));
        EXPECT_EQ(row.symbol, symbol ? symbol : "none") << row.word;
    }
}

TEST(UnsetSymbol, IsTakenAndGiven)
{
    const cls_Description& description = kadC_AdptMeshDomain::Description();
    const cls_Attribute& sweeps = *description.FindByWord("initialMeshSweeps");
    kadC_AdptMeshDomain domain;
    cmd_SetAttribute(description, &domain, sweeps, cmd_Value(std::int64_t{3}));
    EXPECT_EQ(3, domain.initialRemeshingSweeps);
    cmd_SetAttribute(description, &domain, sweeps, cmd_Value::Symbol{"DEFAULT"});
    EXPECT_EQ(cls_UnsetInt, domain.initialRemeshingSweeps);
    EXPECT_EQ(cmd_Value(cmd_Value::Symbol{"DEFAULT"}), cmd_GetAttribute(description, &domain, sweeps));
    try
    {
        cmd_SetAttribute(description, &domain, sweeps, cmd_Value::Symbol{"USUAL"});
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const cmd_Error& error)
    {
        EXPECT_STREQ("kadC_AdptMeshDomain.initialMeshSweeps: expected an integer or DEFAULT, found USUAL",
                     error.what());
    }
}

} // namespace
