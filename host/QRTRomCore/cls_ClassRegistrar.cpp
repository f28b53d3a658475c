#include "cls_ClassRegistrar.h"

#include <algorithm>

cls_ClassRegistrar::cls_ClassRegistrar() = default;

cls_ClassRegistrar::~cls_ClassRegistrar() = default;

cls_ClassMetadata* cls_ClassRegistrar::AddClassMD(cls_ClassMetadata* metadata)
{
    std::unique_ptr<cls_ClassMetadata> owned(metadata);
    std::unique_ptr<cls_ClassMetadata>& slot = byId[metadata->ClassId()];
    if (!slot)
        order.push_back(metadata->ClassId());
    slot = std::move(owned);
    return metadata;
}

cls_ClassMetadata* cls_ClassRegistrar::CreateClassMD(const cow_String& name, unsigned classId, int version,
                                                     cls_ClassMetadata::PlainConstructor plainConstructor,
                                                     unsigned baseClassId)
{
    return AddClassMD(new cls_ClassMetadata(name, classId, version, plainConstructor, baseClassId));
}

void cls_ClassRegistrar::DeleteClass(const cow_String& name, unsigned classId)
{
    const auto found = byId.find(classId);
    if (found == byId.end() || found->second->Name() != name)
        return;
    byId.erase(found);
    order.erase(std::remove(order.begin(), order.end(), classId), order.end());
}

const cls_ClassMetadata* cls_ClassRegistrar::Find(unsigned classId) const
{
    const auto found = byId.find(classId);
    return found == byId.end() ? nullptr : found->second.get();
}
