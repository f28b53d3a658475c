#pragma once

#include "atr_String.h"
#include "cls_Class.h"
#include "cls_HostRecords.h"

/// Ties error variables over a region to target errors and element sizes.
class OVR_EXPORT karC_RemeshingRule : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(karC_RemeshingRule, 0x3570002, 1407)
    CLS_WORD(constructor, "RemeshingRule")
    CLS_WORD(remeshingRuleRepository, "remeshingRules")
    CLS_WORD(setValues, "setValues")
    CLS_WORD(name, "name")
    CLS_WORD(suppressed, "suppressed")
    CLS_WORD(resume, "resume")
    OMU_ENUM(karC_SizingMethod, DEFAULT = 0, UNIFORM_ERROR = 1, MINIMUM_MAXIMUM = 2)
    OMU_ENUM(karC_RateLimit, DEFAULT_LIMIT = 0, NOT_ALLOWED = 1, SPECIFIED_LIMIT = 2)
    OMU_ENUM(karC_OutputFrequency, LAST_INCREMENT = 0, ALL_INCREMENTS = 1)
    OMU_ENUM(karC_ModelEnum, MODEL = 0)

    CLS_ATTRIBUTE(bool, suppress, false)
    CLS_ATTRIBUTE(rgnC_Region, region)
    /// Names of error variables, as "MISESERI".
    CLS_ATTRIBUTE(cls_xpListString, variables)
    CLS_ATTRIBUTE(cow_String, stepName)
    CLS_ATTRIBUTE(cow_String, description)
    CLS_ATTRIBUTE(karC_SizingMethod, sizingMethod, karC_SizingMethod::UNIFORM_ERROR)
    /// Target of UNIFORM_ERROR.
    CLS_ATTRIBUTE(double, errorTarget, 0.0)
    /// Targets of MINIMUM_MAXIMUM at the least and the greatest base solution; both zero or neither.
    CLS_ATTRIBUTE(double, minSolutionErrorTarget, 0.0)
    CLS_ATTRIBUTE(double, maxSolutionErrorTarget, 0.0)
    CLS_ATTRIBUTE(bool, specifyMinSize, false)
    CLS_ATTRIBUTE(double, minElementSize, 0.3)
    CLS_ATTRIBUTE(bool, specifyMaxSize, false)
    CLS_ATTRIBUTE(double, maxElementSize, 100.0)
    CLS_ATTRIBUTE(karC_RateLimit, coarsening, karC_RateLimit::DEFAULT_LIMIT)
    CLS_ATTRIBUTE(int, coarseningFactor, 5)
    CLS_ATTRIBUTE(karC_RateLimit, refinement, karC_RateLimit::DEFAULT_LIMIT)
    CLS_ATTRIBUTE(int, refinementFactor, 5)
    CLS_ATTRIBUTE(int, meshBias, 7)
    CLS_ATTRIBUTE(karC_OutputFrequency, outputFrequency, karC_OutputFrequency::LAST_INCREMENT)
    /// Not set stands for no limit.
    CLS_ATTRIBUTE(int, elementCountLimit, cls_UnsetInt)

    /// What an error variable is called by people, translated; empty for anything but an error variable, as
    /// in the next two.
    static atr_String GetVariableDescription(const cow_String& variable, QRTBasStringMode mode);
    /// The variable that an error variable is measured against.
    static cow_String GetCompanionVariable(const cow_String& variable);
    /// The variable whose error an error variable tells.
    static cow_String GetBaseVariable(const cow_String& variable);

    /// The sizing method for one error variable: the stored one, or for DEFAULT the variable's own.
    karC_SizingMethod SizingMethod(const cow_String& variable) const;
    /// The factor in force: 0 where coarsening is not allowed, 5 by default.
    int CoarseningFactor() const;
    /// The same for refinement.
    int RefinementFactor() const;
    /// Whether all variables are error variables.
    bool ValidErrorVariables() const;
    /// What a run must output: each variable, its companion and its base, then "EVOL", each once.
    cow_List<cow_String> GetFullVariableList() const;
    /// The region, if a request for this type wants it.
    cow_List<rgnC_Region> Regions(rgnC_RegionType type) const;

    /// Restores the defaults of all attributes but `suppress`, `region`, `variables`, `stepName` and
    /// `description`.
    void SetDefaults();
    void Suppress() { suppress = true; }
    void Resume() { suppress = false; }

    /// A region without orphan mesh, error variables only, target errors and mesh bias as the sizing method
    /// wants them, element sizes that are positive and in order, factors of at most 10. A suppressed rule
    /// passes.
    void AssertValid() const;
    CLS_END
};
