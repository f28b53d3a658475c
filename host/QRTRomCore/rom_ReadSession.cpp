#include "rom_ReadSession.h"

#include "mdl_Repository.h"
#include "rom_StoreException.h"
#include "typ_ArchCompTable.h"

#include <bit>
#include <climits>
#include <cstdio>

namespace
{

/// How deep rows may refer to rows. Real models stay below 50; each level takes stack.
constexpr int depthLimit = 200;
/// Reading a store gives at most this many bytes, and as many again for each byte of the store. Only rows
/// that are referred to over and over, which no writer does, come to more.
constexpr std::int64_t freeBudget = std::int64_t{64} << 20;
constexpr std::int64_t budgetForByte = 16;
constexpr std::int64_t costOfRow = 64;
constexpr std::int64_t costOfElement = 32;
/// The least that an element takes in a store.
constexpr std::int64_t leastElementSize = 4;

constexpr int firstHeldBits = 6;

const char* NameOf(rfm_CellKind kind)
{
    switch (kind)
    {
    case rfm_CellKind::Integer:
        return "an integer";
    case rfm_CellKind::Real:
        return "a real number";
    case rfm_CellKind::Text:
        return "a text";
    case rfm_CellKind::Blob:
        return "a blob";
    case rfm_CellKind::Null:
    case rfm_CellKind::Unset:
        break;
    }
    return "nothing";
}

/// A class as "kamC_Decay (0x2440003)".
cow_String Describe(unsigned classId)
{
    char id[16];
    std::snprintf(id, sizeof id, "(0x%X)", classId);
    cow_String text(typ_ArchCompTable::GetName(classId));
    return text.IsEmpty() ? cow_String("unknown class ").append(id) : text.append(" ").append(id);
}

/// The bits of a number as a store keeps them, lowest byte first.
template <class Bits>
Bits BitsOf(const rfm_Cell& cell)
{
    Bits bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i)
        bits |= static_cast<Bits>(static_cast<unsigned char>(cell.bytes[i])) << (8 * i);
    return bits;
}

} // namespace

/// The reader of one row.
class rom_RowReader final : public cls_MementoRead
{
public:
    explicit rom_RowReader(rom_ReadSession& session)
        : session(session), listAgent(*this), textMapAgent(*this), numberMapAgent(*this)
    {}

    cls_Uid GetUid() override;
    unsigned ClassId() override { return state->plan->ClassId(); }
    void CheckCollectionType(cls_CollectionType code) override;

    int GetInt(const cls_FieldHandle& field) override
    {
        const rom_AttributePlan& attribute = Attribute(field);
        if (attribute.type != cls_TypeInt && attribute.type != cls_TypeIntSecond) [[unlikely]]
            Raise("The attribute does not hold an integer.");
        return static_cast<int>(IntegerIn(attribute.cell, INT_MIN, INT_MAX, "an integer of 32 bits"));
    }

    bool GetBool(const cls_FieldHandle& field) override
    {
        return IntegerIn(CellFor(field, cls_TypeBool, "a boolean"), 0, 1, "0 or 1") != 0;
    }

    double GetDouble(const cls_FieldHandle& field) override;
    cow_String GetText(const cls_FieldHandle& field) override;
    const cls_ErasedHandle& GetObject(const cls_FieldHandle& field, unsigned classId) override;

    long OpenDoubles(int& columns) override;

    void ReadDoubles(double* values) override { ReadArray(values); }

    long OpenInts() override { return OpenList(rfm_TypeInt); }

    void ReadInts(int* values) override { ReadArray(values); }

    long OpenBools() override { return OpenList(rfm_TypeBool); }

    void ReadBools(bool* values) override { ReadArray(values); }

    long OpenElements() override
    {
        StartElements();
        return static_cast<long>(length);
    }

    cow_String ElementKey(long position) override
    {
        GoToElement(position);
        return TextOf(element.key, "a text as the key");
    }

    cow_String ElementText(long position) override
    {
        GoToElement(position);
        return TextOf(element.value, "a text");
    }

