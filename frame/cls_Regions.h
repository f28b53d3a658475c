#pragma once

#include "cow_List.h"
#include "rgnC_Region.h"

#include <initializer_list>

/// Those of an object's regions that a request for this type wants, in the order given.
inline cow_List<rgnC_Region> cls_RegionsOfType(rgnC_RegionType type,
                                               std::initializer_list<const rgnC_Region*> regions)
{
    cow_List<rgnC_Region> wanted;
    for (const rgnC_Region* region : regions)
    {
        if (region->IsOfType(type))
            wanted.Append(*region);
    }
    return wanted;
}
