#include "tst_Classes.h"

#include "QRTRomCore.h"
#include "cls_MetadataRegistrar.h"
#include "nex_Exceptions.h"
#include "typ_ArchCompTable.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <stdexcept>

namespace
{

constexpr unsigned short moduleNumber = 0xFF;

constexpr typ_Entry types[] = {
    {0, 1, nullptr}, {7, 1, "tst_Part"}, {7, 0xFF0001, "tst_Whole"}, {7, 0xFF0001, "tst_Node"}};

constexpr const char* colours[] = {"RED", "GREEN"};

constexpr int partVersion = 401;
constexpr int wholeVersion = 424;
constexpr int nodeVersion = 203;

/// Objects are handed over as pointers to their root class.
template <class T>
class Adapter : public cls_ClassMetadata
{
public:
    Adapter(const char* name, int version)
        : cls_ClassMetadata(name, T::TypeId(), version, nullptr, tst_Part::TypeId())
    {}
    void DBWrite(const void* object, const cls_WriteVisitor& visitor) const override
    {
        static_cast<const tst_Part*>(object)->DBWrite(visitor);
    }
    void Delete(void* object) const override { delete static_cast<tst_Part*>(object); }
    void* Ctor(const cls_ReadVisitor& visitor) const override
    {
        return static_cast<tst_Part*>(new T(visitor));
    }
    bool IsConcrete() const override { return true; }
};

cls_FieldHandle F(int index, const char* name)
{
    return cls_FieldHandle(index, name);
}

tst_Part::Handle Taken(const cls_ErasedHandle& stored)
{
    return cow_Restored<tst_Part, cow_Virtual<tst_Part>>(stored);
}

template <class Wrapper>
void WriteNested(const cls_WriteVisitor& visitor, const cls_FieldHandle& field, const Wrapper& wrapper)
{
    const cls_WriteVisitor nested(visitor, field, nullptr, nullptr);
    wrapper.DBWrite(nested);
}

template <class Wrapper>
void ReadNested(const cls_ReadVisitor& visitor, const cls_FieldHandle& field, Wrapper& wrapper)
{
    const cls_ReadVisitor nested(visitor, field);
    wrapper.Restore(Wrapper(nested));
}

template <class Writer, class Request, class... Key>
void WriteElement(Writer& writer, const Request& request, const tst_Part::Handle& element, const Key&... key)
{
    if (element.IsNull())
    {
        writer.PutAbsent(tst_Part::TypeId(), key...);
        return;
    }
    const cls_WriteVisitor visitor(request, nullptr);
    element->DBWrite(visitor);
}

} // namespace

void tst_RequireClasses()
{
    static int tally = 0;
    if (tally != 0)
        return;
    QRTRomCore_initialize(tally);
    typ_ArchCompTable::InsertEntry(moduleNumber, typ_ArchCompEntry(types, std::size(types)));
    cls_MetadataRegistrar& registrar = *omi_Singleton<cls_MetadataRegistrar>::Instance();
    registrar.initClassMetadata(tst_Part::InitializeMetadata);
    registrar.initClassMetadata(tst_Whole::InitializeMetadata);
    registrar.initClassMetadata(tst_Node::InitializeMetadata);
}

void tst_Part::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("tst_Part", TypeId(), partVersion, nullptr, cls_RootId)
        ->AddDtor(cow_DeleteHolder<tst_Part>)
        ->AddAttribute(F(0, "number"), cls_TypeInt, 1, cls_CollectionNone)
        ->AddAttribute(F(1, "label"), cls_TypeText, 1, cls_CollectionNone);
}

tst_Part::tst_Part(const cls_ReadVisitor& visitor)
    : number(visitor.Memento().GetInt(F(0, "number"))),
      label(visitor.Memento().GetText(F(1, "label"))),
      uid(visitor.GetUid())
{}

void tst_Part::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    visitor.Memento().PutInt(F(0, "number"), number);
    visitor.Memento().PutText(F(1, "label"), label);
}