    float ElementFloat(long position) override;
    cls_MementoRead* OpenElement(long position) override;
    cls_MementoRead* OpenBase() override;
    cls_MementoRead* OpenField(const cls_FieldHandle& field) override;

    cls_ReadListObj* OpenList() override
    {
        StartElements();
        return &listAgent;
    }

    cls_ReadMapString2Obj* OpenMapString2Obj() override
    {
        StartElements();
        return &textMapAgent;
    }

    cls_ReadMapInt2Obj* OpenMapInt2Obj() override
    {
        StartElements();
        return &numberMapAgent;
    }

    void Close() noexcept override;

private:
    friend class rom_ReadSession;

    struct ListAgent final : cls_ReadListObj
    {
        explicit ListAgent(rom_RowReader& reader) : reader(reader) {}
        long Length() override { return static_cast<long>(reader.length); }
        bool HasRow() override { return reader.NextElement(); }
        const cls_ErasedHandle& ReadObject(unsigned classId) override
        {
            return reader.ElementObject(classId);
        }
        void Close() override { reader.EndElements(); }
        rom_RowReader& reader;
    };

    struct TextMapAgent final : cls_ReadMapString2Obj
    {
        explicit TextMapAgent(rom_RowReader& reader) : reader(reader) {}
        bool HasRow() override { return reader.NextElement(); }
        const cls_ErasedHandle& ReadObject(unsigned classId) override
        {
            return reader.ElementObject(classId);
        }
        cow_String ReadKey() override
        {
            reader.NoteElement();
            return reader.TextOf(reader.element.key, "a text as the key");
        }
        void Close() override { reader.EndElements(); }
        rom_RowReader& reader;
    };

    struct NumberMapAgent final : cls_ReadMapInt2Obj
    {
        explicit NumberMapAgent(rom_RowReader& reader) : reader(reader) {}
        bool HasRow() override { return reader.NextElement(); }
        const cls_ErasedHandle& ReadObject(unsigned classId) override
        {
            return reader.ElementObject(classId);
        }
        int ReadKey() override
        {
            reader.NoteElement();
            return static_cast<int>(
                reader.IntegerOf(reader.element.key, INT_MIN, INT_MAX, "an integer of 32 bits as the key"));
        }
        void Close() override { reader.EndElements(); }
        rom_RowReader& reader;
    };

    /// Takes a row that the source has opened.
    void Begin(rom_RowReader* newReferrer, rom_ReadSession::ClassState& newState, std::int64_t newOid)
    {
        referrer = newReferrer;
        depth = newReferrer ? newReferrer->depth + 1 : 0;
        state = &newState;
        oid = newOid;
        elements = nullptr;
        position = -1;
    }

    const rfm_Cell& Cell(int cell) const { return row.cells[cell]; }

    void NoteRow() const { session.place = {state, oid, nullptr, -1}; }

    void Note(const cow_String& field) const { session.place = {state, oid, &field, -1}; }

    void NoteElement() const { session.place = {state, oid, nullptr, position}; }

    void NoteCell(int cell) const { Note(state->plan->Table().columns[static_cast<std::size_t>(cell)].name); }

    [[noreturn]] void Raise(const cow_String& message) const { session.Raise(message); }

    [[noreturn]] void RaiseUnexpected(const char* expected, const rfm_Cell& found) const
    {
        cow_String message("Expected ");
        message.append(expected).append(", found ").append(NameOf(found.kind));
        if (found.Is(rfm_CellKind::Integer))
            message.append(" (").append(std::to_string(found.integer).c_str()).append(")");
        Raise(message.append("."));
    }

    const rom_AttributePlan& Attribute(const cls_FieldHandle& field) const
    {
        const rom_AttributePlan* attribute = state->plan->Find(field);
        if (!attribute) [[unlikely]]
        {
            Note(field.Name());
            Raise("The class has no such attribute.");
        }
        Note(attribute->field.Name());
        return *attribute;
    }

