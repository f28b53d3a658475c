#include "dbc_Utils.h"

#include "MemoryRow.h"
#include "dbc_DatabaseConverter.h"
#include "nex_Exceptions.h"

#include <gtest/gtest.h>

namespace
{

/// The text of the error that a call ends with.
template <class Call>
std::string RefusalOf(Call call)
{
    try
    {
        call();
    }
    catch (const nex_CmdException<atr_String, 2>& error)
    {
        return error.what();
    }
    return "no error";
}

TEST(dbc_DatabaseConverter, HasNoDatabasesOutsideAnUpgrade)
{
    const dbc_DatabaseConverter converter;
    EXPECT_EQ("No upgrade is under way.", RefusalOf([&] { converter.GetInputDatabase(); }));
    EXPECT_EQ("No upgrade is under way.", RefusalOf([&] { converter.GetOutputDatabase(); }));
}

TEST(dbc_Utils, NeedsAnUpgrade)
{
    dbc_Utils& utils = *omi_Singleton<dbc_Utils>::Instance();
    MemoryRow row;
    EXPECT_EQ("No upgrade is under way.",
              RefusalOf([&] { utils.GetAttributeMapFromInputDatabase(row, "parts"); }));
    EXPECT_EQ("No upgrade is under way.",
              RefusalOf([&] { utils.SetNewAttributeMapInOutputDatabase(row, "parts"); }));
    EXPECT_TRUE(row.All().empty());
}

} // namespace
