#pragma once

#include "dbc_ClassConverter.h"

#include <deque>

/// The steps that bring classes to one version.
class OVR_EXPORT dbc_Converter
{
public:
    explicit dbc_Converter(int targetVersion) : targetVersion(targetVersion) {}

    int TargetVersion() const { return targetVersion; }

    /// Declares that the class, at `fromVersion`, is brought to the converter's version. The result stays as
    /// long as the converter; functions are bound to it.
    dbc_ClassConverter& Upgrade(const cow_String& name, const unsigned& classId, int fromVersion);

    /// The steps in the order in which they were declared.
    const std::deque<dbc_ClassConverter>& Steps() const { return steps; }

private:
    int targetVersion;
    std::deque<dbc_ClassConverter> steps;
};
