#include "rom_StoreReader.h"

#include "rom_DatabaseRows.h"
#include "rom_ReadSession.h"

struct rom_StoreReader::Reading
{
    explicit Reading(const cow_String& path)
        : database(path, rfm_Access::Read), source(database), session(source)
    {
        for (const rfm_TableInfo& table : database.Tables())
        {
            if (const std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(table.classId))
                rom_RequireForm(database, table, plan->Table());
            else
                unknownTables.push_back(table.name);
        }
        for (const cow_String& name : database.ForeignParts())
            unknownTables.push_back(name);
        roots = database.Roots();
    }

    rfm_Database database;
    rom_DatabaseSource source;
    rom_ReadSession session;
    std::vector<rfm_Root> roots;
    std::vector<cow_String> unknownTables;
};

rom_StoreReader::rom_StoreReader(const cow_String& path) : reading(std::make_unique<Reading>(path)) {}

rom_StoreReader::~rom_StoreReader() = default;

std::vector<cow_String> rom_StoreReader::Roots() const
{
    std::vector<cow_String> names;
    for (const rfm_Root& root : reading->roots)
        names.push_back(root.name);
    return names;
}

std::vector<cow_String> rom_StoreReader::UnknownTables() const
{
    return reading->unknownTables;
}

const cls_ErasedHandle& rom_StoreReader::ReadRoot(const cow_String& name, unsigned classId)
{
    for (const rfm_Root& root : reading->roots)
    {
        if (root.name == name)
            return reading->session.ReadObject(classId, root.classId, root.oid);
    }
    reading->database.Raise(std::string("The store holds no object of the name \"") + name.CString() + "\".",
                            rfm_TableForm::Roots().name);
}
