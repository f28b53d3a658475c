#pragma once

#include "omu_Primitive.h"

class cls_ClassRegistrar;

/// What the primitives of single values share: `Self` is the primitive, `T` the C++ type of its value.
template <class Self, class T>
class OVR_EXPORT omu_PrimValue : public omu_Primitive
{
public:
    explicit omu_PrimValue(const T& value);
    explicit omu_PrimValue(const cls_ReadVisitor& visitor);
    omu_PrimValue(const omu_PrimValue&) = default;
    omu_PrimValue& operator=(const omu_PrimValue&) = default;
    ~omu_PrimValue() override;

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    const T& Value() const { return value; }

    cow_String TypeString() const override;
    cow_String AsString(int form) const override;
    cow_String AsRepr() const override;
    /// Equal to a primitive of the same class that has the same value.
    bool operator==(const omu_Primitive& other) const override;
    /// The same; without it two such primitives compare in two equally good orders.
    bool operator==(const omu_PrimValue& other) const
    {
        return *this == static_cast<const omu_Primitive&>(other);
    }
    void Accept(omu_PrimVisitor* visitor) override;
    omu_Primitive* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(const cls_WriteVisitor& visitor) const override;

private:
    T value;
    cls_Uid uid;
};

class OVR_EXPORT omu_PrimBool;
class OVR_EXPORT omu_PrimInt;
class OVR_EXPORT omu_PrimDouble;
class OVR_EXPORT omu_PrimString;

extern template class OVR_EXPORT omu_PrimValue<omu_PrimBool, bool>;
extern template class OVR_EXPORT omu_PrimValue<omu_PrimInt, int>;
extern template class OVR_EXPORT omu_PrimValue<omu_PrimDouble, double>;
extern template class OVR_EXPORT omu_PrimValue<omu_PrimString, cow_String>;
