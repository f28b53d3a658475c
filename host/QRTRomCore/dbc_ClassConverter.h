#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

class dbc_Row;
class dbc_Table;

/// Converts one row. The output row already has what both forms call by one name. Returns null; the number is
/// 0.
using dbc_ConversionFunction = void* (*)(const dbc_Row& input, dbc_Row& output, int number);
/// Runs when all rows of a table are done. Returns null.
using dbc_FinalizeFunction = void* (*)(const dbc_Table& input, dbc_Table& output);

/// One step of one class: from a version to the version of the converter that it was declared with.
class OVR_EXPORT dbc_ClassConverter
{
public:
    dbc_ClassConverter(const cow_String& className, unsigned classId, int fromVersion, int targetVersion)
        : className(className), classId(classId), fromVersion(fromVersion), targetVersion(targetVersion)
    {}

    /// Without one, attributes are copied by name. `functionName` is for reports.
    dbc_ClassConverter& BindConversionFunction(dbc_ConversionFunction bound, const char* functionName = "");
    dbc_ClassConverter& BindFinalizeFunction(dbc_FinalizeFunction bound, const char* functionName = "");

    const cow_String& Name() const { return className; }
    unsigned ClassId() const { return classId; }
    int FromVersion() const { return fromVersion; }
    int TargetVersion() const { return targetVersion; }

    /// Null where none was bound.
    dbc_ConversionFunction ConversionFunction() const { return conversion; }
    dbc_FinalizeFunction FinalizeFunction() const { return finalizer; }

    /// Empty where none was bound or its name was not told.
    const cow_String& ConversionName() const { return conversionName; }
    const cow_String& FinalizeName() const { return finalizeName; }

private:
    cow_String className;
    unsigned classId;
    int fromVersion;
    int targetVersion;
    dbc_ConversionFunction conversion = nullptr;
    dbc_FinalizeFunction finalizer = nullptr;
    cow_String conversionName;
    cow_String finalizeName;
};
