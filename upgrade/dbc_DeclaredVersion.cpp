#include "dbc_DeclaredVersion.h"

#include "dbc_DatabaseConverter.h"

void dbc_DeclaredVersion::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    const dbc_OldForm& form = Form();
    cls_ClassMetadata* const metadata = registrar.CreateClassMD(form.className, form.identity.classId,
                                                                form.version, nullptr, form.identity.baseId);
    int position = 0;
    for (const dbc_OldAttribute& attribute : form.attributes)
    {
        const int index = attribute.index == dbc_OldAttribute::InOrder ? position : attribute.index;
        metadata->AddAttribute(cls_FieldHandle(index, attribute.name), attribute.type, attribute.typeId,
                               attribute.collection);
        ++position;
    }
}

void dbc_DeclaredVersion::SchemaChanges(dbc_DatabaseConverter& converter)
{
    const dbc_OldForm& form = Form();
    if (form.step.next == dbc_Step::NoNext)
        return;
    dbc_ClassConverter& step =
        converter.GetConverter(form.step.next).Upgrade(form.className, form.identity.classId, form.version);
    if (form.step.conversion.function)
        step.BindConversionFunction(form.step.conversion.function, form.step.conversion.name);
    if (form.step.finalizer.function)
        step.BindFinalizeFunction(form.step.finalizer.function, form.step.finalizer.name);
}

void dbc_DeclaredVersion::ClassesToDelete(dbc_DatabaseConverter& converter)
{
    const dbc_OldForm& form = Form();
    if (!form.identity.isDeleted)
        return;
    converter.ClassesToDelete().Prepend(form.identity.classId);
    for (cls_ClassRegistrar* classes : {&converter.InputClasses(), &converter.OutputClasses()})
        classes->DeleteClass(form.className, form.identity.classId);
}

void dbc_DeclaredVersion::ClassesToRename(dbc_DatabaseConverter& converter)
{
    const dbc_OldForm& form = Form();
    if (form.identity.newName)
        converter.ClassesToRename().Insert(form.className, form.identity.newName);
}
