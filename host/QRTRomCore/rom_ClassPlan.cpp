#include "rom_ClassPlan.h"

#include "cls_MetadataRegistrar.h"
#include "typ_ArchCompTable.h"

namespace
{
constexpr int collectionVersion = 203;

const cls_ClassMetadata* MetadataOf(unsigned classId)
{
    return omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(classId);
}

rfm_ColumnKind ColumnKindOf(cls_AttributeType type)
{
    switch (type)
    {
    case cls_TypeInt:
    case cls_TypeIntSecond:
    case cls_TypeBool:
    case cls_TypeObject:
        return rfm_ColumnKind::Integer;
    case cls_TypeDouble:
        return rfm_ColumnKind::Real;
    case cls_TypeText:
    case cls_TypeEnum:
        return rfm_ColumnKind::Text;
    }
    return rfm_ColumnKind::Any;
}

cow_String WithSuffix(const cow_String& name, const char* suffix)
{
    return cow_String(name).append(suffix);
}
} // namespace

std::unique_ptr<rom_ClassPlan> rom_ClassPlan::Of(unsigned classId)
{
    std::unique_ptr<rom_ClassPlan> plan(new rom_ClassPlan);
    if (IsCollection(classId))
    {
        plan->PlanCollection(classId);
        return plan;
    }
    const cls_ClassMetadata* metadata = MetadataOf(classId);
    if (!metadata)
        return nullptr;
    plan->PlanClass(*metadata);
    return plan;
}

std::unique_ptr<rom_ClassPlan> rom_ClassPlan::Of(const cls_ClassMetadata& form)
{
    std::unique_ptr<rom_ClassPlan> plan(new rom_ClassPlan);
    plan->PlanClass(form);
    return plan;
}

void rom_ClassPlan::PlanCollection(unsigned classId)
{
    table = {typ_ArchCompTable::GetName(classId),
             classId,
             collectionVersion,
             cls_RootId,
             {{"##Uid", rfm_ColumnKind::Blob},
              {"Target#Collection", rfm_ColumnKind::Integer},
              {"Target#Length", rfm_ColumnKind::Integer},
              {"Target#Columns", rfm_ColumnKind::Integer},
              {"Target#Handle", rfm_ColumnKind::Integer}}};
}

void rom_ClassPlan::PlanClass(const cls_ClassMetadata& described)
{
    metadata = &described;
    table = {described.Name(),
             described.ClassId(),
             described.Version(),
             described.BaseClassId(),
             {{"##Uid", rfm_ColumnKind::Blob}}};
    if (described.HasBase())
        table.columns.push_back({"##BaseClassOID", rfm_ColumnKind::Integer});
    for (const cls_AttributeMetadata& attribute : described.Attributes())
        PlanAttribute(attribute);
}

void rom_ClassPlan::PlanAttribute(const cls_AttributeMetadata& attribute)
{
    const int index = attribute.field.Index();
    if (index >= 0)
    {
        if (byIndex.size() <= static_cast<std::size_t>(index))
            byIndex.resize(static_cast<std::size_t>(index) + 1, -1);
        byIndex[static_cast<std::size_t>(index)] = static_cast<int>(attributes.size());
    }
    attributes.push_back(
        {attribute.field, attribute.type, attribute.typeId, attribute.collectionType, CellCount()});
    const cow_String& name = attribute.field.Name();
    const rfm_ColumnKind kind = ColumnKindOf(attribute.type);
    if (attribute.type != cls_TypeObject)
    {
        table.columns.push_back({name, kind});
        return;
    }
    table.columns.push_back({WithSuffix(name, "#ClassID"), kind});
    table.columns.push_back({WithSuffix(name, "#OID"), kind});
}

const rom_AttributePlan* rom_ClassPlan::FindByName(const cow_String& name) const
{
    for (const rom_AttributePlan& attribute : attributes)
    {
        if (attribute.field.Name() == name)
            return &attribute;
    }
    return nullptr;
}

bool rom_ClassPlan::CanBeHeld() const
{
    const cls_ClassMetadata* layer = metadata;
    while (layer && !layer->Dtor())
        layer = layer->HasBase() ? MetadataOf(layer->BaseClassId()) : nullptr;
    return layer != nullptr;
}

bool rom_ClassPlan::IsA(unsigned classId) const
{
    const cls_ClassMetadata* layer = metadata;
    while (layer && layer->ClassId() != classId)
        layer = layer->HasBase() ? MetadataOf(layer->BaseClassId()) : nullptr;
    return layer != nullptr || classId == ClassId();
}
