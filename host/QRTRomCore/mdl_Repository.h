#pragma once

#include "mdl_Extension.h"

/// Base of everything that holds the model's objects of one family.
class OVR_EXPORT mdl_Repository : public mdl_Extension
{
public:
    mdl_Repository();
    explicit mdl_Repository(const cls_ReadVisitor& visitor);
    mdl_Repository(const mdl_Repository&) = default;
    mdl_Repository& operator=(const mdl_Repository&) = default;
    ~mdl_Repository() override;

    mdl_Repository* Copy() const override = 0;
    mdl_Repository* GetValue() override;
    const mdl_Repository* ConstGetValue() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;
    void NewUid() override;
    /// Count of objects.
    virtual int Size() const = 0;
    /// A copy that shares no storage; owned by the caller.
    virtual mdl_Repository* DeepCopy() const = 0;

    static constexpr unsigned TypeId() { return 0xA0001; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cls_Uid uid;
};
