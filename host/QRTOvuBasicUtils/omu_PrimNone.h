#pragma once

#include "omu_Primitive.h"

/// The value None, which stands for no value: an argument that was left out, or an object that is absent.
class OVR_EXPORT omu_PrimNone final : public omu_Primitive
{
public:
    omu_PrimNone();
    explicit omu_PrimNone(const cls_ReadVisitor& visitor);
    omu_PrimNone(const omu_PrimNone&) = default;
    omu_PrimNone& operator=(const omu_PrimNone&) = default;
    ~omu_PrimNone() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    /// Equal to every other None.
    bool operator==(const omu_Primitive& other) const override;
    /// The same; without it two of them compare in two equally good orders.
    bool operator==(const omu_PrimNone&) const { return true; }
    void Accept(omu_PrimVisitor* visitor) override;
    omu_PrimNone* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

private:
    cls_Uid uid;
};
