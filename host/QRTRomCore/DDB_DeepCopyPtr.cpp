#include "DDB_DeepCopyPtr.h"

#include "cls_MetadataRegistrar.h"
#include "rom_MemoryRows.h"
#include "rom_ReadSession.h"
#include "rom_StoreException.h"
#include "rom_WriteSession.h"

namespace
{
constexpr char rootName[] = "copy";

const cls_ClassMetadata& MetadataOf(unsigned classId)
{
    const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
    if (!metadata)
        rom_StoreException("memory", "An object of an unknown class can't be copied.")
            .Throw(__FILE__, __LINE__);
    return *metadata;
}
} // namespace

void* DDB_DeepCopyPtr(const void* object, unsigned classId)
{
    rom_MemoryRows rows;
    {
        rom_WriteSession session(rows, rom_TwinRule::KeepUid);
        {
            const cls_WriteVisitor visitor(session.OpenRoot(rootName));
            MetadataOf(classId).DBWrite(object, visitor);
        }
        session.Finish();
    }
    rom_ReadSession session(rows);
    return session.ReadOwnObject(classId, rows.FindRoot(rootName)->oid);
}
