#pragma once

#include "cls_Uid.h"
#include "cow_String.h"
#include "mem_AllocationOperators.h"
#include "ovr_Export.h"

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;
class OVR_EXPORT omu_PrimBool;
class OVR_EXPORT omu_PrimDouble;
class omu_PrimEnumBase;
class OVR_EXPORT omu_PrimInt;
class omu_PrimList;
class omu_PrimNone;
class OVR_EXPORT omu_PrimString;
class omu_PrimTuple;

/// Sees a primitive by its kind.
class OVR_EXPORT omu_PrimVisitor
{
public:
    virtual ~omu_PrimVisitor();
    virtual void VisitNone(omu_PrimNone& primitive) = 0;
    virtual void VisitBool(omu_PrimBool& primitive) = 0;
    virtual void VisitInt(omu_PrimInt& primitive) = 0;
    virtual void VisitDouble(omu_PrimDouble& primitive) = 0;
    virtual void VisitString(omu_PrimString& primitive) = 0;
    virtual void VisitEnum(omu_PrimEnumBase& primitive) = 0;
    virtual void VisitTuple(omu_PrimTuple& primitive) = 0;
    virtual void VisitList(omu_PrimList& primitive) = 0;
};

/// What a primitive is. The numbers are stored.
enum class omu_PrimKindEnm : int
{
    None = 1,
    String = 2,
    Enum = 3,
    Bool = 4,
    Int = 5,
    Double = 6,
    Tuple = 7,
    List = 8
};

/// A value on its way between a script and an object. It exists while it is handed over, and has an identity
/// of its own so that it can be stored.
class OVR_EXPORT omu_Primitive : public mem_AllocationOperators
{
public:
    virtual ~omu_Primitive();

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

    omu_PrimKindEnm Kind() const { return kind; }

    /// The name of the value's type, as messages give it.
    virtual cow_String TypeString() const = 0;
    /// The value as plain text; the argument is 0.
    virtual cow_String AsString(int form) const = 0;
    /// The value as a script would write it.
    virtual cow_String AsRepr() const;
    virtual bool operator==(const omu_Primitive& other) const = 0;
    virtual void Accept(omu_PrimVisitor* visitor) = 0;
    /// A new object of the same class with the same fields, owned by the caller.
    virtual omu_Primitive* Copy() const = 0;
    virtual unsigned DynTypeId() const = 0;
    /// Writes the section of this class; a class with more to store calls it for its base section.
    virtual void DBWrite(const cls_WriteVisitor& visitor) const = 0;

protected:
    explicit omu_Primitive(omu_PrimKindEnm kind);
    /// Takes its section from a record.
    explicit omu_Primitive(const cls_ReadVisitor& visitor);
    omu_Primitive(const omu_Primitive&) = default;
    omu_Primitive& operator=(const omu_Primitive&) = default;

private:
    omu_PrimKindEnm kind;
    cls_Uid uid;
};