void tst_Whole::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new Adapter<tst_Whole>("tst_Whole", wholeVersion))
        ->AddAttribute(F(0, "second"), cls_TypeIntSecond, 1, cls_CollectionNone)
        ->AddAttribute(F(1, "value"), cls_TypeDouble, 1, cls_CollectionNone)
        ->AddAttribute(F(2, "flag"), cls_TypeBool, 1, cls_CollectionNone)
        ->AddAttribute(F(-1, "colour"), cls_TypeEnum, 1, cls_CollectionNone)
        ->AddAttribute(F(7, "doubles"), cls_TypeObject, cls_ListTypeId, cls_CollectionListDouble)
        ->AddAttribute(F(8, "ints"), cls_TypeObject, cls_ListTypeId, cls_CollectionListInt)
        ->AddAttribute(F(9, "bools"), cls_TypeObject, cls_ListTypeId, cls_CollectionListBool)
        ->AddAttribute(F(10, "texts"), cls_TypeObject, cls_ListTypeId, cls_CollectionListText)
        ->AddAttribute(F(11, "table"), cls_TypeObject, cls_ListTypeId, cls_Collection2DArrayDouble)
        ->AddAttribute(F(12, "floats"), cls_TypeObject, cls_MapTypeId, cls_CollectionMapString2Float)
        ->AddAttribute(F(13, "tables"), cls_TypeObject, cls_MapTypeId, cls_CollectionMapString2Array2D);
}

tst_Whole::tst_Whole(const cls_ReadVisitor& visitor) : tst_Part(cls_ReadVisitor(visitor))
{
    cls_MementoRead& memento = visitor.Memento();
    second = memento.GetInt(F(0, "second"));
    value = memento.GetDouble(F(1, "value"));
    flag = memento.GetBool(F(2, "flag"));
    const cow_String name = memento.GetText(F(-1, "colour"));
    if (name == colours[GREEN])
        colour = GREEN;
    else if (!(name == colours[RED]))
        nex_CmdException<atr_String, 2>(atr_String(cow_String("no colour: ").append(name)), 0)
            .Throw(__FILE__, __LINE__);
    ReadNested(visitor, F(7, "doubles"), doubles);
    ReadNested(visitor, F(8, "ints"), ints);
    ReadNested(visitor, F(9, "bools"), bools);
    ReadNested(visitor, F(10, "texts"), texts);
    ReadNested(visitor, F(11, "table"), table);
    ReadNested(visitor, F(12, "floats"), floats);
    ReadNested(visitor, F(13, "tables"), tables);
    ownUid = visitor.GetUid();
}

void tst_Whole::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), ownUid))
        return;
    {
        const cls_WriteVisitor base(visitor, tst_Part::TypeId());
        tst_Part::DBWrite(base);
    }
    cls_MementoWrite& memento = visitor.Memento();
    memento.PutInt(F(0, "second"), second);
    memento.PutDouble(F(1, "value"), value);
    memento.PutBool(F(2, "flag"), flag);
    memento.PutConstText(F(-1, "colour"), colours[colour]);
    WriteNested(visitor, F(7, "doubles"), doubles);
    WriteNested(visitor, F(8, "ints"), ints);
    WriteNested(visitor, F(9, "bools"), bools);
    WriteNested(visitor, F(10, "texts"), texts);
    WriteNested(visitor, F(11, "table"), table);
    WriteNested(visitor, F(12, "floats"), floats);
    WriteNested(visitor, F(13, "tables"), tables);
}

void tst_Node::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new Adapter<tst_Node>("tst_Node", nodeVersion))
        ->AddAttribute(F(0, "child"), cls_TypeObject, tst_Part::TypeId(), cls_CollectionNone)
        ->AddAttribute(F(1, "list"), cls_TypeObject, cls_ListTypeId, cls_CollectionListObj)
        ->AddAttribute(F(2, "byName"), cls_TypeObject, cls_MapTypeId, cls_CollectionMapString2Obj)
        ->AddAttribute(F(3, "byNumber"), cls_TypeObject, cls_MapTypeId, cls_CollectionMapInt2Obj);
}

