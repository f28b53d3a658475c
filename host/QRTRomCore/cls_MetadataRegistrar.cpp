#include "cls_MetadataRegistrar.h"

cls_MetadataRegistrar::cls_MetadataRegistrar() = default;

cls_MetadataRegistrar::~cls_MetadataRegistrar() = default;

void cls_MetadataRegistrar::initClassMetadata(InitializeFunction function, unsigned mask)
{
    if (positions.emplace(function, registrations.size()).second)
        registrations.push_back({function, mask});
}

void cls_MetadataRegistrar::RunPending()
{
    while (done < registrations.size())
    {
        const Registration registration = registrations[done++];
        const std::size_t before = classes.Count();
        registration.function(classes);
        for (std::size_t i = before; i < classes.Count(); ++i)
            masks[classes.At(i)->ClassId()] = registration.mask;
    }
}

const cls_ClassMetadata* cls_MetadataRegistrar::Find(unsigned classId)
{
    RunPending();
    return classes.Find(classId);
}

const cls_ClassRegistrar& cls_MetadataRegistrar::Classes()
{
    RunPending();
    return classes;
}

unsigned cls_MetadataRegistrar::Mask(unsigned classId)
{
    RunPending();
    const auto found = masks.find(classId);
    return found == masks.end() ? 0 : found->second;
}

std::size_t cls_MetadataRegistrar::Count() const
{
    return registrations.size();
}
