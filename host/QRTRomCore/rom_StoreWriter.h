#pragma once

#include "cls_ClassMetadata.h"
#include "cow_String.h"
#include "ovr_Export.h"

#include <memory>

/// What a save does with the file.
enum class rom_SaveMode
{
    Create,         ///< A new file; there must be none of that name.
    Replace,        ///< The content of a store that is there.
    CreateOrReplace ///< The one or the other.
};

/// Writes named objects, and all that they refer to, as the content of a store. It is one transaction: until
/// `Finish` has returned, and if it never does, the file holds what it held before, or there is none. All
/// failures are `rom_StoreException`s. Objects must stay in place until `Finish`.
class OVR_EXPORT rom_StoreWriter
{
public:
    /// Throws if the file is no store, is in use, was written by a newer release, needs an upgrade, or holds
    /// tables that this release does not know.
    explicit rom_StoreWriter(const cow_String& path, rom_SaveMode mode = rom_SaveMode::CreateOrReplace);
    rom_StoreWriter(const rom_StoreWriter&) = delete;
    rom_StoreWriter& operator=(const rom_StoreWriter&) = delete;
    ~rom_StoreWriter();

    /// The writer for a named object, to be handed to a visitor.
    cls_MementoWrite* OpenRoot(const cow_String& name);
    /// Writes an object of class `classId` under a name; the pointer is to its root class.
    void WriteRoot(const cow_String& name, unsigned classId, const void* object);
    /// Makes it so. Nothing else may be called afterwards.
    void Finish();

private:
    struct Save;
    std::unique_ptr<Save> save;
};
