#include "rom_StoreWriter.h"

#include "cls_MetadataRegistrar.h"
#include "rom_DatabaseRows.h"
#include "rom_WriteSession.h"

#include <unistd.h>

namespace
{
rfm_Access AccessFor(const cow_String& path, rom_SaveMode mode)
{
    if (mode == rom_SaveMode::CreateOrReplace)
        return access(path.CString(), F_OK) == 0 ? rfm_Access::Replace : rfm_Access::Create;
    return mode == rom_SaveMode::Create ? rfm_Access::Create : rfm_Access::Replace;
}

/// Only what this release has wholly understood may give way to a new content.
void RequireUnderstood(rfm_Database& database)
{
    for (const rfm_TableInfo& table : database.Tables())
    {
        const std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(table.classId);
        if (!plan)
            database.Raise(
                "The table is of a class that this release does not know, and a save would lose it.",
                table.name);
        rom_RequireForm(database, table, plan->Table());
    }
}
} // namespace

struct rom_StoreWriter::Save
{
    Save(const cow_String& path, rfm_Access access)
        : database(path, access), sink(std::make_unique<rom_DatabaseSink>(database)), session(*sink)
    {
        if (access != rfm_Access::Replace)
            return;
        RequireUnderstood(database);
        database.RemoveContent();
    }

    void Finish()
    {
        session.Finish();
        sink->Flush();
        sink.reset();
        database.Commit();
    }

    rfm_Database database;
    std::unique_ptr<rom_DatabaseSink> sink;
    rom_WriteSession session;
};

rom_StoreWriter::rom_StoreWriter(const cow_String& path, rom_SaveMode mode)
    : save(std::make_unique<Save>(path, AccessFor(path, mode)))
{}

rom_StoreWriter::~rom_StoreWriter() = default;

cls_MementoWrite* rom_StoreWriter::OpenRoot(const cow_String& name)
{
    return save->session.OpenRoot(name);
}

void rom_StoreWriter::WriteRoot(const cow_String& name, unsigned classId, const void* object)
{
    const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
    if (!metadata)
        save->database.Raise("An object of an unknown class can't be stored.");
    const cls_WriteVisitor visitor(OpenRoot(name));
    metadata->DBWrite(object, visitor);
}

void rom_StoreWriter::Finish()
{
    save->Finish();
}
