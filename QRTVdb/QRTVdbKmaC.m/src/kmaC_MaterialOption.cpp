#include "kmaC_MaterialOption.h"

#include "typ_ArchCompTable.h"

CLS_IMPLEMENT(kmaC_MaterialOption)

bool kmaC_MaterialOption::IsA(unsigned classId) const
{
    return typ_ArchCompTable::IsParent(classId, DynTypeId());
}
