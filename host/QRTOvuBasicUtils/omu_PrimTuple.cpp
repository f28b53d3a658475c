#include "omu_PrimTuple.h"

#include "atr_translate.h"
#include "cls_ClassRegistrar.h"
#include "nex_Exceptions.h"
#include "omu_PrimAdapter.h"
#include "omu_PrimBool.h"
#include "omu_PrimDouble.h"
#include "omu_PrimEnumBase.h"
#include "omu_PrimInt.h"
#include "omu_PrimNone.h"
#include "omu_PrimString.h"

namespace
{

constexpr unsigned tupleTypeId = 0xB0009;
constexpr int tupleVersion = 203;

cls_FieldHandle CapacityField()
{
    return cls_FieldHandle(0, "capacity");
}

cls_FieldHandle BracketField()
{
    return cls_FieldHandle(1, "bracket");
}

// One conversion for each type that can be asked for: false if the primitive does not fit.

bool Convert(const omu_Primitive& from, bool& to)
{
    const auto* value = dynamic_cast<const omu_PrimBool*>(&from);
    if (value)
        to = value->Value();
    return value;
}

bool Convert(const omu_Primitive& from, int& to)
{
    const auto* value = dynamic_cast<const omu_PrimInt*>(&from);
    if (value)
        to = value->Value();
    return value;
}

bool Convert(const omu_Primitive& from, double& to)
{
    if (const auto* value = dynamic_cast<const omu_PrimDouble*>(&from))
    {
        to = value->Value();
        return true;
    }
    int whole = 0;
    if (!Convert(from, whole))
        return false;
    to = whole;
    return true;
}

bool Convert(const omu_Primitive& from, cow_String& to)
{
    const auto* value = dynamic_cast<const omu_PrimString*>(&from);
    if (value)
        to = value->Value();
    return value;
}

bool Convert(const omu_Primitive& from, cow_List<double>& to)
{
    const auto* values = dynamic_cast<const omu_PrimSequence*>(&from);
    if (!values)
        return false;
    cow_List<double> taken;
    for (int i = 0; i < values->Count(); ++i)
    {
        double number = 0.0;
        if (!Convert((*values)[i], number))
            return false;
        taken.Append(number);
    }
    to = taken;
    return true;
}

bool Convert(const omu_Primitive& from, omu_PrimEnumBase& to)
{
    if (const auto* symbol = dynamic_cast<const omu_PrimEnumBase*>(&from))
        return to.SetValue(symbol->GetString().CString());
    cow_String text;
    return Convert(from, text) && to.SetValue(text.CString());
}

cow_String Expected(const bool&)
{
    return "a bool";
}

cow_String Expected(const int&)
{
    return "an int";
}

cow_String Expected(const double&)
{
    return "a float";
}

cow_String Expected(const cow_String&)
{
    return "a str";
}

cow_String Expected(const cow_List<double>&)
{
    return "a sequence of float";
}

cow_String Expected(const omu_PrimTuple&)
{
    return "a tuple";
}

cow_String Expected(const omu_PrimEnumBase& value)
{
    return cow_String("one of ").append(value.PermissibleValuesAsString());
}

/// The value in short: "the str 'abc'".
cow_String Found(const omu_Primitive& value)
{
    constexpr int longest = 60;
    cow_String text = value.AsRepr();
    if (text.Length() > longest)
        text = text.Substr(0, longest).append("...");
    return cow_String("the ").append(value.TypeString()).append(" ").append(text);
}

} // namespace

omu_PrimTuple::omu_PrimTuple(int capacity, char bracket)
    : omu_PrimSequence(omu_PrimKindEnm::Tuple), capacity(capacity), bracket(bracket)
{
    uid.AllocateUid();
}

omu_PrimTuple::omu_PrimTuple(const cls_ReadVisitor& visitor)
    : omu_PrimSequence(cls_ReadVisitor(visitor)),
      capacity(visitor.Memento().GetInt(CapacityField())),
      bracket(static_cast<char>(visitor.Memento().GetInt(BracketField()))),
      uid(visitor.GetUid())
{}

omu_PrimTuple::~omu_PrimTuple() = default;

unsigned omu_PrimTuple::TypeId()
{
    return tupleTypeId;
}

void omu_PrimTuple::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar
        .AddClassMD(
            new omu_PrimAdapter<omu_PrimTuple>("omu_PrimTuple", tupleVersion, omu_PrimSequence::TypeId()))
        ->AddAttribute(CapacityField(), cls_TypeInt, cls_RootId, cls_CollectionNone)
        ->AddAttribute(BracketField(), cls_TypeInt, cls_RootId, cls_CollectionNone);
}

void omu_PrimTuple::Put(bool value)
{
    Add(new omu_PrimBool(value));
}

