#include "karC_RemeshingRule.h"

#include "atr_translate.h"
#include "cls_Regions.h"
#include "karC_ErrorVariable.h"
#include "karC_assert.h"

#include <algorithm>

CLS_IMPLEMENT(karC_RemeshingRule)

namespace
{

using RateLimit = karC_RemeshingRule::karC_RateLimit;
using Sizing = karC_RemeshingRule::karC_SizingMethod;

constexpr int greatestFactor = 10;

/// Whether a region's flag says that it holds no orphan mesh.
bool IsWithoutOrphanMesh(const rgnC_Region& region)
{
    constexpr int wantedBit = 1;
    constexpr int orphanBits = 2 | 4;
    return (region.Flag() & (wantedBit | orphanBits)) == wantedBit;
}

int FactorOf(RateLimit limit, int specified)
{
    constexpr int defaultFactor = 5;
    if (limit == RateLimit::NOT_ALLOWED)
        return 0;
    return limit == RateLimit::SPECIFIED_LIMIT ? specified : defaultFactor;
}

void AppendOnce(cow_List<cow_String>& list, const cow_String& name)
{
    if (std::find(list.begin(), list.end(), name) == list.end())
        list.Append(name);
}

void AssertTargets(const karC_RemeshingRule& rule)
{
    if (rule.sizingMethod == Sizing::UNIFORM_ERROR)
        karC_Assert(rule.errorTarget >= 0.0, karC_NegativeTarget);
    if (rule.sizingMethod != Sizing::MINIMUM_MAXIMUM)
        return;
    const bool hasMinimum = rule.minSolutionErrorTarget != 0.0;
    const bool hasMaximum = rule.maxSolutionErrorTarget != 0.0;
    karC_Assert(hasMinimum == hasMaximum, karC_OneTargetOnly);
    karC_Assert(rule.minSolutionErrorTarget >= 0.0, karC_NegativeTarget);
    karC_Assert(rule.maxSolutionErrorTarget >= 0.0, karC_NegativeTarget);
    // A bias of zero fails, though the message speaks of zero to ten.
    karC_Assert(1 <= rule.meshBias && rule.meshBias <= 10, karC_BadMeshBias);
}

void AssertSizes(const karC_RemeshingRule& rule)
{
    if (rule.specifyMinSize)
    {
        if (rule.specifyMaxSize)
            karC_Assert(rule.maxElementSize > rule.minElementSize, karC_SizesOutOfOrder);
        karC_Assert(rule.minElementSize > 0.0, karC_BadMinimumSize);
    }
    if (rule.specifyMaxSize)
        karC_Assert(rule.maxElementSize > 0.0, karC_BadMaximumSize);
}

} // namespace

atr_String karC_RemeshingRule::GetVariableDescription(const cow_String& variable, QRTBasStringMode mode)
{
    const karC_ErrorVariable* row = karC_FindErrorVariable(variable);
    return row ? atr_translate(row->description, mode).Result(mode) : atr_String();
}

cow_String karC_RemeshingRule::GetCompanionVariable(const cow_String& variable)
{
    const karC_ErrorVariable* row = karC_FindErrorVariable(variable);
    return row ? cow_String(row->companion) : cow_String();
}

cow_String karC_RemeshingRule::GetBaseVariable(const cow_String& variable)
{
    const karC_ErrorVariable* row = karC_FindErrorVariable(variable);
    return row ? cow_String(row->base) : cow_String();
}

karC_RemeshingRule::karC_SizingMethod karC_RemeshingRule::SizingMethod(const cow_String& variable) const
{
    if (sizingMethod != Sizing::DEFAULT)
        return sizingMethod;
    const karC_ErrorVariable* row = karC_FindErrorVariable(variable);
    return row ? row->sizingMethod : Sizing::DEFAULT;
}

int karC_RemeshingRule::CoarseningFactor() const
{
    return FactorOf(coarsening, coarseningFactor);
}

int karC_RemeshingRule::RefinementFactor() const
{
    return FactorOf(refinement, refinementFactor);
}

bool karC_RemeshingRule::ValidErrorVariables() const
{
    return std::all_of(variables.begin(), variables.end(), karC_FindErrorVariable);
}

cow_List<cow_String> karC_RemeshingRule::GetFullVariableList() const
{
    cow_List<cow_String> list;
    for (const cow_String& variable : variables)
    {
        AppendOnce(list, variable);
        // Of a name that is no error variable these are the empty name, which is listed as any other.
        AppendOnce(list, GetCompanionVariable(variable));
        AppendOnce(list, GetBaseVariable(variable));
    }
    AppendOnce(list, "EVOL");
    return list;
}

cow_List<rgnC_Region> karC_RemeshingRule::Regions(rgnC_RegionType type) const
{
    return cls_RegionsOfType(type, {&region});
}

void karC_RemeshingRule::SetDefaults()
{
    const karC_RemeshingRule fresh;
    sizingMethod = fresh.sizingMethod;
    errorTarget = fresh.errorTarget;
    minSolutionErrorTarget = fresh.minSolutionErrorTarget;
    maxSolutionErrorTarget = fresh.maxSolutionErrorTarget;
    specifyMinSize = fresh.specifyMinSize;
    minElementSize = fresh.minElementSize;
    specifyMaxSize = fresh.specifyMaxSize;
    maxElementSize = fresh.maxElementSize;
    coarsening = fresh.coarsening;
    coarseningFactor = fresh.coarseningFactor;
    refinement = fresh.refinement;
    refinementFactor = fresh.refinementFactor;
    meshBias = fresh.meshBias;
    outputFrequency = fresh.outputFrequency;
    elementCountLimit = fresh.elementCountLimit;
}

void karC_RemeshingRule::AssertValid() const
{
    if (suppress)
        return;
    karC_Assert(region.Name().IsEmpty() || IsWithoutOrphanMesh(region), karC_OrphanMesh);
    karC_Assert(ValidErrorVariables(), karC_NoErrorVariable);
    AssertTargets(*this);
    AssertSizes(*this);
    if (coarsening == RateLimit::SPECIFIED_LIMIT)
        karC_Assert(coarseningFactor <= greatestFactor, karC_BadCoarseningFactor);
    if (refinement == RateLimit::SPECIFIED_LIMIT)
        karC_Assert(refinementFactor <= greatestFactor, karC_BadRefinementFactor);
}
