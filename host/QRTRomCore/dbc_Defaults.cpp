#include "dbc_Defaults.h"

#include "cls_MetadataRegistrar.h"
#include "rom_StoreException.h"
#include "rom_WriteSession.h"
#include "typ_ArchCompTable.h"

namespace
{
constexpr char rootName[] = "default";

[[noreturn]] void Raise(unsigned classId, const char* message)
{
    rom_StoreException("memory", typ_ArchCompTable::GetName(classId), rom_StoreException::NoRow, cow_String(),
                       message)
        .Throw(__FILE__, __LINE__);
}
} // namespace

dbc_Defaults::dbc_Defaults() = default;

dbc_Defaults::~dbc_Defaults() = default;

const rom_ClassPlan& dbc_Defaults::PlanOf(unsigned classId)
{
    std::unique_ptr<rom_ClassPlan>& plan = plans[classId];
    if (!plan)
        plan = rom_ClassPlan::Of(classId);
    if (!plan)
        Raise(classId, "A default object refers to one of an unknown class.");
    return *plan;
}

const dbc_DefaultRow* dbc_Defaults::RowOf(unsigned classId)
{
    const auto found = defaults.find(classId);
    if (found != defaults.end())
        return found->second ? &found->second->row : nullptr;
    std::unique_ptr<Default>& made = defaults[classId];
    made = Make(classId);
    return made ? &made->row : nullptr;
}

bool dbc_Defaults::Write(const cls_ClassMetadata& metadata, rom_MemoryRows& rows)
{
    rom_WriteSession session(rows, rom_TwinRule::KeepUid);
    bool isWritten = false;
    {
        const cls_WriteVisitor visitor(session.OpenRoot(rootName));
        isWritten = metadata.DBWriteDefault(visitor);
    }
    if (isWritten)
        session.Finish();
    return isWritten;
}

std::unique_ptr<dbc_Defaults::Default> dbc_Defaults::Make(unsigned classId)
{
    const cls_ClassRegistrar& classes = omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
    const cls_ClassMetadata* builder = classes.Find(classId);
    if (builder && !builder->IsConcrete())
    {
        for (std::size_t i = 0; i < classes.Count(); ++i)
        {
            const cls_ClassMetadata* derived = classes.At(i);
            if (!derived->IsConcrete() || !PlanOf(derived->ClassId()).IsA(classId))
                continue;
            builder = derived;
            break;
        }
    }
    auto made = std::make_unique<Default>();
    made->rows = std::make_unique<rom_MemoryRows>();
    if (!builder || !Write(*builder, *made->rows))
        return nullptr;
    const rom_MemoryRows::Root& root = *made->rows->FindRoot(rootName);
    made->row = Follow(*made->rows, root.classId, root.oid);
    while (made->row.classId != classId)
    {
        const rom_ClassPlan& plan = PlanOf(made->row.classId);
        made->row =
            Follow(*made->rows, plan.Table().baseClassId, made->row.cells[rom_ClassPlan::BaseCell].integer);
    }
    return made;
}

dbc_DefaultRow dbc_Defaults::Follow(rom_MemoryRows& rows, unsigned classId, std::int64_t oid)
{
    rom_OpenRow row;
    if (!rows.OpenRow(rows.FindTable(PlanOf(classId).Table()), oid, row))
        Raise(classId, "A default object refers to a row that is not there.");
    return {&rows, classId, oid, row.cells};
}
