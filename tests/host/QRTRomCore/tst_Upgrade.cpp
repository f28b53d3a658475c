#include "tst_Upgrade.h"

#include "cls_MetadataRegistrar.h"
#include "dbc_OldClassRegistrar.h"
#include "rfm_Database.h"
#include "rom_ClassPlan.h"

namespace
{
cls_ClassMetadata* Describe(cls_ClassMetadata* metadata, const tst_Form& form)
{
    int index = 0;
    for (const tst_Form::Attribute& attribute : form.attributes)
        metadata->AddAttribute(cls_FieldHandle(index++, attribute.name), attribute.type, attribute.typeId,
                               attribute.collection);
    return metadata;
}

class Metadata final : public cls_ClassMetadata
{
public:
    Metadata(const tst_Form& form, std::function<void(const cls_WriteVisitor&)> writeDefault)
        : cls_ClassMetadata(form.name, form.classId, form.version, nullptr, form.baseId),
          writeDefault(std::move(writeDefault))
    {}
    bool IsConcrete() const override { return writeDefault != nullptr; }
    bool DBWriteDefault(const cls_WriteVisitor& visitor) const override
    {
        if (writeDefault)
            writeDefault(visitor);
        return writeDefault != nullptr;
    }

private:
    std::function<void(const cls_WriteVisitor&)> writeDefault;
};

class OldVersion final : public dbc_OldClassVersion
{
public:
    explicit OldVersion(const tst_OldForm& old) : old(old) {}
    void InitializeMetadata(cls_ClassRegistrar& registrar) override
    {
        Describe(registrar.CreateClassMD(old.form.name, old.form.classId, old.form.version, nullptr,
                                         old.form.baseId),
                 old.form);
    }
    void SchemaChanges(dbc_DatabaseConverter& converter) override { Call(old.schemaChanges, converter); }
    void ClassesToDelete(dbc_DatabaseConverter& converter) override { Call(old.classesToDelete, converter); }
    void ClassesToRename(dbc_DatabaseConverter& converter) override { Call(old.classesToRename, converter); }
    void TablesToRename(dbc_DatabaseConverter& converter) override { Call(old.tablesToRename, converter); }

private:
    static void Call(const std::function<void(dbc_DatabaseConverter&)>& function,
                     dbc_DatabaseConverter& converter)
    {
        if (function)
            function(converter);
    }

    tst_OldForm old;
};

cls_ClassRegistrar& Current()
{
    return const_cast<cls_ClassRegistrar&>(omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes());
}
} // namespace

std::function<void(dbc_DatabaseConverter&)> tst_Step(const char* name, unsigned classId, int from, int to,
                                                     dbc_ConversionFunction conversion,
                                                     dbc_FinalizeFunction finalizer)
{
    return [=](dbc_DatabaseConverter& converter)
    {
        dbc_ClassConverter& step = converter.GetConverter(to).Upgrade(name, classId, from);
        if (conversion)
            step.BindConversionFunction(conversion, "Upgrade_Test");
        if (finalizer)
            step.BindFinalizeFunction(finalizer);
    };
}

tst_Release::tst_Release()
{
    tst_RequireClasses();
}

tst_Release::~tst_Release()
{
    for (const auto& [name, classId] : added)
        Current().DeleteClass(name, classId);
    omi_Singleton<dbc_OldClassRegistrar>::Finalize();
}

void tst_Release::Has(const tst_Form& form, std::function<void(const cls_WriteVisitor&)> writeDefault)
{
    Describe(Current().AddClassMD(new Metadata(form, std::move(writeDefault))), form);
    added.emplace_back(form.name, form.classId);
}

void tst_Release::Had(const tst_OldForm& old)
{
    omi_Singleton<dbc_OldClassRegistrar>::Instance()->Register(
        cow_NewHolder<dbc_OldClassVersion>(new OldVersion(old)), 4);
}

void tst_MakeStore(const std::string& path, const std::vector<tst_Form>& forms)
{
    tst_RequireClasses();
    rfm_Database database(path.c_str(), rfm_Access::Create);
    for (const tst_Form& form : forms)
    {
        cls_ClassMetadata metadata(form.name, form.classId, form.version, nullptr, form.baseId);
        Describe(&metadata, form);
        database.CreateTable(rom_ClassPlan::Of(metadata)->Table());
    }
    for (const unsigned collection : {cls_ListTypeId, cls_MapTypeId})
        database.CreateTable(rom_ClassPlan::Of(collection)->Table());
    database.Commit();
}
