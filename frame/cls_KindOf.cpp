#include "cls_KindOf.h"

#include "nex_Exceptions.h"
#include "typ_ArchCompTable.h"

#include <cstring>

namespace
{

void Put(cls_MementoWrite& memento, const cls_FieldHandle& field, int value)
{
    memento.PutInt(field, value);
}

void Put(cls_MementoWrite& memento, const cls_FieldHandle& field, double value)
{
    memento.PutDouble(field, value);
}

void Put(cls_MementoWrite& memento, const cls_FieldHandle& field, bool value)
{
    memento.PutBool(field, value);
}

void Put(cls_MementoWrite& memento, const cls_FieldHandle& field, const cow_String& value)
{
    memento.PutText(field, value);
}

void Get(cls_MementoRead& memento, const cls_FieldHandle& field, int& value)
{
    value = memento.GetInt(field);
}

void Get(cls_MementoRead& memento, const cls_FieldHandle& field, double& value)
{
    value = memento.GetDouble(field);
}

void Get(cls_MementoRead& memento, const cls_FieldHandle& field, bool& value)
{
    value = memento.GetBool(field);
}

void Get(cls_MementoRead& memento, const cls_FieldHandle& field, cow_String& value)
{
    value = memento.GetText(field);
}

cls_Value ToValue(int number)
{
    return number;
}

cls_Value ToValue(double number)
{
    return cls_ValueOfDouble(number);
}

cls_Value ToValue(bool truth)
{
    return truth;
}

cls_Value ToValue(const cow_String& text)
{
    return text.CString();
}

void FromValue(const cls_Value& value, int& number)
{
    number = cls_IntOfValue(value);
}

void FromValue(const cls_Value& value, double& number)
{
    number = cls_DoubleOfValue(value);
}

void FromValue(const cls_Value& value, bool& truth)
{
    truth = cls_BoolOfValue(value);
}

void FromValue(const cls_Value& value, cow_String& text)
{
    const std::string& given = cls_TextOfValue(value);
    if (given.find('\0') != std::string::npos)
        throw cls_ValueError("", "expected a text without null characters");
    text = given.c_str();
}

/// Runs `take` on one element of a collection; an error names the element.
template <class Take>
void AtStep(const std::string& step, Take take)
{
    try
    {
        take();
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(step);
    }
}

std::string Step(std::size_t position)
{
    return '[' + std::to_string(position) + ']';
}

} // namespace