    int CellFor(const cls_FieldHandle& field, cls_AttributeType type, const char* kind) const
    {
        const rom_AttributePlan& attribute = Attribute(field);
        if (attribute.type != type) [[unlikely]]
            Raise(cow_String("The attribute does not hold ").append(kind).append("."));
        return attribute.cell;
    }

    std::int64_t IntegerOf(const rfm_Cell& cell, std::int64_t low, std::int64_t high,
                           const char* expected) const
    {
        if (!cell.Is(rfm_CellKind::Integer) || cell.integer < low || cell.integer > high) [[unlikely]]
            RaiseUnexpected(expected, cell);
        return cell.integer;
    }

    std::int64_t IntegerIn(int cell, std::int64_t low, std::int64_t high, const char* expected) const
    {
        return IntegerOf(Cell(cell), low, high, expected);
    }

    cow_String TextOf(const rfm_Cell& cell, const char* expected) const
    {
        if (!cell.Is(rfm_CellKind::Text)) [[unlikely]]
            RaiseUnexpected(expected, cell);
        if (cell.size > 0 && std::memchr(cell.bytes, 0, cell.size)) [[unlikely]]
            Raise("The text holds a null character.");
        return cow_String(cell.bytes, cell.size);
    }

    /// Class id and row of a reference. False if it is absent.
    bool Reference(const rfm_Cell& classCell, const rfm_Cell& oidCell, unsigned& classId,
                   std::int64_t& target) const
    {
        if (classCell.IsNull() && oidCell.IsNull())
            return false;
        classId = static_cast<unsigned>(IntegerOf(classCell, 0, UINT_MAX, "the class id of the object"));
        target = IntegerOf(oidCell, INT64_MIN, INT64_MAX, "the row of the object");
        return true;
    }

    std::int64_t CollectionCell(int cell, std::int64_t high, const char* expected) const
    {
        RequireCollection();
        NoteCell(cell);
        return IntegerIn(cell, 0, high, expected);
    }

    void RequireCollection() const
    {
        if (state->plan->IsCollection()) [[likely]]
            return;
        NoteRow();
        Raise("The row is not one of a collection.");
    }

    long OpenArray(rfm_Type type, int& columns);
    long OpenList(rfm_Type type);
    void ReadArray(void* values);
    void StartElements();
    bool NextElement();
    void GoToElement(long wanted);
    void RequireNoMore();
    void EndElements() noexcept;
    const cls_ErasedHandle& ElementObject(unsigned classId);
    rom_RowReader& OpenByValue(unsigned expected, unsigned classId, std::int64_t target);

    rom_ReadSession& session;
    rom_RowReader* referrer = nullptr;
    int depth = 0;
    rom_ReadSession::ClassState* state = nullptr;
    std::int64_t oid = 0;
    rom_OpenRow row;
    bool arrayIsOpen = false;
    void* elements = nullptr;
    std::int64_t length = 0;
    std::int64_t position = -1; ///< of `element`
    rfm_Element element;
    std::string lastKey;
    std::string lastValue;
    ListAgent listAgent;
    TextMapAgent textMapAgent;
    NumberMapAgent numberMapAgent;
};

cls_Uid rom_RowReader::GetUid()
{
    const rfm_Cell& cell = Cell(rom_ClassPlan::UidCell);
    if (!cell.Is(rfm_CellKind::Blob) || cell.size != cls_Uid::Size) [[unlikely]]
    {
        NoteCell(rom_ClassPlan::UidCell);
        RaiseUnexpected("a blob of 16 bytes", cell);
    }
    return cls_Uid::FromBytes(reinterpret_cast<const unsigned char*>(cell.bytes));
}

void rom_RowReader::CheckCollectionType(cls_CollectionType code)
{
    const std::int64_t found = CollectionCell(rom_ClassPlan::CodeCell, INT_MAX, "the code of a collection");
    if (found == code) [[likely]]
        return;
    Raise(cow_String("Expected a collection of code ")
              .append(cow_String(static_cast<int>(code)))
              .append(", found ")
              .append(cow_String(static_cast<int>(found)))
              .append("."));
}

