#include "omu_PrimAdapter.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimInt.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"

#include "cls_ClassRegistrar.h"
#include "omu_Repr.h"

namespace
{

constexpr int primitiveVersion = 203;
constexpr unsigned noneTypeId = 0xB0004;

cls_FieldHandle ValueField()
{
    return cls_FieldHandle(0, "value");
}

/// What differs between the primitives of single values.
template <class T>
struct FormOf;

template <>
struct FormOf<bool>
{
    static constexpr unsigned typeId = 0xB0005;
    static constexpr const char* className = "omu_PrimBool";
    static constexpr const char* typeName = "bool";
    static constexpr omu_PrimKindEnm kind = omu_PrimKindEnm::Bool;
    static constexpr cls_AttributeType stored = cls_TypeBool;

    static cow_String Text(bool value) { return value ? "True" : "False"; }
    static cow_String Repr(bool value) { return Text(value); }
    static void Put(cls_MementoWrite& row, bool value) { row.PutBool(ValueField(), value); }
    static bool Get(cls_MementoRead& row) { return row.GetBool(ValueField()); }
    static void Show(omu_PrimVisitor& visitor, omu_PrimBool& primitive) { visitor.VisitBool(primitive); }
};

template <>
struct FormOf<int>
{
    static constexpr unsigned typeId = 0xB0006;
    static constexpr const char* className = "omu_PrimInt";
    static constexpr const char* typeName = "int";
    static constexpr omu_PrimKindEnm kind = omu_PrimKindEnm::Int;
    static constexpr cls_AttributeType stored = cls_TypeInt;

    static cow_String Text(int value) { return cow_String(value); }
    static cow_String Repr(int value) { return Text(value); }
    static void Put(cls_MementoWrite& row, int value) { row.PutInt(ValueField(), value); }
    static int Get(cls_MementoRead& row) { return row.GetInt(ValueField()); }
    static void Show(omu_PrimVisitor& visitor, omu_PrimInt& primitive) { visitor.VisitInt(primitive); }
};

template <>
struct FormOf<double>
{
    static constexpr unsigned typeId = 0xB0007;
    static constexpr const char* className = "omu_PrimDouble";
    static constexpr const char* typeName = "float";
    static constexpr omu_PrimKindEnm kind = omu_PrimKindEnm::Double;
    static constexpr cls_AttributeType stored = cls_TypeDouble;

    static cow_String Text(double value) { return omu_TextOfDouble(value); }
    static cow_String Repr(double value) { return omu_ReprOfDouble(value); }
    static void Put(cls_MementoWrite& row, double value) { row.PutDouble(ValueField(), value); }
    static double Get(cls_MementoRead& row) { return row.GetDouble(ValueField()); }
    static void Show(omu_PrimVisitor& visitor, omu_PrimDouble& primitive) { visitor.VisitDouble(primitive); }
};

template <>
struct FormOf<cow_String>
{
    static constexpr unsigned typeId = 0xB0002;
    static constexpr const char* className = "omu_PrimString";
    static constexpr const char* typeName = "str";
    static constexpr omu_PrimKindEnm kind = omu_PrimKindEnm::String;
    static constexpr cls_AttributeType stored = cls_TypeText;

    static cow_String Text(const cow_String& value) { return value; }
    static cow_String Repr(const cow_String& value) { return omu_ReprOfText(value); }
    static void Put(cls_MementoWrite& row, const cow_String& value) { row.PutText(ValueField(), value); }
    static cow_String Get(cls_MementoRead& row) { return row.GetText(ValueField()); }
    static void Show(omu_PrimVisitor& visitor, omu_PrimString& primitive) { visitor.VisitString(primitive); }
};

} // namespace

template <class Self, class T>
omu_PrimValue<Self, T>::omu_PrimValue(const T& value) : omu_Primitive(FormOf<T>::kind), value(value)
{
    uid.AllocateUid();
}

