#pragma once

#include "cls_ClassMetadata.h"
#include "cls_MetadataRegistrar.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

// Records what an object's DBWrite puts into its row, field by field, and gives it back to a read constructor
// in the same order. Writing, reading and description must agree to the letter, which a store, finding its
// columns by name, does not ask for.

/// What a nested row is written as in place of a value.
struct RecordedAbsence
{};

struct RecordedRow
{
    struct Field
    {
        int index;
        std::string name;
        std::variant<int, bool, double, std::string, RecordedAbsence, std::shared_ptr<RecordedRow>> value;
    };

    unsigned classId = 0;
    cls_Uid uid;
    cls_CollectionType collection = cls_CollectionNone;
    std::vector<double> doubles; ///< Content of an array's row.
    int columns = 0;
    std::vector<Field> fields;
    std::shared_ptr<RecordedRow> base;
};

namespace row_recorder
{
[[noreturn]] inline void Fail(const std::string& text)
{
    throw std::logic_error(text);
}

inline std::string Text(const cow_String& text)
{
    return text.CString();
}

class Writer final : public cls_MementoWrite
{
public:
    Writer(std::shared_ptr<RecordedRow> row, bool isWritten) : row(std::move(row)), isWritten(isWritten) {}

    int StartWrite(unsigned classId, const cls_Uid& uid) override
    {
        row->classId = classId;
        row->uid = uid;
        return isWritten ? 0 : 1;
    }

    void CheckCollectionType(cls_CollectionType code) override { row->collection = code; }
    void PutInt(const cls_FieldHandle& field, int value) override { Put(field, value); }
    void PutBool(const cls_FieldHandle& field, bool value) override { Put(field, value); }
    void PutDouble(const cls_FieldHandle& field, double value) override { Put(field, value); }
    void PutText(const cls_FieldHandle& field, const cow_String& value) override { Put(field, Text(value)); }
    void PutConstText(const cls_FieldHandle& field, const char* value) override
    {
        Put(field, std::string(value));
    }
    void PutAbsent(const cls_FieldHandle& field) override { Put(field, RecordedAbsence()); }

    void PutDoubles(const double* values, long count, int columns) override
    {
        row->doubles.assign(values, values + count);
        row->columns = columns;
    }

    cls_MementoWrite* OpenBase(unsigned) override
    {
        row->base = std::make_shared<RecordedRow>();
        return new Writer(row->base, isWritten);
    }

    cls_MementoWrite* OpenField(const cls_FieldHandle& field, const cls_ErasedHandle*) override
    {
        const auto nested = std::make_shared<RecordedRow>();
        Put(field, nested);
        return new Writer(nested, isWritten);
    }

    void PutInts(const int*, long) override { Fail("no list of integers expected"); }
    void PutBools(const bool*, long) override { Fail("no list of booleans expected"); }
    void PutElementText(const cow_String&) override { Fail("no list of texts expected"); }
    void PutElementFloat(const cow_String&, float) override { Fail("no map expected"); }
    cls_MementoWrite* OpenElement(const cow_String&) override { Fail("no map expected"); }
    cls_WriteListObj* OpenList(int) override { Fail("no list of objects expected"); }
    cls_WriteMapString2Obj* OpenMapString2Obj() override { Fail("no map of objects expected"); }
    cls_WriteMapInt2Obj* OpenMapInt2Obj() override { Fail("no map of objects expected"); }

    void Close() noexcept override { delete this; }

private:
    ~Writer() = default;

    template <class Value>
    void Put(const cls_FieldHandle& field, const Value& value)
    {
        row->fields.push_back({field.Index(), Text(field.Name()), value});
    }

    std::shared_ptr<RecordedRow> row;
    bool isWritten;
};

class Reader final : public cls_MementoRead
{
public:
    explicit Reader(std::shared_ptr<RecordedRow> row) : row(std::move(row)) {}

    cls_Uid GetUid() override { return row->uid; }
    unsigned ClassId() override { return row->classId; }

    void CheckCollectionType(cls_CollectionType code) override
    {
        if (row->collection != code)
            Fail("another form of collection");
    }

    int GetInt(const cls_FieldHandle& field) override { return Next<int>(field); }
    bool GetBool(const cls_FieldHandle& field) override { return Next<bool>(field); }
    double GetDouble(const cls_FieldHandle& field) override { return Next<double>(field); }
    cow_String GetText(const cls_FieldHandle& field) override
    {
        return cow_String(Next<std::string>(field).c_str());
    }

    const cls_ErasedHandle& GetObject(const cls_FieldHandle& field, unsigned) override
    {
        handle.Reset();
        if (std::holds_alternative<RecordedAbsence>(Take(field).value))
            return handle.Empty();
        --taken;
        const std::shared_ptr<RecordedRow>& nested = Next<std::shared_ptr<RecordedRow>>(field);
        const cls_ClassMetadata* metadata =
            omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(nested->classId);
        const cls_ReadVisitor visitor(new Reader(nested));
        return handle.Hold(*metadata, metadata->Ctor(visitor));
    }

    long OpenDoubles(int& columns) override
    {
        columns = row->columns;
        return static_cast<long>(row->doubles.size());
    }

    void ReadDoubles(double* values) override { std::copy(row->doubles.begin(), row->doubles.end(), values); }