double rom_RowReader::GetDouble(const cls_FieldHandle& field)
{
    const rfm_Cell& cell = Cell(CellFor(field, cls_TypeDouble, "a double"));
    if (cell.Is(rfm_CellKind::Real)) [[likely]]
        return cell.real;
    if (!cell.Is(rfm_CellKind::Blob) || cell.size != sizeof(double))
        RaiseUnexpected("a real number, or its eight bytes", cell);
    return std::bit_cast<double>(BitsOf<std::uint64_t>(cell));
}

float rom_RowReader::ElementFloat(long wanted)
{
    GoToElement(wanted);
    const rfm_Cell& cell = element.value;
    if (cell.Is(rfm_CellKind::Blob) && cell.size == sizeof(float))
        return std::bit_cast<float>(BitsOf<std::uint32_t>(cell));
    if (!cell.Is(rfm_CellKind::Real))
        RaiseUnexpected("a real number, or its four bytes", cell);
    const auto value = static_cast<float>(cell.real);
    if (static_cast<double>(value) != cell.real)
        Raise("Expected a number of single precision.");
    return value;
}

cow_String rom_RowReader::GetText(const cls_FieldHandle& field)
{
    const rom_AttributePlan& attribute = Attribute(field);
    if (attribute.type != cls_TypeText && attribute.type != cls_TypeEnum) [[unlikely]]
        Raise("The attribute does not hold a text.");
    return TextOf(Cell(attribute.cell), "a text");
}

const cls_ErasedHandle& rom_RowReader::GetObject(const cls_FieldHandle& field, unsigned classId)
{
    const int cell = CellFor(field, cls_TypeObject, "an object");
    unsigned targetClass = 0;
    std::int64_t target = 0;
    if (!Reference(Cell(cell), Cell(cell + 1), targetClass, target))
        return session.NoObject();
    return session.Held(this, classId, targetClass, target);
}

long rom_RowReader::OpenArray(rfm_Type type, int& columns)
{
    arrayIsOpen = false;
    const std::int64_t count = CollectionCell(rom_ClassPlan::LengthCell, INT_MAX, "the count of numbers");
    columns = static_cast<int>(CollectionCell(rom_ClassPlan::ColumnsCell, INT_MAX, "the count of columns"));
    if (columns == 0 ? count != 0 : count % columns != 0)
        Raise(cow_String("The ")
                  .append(std::to_string(count).c_str())
                  .append(" numbers do not fill columns of this count (")
                  .append(cow_String(columns))
                  .append(")."));
    NoteCell(rom_ClassPlan::HandleCell);
    const rfm_Cell& handle = Cell(rom_ClassPlan::HandleCell);
    if (count == 0 && handle.IsNull())
        return 0;
    const std::int64_t found =
        session.source.OpenArray(IntegerOf(handle, INT64_MIN, INT64_MAX, "the handle of an array"), type);
    if (found != count)
        Raise(cow_String("The array holds ")
                  .append(std::to_string(found).c_str())
                  .append(" numbers; expected ")
                  .append(std::to_string(count).c_str())
                  .append("."));
    session.Spend(count * rfm_SizeOf(type));
    arrayIsOpen = true;
    return static_cast<long>(count);
}

void rom_RowReader::ReadArray(void* values)
{
    // An empty collection has no array of its own; the one that the source has open belongs to another row.
    if (arrayIsOpen)
        session.source.ReadArray(values);
}

long rom_RowReader::OpenDoubles(int& columns)
{
    const long count = OpenArray(rfm_TypeDouble, columns);
    if (columns != 1 && Cell(rom_ClassPlan::CodeCell).integer == cls_CollectionListDouble)
    {
        NoteCell(rom_ClassPlan::ColumnsCell);
        Raise("A list has one column.");
    }
    return count;
}

