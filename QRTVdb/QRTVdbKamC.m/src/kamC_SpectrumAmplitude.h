#pragma once

#include "kamC_Amplitude.h"

/// Response spectrum that is given, or computed from another amplitude.
class OVR_EXPORT kamC_SpectrumAmplitude : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_SpectrumAmplitude, kamC_Amplitude, 0x244001B, 1521)
    CLS_WORD(constructor, "SpectrumAmplitude")
    OMU_ENUM(MethodEnm, DEFINE = 0, CALCULATE = 1)
    OMU_ENUM(SpecificationUnitsEnm, DISPLACEMENT = 0, VELOCITY = 1, ACCELERATION = 2, GRAVITY = 3)
    OMU_ENUM(EventUnitsEnm, EVENT_DISPLACEMENT = 0, EVENT_VELOCITY = 1, EVENT_ACCELERATION = 2,
             EVENT_GRAVITY = 3)
    OMU_ENUM(SolutionEnm, ABSOLUTE_VALUE = 0, RELATIVE_VALUE = 1)

    CLS_ATTRIBUTE(MethodEnm, method, MethodEnm::DEFINE)
    CLS_ATTRIBUTE(SpecificationUnitsEnm, specificationUnits, SpecificationUnitsEnm::ACCELERATION)
    CLS_ATTRIBUTE(EventUnitsEnm, eventUnits, EventUnitsEnm::EVENT_ACCELERATION)
    CLS_ATTRIBUTE(SolutionEnm, solution, SolutionEnm::ABSOLUTE_VALUE)
    CLS_ATTRIBUTE(double, timeIncrement, 0.0)
    /// Acceleration of gravity.
    CLS_ATTRIBUTE(double, gravity, 1.0)
    CLS_ATTRIBUTE(bool, criticalDamping, false)
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, data)
    /// Name of the amplitude from which the spectrum is computed.
    CLS_ATTRIBUTE(cow_String, amplitude)

    /// With units of gravity, the acceleration of gravity must not be negative.
    void AssertValid() const;
    CLS_END
};
