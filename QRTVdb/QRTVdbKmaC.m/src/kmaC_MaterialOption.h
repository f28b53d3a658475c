#pragma once

#include "cls_Class.h"

/// One behaviour of a material, or a part of one.
class OVR_EXPORT kmaC_MaterialOption : public mem_AllocationOperators
{
    CLS_ABSTRACT_ROOT(kmaC_MaterialOption, 0x2380002, 203)
    CLS_WORD(setValues, "setValues")

    virtual void AssertValid() const = 0;

    /// Whether the object's class derives from the class of this id. No class derives from itself.
    bool IsA(unsigned classId) const;
    CLS_END
};

/// An option that may be absent.
template <class T>
using kmaC_Option = cow_COW<T, cow_Virtual<T>>;

/// Begins the declaration of an option whose constructor word is the name of its class without the module's
/// prefix.
#define KMAC_OPTION(Name, Id, SchemaVersion) KMAC_OPTION_AS(Name, Id, SchemaVersion, #Name)

/// The same with another constructor word.
#define KMAC_OPTION_AS(Name, Id, SchemaVersion, Word)                                                        \
    CLS_CONCRETE(kmaC_##Name, kmaC_MaterialOption, Id, SchemaVersion)                                        \
    CLS_WORD(constructor, Word)

/// The attributes of a table and of the two switches that widen it: a column for the temperature, and as many
/// more as there are field variables.
#define KMAC_DEPENDENT_TABLE                                                                                 \
    CLS_ATTRIBUTE(bool, temperatureDependency, false)                                                        \
    CLS_ATTRIBUTE(int, dependencies, 0)                                                                      \
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)