long rom_RowReader::OpenList(rfm_Type type)
{
    int columns = 0;
    const long count = OpenArray(type, columns);
    if (columns != 1)
    {
        NoteCell(rom_ClassPlan::ColumnsCell);
        Raise("A list has one column.");
    }
    return count;
}

void rom_RowReader::StartElements()
{
    EndElements();
    length = CollectionCell(rom_ClassPlan::LengthCell, INT_MAX, "the count of elements");
    if (length > session.source.Size() / leastElementSize)
        Raise("The collection has more elements than the store has room for.");
    position = -1;
    if (length > 0)
        elements = session.source.OpenElements(state->plan->ClassId(), oid);
}

bool rom_RowReader::NextElement()
{
    const bool isThere = elements && session.source.NextElement(elements, element);
    ++position;
    if (isThere && position < length) [[likely]]
    {
        session.Spend(costOfElement);
        NoteElement();
        return true;
    }
    if (!isThere && position >= length)
        return false;
    NoteCell(rom_ClassPlan::LengthCell);
    Raise(isThere ? "The collection has more elements than it says."
                  : "The collection has fewer elements than it says.");
}

void rom_RowReader::GoToElement(long wanted)
{
    if (wanted < position || wanted >= length)
        StartElements();
    while (position < wanted)
    {
        if (!NextElement())
        {
            NoteRow();
            Raise("The collection has no such element.");
        }
        if (position == length - 1)
            RequireNoMore();
    }
    NoteElement();
}

/// Looks behind the last element, which must stay, so its texts are taken over.
void rom_RowReader::RequireNoMore()
{
    const auto keep = [](rfm_Cell& cell, std::string& text)
    {
        if (!cell.Is(rfm_CellKind::Text) && !cell.Is(rfm_CellKind::Blob))
            return;
        text = cell.View();
        cell.bytes = text.data();
    };
    keep(element.key, lastKey);
    keep(element.value, lastValue);
    rfm_Element extra;
    if (!session.source.NextElement(elements, extra))
        return;
    NoteCell(rom_ClassPlan::LengthCell);
    Raise("The collection has more elements than it says.");
}

void rom_RowReader::EndElements() noexcept
{
    if (elements)
        session.source.CloseElements(elements);
    elements = nullptr;
}

const cls_ErasedHandle& rom_RowReader::ElementObject(unsigned classId)
{
    NoteElement();
    if (element.targetOid.IsNull() && element.targetClassId.Is(rfm_CellKind::Integer))
        return session.NoObject();
    unsigned targetClass = 0;
    std::int64_t target = 0;
    if (!Reference(element.targetClassId, element.targetOid, targetClass, target))
        RaiseUnexpected("the class id of the element", element.targetClassId);
    return session.Held(this, classId, targetClass, target);
}

/// A wrapper describes the repository that it holds as a collection, and checks itself which repository it
/// is.
static bool IsRepositoryAsCollection(unsigned expected, unsigned classId)
{
    return (expected == cls_ListTypeId || expected == cls_MapTypeId) &&
           typ_ArchCompTable::IsParent(mdl_Repository::TypeId(), classId);
}

rom_RowReader& rom_RowReader::OpenByValue(unsigned expected, unsigned classId, std::int64_t target)
{
    if (classId != expected && !IsRepositoryAsCollection(expected, classId))
        Raise(cow_String("Expected an object of class ")
                  .append(Describe(expected))
                  .append(", found one of class ")
                  .append(Describe(classId))
                  .append("."));
    return session.OpenRow(this, session.StateOf(classId), target);
}

cls_MementoRead* rom_RowReader::OpenElement(long wanted)
{
    GoToElement(wanted);
    unsigned targetClass = 0;
    std::int64_t target = 0;
    if (!Reference(element.targetClassId, element.targetOid, targetClass, target))
        RaiseUnexpected("the class id of the element", element.targetClassId);
    return &OpenByValue(cls_ListTypeId, targetClass, target);
}

