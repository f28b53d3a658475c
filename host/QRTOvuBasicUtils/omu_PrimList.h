#pragma once

#include "omu_PrimSequence.h"

/// A list of values, as a script has it in square brackets.
class OVR_EXPORT omu_PrimList final : public omu_PrimSequence
{
public:
    omu_PrimList();
    explicit omu_PrimList(const cls_ReadVisitor& visitor);
    omu_PrimList(const omu_PrimList&) = default;
    omu_PrimList& operator=(const omu_PrimList&) = default;
    ~omu_PrimList() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    cow_String TypeString() const override;
    void Accept(omu_PrimVisitor* visitor) override;
    omu_PrimList* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

protected:
    char OpeningBracket() const override;

private:
    cls_Uid uid;
};
