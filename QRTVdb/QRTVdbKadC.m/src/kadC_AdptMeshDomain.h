#pragma once

#include "cls_Class.h"
#include "cls_HostRecords.h"

/// A region whose mesh adapts, under which control, and how often.
class OVR_EXPORT kadC_AdptMeshDomain : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(kadC_AdptMeshDomain, 0x2680002, 302)
    CLS_WORD(constructor, "AdaptiveMeshDomain")
    CLS_WORD(adaptiveMeshDomainRepository, "adaptiveMeshDomains")
    CLS_WORD(setValues, "setValues")
    OMU_ENUM(SweepsEnm, DEFAULT = 0)

    CLS_ATTRIBUTE(rgnC_Region, region)
    /// Name of a kadC_AdptMeshCtrl.
    CLS_ATTRIBUTE(cow_String, controls)
    /// Number of increments from one adaptation to the next.
    CLS_ATTRIBUTE(int, frequency, 10)
    /// Sweeps before the first increment; not set stands for the default.
    CLS_ATTRIBUTE_AS(int, initialRemeshingSweeps, "initialMeshSweeps", cls_UnsetInt)
    CLS_ATTRIBUTE_AS(int, sweepsPerIncrement, "meshSweeps", 1)

    /// A positive frequency, initial sweeps that are not negative, positive sweeps.
    void AssertValid() const;
    CLS_END
};
