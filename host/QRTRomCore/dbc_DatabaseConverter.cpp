#include "dbc_DatabaseConverter.h"

#include "nex_Exceptions.h"

namespace
{
template <class Database>
Database& Required(Database* database)
{
    if (!database)
        nex_CmdException<atr_String, 2>(atr_String("No upgrade is under way."), 0).Throw(__FILE__, __LINE__);
    return *database;
}
} // namespace

dbc_DatabaseConverter::dbc_DatabaseConverter() = default;

dbc_DatabaseConverter::~dbc_DatabaseConverter() = default;

dbc_Converter& dbc_DatabaseConverter::GetConverter(int targetVersion)
{
    return converters.try_emplace(targetVersion, targetVersion).first->second;
}

dbc_InputDatabase& dbc_DatabaseConverter::GetInputDatabase() const
{
    return Required(input);
}

dbc_OutputDatabase& dbc_DatabaseConverter::GetOutputDatabase() const
{
    return Required(output);
}

void dbc_DatabaseConverter::SetDatabases(dbc_InputDatabase* newInput, dbc_OutputDatabase* newOutput)
{
    input = newInput;
    output = newOutput;
}