tst_Node::tst_Node(const cls_ReadVisitor& visitor) : tst_Part(cls_ReadVisitor(visitor))
{
    child = Taken(visitor.Memento().GetObject(F(0, "child"), tst_Part::TypeId()));
    {
        const cls_ReadVisitor nested(visitor, F(1, "list"));
        listUid = nested.GetUid();
        nested.Memento().CheckCollectionType(cls_CollectionListObj);
        cls_ReadListObj& reader = *nested.Memento().OpenList();
        list.reserve(static_cast<std::size_t>(reader.Length()));
        while (reader.HasRow())
            list.push_back(Taken(reader.ReadObject(tst_Part::TypeId())));
        reader.Close();
    }
    {
        const cls_ReadVisitor nested(visitor, F(2, "byName"));
        byNameUid = nested.GetUid();
        nested.Memento().CheckCollectionType(cls_CollectionMapString2Obj);
        cls_ReadMapString2Obj& reader = *nested.Memento().OpenMapString2Obj();
        while (reader.HasRow())
        {
            const Handle element = Taken(reader.ReadObject(tst_Part::TypeId()));
            byName.emplace_back(reader.ReadKey(), element);
        }
        reader.Close();
    }
    {
        const cls_ReadVisitor nested(visitor, F(3, "byNumber"));
        byNumberUid = nested.GetUid();
        nested.Memento().CheckCollectionType(cls_CollectionMapInt2Obj);
        cls_ReadMapInt2Obj& reader = *nested.Memento().OpenMapInt2Obj();
        while (reader.HasRow())
        {
            const Handle element = Taken(reader.ReadObject(tst_Part::TypeId()));
            byNumber.emplace_back(reader.ReadKey(), element);
        }
        reader.Close();
    }
    ownUid = visitor.GetUid();
}

void tst_Node::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), ownUid))
        return;
    {
        const cls_WriteVisitor base(visitor, tst_Part::TypeId());
        tst_Part::DBWrite(base);
    }
    if (child.IsNull())
    {
        visitor.Memento().PutAbsent(F(0, "child"));
    }
    else
    {
        const cls_WriteVisitor nested(visitor, F(0, "child"), &cow_Erased(child), nullptr);
        child->DBWrite(nested);
    }
    if (number == throwingNumber)
        throw std::runtime_error("no more");
    {
        const cls_WriteVisitor nested(visitor, F(1, "list"), nullptr, nullptr);
        nested.StartWrite(cls_ListTypeId, listUid);
        nested.CheckCollectionType(cls_CollectionListObj);
        cls_WriteListObj& writer = *nested.Memento().OpenList(1);
        for (const Handle& element : list)
            WriteElement(writer, cls_WriteRequestListObj(&writer), element);
        if (writer.HasMore())
            writer.Close();
    }
    {
        const cls_WriteVisitor nested(visitor, F(2, "byName"), nullptr, nullptr);
        nested.StartWrite(cls_MapTypeId, byNameUid);
        nested.CheckCollectionType(cls_CollectionMapString2Obj);
        cls_WriteMapString2Obj& writer = *nested.Memento().OpenMapString2Obj();
        for (const auto& [key, element] : byName)
            WriteElement(writer, cls_WriteRequestMapString2Obj(&writer, key), element, key);
    }
    {
        const cls_WriteVisitor nested(visitor, F(3, "byNumber"), nullptr, nullptr);
        nested.StartWrite(cls_MapTypeId, byNumberUid);
        nested.CheckCollectionType(cls_CollectionMapInt2Obj);
        cls_WriteMapInt2Obj& writer = *nested.Memento().OpenMapInt2Obj();
        for (const auto& [key, element] : byNumber)
            WriteElement(writer, cls_WriteRequestMapInt2Obj(&writer, key), element, key);
    }
}

namespace
{

std::string Bits(double value)
{
    char text[24];
    std::snprintf(text, sizeof text, "%016llx",
                  static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(value)));
    return text;
}

std::string Text(const cls_Uid& uid)
{
    unsigned char bytes[cls_Uid::Size];
    uid.ToBytes(bytes);
    std::string text = "#";
    for (const unsigned char byte : bytes)
    {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x", byte);
        text += digits;
    }
    return text;
}

std::string Text(const cls_xp2DArrayDouble& table)
{
    std::string text =
        std::to_string(table.Rows()) + "x" + std::to_string(table.Columns()) + Text(table.Uid());
    for (int row = 0; row < table.Rows(); ++row)
    {
        for (int column = 0; column < table.Columns(); ++column)
            text += " " + Bits(table.ConstGet(row, column));
    }
    return text;
}

