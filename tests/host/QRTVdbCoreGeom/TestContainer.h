#pragma once

#include "cls_ClassRegistrar.h"
#include "cow_List.h"
#include "ddr_Model.h"
#include "mdl_Repository.h"

/// A repository of nothing but a count.
class TestRepository : public mdl_Repository
{
public:
    explicit TestRepository(int size) : size(size) {}
    explicit TestRepository(const cls_ReadVisitor& visitor);

    TestRepository* Copy() const override { return new TestRepository(*this); }
    TestRepository* DeepCopy() const override { return new TestRepository(*this); }
    int Size() const override { return size; }
    unsigned DynTypeId() const override { return TypeId(); }
    void DBWrite(const cls_WriteVisitor& visitor) const override;

    static unsigned TypeId() { return 0x7FFF0001; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    void Resize(int newSize) { size = newSize; }

private:
    int size;
    cls_Uid uid;
};

/// Plugs a TestRepository into a model; counts how often one is copied.
class TestContainer : public mdl_Extension
{
public:
    explicit TestContainer(int size) : repository(size) { uid.AllocateUid(); }
    explicit TestContainer(const cls_ReadVisitor& visitor);

    TestContainer* Copy() const override
    {
        ++copies;
        return new TestContainer(*this);
    }
    mdl_Repository* GetValue() override { return &repository; }
    const mdl_Repository* ConstGetValue() const override { return &repository; }
    unsigned DynTypeId() const override { return TypeId(); }
    void DBWrite(const cls_WriteVisitor& visitor) const override;

    static unsigned TypeId() { return 0x7FFF0002; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    static inline int copies = 0;

private:
    TestRepository repository;
    cls_Uid uid;
};

/// Another class of container.
class OtherContainer : public TestContainer
{
public:
    explicit OtherContainer(int size) : TestContainer(size) { uid.AllocateUid(); }
    explicit OtherContainer(const cls_ReadVisitor& visitor);

    OtherContainer* Copy() const override { return new OtherContainer(*this); }
    unsigned DynTypeId() const override { return TypeId(); }
    void DBWrite(const cls_WriteVisitor& visitor) const override;

    static unsigned TypeId() { return 0x7FFF0003; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cls_Uid uid;
};

/// Describes the classes above and enters them in the type table.
void DescribeTestContainers();
