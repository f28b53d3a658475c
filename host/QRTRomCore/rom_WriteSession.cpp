#include "rom_WriteSession.h"

#include "rom_StoreException.h"
#include "typ_ArchCompTable.h"

#include <bit>
#include <cstdio>

namespace
{

/// Stands in for a row that is written already: takes everything and does nothing.
class SilentWriter final : public cls_MementoWrite,
                           public cls_WriteListObj,
                           public cls_WriteMapString2Obj,
                           public cls_WriteMapInt2Obj
{
public:
    int StartWrite(unsigned, const cls_Uid&) override { return 0; }
    void CheckCollectionType(cls_CollectionType) override {}
    void PutInt(const cls_FieldHandle&, int) override {}
    void PutBool(const cls_FieldHandle&, bool) override {}
    void PutDouble(const cls_FieldHandle&, double) override {}
    void PutText(const cls_FieldHandle&, const cow_String&) override {}
    void PutConstText(const cls_FieldHandle&, const char*) override {}
    void PutAbsent(const cls_FieldHandle&) override {}
    void PutDoubles(const double*, long, int) override {}
    void PutInts(const int*, long) override {}
    void PutBools(const bool*, long) override {}
    void PutElementText(const cow_String&) override {}
    void PutElementFloat(const cow_String&, float) override {}
    cls_MementoWrite* OpenElement(const cow_String&) override { return this; }
    cls_MementoWrite* OpenElement(int) override { return this; }
    cls_MementoWrite* OpenElement() override { return this; }
    cls_MementoWrite* OpenBase(unsigned) override { return this; }
    cls_MementoWrite* OpenField(const cls_FieldHandle&, const cls_ErasedHandle*) override { return this; }
    cls_WriteListObj* OpenList(int) override { return this; }
    cls_WriteMapString2Obj* OpenMapString2Obj() override { return this; }
    cls_WriteMapInt2Obj* OpenMapInt2Obj() override { return this; }
    void PutAbsent(unsigned) override {}
    void PutAbsent(unsigned, const cow_String&) override {}
    void PutAbsent(unsigned, int) override {}
    bool HasMore() const override { return false; }
    void Close() noexcept override {}
};

SilentWriter& Silent()
{
    static SilentWriter silent;
    return silent;
}

/// A class as "0x2440008".
cow_String IdText(unsigned classId)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", classId);
    return text;
}

/// Where the reference to a row goes once its number is known.
enum class Referrer
{
    Root,
    Base,
    Field,
    Element
};

} // namespace

template <class Deed>
void rom_WriteSession::Guarded(Deed deed)
{
    try
    {
        deed();
    }
    catch (...)
    {
        Fail();
        throw;
    }
}

/// The writer of one row. It gathers the cells and puts the row into the sink when it is closed.
class rom_RowWriter final : public cls_MementoWrite
{
public:
    explicit rom_RowWriter(rom_WriteSession& session)
        : session(session), listAgent(*this), textMapAgent(*this), numberMapAgent(*this)
    {}

    void BeginRoot(const cow_String& name)
    {
        Begin(Referrer::Root, nullptr);
        key = rfm_Cell::Null();
        keyText = name;
    }

    int StartWrite(unsigned classId, const cls_Uid& uid) override;
    void CheckCollectionType(cls_CollectionType code) override;

    void PutInt(const cls_FieldHandle& field, int value) override
    {
        const rom_AttributePlan& attribute = Attribute(field);
        if (attribute.type != cls_TypeInt && attribute.type != cls_TypeIntSecond) [[unlikely]]
            RaiseKind(field, "an integer");
        Set(attribute.cell, rfm_Cell::Integer(value));
    }

    void PutBool(const cls_FieldHandle& field, bool value) override
    {
        Set(CellFor(field, cls_TypeBool, "a boolean"), rfm_Cell::Integer(value));
    }

    void PutDouble(const cls_FieldHandle& field, double value) override
    {
        Set(CellFor(field, cls_TypeDouble, "a double"), rfm_Cell::Real(value));
    }

    void PutText(const cls_FieldHandle& field, const cow_String& value) override
    {
        const int cell = CellForText(field);
        texts.push_back(value);
        Set(cell, rfm_Cell::Text(texts.back().View()));
    }