void omu_PrimTuple::Put(int value)
{
    Add(new omu_PrimInt(value));
}

void omu_PrimTuple::Put(double value)
{
    Add(new omu_PrimDouble(value));
}

void omu_PrimTuple::Put(const char* value)
{
    Put(cow_String(value));
}

void omu_PrimTuple::Put(const cow_String& value)
{
    Add(new omu_PrimString(value));
}

void omu_PrimTuple::Put(const omu_Primitive& value)
{
    Add(value);
}

template <class Primitive, class T>
void omu_PrimTuple::PutList(const cow_List<T>& values)
{
    omu_PrimTuple nested(values.Count());
    for (const T& value : values)
        nested.Add(new Primitive(value));
    Add(nested);
}

void omu_PrimTuple::Put(const cow_List<bool>& values)
{
    PutList<omu_PrimBool>(values);
}

void omu_PrimTuple::Put(const cow_List<int>& values)
{
    PutList<omu_PrimInt>(values);
}

void omu_PrimTuple::Put(const cow_List<double>& values)
{
    PutList<omu_PrimDouble>(values);
}

void omu_PrimTuple::Put(const cow_List<cow_String>& values)
{
    PutList<omu_PrimString>(values);
}

void omu_PrimTuple::Begin()
{
    next = 0;
    alternative = false;
    failure = atr_String();
}

void omu_PrimTuple::End(const cow_String& name)
{
    if (next < Count())
    {
        atr_translate text("Expected %d values, found %d.", 0);
        atr_SubstituteFormat(text, 1, next, 0);
        atr_SubstituteFormat(text, 2, Count(), 0);
        Fail(text.Result(0));
    }
    if (IsSound())
        return;
    atr_String message;
    if (!name.IsEmpty())
        message.append(name).append(": ");
    nex_CmdException<atr_String, 2>(message.append(failure), 0)
        .Throw("host/QRTOvuBasicUtils/omu_PrimTuple", __LINE__);
}

const omu_Primitive* omu_PrimTuple::Next()
{
    return next < Count() ? &(*this)[next++] : nullptr;
}

template <class T>
void omu_PrimTuple::Take(const omu_Primitive* source, T& value, const cow_String& place)
{
    alternative = true;
    if (!source || dynamic_cast<const omu_PrimNone*>(source))
        return;
    if constexpr (std::is_same_v<T, omu_PrimTuple>)
    {
        if (const auto* sequence = dynamic_cast<const omu_PrimSequence*>(source))
        {
            value.TakeElements(*sequence);
            value.Begin();
            alternative = false;
        }
    }
    else
        alternative = !Convert(*source, value);
    if (!alternative)
        return;
    atr_translate text("%s: expected %s, found %s.", 0);
    atr_SubstituteFormat(text, 1, place.CString(), 0);
    atr_SubstituteFormat(text, 2, Expected(value).CString(), 0);
    atr_SubstituteFormat(text, 3, Found(*source).CString(), 0);
    Fail(text.Result(0));
}

template void omu_PrimTuple::Take(const omu_Primitive*, bool&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, int&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, double&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, cow_String&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, cow_List<double>&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, omu_PrimEnumBase&, const cow_String&);
template void omu_PrimTuple::Take(const omu_Primitive*, omu_PrimTuple&, const cow_String&);

template <class T>
void omu_PrimTuple::TakeNext(T& value)
{
    const omu_Primitive* source = Next();
    Take(source, value, cow_String("Value ").append(cow_String(next)));
}

void omu_PrimTuple::Get(bool& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Get(int& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Get(double& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Get(cow_String& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Get(cow_List<double>& values)
{
    TakeNext(values);
}

void omu_PrimTuple::Get(omu_PrimEnumBase& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Get(omu_PrimTuple& value)
{
    TakeNext(value);
}

void omu_PrimTuple::Fail(const atr_String& message)
{
    if (IsSound())
        failure = message;
}

cow_String omu_PrimTuple::TypeString() const
{
    return "tuple";
}

void omu_PrimTuple::Accept(omu_PrimVisitor* visitor)
{
    visitor->VisitTuple(*this);
}

omu_PrimTuple* omu_PrimTuple::Copy() const
{
    return new omu_PrimTuple(*this);
}

unsigned omu_PrimTuple::DynTypeId() const
{
    return tupleTypeId;
}

void omu_PrimTuple::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(tupleTypeId, uid))
        return;
    omu_PrimSequence::DBWrite(cls_WriteVisitor(visitor, omu_PrimSequence::TypeId()));
    visitor.Memento().PutInt(CapacityField(), capacity);
    visitor.Memento().PutInt(BracketField(), bracket);
}

char omu_PrimTuple::OpeningBracket() const
{
    return bracket;
}
