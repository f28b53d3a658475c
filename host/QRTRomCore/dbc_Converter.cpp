#include "dbc_Converter.h"

dbc_ClassConverter& dbc_Converter::Upgrade(const cow_String& name, const unsigned& classId, int fromVersion)
{
    return steps.emplace_back(name, classId, fromVersion, targetVersion);
}