    void PutConstText(const cls_FieldHandle& field, const char* value) override
    {
        Set(CellForText(field), rfm_Cell::Text(value));
    }

    void PutAbsent(const cls_FieldHandle& field) override
    {
        const int cell = CellFor(field, cls_TypeObject, "an object");
        Set(cell, rfm_Cell::Null());
        Set(cell + 1, rfm_Cell::Null());
    }

    void PutDoubles(const double* values, long count, int columns) override
    {
        PutArray(rfm_TypeDouble, values, count, columns);
    }

    void PutInts(const int* values, long count) override { PutArray(rfm_TypeInt, values, count, 1); }

    void PutBools(const bool* values, long count) override
    {
        static_assert(sizeof(bool) == 1);
        PutArray(rfm_TypeBool, values, count, 1);
    }

    void PutElementText(const cow_String& value) override
    {
        AddElement({rfm_Cell::Null(), rfm_Cell::Text(value.View()), rfm_Cell::Null(), rfm_Cell::Null()});
    }

    void PutElementFloat(const cow_String& elementKey, float value) override;

    cls_MementoWrite* OpenElement(const cow_String& elementKey) override
    {
        rom_RowWriter& element = OpenNested(Referrer::Element);
        element.keyText = elementKey;
        element.key = rfm_Cell::Text(element.keyText.View());
        return &element;
    }

    cls_MementoWrite* OpenBase(unsigned baseClassId) override;
    cls_MementoWrite* OpenField(const cls_FieldHandle& field, const cls_ErasedHandle* handle) override;

    cls_WriteListObj* OpenList(int) override
    {
        if (isSilent)
            return &Silent();
        return &listAgent;
    }

    cls_WriteMapString2Obj* OpenMapString2Obj() override
    {
        if (isSilent)
            return &Silent();
        return &textMapAgent;
    }

    cls_WriteMapInt2Obj* OpenMapInt2Obj() override
    {
        if (isSilent)
            return &Silent();
        return &numberMapAgent;
    }

    void Close() noexcept override;

private:
    // The three kinds of collection differ in the key alone.

    struct ListAgent final : cls_WriteListObj
    {
        explicit ListAgent(rom_RowWriter& writer) : writer(writer) {}
        cls_MementoWrite* OpenElement() override { return writer.OpenKeyed(rfm_Cell::Null()); }
        void PutAbsent(unsigned classId) override { writer.PutAbsentElement(classId, rfm_Cell::Null()); }
        bool HasMore() const override { return false; }
        void Close() override {}
        rom_RowWriter& writer;
    };

    struct TextMapAgent final : cls_WriteMapString2Obj
    {
        explicit TextMapAgent(rom_RowWriter& writer) : writer(writer) {}
        cls_MementoWrite* OpenElement(const cow_String& key) override { return writer.OpenElement(key); }
        void PutAbsent(unsigned classId, const cow_String& key) override
        {
            writer.PutAbsentElement(classId, rfm_Cell::Text(key.View()));
        }
        bool HasMore() const override { return false; }
        void Close() override {}
        rom_RowWriter& writer;
    };

    struct NumberMapAgent final : cls_WriteMapInt2Obj
    {
        explicit NumberMapAgent(rom_RowWriter& writer) : writer(writer) {}
        cls_MementoWrite* OpenElement(int key) override { return writer.OpenKeyed(rfm_Cell::Integer(key)); }
        void PutAbsent(unsigned classId, int key) override
        {
            writer.PutAbsentElement(classId, rfm_Cell::Integer(key));
        }
        bool HasMore() const override { return false; }
        void Close() override {}
        rom_RowWriter& writer;
    };

    void Begin(Referrer newReferrer, rom_RowWriter* newParent);

    rom_RowWriter& OpenNested(Referrer nestedReferrer)
    {
        RequireStarted();
        rom_RowWriter& nested = session.NewWriter();
        nested.Begin(nestedReferrer, this);
        return nested;
    }

    cls_MementoWrite* OpenKeyed(const rfm_Cell& elementKey)
    {
        rom_RowWriter& element = OpenNested(Referrer::Element);
        element.key = elementKey;
        return &element;
    }

