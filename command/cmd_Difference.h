#pragma once

#include "cls_Value.h"
#include "cmd_Path.h"
#include "cmd_Value.h"
#include "ddr_Model.h"

/// An attribute that differs, in the object itself or in one within it.
struct cmd_AttributeDifference
{
    /// Words from the object on, as "data" or "baselineCorrection.intervals".
    std::string words;
    /// The values as they are stored and as a script writes them.
    cls_Value before;
    cls_Value after;
    cmd_Value scriptBefore;
    cmd_Value scriptAfter;
};

/// An object that is in only one of two models, or differs between them.
struct cmd_ObjectDifference
{
    enum class Sort
    {
        Added,
        Removed,
        Changed
    };

    Sort sort;
    cmd_Path path;
    std::string className;
    /// Of a changed object, in stored order.
    std::vector<cmd_AttributeDifference> attributes;
};

/// What leads from one model to the other: repository by repository, what was removed or changed in the order
/// of the one, then what was added in the order of the other. An object of another class under the same name
/// is removed and added. Numbers are the same if their bits are, or if both are NaN. What the models share is
/// not looked at.
OVR_EXPORT std::vector<cmd_ObjectDifference> cmd_Compare(const ddr_Model& before, const ddr_Model& after);

/// The differences for people: a line for each object with "+", "-" or "~" before its path, and below it one
/// for each attribute that changed. Empty if there are none.
OVR_EXPORT std::string cmd_TextOfDifferences(const std::vector<cmd_ObjectDifference>& differences);

/// The differences for programs: an array of {"change", "path", "class", "attributes"}, the latter an array
/// of
/// {"words", "before", "after"} for changed objects alone.
OVR_EXPORT cls_Value cmd_ValueOfDifferences(const std::vector<cmd_ObjectDifference>& differences);