namespace cls_kinds
{

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
cls_KindEnm ScalarKind<T, KindId, Code>::Id() const
{
    return KindId;
}

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
cls_AttributeType ScalarKind<T, KindId, Code>::Type() const
{
    return Code;
}

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
void ScalarKind<T, KindId, Code>::Write(const void* member, const cls_WriteVisitor& visitor,
                                        const cls_FieldHandle& field) const
{
    Put(visitor.Memento(), field, *static_cast<const T*>(member));
}

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
void ScalarKind<T, KindId, Code>::Read(void* member, const cls_ReadVisitor& visitor,
                                       const cls_FieldHandle& field) const
{
    Get(visitor.Memento(), field, *static_cast<T*>(member));
}

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
cls_Value ScalarKind<T, KindId, Code>::Export(const void* member) const
{
    return ToValue(*static_cast<const T*>(member));
}

template <class T, cls_KindEnm KindId, cls_AttributeType Code>
void ScalarKind<T, KindId, Code>::Import(void* member, const cls_Value& value) const
{
    FromValue(value, *static_cast<T*>(member));
}

template class ScalarKind<int, cls_KindEnm::Int, cls_TypeInt>;
template class ScalarKind<int, cls_KindEnm::Int, cls_TypeIntSecond>;
template class ScalarKind<double, cls_KindEnm::Double, cls_TypeDouble>;
template class ScalarKind<bool, cls_KindEnm::Bool, cls_TypeBool>;
template class ScalarKind<cow_String, cls_KindEnm::String, cls_TypeText>;

namespace
{

// Enumerations have int as their underlying type; the bytes are copied, as the type itself is not known here.
int IntegerOf(const void* member)
{
    int integer = 0;
    std::memcpy(&integer, member, sizeof integer);
    return integer;
}

void SetInteger(void* member, int integer)
{
    std::memcpy(member, &integer, sizeof integer);
}

} // namespace

cls_KindEnm EnumKindBase::Id() const
{
    return cls_KindEnm::Enum;
}

cls_AttributeType EnumKindBase::Type() const
{
    return cls_TypeEnum;
}

void EnumKindBase::Write(const void* member, const cls_WriteVisitor& visitor,
                         const cls_FieldHandle& field) const
{
    const int integer = IntegerOf(member);
    const omu_EnumEntry* row = Enum()->FindValue(integer);
    if (!row)
    {
        Enum()->raiseValue(integer);
        return;
    }
    visitor.Memento().PutConstText(field, row->name);
}

void EnumKindBase::Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const
{
    const cow_String text = visitor.Memento().GetText(field);
    const omu_EnumEntry* row = Enum()->FindName(text.CString());
    if (!row)
    {
        Enum()->raiseText(text.CString());
        return;
    }
    SetInteger(member, row->value);
}

cls_Value EnumKindBase::Export(const void* member) const
{
    const int integer = IntegerOf(member);
    const omu_EnumEntry* row = Enum()->FindValue(integer);
    if (!row)
        return integer;
    return row->name;
}

void EnumKindBase::Import(void* member, const cls_Value& value) const
{
    // A number stands for a value outside the table, so that a broken object can be shown and taken again.
    if (value.AsInteger())
    {
        SetInteger(member, cls_IntOfValue(value));
        return;
    }
    const std::string* text = value.AsText();
    const omu_EnumEntry* row = text ? Enum()->FindName(text->c_str()) : nullptr;
    if (!row)
        cls_RaiseUnexpected((std::string("one of ") + omu_NamesOf(*Enum()).CString()).c_str(), value);
    SetInteger(member, row->value);
}

cls_KindEnm OptionalKindBase::Id() const
{
    return cls_KindEnm::Optional;
}

cls_AttributeType OptionalKindBase::Type() const
{
    return cls_TypeObject;
}

unsigned OptionalKindBase::TypeId() const
{
    return Of()->Id();
}

cls_KindEnm PendingKindBase::Id() const
{
    return cls_KindEnm::Pending;
}

cls_AttributeType PendingKindBase::Type() const
{
    return cls_TypeObject;
}

void PendingKindBase::Write(const void*, const cls_WriteVisitor& visitor, const cls_FieldHandle& field) const
{
    visitor.Memento().PutAbsent(field);
}

void PendingKindBase::Read(void*, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const
{
    // The reader itself refuses an object of a class that it does not know.
    if (!cow_ErasedReferent(visitor.Memento().GetObject(field, TypeId())))
        return;
    const std::string message = std::string("an object of class ") + typ_ArchCompTable::GetName(TypeId()) +
                                ", which no attribute can hold yet";
    nex_PrimException<atr_String, 1>(atr_String(message.c_str()), 0).Throw(__FILE__, __LINE__);
}

cls_Value PendingKindBase::Export(const void*) const
{
    return cls_Value();
}

void PendingKindBase::Import(void*, const cls_Value& value) const
{
    if (!value.IsNull())
        throw cls_ValueError("", std::string("expected null, as the class ") +
                                     typ_ArchCompTable::GetName(TypeId()) + " is not built, found " +
                                     value.Summary());
}

} // namespace cls_kinds

template <class T>
cls_Value cls_ExportCollection(const cls_xpScalarList<T>& list)
{
    cls_Value::Array values;
    values.reserve(static_cast<std::size_t>(list.Count()));
    for (int i = 0; i < list.Count(); ++i)
        values.push_back(ToValue(list[i]));
    return values;
}

template <class T>
void cls_ImportCollection(cls_xpScalarList<T>& list, const cls_Value& value)
{
    const cls_Value::Array& values = cls_ArrayOfValue(value);
    cow_List<T> taken;
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        T element{};
        AtStep(Step(i), [&] { FromValue(values[i], element); });
        taken.Append(element);
    }
    list = taken;
}