    cls_MementoRead* OpenBase() override { return new Reader(row->base); }
    cls_MementoRead* OpenField(const cls_FieldHandle& field) override
    {
        return new Reader(Next<std::shared_ptr<RecordedRow>>(field));
    }

    long OpenInts() override { Fail("no list of integers expected"); }
    void ReadInts(int*) override { Fail("no list of integers expected"); }
    long OpenBools() override { Fail("no list of booleans expected"); }
    void ReadBools(bool*) override { Fail("no list of booleans expected"); }
    long OpenElements() override { Fail("no elements expected"); }
    cow_String ElementKey(long) override { Fail("no map expected"); }
    cow_String ElementText(long) override { Fail("no list of texts expected"); }
    float ElementFloat(long) override { Fail("no map expected"); }
    cls_MementoRead* OpenElement(long) override { Fail("no map expected"); }
    cls_ReadListObj* OpenList() override { Fail("no list of objects expected"); }
    cls_ReadMapString2Obj* OpenMapString2Obj() override { Fail("no map of objects expected"); }
    cls_ReadMapInt2Obj* OpenMapInt2Obj() override { Fail("no map of objects expected"); }

    void Close() noexcept override { delete this; }

private:
    /// The handle last given out, released through the class's own destructor.
    class LastHandle
    {
    public:
        LastHandle() = default;
        LastHandle(const LastHandle&) = delete;
        LastHandle& operator=(const LastHandle&) = delete;
        ~LastHandle() { Reset(); }

        const cls_ErasedHandle& Empty() const { return empty; }

        const cls_ErasedHandle& Hold(const cls_ClassMetadata& metadata, void* object)
        {
            owner = &metadata;
            holder = cow_NewHolder(static_cast<int*>(object));
            return cow_Erased(*holder);
        }

        void Reset()
        {
            if (holder != nullptr)
                owner->DeleteCow(reinterpret_cast<cls_ErasedHandle*>(std::exchange(holder, nullptr)));
        }

    private:
        cls_ErasedHandle empty;
        const cls_ClassMetadata* owner = nullptr;
        cow_CountedHld<int>* holder = nullptr;
    };

    ~Reader() = default;

    const RecordedRow::Field& Take(const cls_FieldHandle& field)
    {
        const std::string name = Text(field.Name());
        if (taken == row->fields.size())
            Fail("nothing is left where " + name + " is asked for");
        const RecordedRow::Field& next = row->fields[taken++];
        if (next.name != name || next.index != field.Index())
            Fail("asked for " + name + " where " + next.name + " is next");
        return next;
    }

    template <class Value>
    const Value& Next(const cls_FieldHandle& field)
    {
        return std::get<Value>(Take(field).value);
    }

    std::shared_ptr<RecordedRow> row;
    std::size_t taken = 0;
    LastHandle handle;
};

inline bool IsOfKind(const RecordedRow::Field& field, const cls_AttributeMetadata& attribute)
{
    switch (attribute.type)
    {
    case cls_TypeInt:
    case cls_TypeIntSecond:
        return std::holds_alternative<int>(field.value);
    case cls_TypeDouble:
        return std::holds_alternative<double>(field.value);
    case cls_TypeBool:
        return std::holds_alternative<bool>(field.value);
    case cls_TypeText:
    case cls_TypeEnum:
        return std::holds_alternative<std::string>(field.value);
    case cls_TypeObject:
        break;
    }
    if (std::holds_alternative<RecordedAbsence>(field.value))
        return attribute.collectionType == cls_CollectionNone;
    const auto* nested = std::get_if<std::shared_ptr<RecordedRow>>(&field.value);
    return nested != nullptr && (*nested)->collection == attribute.collectionType;
}
} // namespace row_recorder

/// The row that `object` writes. With `isWritten` the row is said to be written already.
template <class T>
std::shared_ptr<RecordedRow> RecordRow(const T& object, bool isWritten = false)
{
    const auto row = std::make_shared<RecordedRow>();
    const cls_WriteVisitor visitor(new row_recorder::Writer(row, isWritten));
    object.DBWrite(visitor);
    return row;
}

/// The object that the row gives back. Throws std::logic_error when its read constructor asks for another
/// field than the next one, std::bad_variant_access when it asks for another kind of value.
template <class T>
T ReadRow(const std::shared_ptr<RecordedRow>& row)
{
    const cls_ReadVisitor visitor(new row_recorder::Reader(row));
    return T(visitor);
}

/// What differs between the row's fields and the attributes of its class's description; empty if nothing
/// does.
inline std::string CompareWithDescription(const RecordedRow& row)
{
    const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(row.classId);
    if (metadata == nullptr)
        return "the class is not described";
    const std::vector<cls_AttributeMetadata>& attributes = metadata->Attributes();
    if (attributes.size() != row.fields.size())
        return std::to_string(row.fields.size()) + " fields, " + std::to_string(attributes.size()) +
               " attributes";
    for (std::size_t i = 0; i < attributes.size(); ++i)
    {
        const RecordedRow::Field& field = row.fields[i];
        if (field.name != row_recorder::Text(attributes[i].field.Name()) ||
            field.index != attributes[i].field.Index() || !row_recorder::IsOfKind(field, attributes[i]))
            return "field " + field.name + " is not the attribute at position " + std::to_string(i);
    }
    return "";
}
