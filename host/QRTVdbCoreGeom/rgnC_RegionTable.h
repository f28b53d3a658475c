#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

class dbc_Row;

/// What conversions of old rows do with the table of regions.
class OVR_EXPORT rgnC_RegionTable
{
public:
    /// Gives the attribute `attribute` of an output row a new region, which is empty. Throws if no upgrade is
    /// under way, or the row has no such attribute.
    static void AddNewRegion(dbc_Row& row, const cow_String& attribute);
};