    void PutAbsentElement(unsigned classId, const rfm_Cell& elementKey)
    {
        AddElement({elementKey, rfm_Cell::Null(), rfm_Cell::Integer(classId), rfm_Cell::Null()});
    }

    void AddElement(const rfm_Element& element);
    int Start(unsigned classId, const cls_Uid& uid);
    void Refer(unsigned classId, std::uint32_t rowOid);
    void PutArray(rfm_Type type, const void* values, long count, int columns);

    void RequireStarted() const
    {
        session.RequireSound();
        if (!state) [[unlikely]]
            session.Raise(cow_String(), rom_StoreException::NoRow, cow_String(),
                          "Something was put into a row that was not started.");
    }

    const rom_AttributePlan& Attribute(const cls_FieldHandle& field) const
    {
        RequireStarted();
        const rom_AttributePlan* attribute = state->plan->Find(field);
        if (!attribute) [[unlikely]]
            Raise(field.Name(), "The class has no such attribute.");
        return *attribute;
    }

    int CellFor(const cls_FieldHandle& field, cls_AttributeType type, const char* kind) const
    {
        const rom_AttributePlan& attribute = Attribute(field);
        if (attribute.type != type) [[unlikely]]
            RaiseKind(field, kind);
        return attribute.cell;
    }

    int CellForText(const cls_FieldHandle& field) const
    {
        const rom_AttributePlan& attribute = Attribute(field);
        if (attribute.type != cls_TypeText && attribute.type != cls_TypeEnum) [[unlikely]]
            RaiseKind(field, "a text");
        return attribute.cell;
    }

    void Set(int cell, const rfm_Cell& value) { cells[static_cast<std::size_t>(cell)] = value; }

    [[noreturn]] void Raise(const cow_String& field, const cow_String& message) const
    {
        session.Raise(state ? state->plan->Table().name : cow_String(),
                      state ? oid : rom_StoreException::NoRow, field, message);
    }

    [[noreturn]] void RaiseKind(const cls_FieldHandle& field, const char* kind) const
    {
        Raise(field.Name(), cow_String("The attribute does not hold ").append(kind).append("."));
    }

    void RequireComplete() const;
    void WriteRow();
    void Release() noexcept;

    rom_WriteSession& session;
    rom_RowWriter* parent = nullptr;
    Referrer referrer = Referrer::Root;
    int referenceCell = 0;        ///< of the parent's, for a base or field
    unsigned expectedClassId = 0; ///< of a base section
    rfm_Cell key;                 ///< of an element
    cow_String keyText;           ///< keeps the text of the key; the name of a root
    rom_WriteSession::ClassState* state = nullptr;
    bool isSilent = false; ///< the row is written already
    int exceptionsAtStart = 0;
    std::int64_t oid = 0;
    std::int64_t elementCount = 0;
    unsigned char uidBytes[cls_Uid::Size] = {};
    std::vector<rfm_Cell> cells;
    std::vector<cow_String> texts; ///< keeps the texts of the cells
    ListAgent listAgent;
    TextMapAgent textMapAgent;
    NumberMapAgent numberMapAgent;
};

void rom_RowWriter::Begin(Referrer newReferrer, rom_RowWriter* newParent)
{
    referrer = newReferrer;
    parent = newParent;
    state = nullptr;
    isSilent = false;
    exceptionsAtStart = std::uncaught_exceptions();
    elementCount = 0;
}

int rom_RowWriter::StartWrite(unsigned classId, const cls_Uid& uid)
{
    session.RequireSound();
    int isNew = 0;
    session.Guarded([&] { isNew = Start(classId, uid); });
    return isNew;
}