template <class Self, class T>
omu_PrimValue<Self, T>::omu_PrimValue(const cls_ReadVisitor& visitor)
    : omu_Primitive(cls_ReadVisitor(visitor)), value(FormOf<T>::Get(visitor.Memento())), uid(visitor.GetUid())
{}

template <class Self, class T>
omu_PrimValue<Self, T>::~omu_PrimValue() = default;

template <class Self, class T>
unsigned omu_PrimValue<Self, T>::TypeId()
{
    return FormOf<T>::typeId;
}

template <class Self, class T>
void omu_PrimValue<Self, T>::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar
        .AddClassMD(
            new omu_PrimAdapter<Self>(FormOf<T>::className, primitiveVersion, omu_Primitive::TypeId()))
        ->AddAttribute(ValueField(), FormOf<T>::stored, cls_RootId, cls_CollectionNone);
}

template <class Self, class T>
cow_String omu_PrimValue<Self, T>::TypeString() const
{
    return FormOf<T>::typeName;
}

template <class Self, class T>
cow_String omu_PrimValue<Self, T>::AsString(int) const
{
    return FormOf<T>::Text(value);
}

template <class Self, class T>
cow_String omu_PrimValue<Self, T>::AsRepr() const
{
    return FormOf<T>::Repr(value);
}

template <class Self, class T>
bool omu_PrimValue<Self, T>::operator==(const omu_Primitive& other) const
{
    const auto* same = dynamic_cast<const Self*>(&other);
    return same && same->Value() == value;
}

template <class Self, class T>
void omu_PrimValue<Self, T>::Accept(omu_PrimVisitor* visitor)
{
    FormOf<T>::Show(*visitor, static_cast<Self&>(*this));
}

template <class Self, class T>
omu_Primitive* omu_PrimValue<Self, T>::Copy() const
{
    return new Self(static_cast<const Self&>(*this));
}

template <class Self, class T>
unsigned omu_PrimValue<Self, T>::DynTypeId() const
{
    return TypeId();
}

template <class Self, class T>
void omu_PrimValue<Self, T>::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    omu_Primitive::DBWrite(cls_WriteVisitor(visitor, omu_Primitive::TypeId()));
    FormOf<T>::Put(visitor.Memento(), value);
}

template class omu_PrimValue<omu_PrimBool, bool>;
template class omu_PrimValue<omu_PrimInt, int>;
template class omu_PrimValue<omu_PrimDouble, double>;
template class omu_PrimValue<omu_PrimString, cow_String>;

omu_PrimNone::omu_PrimNone() : omu_Primitive(omu_PrimKindEnm::None)
{
    uid.AllocateUid();
}

omu_PrimNone::omu_PrimNone(const cls_ReadVisitor& visitor)
    : omu_Primitive(cls_ReadVisitor(visitor)), uid(visitor.GetUid())
{}

omu_PrimNone::~omu_PrimNone() = default;

unsigned omu_PrimNone::TypeId()
{
    return noneTypeId;
}

void omu_PrimNone::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(
        new omu_PrimAdapter<omu_PrimNone>("omu_PrimNone", primitiveVersion, omu_Primitive::TypeId()));
}

cow_String omu_PrimNone::TypeString() const
{
    return "NoneType";
}

cow_String omu_PrimNone::AsString(int) const
{
    return "None";
}

bool omu_PrimNone::operator==(const omu_Primitive& other) const
{
    return dynamic_cast<const omu_PrimNone*>(&other) != nullptr;
}

void omu_PrimNone::Accept(omu_PrimVisitor* visitor)
{
    visitor->VisitNone(*this);
}

omu_PrimNone* omu_PrimNone::Copy() const
{
    return new omu_PrimNone(*this);
}

unsigned omu_PrimNone::DynTypeId() const
{
    return noneTypeId;
}

void omu_PrimNone::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(noneTypeId, uid))
        omu_Primitive::DBWrite(cls_WriteVisitor(visitor, omu_Primitive::TypeId()));
}
