#pragma once

#include "cls_Types.h"
#include "cow_String.h"
#include "ovr_Export.h"

#include <memory>
#include <vector>

/// Reads objects out of a store. The file is seen as it was when the reader was made, however long that
/// lives. All failures are `rom_StoreException`s, also when a class refuses what a row holds: the exception
/// then has the class's text, and the field that was read last.
class OVR_EXPORT rom_StoreReader
{
public:
    /// Throws if the file is no store, or any of its tables was written by a newer release or needs an
    /// upgrade.
    explicit rom_StoreReader(const cow_String& path);
    rom_StoreReader(const rom_StoreReader&) = delete;
    rom_StoreReader& operator=(const rom_StoreReader&) = delete;
    ~rom_StoreReader();

    /// Names of the objects from which the store can be read.
    std::vector<cow_String> Roots() const;
    /// Names of tables that belong to no class known here. They are read by nothing, and a save in place of
    /// this store is refused.
    std::vector<cow_String> UnknownTables() const;

    /// A named object of class `classId` or of a class derived from it. The handle stays until the reader's
    /// next operation: turn it back with `cow_Restored` and copy it. An object read twice is the same one.
    const cls_ErasedHandle& ReadRoot(const cow_String& name, unsigned classId);

private:
    struct Reading;
    std::unique_ptr<Reading> reading;
};