std::string Describe(const tst_Whole& whole)
{
    std::string text = std::to_string(whole.second) + " " + Bits(whole.value) + " " +
                       std::to_string(whole.flag) + " " + colours[whole.colour] + " " + Text(whole.ownUid) +
                       "\n doubles" + Text(whole.doubles.Uid());
    for (const double value : whole.doubles)
        text += " " + Bits(value);
    text += "\n ints" + Text(whole.ints.Uid());
    for (const int value : whole.ints)
        text += " " + std::to_string(value);
    text += "\n bools" + Text(whole.bools.Uid());
    for (const bool value : whole.bools)
        text += " " + std::to_string(value);
    text += "\n texts" + Text(whole.texts.Uid());
    for (const cow_String& value : whole.texts)
        text += std::string(" '") + value.CString() + "'";
    text += "\n table " + Text(whole.table) + "\n floats" + Text(whole.floats.Uid());
    for (cow_ConstMapIterator<cow_String, float> entry(whole.floats); entry.Valid(); entry.Next())
    {
        char digits[16];
        std::snprintf(digits, sizeof digits, "%08x", std::bit_cast<std::uint32_t>(entry.Value()));
        text += std::string(" '") + entry.Key().CString() + "' " + digits;
    }
    text += "\n tables" + Text(whole.tables.Uid());
    for (cow_ConstMapIterator<cow_String, cls_xp2DArrayDouble> entry(whole.tables); entry.Valid();
         entry.Next())
        text += std::string(" '") + entry.Key().CString() + "' " + Text(entry.Value());
    return text;
}

std::string Describe(const tst_Node& node)
{
    std::string text = Text(node.ownUid) + "\n child " + tst_Describe(node.child.ConstGet()) + "\n list" +
                       Text(node.listUid) + " {";
    for (const tst_Part::Handle& element : node.list)
        text += tst_Describe(element.ConstGet()) + ", ";
    text += "}\n byName" + Text(node.byNameUid) + " {";
    for (const auto& [key, element] : node.byName)
        text += std::string("'") + key.CString() + "': " + tst_Describe(element.ConstGet()) + ", ";
    text += "}\n byNumber" + Text(node.byNumberUid) + " {";
    for (const auto& [key, element] : node.byNumber)
        text += std::to_string(key) + ": " + tst_Describe(element.ConstGet()) + ", ";
    return text + "}";
}

} // namespace

std::string tst_Describe(const tst_Part* part)
{
    if (!part)
        return "null";
    std::string text =
        "[" + std::to_string(part->number) + " '" + part->label.CString() + "' " + Text(part->uid) + " ";
    if (part->DynTypeId() == tst_Whole::TypeId())
        text += Describe(static_cast<const tst_Whole&>(*part));
    else
        text += Describe(static_cast<const tst_Node&>(*part));
    return text + "]";
}

tst_Whole* tst_NewOddWhole()
{
    const double notANumber = std::bit_cast<double>(std::uint64_t{0xFFF8DEADBEEF0001});
    const double signalling = std::bit_cast<double>(std::uint64_t{0x7FF0000000000001});
    const double infinity = std::numeric_limits<double>::infinity();
    auto* whole = new tst_Whole;
    whole->number = std::numeric_limits<int>::min();
    whole->label = "odd '\"\n\t \xC3\xA4\xFF\x80 text";
    whole->second = std::numeric_limits<int>::max();
    whole->value = notANumber;
    whole->flag = true;
    whole->colour = tst_Part::GREEN;
    cow_List<double> doubles;
    for (const double value : {0.0, -0.0, 1.0, -1.5, 1e-310, 5e-324, infinity, -infinity, notANumber,
                               signalling, std::numeric_limits<double>::max()})
        doubles.Append(value);
    whole->doubles = doubles;
    cow_List<int> ints;
    for (const int value : {0, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        ints.Append(value);
    whole->ints = ints;
    cow_List<bool> bools;
    for (const bool value : {true, false, true})
        bools.Append(value);
    whole->bools = bools;
    cow_List<cow_String> texts;
    for (const char* value : {"", "plain", "\xFF\xFE invalid", "'quoted'"})
        texts.Append(value);
    whole->texts = texts;
    cow_2DArray<double> table(2, 3);
    table.Set(0, 1, -0.0);
    table.Set(1, 2, signalling);
    whole->table = table;
    cow_Map<cow_String, float> floats;
    floats.Insert("", 0.1f);
    floats.Insert("minus zero", -0.0f);
    floats.Insert("nan", std::bit_cast<float>(0x7FA00001u));
    floats.Insert("infinite", -std::numeric_limits<float>::infinity());
    whole->floats = floats;
    cow_Map<cow_String, cls_xp2DArrayDouble> tables;
    tables.Insert("a", cls_xp2DArrayDouble(table));
    tables.Insert("empty", cls_xp2DArrayDouble());
    tables.Insert("no rows", cls_xp2DArrayDouble(cow_2DArray<double>(0, 4)));
    whole->tables = tables;
    return whole;
}
