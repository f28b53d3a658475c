#pragma once

#include "cow_String.h"
#include "mem_AllocationOperators.h"
#include "ovr_Export.h"

/// A stored path to one object of the model, whatever the class of the object.
class OVR_EXPORT omu_ShortcutBase : public mem_AllocationOperators
{
public:
    virtual ~omu_ShortcutBase();

    /// Whether it leads anywhere; an empty one has no name and no path.
    virtual bool IsPresent() const = 0;
    /// The last step by itself, as "ramp".
    virtual cow_String Name() const = 0;
    /// The whole way, as "model.amplitudes['ramp']".
    virtual cow_String Path() const = 0;
    /// The way as Python source text.
    virtual cow_String PythonPath() const = 0;

protected:
    omu_ShortcutBase() = default;
    omu_ShortcutBase(const omu_ShortcutBase&) = default;
    omu_ShortcutBase& operator=(const omu_ShortcutBase&) = default;
};