cls_MementoRead* rom_RowReader::OpenBase()
{
    if (!state->plan->HasBase())
    {
        NoteRow();
        Raise("The class has no base.");
    }
    NoteCell(rom_ClassPlan::BaseCell);
    const std::int64_t target =
        IntegerIn(rom_ClassPlan::BaseCell, INT64_MIN, INT64_MAX, "the row of the base");
    return &session.OpenRow(this, session.StateOf(state->plan->Table().baseClassId), target);
}

cls_MementoRead* rom_RowReader::OpenField(const cls_FieldHandle& field)
{
    const rom_AttributePlan& attribute = Attribute(field);
    if (attribute.type != cls_TypeObject)
        Raise("The attribute does not hold an object.");
    unsigned targetClass = 0;
    std::int64_t target = 0;
    if (!Reference(Cell(attribute.cell), Cell(attribute.cell + 1), targetClass, target))
        RaiseUnexpected("an object", Cell(attribute.cell));
    return &OpenByValue(attribute.typeId, targetClass, target);
}

void rom_RowReader::Close() noexcept
{
    EndElements();
    session.source.CloseRow(state->table, row);
    // The list has room for all readers from their making on.
    session.freeReaders.push_back(this);
}

rom_ReadSession::rom_ReadSession(rom_RowSource& source)
    : source(source),
      held(std::size_t{1} << firstHeldBits),
      heldShift(64 - firstHeldBits),
      budget(freeBudget + source.Size() * budgetForByte)
{}

rom_ReadSession::~rom_ReadSession()
{
    for (const HeldObject& object : held)
    {
        if (object.state)
            object.state->plan->Metadata()->DeleteCow(object.holder);
    }
}

const cls_ErasedHandle& rom_ReadSession::ReadObject(unsigned expected, unsigned classId, std::int64_t oid)
{
    place = {};
    return Held(nullptr, expected, classId, oid);
}

void* rom_ReadSession::ReadOwnObject(unsigned classId, std::int64_t oid)
{
    place = {};
    return Build(nullptr, StateOf(classId), oid);
}

rom_RowReader& rom_ReadSession::NewReader()
{
    if (freeReaders.empty())
    {
        freeReaders.reserve(readers.size() + 1);
        readers.push_back(std::make_unique<rom_RowReader>(*this));
        return *readers.back();
    }
    rom_RowReader& reader = *freeReaders.back();
    freeReaders.pop_back();
    return reader;
}

rom_RowReader& rom_ReadSession::OpenRow(rom_RowReader* referrer, ClassState& state, std::int64_t oid)
{
    if (referrer && referrer->depth >= depthLimit)
        Raise("Rows refer to rows more deeply than a model can.");
    for (const rom_RowReader* open = referrer; open; open = open->referrer)
    {
        if (open->state == &state && open->oid == oid)
            Raise("The object refers to itself, directly or through others.");
    }
    Spend(costOfRow);
    rom_RowReader& reader = NewReader();
    try
    {
        if (!source.OpenRow(state.table, oid, reader.row))
            Raise(cow_String("There is no row ")
                      .append(std::to_string(oid).c_str())
                      .append(" in table ")
                      .append(state.plan->Table().name)
                      .append("."));
    }
    catch (...)
    {
        freeReaders.push_back(&reader);
        throw;
    }
    reader.Begin(referrer, state, oid);
    return reader;
}

rom_ReadSession::ClassState& rom_ReadSession::StateOf(unsigned classId)
{
    if (lastClass && classId == lastClass->plan->ClassId())
        return *lastClass;
    ClassState& state = classes[classId];
    if (!state.plan)
    {
        std::unique_ptr<rom_ClassPlan> plan = rom_ClassPlan::Of(classId);
        if (!plan)
            Raise(cow_String("Nothing is known of the class of the object: ")
                      .append(Describe(classId))
                      .append("."));
        state.table = source.FindTable(plan->Table());
        state.canBeBuilt = !plan->IsCollection() && plan->Metadata()->IsConcrete() && plan->CanBeHeld();
        state.plan = std::move(plan);
    }
    lastClass = &state;
    return state;
}

