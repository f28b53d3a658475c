#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

#include <string_view>
#include <vector>

/// The global type table: the tables of all modules under their numbers. A class id is
/// `(module number << 16) | row`; row 0 of a module stands for no class.
class OVR_EXPORT typ_ArchCompTable
{
public:
    /// Enters a module's table, in place of one entered before under the same number.
    static void InsertEntry(unsigned short moduleNumber, typ_ArchCompEntry entry);

    /// Takes a module's table out; its ids are unknown again.
    static void RemoveEntry(unsigned short moduleNumber);

    /// Stored name of a class id; empty for an unknown one.
    static const char* GetName(unsigned classId);

    /// True if the first id is an ancestor of the second: its parent, or its parent's parent, and so on,
    /// through as many modules as the line runs. No id is its own ancestor, and an unknown second id has
    /// none. The first id need only be named as a parent: its own module may be unknown.
    static bool IsParent(unsigned ancestorId, unsigned descendantId);

    /// Parent of a class id, which is 1 where there is none of interest; 0 for an unknown one.
    static unsigned Parent(unsigned classId);

    /// Whether some module has a row for this id.
    static bool IsKnown(unsigned classId);

    /// Numbers of the modules entered, from the lowest on.
    static std::vector<unsigned short> Modules();

    /// A module's table; one without rows if there is none.
    static typ_ArchCompEntry Entry(unsigned short moduleNumber);

    /// The class id of a stored name, or 0. If several modules use a name, the lowest id.
    static unsigned FindByName(std::string_view name);
};