template cls_Value cls_ExportCollection(const cls_xpScalarList<bool>&);
template cls_Value cls_ExportCollection(const cls_xpScalarList<double>&);
template cls_Value cls_ExportCollection(const cls_xpScalarList<int>&);
template cls_Value cls_ExportCollection(const cls_xpScalarList<cow_String>&);
template void cls_ImportCollection(cls_xpScalarList<bool>&, const cls_Value&);
template void cls_ImportCollection(cls_xpScalarList<double>&, const cls_Value&);
template void cls_ImportCollection(cls_xpScalarList<int>&, const cls_Value&);
template void cls_ImportCollection(cls_xpScalarList<cow_String>&, const cls_Value&);

namespace
{

cls_Value ExportArray(const cow_2DArray<double>& array)
{
    cls_Value::Array rows;
    rows.reserve(static_cast<std::size_t>(array.Rows()));
    for (int row = 0; row < array.Rows(); ++row)
    {
        cls_Value::Array columns;
        columns.reserve(static_cast<std::size_t>(array.Columns()));
        for (int column = 0; column < array.Columns(); ++column)
            columns.push_back(cls_ValueOfDouble(array.ConstGet(row, column)));
        rows.emplace_back(std::move(columns));
    }
    return rows;
}

std::size_t WidthOf(const cls_Value::Array& rows)
{
    std::size_t width = 0;
    if (!rows.empty())
        AtStep(Step(0), [&] { width = cls_ArrayOfValue(rows[0]).size(); });
    return width;
}

void ImportRow(cow_2DArray<double>& array, int row, const cls_Value& value)
{
    const cls_Value::Array& columns = cls_ArrayOfValue(value);
    if (columns.size() != static_cast<std::size_t>(array.Columns()))
        cls_RaiseUnexpected(
            ("an array of " + std::to_string(array.Columns()) + ", as in the first row").c_str(), value);
    for (std::size_t column = 0; column < columns.size(); ++column)
    {
        AtStep(Step(column),
               [&] { array.Get(row, static_cast<int>(column)) = cls_DoubleOfValue(columns[column]); });
    }
}

cow_2DArray<double> ImportArray(const cls_Value& value)
{
    const cls_Value::Array& rows = cls_ArrayOfValue(value);
    cow_2DArray<double> array(static_cast<int>(rows.size()), static_cast<int>(WidthOf(rows)));
    for (std::size_t row = 0; row < rows.size(); ++row)
        AtStep(Step(row), [&] { ImportRow(array, static_cast<int>(row), rows[row]); });
    return array;
}

const cls_Value::Object& MembersOf(const cls_Value& value)
{
    const cls_Value::Object* members = value.AsObject();
    if (!members)
        cls_RaiseUnexpected("an object", value);
    return *members;
}

} // namespace

cls_Value cls_ExportCollection(const cls_xp2DArrayDouble& array)
{
    return ExportArray(array);
}

void cls_ImportCollection(cls_xp2DArrayDouble& array, const cls_Value& value)
{
    array = ImportArray(value);
}

cls_Value cls_ExportCollection(const cls_xpMapString2Float& map)
{
    cls_Value::Object members;
    for (cow_ConstMapIterator<cow_String, float> entry(map); entry.Valid(); entry.Next())
        members.emplace_back(entry.Key().CString(), cls_ValueOfDouble(entry.Value()));
    return members;
}

void cls_ImportCollection(cls_xpMapString2Float& map, const cls_Value& value)
{
    cow_Map<cow_String, float> taken;
    for (const auto& [name, member] : MembersOf(value))
    {
        AtStep(name, [&taken, &name = name, &member = member]
               { taken.Insert(name.c_str(), static_cast<float>(cls_DoubleOfValue(member))); });
    }
    map = taken;
}

cls_Value cls_ExportCollection(const cls_xpMapString2Array2D& map)
{
    cls_Value::Object members;
    for (cow_ConstMapIterator<cow_String, cls_xp2DArrayDouble> entry(map); entry.Valid(); entry.Next())
        members.emplace_back(entry.Key().CString(), ExportArray(entry.Value()));
    return members;
}

void cls_ImportCollection(cls_xpMapString2Array2D& map, const cls_Value& value)
{
    cow_Map<cow_String, cls_xp2DArrayDouble> taken;
    for (const auto& [name, member] : MembersOf(value))
    {
        AtStep(name, [&taken, &name = name, &member = member]
               { taken.Insert(name.c_str(), cls_xp2DArrayDouble(ImportArray(member))); });
    }
    map = taken;
}