void rom_ReadSession::RequireIsA(ClassState& state, unsigned expected)
{
    if (state.checkedClassId == expected) [[likely]]
        return;
    const unsigned classId = state.plan->ClassId();
    if (!state.plan->IsA(expected) && !typ_ArchCompTable::IsParent(expected, classId))
        Raise(cow_String("Expected an object of class ")
                  .append(Describe(expected))
                  .append(", found one of class ")
                  .append(Describe(classId))
                  .append("."));
    state.checkedClassId = expected;
}

void* rom_ReadSession::Build(rom_RowReader* referrer, ClassState& state, std::int64_t oid)
{
    if (!state.canBeBuilt)
        Raise(cow_String("No object can be of class ")
                  .append(Describe(state.plan->ClassId()))
                  .append(" alone."));
    void* object = nullptr;
    try
    {
        const cls_ReadVisitor visitor(&OpenRow(referrer, state, oid));
        object = state.plan->Metadata()->Ctor(visitor);
    }
    catch (const rom_StoreException&)
    {
        throw;
    }
    catch (const QRTBasException& error)
    {
        Raise(error.what());
    }
    if (!object)
    {
        place = {&state, oid, nullptr, -1};
        Raise("The class could not build an object from the row.");
    }
    return object;
}

const cls_ErasedHandle& rom_ReadSession::Held(rom_RowReader* referrer, unsigned expected, unsigned classId,
                                              std::int64_t oid)
{
    ClassState& state = StateOf(classId);
    RequireIsA(state, expected);
    if (const HeldObject& known = PlaceOf(state, oid); known.state)
        return *known.holder;
    Hold(state, oid, Build(referrer, state, oid));
    return *PlaceOf(state, oid).holder;
}

const cls_ErasedHandle& rom_ReadSession::NoObject()
{
    // Each absent object gets a count of its own.
    noObject = cls_ErasedHandle();
    return noObject;
}

rom_ReadSession::HeldObject& rom_ReadSession::PlaceOf(const ClassState& state, std::int64_t oid)
{
    const std::uint64_t hash = (static_cast<std::uint64_t>(oid) * 0x9FB21C651E98DF25u) ^
                               (std::uint64_t{state.plan->ClassId()} * 0x9E3779B97F4A7C15u);
    const std::size_t mask = held.size() - 1;
    std::size_t at = hash >> heldShift;
    while (held[at].state && (held[at].state != &state || held[at].oid != oid))
        at = (at + 1) & mask;
    return held[at];
}

void rom_ReadSession::Hold(const ClassState& state, std::int64_t oid, void* object)
{
    try
    {
        if ((heldCount + 1) * 4 > held.size() * 3)
        {
            std::vector<HeldObject> old(held.size() * 2);
            old.swap(held);
            --heldShift;
            for (const HeldObject& entry : old)
            {
                if (entry.state)
                    PlaceOf(*entry.state, entry.oid) = entry;
            }
        }
        // The holder's real class is known to the class's own functions alone.
        auto* holder = reinterpret_cast<cls_ErasedHandle*>(cow_NewHolder(static_cast<int*>(object)));
        PlaceOf(state, oid) = {&state, oid, holder};
        ++heldCount;
    }
    catch (...)
    {
        state.plan->Metadata()->Delete(object);
        throw;
    }
}

void rom_ReadSession::Spend(std::int64_t bytes)
{
    budget -= bytes;
    if (budget < 0) [[unlikely]]
        Raise("The same rows are referred to over and over.");
}

void rom_ReadSession::Raise(const cow_String& message) const
{
    if (!place.state)
        rom_StoreException(source.Name(), message).Throw(__FILE__, __LINE__);
    cow_String field;
    if (place.field)
        field = *place.field;
    else if (place.element >= 0)
        field = cow_String("[").append(std::to_string(place.element).c_str()).append("]");
    rom_StoreException(source.Name(), place.state->plan->Table().name, place.oid, field, message)
        .Throw(__FILE__, __LINE__);
}
