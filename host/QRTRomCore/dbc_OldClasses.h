#pragma once

#include "dbc_DatabaseConverter.h"
#include "dbc_OldClassVersion.h"

#include <memory>
#include <vector>

/// All registered old class versions, with the form and the steps that each of them declares.
class OVR_EXPORT dbc_OldClasses
{
public:
    struct Entry
    {
        dbc_OldClassVersion* version; ///< the registrar's
        unsigned mask;
        std::unique_ptr<cls_ClassRegistrar> described;
        const cls_ClassMetadata* form; ///< of the version; null if it describes none
        std::vector<const dbc_ClassConverter*> steps;
    };

    /// Drives every version of `dbc_OldClassRegistrar`: what it describes is noted here, what it declares
    /// enters `converter`, which must stay.
    explicit dbc_OldClasses(dbc_DatabaseConverter& converter);

    /// In order of registration.
    const std::vector<Entry>& Entries() const { return entries; }

private:
    std::vector<Entry> entries;
};

/// Adds to `classes` the description of a class as another registrar has it, without its ways to build and
/// delete objects.
OVR_EXPORT void dbc_AddDescription(cls_ClassRegistrar& classes, const cls_ClassMetadata& metadata);
