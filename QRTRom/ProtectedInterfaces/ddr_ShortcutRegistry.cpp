#include "ddr_ShortcutRegistry.h"

#include "cls_MetadataRegistrar.h"
#include "ddr_ShortcutOf.h"
#include "nex_Exceptions.h"

#include <algorithm>

namespace
{

/// A class enters itself when its metadata function runs, which the registrar puts off until somebody asks.
void RunMetadataFunctions()
{
    omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
}

template <class Class>
void AddUnlessKnown(std::vector<std::unique_ptr<Class>>& classes, const Class& added)
{
    const auto isSame = [&added](const auto& known) { return known->id == added.id; };
    if (std::none_of(classes.begin(), classes.end(), isSame))
        classes.push_back(std::make_unique<Class>(added));
}

} // namespace

void ddr_RaiseUnknown(const cow_String& name, int line)
{
    nex_CmdException<cow_String, 9>(name, 0).Throw("QRTRom/ProtectedInterfaces/ddr_Shortcut", line);
}

ddr_ShortcutRegistry::ddr_ShortcutRegistry()
{
    AddHolder(ddr_HolderClass::Of<ddr_Model>());
}

ddr_ShortcutRegistry::~ddr_ShortcutRegistry() = default;

void ddr_ShortcutRegistry::AddHolder(const ddr_HolderClass& holder)
{
    AddUnlessKnown(holders, holder);
}

void ddr_ShortcutRegistry::AddStep(const ddr_StepClass& step)
{
    AddUnlessKnown(steps, step);
}

const ddr_HolderClass* ddr_ShortcutRegistry::FindHolder(unsigned id)
{
    RunMetadataFunctions();
    const auto found =
        std::find_if(holders.begin(), holders.end(), [id](const auto& holder) { return holder->id == id; });
    return found == holders.end() ? nullptr : found->get();
}

std::vector<const ddr_StepClass*> ddr_ShortcutRegistry::StepsFrom(unsigned holderId)
{
    RunMetadataFunctions();
    std::vector<const ddr_StepClass*> found;
    for (const auto& step : steps)
    {
        if (step->parentId == holderId)
            found.push_back(step.get());
    }
    std::stable_partition(found.begin(), found.end(),
                          [](const ddr_StepClass* step) { return step->isOfParentItself; });
    return found;
}

const ddr_StepClass* ddr_ShortcutRegistry::FindAttributeStep(const cls_Description& parent,
                                                             const std::string& word)
{
    RunMetadataFunctions();
    for (const auto& step : steps)
    {
        if (step->attributeOf && '.' + word == step->word && parent.IsA(FindHolder(step->parentId)->targetId))
            return step.get();
    }
    return nullptr;
}

ddr_ShortcutRegistry& ddr_Shortcuts()
{
    return *omi_Singleton<ddr_ShortcutRegistry>::Instance();
}