int rom_RowWriter::Start(unsigned classId, const cls_Uid& uid)
{
    if (referrer == Referrer::Base && classId != expectedClassId)
        Raise(cow_String(), "A base section was begun with another class than the base.");
    rom_WriteSession::ClassState& found = session.StateOf(classId);
    rom_WrittenRows::Row row = {classId, found.lastOid + 1};
    const rom_WrittenRows::Finding finding = session.written.FindOrEnter(uid, &uid, row);
    Refer(row.classId, row.oid);
    if (finding == rom_WrittenRows::Finding::Written)
    {
        isSilent = true;
        return 0;
    }
    if (row.oid == 0)
        Raise(cow_String(), "A table can't have more than 4294967295 rows.");
    found.lastOid = row.oid;
    state = &found;
    oid = row.oid;
    const bool needsFreshUid = finding == rom_WrittenRows::Finding::OtherOne || uid.IsBlank();
    if (needsFreshUid && session.twinRule == rom_TwinRule::FreshUid)
    {
        cls_Uid fresh;
        fresh.AllocateUid();
        fresh.ToBytes(uidBytes);
    }
    else
    {
        uid.ToBytes(uidBytes);
    }
    cells.assign(static_cast<std::size_t>(state->plan->CellCount()), rfm_Cell());
    texts.clear();
    // PutText hands out addresses of the texts' characters, which stay when the vector grows.
    Set(rom_ClassPlan::UidCell, rfm_Cell::Blob(uidBytes, sizeof uidBytes));
    return 1;
}

void rom_RowWriter::Refer(unsigned classId, std::uint32_t rowOid)
{
    switch (referrer)
    {
    case Referrer::Root:
        session.sink.InsertRoot(keyText, classId, rowOid);
        break;
    case Referrer::Base:
        parent->Set(referenceCell, rfm_Cell::Integer(rowOid));
        break;
    case Referrer::Field:
        parent->Set(referenceCell, rfm_Cell::Integer(classId));
        parent->Set(referenceCell + 1, rfm_Cell::Integer(rowOid));
        break;
    case Referrer::Element:
        parent->AddElement({key, rfm_Cell::Null(), rfm_Cell::Integer(classId), rfm_Cell::Integer(rowOid)});
        break;
    }
}

void rom_RowWriter::CheckCollectionType(cls_CollectionType code)
{
    if (isSilent)
        return;
    RequireStarted();
    if (!state->plan->IsCollection())
        Raise(cow_String(), "The row is not one of a collection.");
    Set(rom_ClassPlan::CodeCell, rfm_Cell::Integer(code));
}

void rom_RowWriter::AddElement(const rfm_Element& element)
{
    if (isSilent)
        return;
    RequireStarted();
    if (!state->plan->IsCollection())
        Raise(cow_String(), "An element was put into a row that is not one of a collection.");
    session.Guarded([&]
                    { session.sink.InsertElement(state->plan->ClassId(), oid, elementCount++, element); });
}

void rom_RowWriter::PutElementFloat(const cow_String& elementKey, float value)
{
    // As for doubles, a REAL column does not keep every bit of these.
    unsigned char bytes[sizeof value];
    const auto bits = std::bit_cast<std::uint32_t>(value);
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        bytes[i] = static_cast<unsigned char>(bits >> (8 * i));
    const bool needsBits = rfm_NeedsBits(static_cast<double>(value));
    AddElement({rfm_Cell::Text(elementKey.View()),
                needsBits ? rfm_Cell::Blob(bytes, sizeof bytes) : rfm_Cell::Real(static_cast<double>(value)),
                rfm_Cell::Null(), rfm_Cell::Null()});
}

void rom_RowWriter::PutArray(rfm_Type type, const void* values, long count, int columns)
{
    if (isSilent)
        return;
    RequireStarted();
    if (!state->plan->IsCollection())
        Raise(cow_String(), "An array was put into a row that is not one of a collection.");
    Set(rom_ClassPlan::LengthCell, rfm_Cell::Integer(count));
    Set(rom_ClassPlan::ColumnsCell, rfm_Cell::Integer(columns));
    rfm_Cell handle = rfm_Cell::Null();
    if (count > 0)
        session.Guarded([&] { handle = rfm_Cell::Integer(session.sink.InsertArray(type, values, count)); });
    Set(rom_ClassPlan::HandleCell, handle);
}

