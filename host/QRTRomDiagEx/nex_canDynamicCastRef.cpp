#include "nex_canDynamicCastRef.h"

#include "atr_translate.h"
#include "nex_Exceptions.h"
#include "typ_ArchCompTable.h"

#include <cstdio>

namespace
{
/// "class kamC_Decay (0x2440003)", or "an unknown class (0x2440003)" for one that the type table does not
/// have.
cow_String Describe(unsigned classId)
{
    char id[16];
    std::snprintf(id, sizeof id, " (0x%X)", classId);
    const char* name = typ_ArchCompTable::GetName(classId);
    cow_String text(*name == '\0' ? "an unknown class" : "class ");
    return text.append(name).append(id);
}
} // namespace

void nex_canDynamicCastRef(unsigned expected, unsigned actual, const char* file, int line)
{
    if (expected == actual || typ_ArchCompTable::IsParent(expected, actual))
        return;
    atr_translate text("Expected an object of %s, found one of %s.", 0);
    atr_SubstituteFormat(text, 1, Describe(expected).CString(), 0);
    atr_SubstituteFormat(text, 2, Describe(actual).CString(), 0);
    nex_CmdException<atr_String, 2>(text.Result(0), 0).Throw(file, line);
}
