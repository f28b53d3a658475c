#pragma once

#include "LibraryEnvironment.h"
#include "cls_Module.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_Decay.h"
#include "kamC_Tabular.h"
#include "typ_ArchCompTable.h"

#include <iterator>

// Repositories of amplitudes by number and by position, under ids of their own.

MDL_NUMBERED_CONTAINER(kamC_Amplitude, "tst_Numbered", 0x3E70001, "tst_NumberedWrapper", 0x3E70002,
                       "numbered")
MDL_ORDERED_CONTAINER(kamC_Amplitude, "tst_Ordered", 0x3E70003, "tst_OrderedWrapper", 0x3E70004, "ordered")

using tst_Numbered = mdl_MapOfCowsRepository<int, kamC_Amplitude>;
using tst_NumberedWrapper = mdl_ExtensionWrapper<tst_Numbered>;
using tst_Ordered = mdl_1DArrayList<cls_ElementHandle<kamC_Amplitude>, kamC_Amplitude>;
using tst_OrderedWrapper = mdl_ExtensionWrapper<tst_Ordered>;

/// Enters the test's repositories as classes, once.
inline void tst_RegisterContainers()
{
    static constexpr typ_Entry entries[] = {{0, 1, nullptr},
                                            {7, 0xA0001, "tst_Numbered"},
                                            {7, 0xA000D, "tst_NumberedWrapper"},
                                            {7, 0xA0001, "tst_Ordered"},
                                            {7, 0xA000D, "tst_OrderedWrapper"}};
    LibraryEnvironment::Require();
    typ_ArchCompTable::InsertEntry(999, typ_ArchCompEntry(entries, std::size(entries)));
    cls_RegisterClasses<tst_Numbered, tst_NumberedWrapper, tst_Ordered, tst_OrderedWrapper>();
}

inline kamC_Decay* NewDecay(double initial)
{
    auto* decay = new kamC_Decay;
    decay->initial = initial;
    return decay;
}

inline double InitialOf(const kamC_Amplitude* amplitude)
{
    return dynamic_cast<const kamC_Decay&>(*amplitude).initial;
}
