#include "TestContainer.h"

#include "cls_MetadataRegistrar.h"
#include "typ_ArchCompTable.h"

#include <iterator>

namespace
{
constexpr unsigned short moduleNumber = 0x7FFF;

constexpr typ_Entry types[] = {
    {0, 1, nullptr},
    {7, 0xA0001, "TestRepository"},
    {7, 0xA000D, "TestContainer"},
    {7, 0x7FFF0002, "OtherContainer"},
};

/// Metadata of a class whose handles are handles on an extension.
template <class T>
class ExtensionAdapter : public cls_ClassMetadata
{
public:
    ExtensionAdapter(const char* name, unsigned baseId)
        : cls_ClassMetadata(name, T::TypeId(), 1, nullptr, baseId)
    {}

    void DBWrite(const void* object, const cls_WriteVisitor& visitor) const override
    {
        static_cast<const mdl_Extension*>(object)->DBWrite(visitor);
    }

    void Delete(void* object) const override { delete static_cast<mdl_Extension*>(object); }

    void* Ctor(const cls_ReadVisitor& visitor) const override
    {
        return static_cast<mdl_Extension*>(new T(visitor));
    }

    bool IsConcrete() const override { return true; }
};

cls_FieldHandle SizeField()
{
    return cls_FieldHandle(0, "size");
}

cls_FieldHandle RepositoryField()
{
    return cls_FieldHandle(0, "repository");
}
} // namespace

TestRepository::TestRepository(const cls_ReadVisitor& visitor)
    : mdl_Repository(cls_ReadVisitor(visitor)),
      size(visitor.Memento().GetInt(SizeField())),
      uid(visitor.GetUid())
{}

void TestRepository::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    {
        const cls_WriteVisitor base(visitor, mdl_Repository::TypeId());
        mdl_Repository::DBWrite(base);
    }
    visitor.Memento().PutInt(SizeField(), size);
}

void TestRepository::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new ExtensionAdapter<TestRepository>("TestRepository", mdl_Repository::TypeId()))
        ->AddAttribute(SizeField(), cls_TypeInt, cls_RootId, cls_CollectionNone);
}

TestContainer::TestContainer(const cls_ReadVisitor& visitor)
    : mdl_Extension(cls_ReadVisitor(visitor)),
      repository(cls_ReadVisitor(visitor, RepositoryField())),
      uid(visitor.GetUid())
{}

void TestContainer::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    {
        const cls_WriteVisitor base(visitor, mdl_Extension::TypeId());
        mdl_Extension::DBWrite(base);
    }
    const cls_WriteVisitor nested(visitor, RepositoryField(), nullptr, nullptr);
    repository.DBWrite(nested);
}

void TestContainer::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new ExtensionAdapter<TestContainer>("TestContainer", mdl_Extension::TypeId()))
        ->AddAttribute(RepositoryField(), cls_TypeObject, TestRepository::TypeId(), cls_CollectionNone);
}

OtherContainer::OtherContainer(const cls_ReadVisitor& visitor)
    : TestContainer(cls_ReadVisitor(visitor)), uid(visitor.GetUid())
{}

void OtherContainer::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    const cls_WriteVisitor base(visitor, TestContainer::TypeId());
    TestContainer::DBWrite(base);
}

void OtherContainer::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new ExtensionAdapter<OtherContainer>("OtherContainer", TestContainer::TypeId()));
}

void DescribeTestContainers()
{
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(TestRepository::InitializeMetadata);
    registrar.initClassMetadata(TestContainer::InitializeMetadata);
    registrar.initClassMetadata(OtherContainer::InitializeMetadata);
}
