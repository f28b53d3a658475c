#include "dbc_OldClasses.h"

#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"

namespace
{
using Counts = std::map<int, std::size_t>;

Counts CountSteps(const dbc_DatabaseConverter& converter)
{
    Counts counts;
    for (const auto& [version, stage] : converter.Converters())
        counts[version] = stage.Steps().size();
    return counts;
}

std::vector<const dbc_ClassConverter*> StepsSince(const dbc_DatabaseConverter& converter, Counts counts)
{
    std::vector<const dbc_ClassConverter*> steps;
    for (const auto& [version, stage] : converter.Converters())
    {
        for (std::size_t i = counts[version]; i < stage.Steps().size(); ++i)
            steps.push_back(&stage.Steps()[i]);
    }
    return steps;
}

void DescribeCurrentClasses(cls_ClassRegistrar& classes)
{
    const cls_ClassRegistrar& current = omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
    for (std::size_t i = 0; i < current.Count(); ++i)
        dbc_AddDescription(classes, *current.At(i));
}

void KeepOldest(cls_ClassRegistrar& classes, const cls_ClassMetadata& form)
{
    const cls_ClassMetadata* known = classes.Find(form.ClassId());
    if (!known || form.Version() < known->Version())
        dbc_AddDescription(classes, form);
}
} // namespace

void dbc_AddDescription(cls_ClassRegistrar& classes, const cls_ClassMetadata& metadata)
{
    cls_ClassMetadata* copy = classes.CreateClassMD(metadata.Name(), metadata.ClassId(), metadata.Version(),
                                                    nullptr, metadata.BaseClassId());
    for (const cls_AttributeMetadata& attribute : metadata.Attributes())
        copy->AddAttribute(attribute.field, attribute.type, attribute.typeId, attribute.collectionType);
}

dbc_OldClasses::dbc_OldClasses(dbc_DatabaseConverter& converter)
{
    DescribeCurrentClasses(converter.InputClasses());
    DescribeCurrentClasses(converter.OutputClasses());
    const dbc_OldClassRegistrar& registrar = *omi_Singleton<dbc_OldClassRegistrar>::Instance();
    for (std::size_t i = 0; i < registrar.Count(); ++i)
    {
        dbc_OldClassVersion& version = registrar.Version(i);
        auto described = std::make_unique<cls_ClassRegistrar>();
        version.InitializeMetadata(*described);
        const cls_ClassMetadata* form = described->Count() > 0 ? described->At(0) : nullptr;
        if (form)
            KeepOldest(converter.InputClasses(), *form);
        const Counts before = CountSteps(converter);
        version.SchemaChanges(converter);
        entries.push_back(
            {&version, registrar.Mask(i), std::move(described), form, StepsSince(converter, before)});
    }
    for (const Entry& entry : entries)
    {
        entry.version->ClassesToDelete(converter);
        entry.version->ClassesToRename(converter);
    }
}