cls_MementoWrite* rom_RowWriter::OpenBase(unsigned baseClassId)
{
    if (isSilent)
        return &Silent();
    RequireStarted();
    if (!state->plan->HasBase() || state->plan->Table().baseClassId != baseClassId)
        Raise(cow_String(), "A base section was asked for that the class does not have.");
    rom_RowWriter& base = OpenNested(Referrer::Base);
    base.referenceCell = rom_ClassPlan::BaseCell;
    base.expectedClassId = baseClassId;
    return &base;
}

cls_MementoWrite* rom_RowWriter::OpenField(const cls_FieldHandle& field, const cls_ErasedHandle*)
{
    if (isSilent)
        return &Silent();
    const int cell = CellFor(field, cls_TypeObject, "an object");
    rom_RowWriter& nested = OpenNested(Referrer::Field);
    nested.referenceCell = cell;
    return &nested;
}

void rom_RowWriter::RequireComplete() const
{
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        if (cells[i].Is(rfm_CellKind::Unset)) [[unlikely]]
            Raise(state->plan->NameOfCell(static_cast<int>(i)), "The field was not written.");
    }
}

void rom_RowWriter::WriteRow()
{
    if (std::uncaught_exceptions() > exceptionsAtStart)
        Raise(cow_String(), "The row was left by an exception before it was complete.");
    if (!state)
        Raise(cow_String(), "A row was opened and never started.");
    if (state->plan->IsCollection() && cells[rom_ClassPlan::LengthCell].Is(rfm_CellKind::Unset))
    {
        Set(rom_ClassPlan::LengthCell, rfm_Cell::Integer(elementCount));
        Set(rom_ClassPlan::ColumnsCell, rfm_Cell::Null());
        Set(rom_ClassPlan::HandleCell, rfm_Cell::Null());
    }
    RequireComplete();
    session.sink.InsertRow(state->table, oid, cells.data());
}

void rom_RowWriter::Close() noexcept
{
    if (!isSilent && !session.failure)
    {
        try
        {
            WriteRow();
        }
        catch (...)
        {
            session.Fail();
        }
    }
    Release();
}

void rom_RowWriter::Release() noexcept
{
    texts.clear();
    state = nullptr;
    // The list has room for all writers from their making on.
    session.freeWriters.push_back(this);
}

rom_WriteSession::rom_WriteSession(rom_RowSink& sink, rom_TwinRule twinRule) : sink(sink), twinRule(twinRule)
{}

rom_WriteSession::~rom_WriteSession() = default;

cls_MementoWrite* rom_WriteSession::OpenRoot(const cow_String& name)
{
    RequireSound();
    rom_RowWriter& writer = NewWriter();
    writer.BeginRoot(name);
    return &writer;
}

void rom_WriteSession::Finish()
{
    RequireSound();
    if (freeWriters.size() != writers.size())
        Raise(cow_String(), rom_StoreException::NoRow, cow_String(),
              "The save can't be finished while a row is still being written.");
}

void rom_WriteSession::Fail() noexcept
{
    if (!failure)
        failure = std::current_exception();
}

rom_RowWriter& rom_WriteSession::NewWriter()
{
    if (freeWriters.empty())
    {
        freeWriters.reserve(writers.size() + 1);
        writers.push_back(std::make_unique<rom_RowWriter>(*this));
        return *writers.back();
    }
    rom_RowWriter& writer = *freeWriters.back();
    freeWriters.pop_back();
    return writer;
}

rom_WriteSession::ClassState& rom_WriteSession::StateOf(unsigned classId)
{
    if (lastClass && classId == lastClass->plan->ClassId())
        return *lastClass;
    ClassState& state = classes[classId];
    if (!state.plan)
    {
        std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(classId);
        if (!plan)
            Raise(typ_ArchCompTable::GetName(classId), rom_StoreException::NoRow, cow_String(),
                  cow_String("The class ")
                      .append(IdText(classId))
                      .append(" is not described, so its objects can't be stored."));
        state.table = sink.AddTable(plan->Table());
        state.plan = std::move(plan);
    }
    lastClass = &state;
    return state;
}

void rom_WriteSession::Raise(const cow_String& table, std::int64_t row, const cow_String& field,
                             const cow_String& message)
{
    Guarded([&] { rom_StoreException(sink.Name(), table, row, field, message).Throw(__FILE__, __LINE__); });
    std::abort();
}
