#include "omu_PrimEnumBase.h"

#include "atr_translate.h"
#include "cls_ClassRegistrar.h"
#include "nex_Exceptions.h"

namespace
{

constexpr unsigned enumTypeId = 0xB0003;
constexpr int enumVersion = 203;
constexpr const char* stringField = "string";

template <class Value>
[[noreturn]] void Raise(const char* message, Value value, const cow_String& permissible)
{
    atr_translate text(message, 0);
    atr_SubstituteFormat(text, 1, value, 0);
    atr_SubstituteFormat(text, 2, permissible.CString(), 0);
    nex_CmdException<atr_String, 2>(text.Result(0), 0)
        .Throw("QRTOvuOvarisUtilities/ProtectedInterfaces/omu_PrimEnum", __LINE__);
}

} // namespace

omu_PrimEnumBase::omu_PrimEnumBase() : omu_Primitive(omu_PrimKindEnm::Enum)
{
    uid.AllocateUid();
}

omu_PrimEnumBase::omu_PrimEnumBase(const cls_ReadVisitor& visitor)
    : omu_Primitive(cls_ReadVisitor(visitor)),
      string(visitor.Memento().GetText(cls_FieldHandle(0, stringField))),
      uid(visitor.GetUid())
{}

omu_PrimEnumBase::~omu_PrimEnumBase() = default;

unsigned omu_PrimEnumBase::TypeId()
{
    return enumTypeId;
}

void omu_PrimEnumBase::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("omu_PrimEnumBase", enumTypeId, enumVersion, nullptr, omu_Primitive::TypeId())
        ->AddAttribute(cls_FieldHandle(0, stringField), cls_TypeText, cls_RootId, cls_CollectionNone);
}

cow_String omu_PrimEnumBase::TypeString() const
{
    return "SymbolicConstant";
}

cow_String omu_PrimEnumBase::AsString(int) const
{
    return string;
}

bool omu_PrimEnumBase::operator==(const omu_Primitive& other) const
{
    const auto* otherEnum = dynamic_cast<const omu_PrimEnumBase*>(&other);
    return otherEnum && otherEnum->string == string;
}

void omu_PrimEnumBase::Accept(omu_PrimVisitor* visitor)
{
    visitor->VisitEnum(*this);
}

unsigned omu_PrimEnumBase::DynTypeId() const
{
    return enumTypeId;
}

void omu_PrimEnumBase::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(enumTypeId, uid))
        return;
    omu_Primitive::DBWrite(cls_WriteVisitor(visitor, omu_Primitive::TypeId()));
    visitor.Memento().PutText(cls_FieldHandle(0, stringField), string);
}

cow_String omu_PrimEnumBase::PermissibleValuesAsString() const
{
    return NamesInOrder();
}

void omu_PrimEnumBase::RaiseNotAllowed(const char* message, int value) const
{
    Raise(message, value, PermissibleValuesAsString());
}

void omu_PrimEnumBase::RaiseNotAllowed(const char* message, const char* value) const
{
    Raise(message, value, PermissibleValuesAsString());
}
