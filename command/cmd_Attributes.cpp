#include "cmd_Attributes.h"

#include "cls_Unset.h"
#include "cmd_Error.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace
{

const cls_Description* LayerOf(const cls_Description& description, const cls_Attribute& attribute)
{
    for (const cls_Description* layer = &description; layer; layer = layer->Base())
    {
        const std::vector<cls_Attribute>& own = layer->Attributes();
        if (&attribute >= own.data() && &attribute < own.data() + own.size())
            return layer;
    }
    return nullptr;
}

/// Whether an enumeration's name says that it belongs to an attribute, by the attribute's whole name or by
/// its last words: SmoothEnm to smooth, SweepsEnm to initialRemeshingSweeps.
bool IsEnumOf(const omu_EnumTable& table, std::string attributeName)
{
    std::string_view name = table.enumName;
    const std::size_t colon = name.rfind(':');
    if (colon != std::string_view::npos)
        name.remove_prefix(colon + 1);
    for (const std::string_view ending : {"Enm", "Enum"})
    {
        if (name.ends_with(ending))
            name.remove_suffix(ending.size());
    }
    if (!attributeName.empty() && attributeName[0] >= 'a' && attributeName[0] <= 'z')
        attributeName[0] = static_cast<char>(attributeName[0] - 'a' + 'A');
    return attributeName.ends_with(name);
}

/// The class that an object within an attribute is of where only one can be; null otherwise.
const cls_Description* SoleClass(const cls_Description& root)
{
    if (root.IsAbstract())
        return nullptr;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        if (description != &root && description->IsA(root.Id()))
            return nullptr;
    }
    return &root;
}

[[noreturn]] void RaiseUnexpected(const std::string& expected, const cmd_Value& found)
{
    throw cls_ValueError("", "expected " + expected + ", found " + found.Summary());
}

/// Runs `take` on a part of a value; an error names the part.
template <class Take>
auto Within(const std::string& step, Take take)
{
    try
    {
        return take();
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(step);
    }
}

cls_Value NumberOf(const cmd_Value& value)
{
    if (const double* number = value.AsDouble())
        return cls_ValueOfDouble(*number);
    if (const std::int64_t* number = value.AsInteger())
        return static_cast<double>(*number);
    const std::string* text = value.AsText();
    if (text && (*text == "NaN" || *text == "Infinity" || *text == "-Infinity"))
        return *text;
    RaiseUnexpected("a number", value);
}

cls_Value IntegerOf(const cmd_Value& value)
{
    const std::int64_t* number = value.AsInteger();
    if (!number)
        RaiseUnexpected("an integer", value);
    return *number;
}

cls_Value TextOf(const cmd_Value& value)
{
    const std::string* text = value.AsText();
    if (!text)
        RaiseUnexpected("a text in quotes", value);
    return *text;
}

cls_Value BoolOf(const cmd_Value& value)
{
    const bool* truth = value.AsBool();
    if (!truth)
        RaiseUnexpected("True or False", value);
    return *truth;
}

cls_Value EnumTextOf(const omu_EnumTable& table, const cmd_Value& value)
{
    const std::string* name = value.AsName();
    if (name && table.FindName(name->c_str()))
        return *name;
    if (const std::int64_t* number = value.AsInteger())
    {
        const auto integer = static_cast<int>(*number);
        const omu_EnumEntry* row = integer == *number ? table.FindValue(integer) : nullptr;
        if (row)
            return row->name;
    }
    std::vector<std::string> names;
    for (int i = 0; i < table.rowCount; ++i)
        names.emplace_back(table.rows[i].name);
    throw cls_ValueError("", "found " + value.Summary() + ", " + cmd_ExpectedOneOf(name ? *name : "", names));
}

template <class Convert>
cls_Value SequenceOf(const char* expected, const cmd_Value& value, Convert convert)
{
    const cmd_Value::Elements* elements = value.AsElements();
    if (!elements)
        RaiseUnexpected(expected, value);
    cls_Value::Array plain;
    plain.reserve(elements->size());
    for (std::size_t i = 0; i < elements->size(); ++i)
        plain.push_back(Within('[' + std::to_string(i) + ']', [&] { return convert((*elements)[i]); }));
    return plain;
}

template <class Convert>
cls_Value EntriesOf(const char* expected, const cmd_Value& value, Convert convert)
{
    const cmd_Value::Dictionary* entries = value.AsDictionary();
    if (!entries)
        RaiseUnexpected(expected, value);
    cls_Value::Object plain;
    for (const auto& [key, entry] : *entries)
    {
        const cmd_Value& given = entry;
        plain.emplace_back(
            key, Within('[' + cmd_QuotedText(key) + ']', [&convert, &given] { return convert(given); }));
    }
    return plain;
}

cls_Value RowsOf(const cmd_Value& value)
{
    return SequenceOf("rows of numbers", value,
                      [](const cmd_Value& row) { return SequenceOf("a row of numbers", row, NumberOf); });
}

/// The rows of a table, or a dictionary of its parts.
cls_Value TableOf(const cmd_Value& value)
{
    const cmd_Value::Dictionary* parts = value.AsDictionary();
    if (!parts)
        return RowsOf(value);
    cls_Value::Object plain;
    for (const auto& [key, part] : *parts)
        plain.emplace_back(key, part.AsElements() ? RowsOf(part) : BoolOf(part));
    return plain;
}

/// A value for a kind that has no rules of its own here; the kind itself tells what does not fit.
cls_Value PlainOf(const cmd_Value& value)
{
    if (value.AsElements())
        return SequenceOf("a sequence", value, PlainOf);
    if (value.AsDictionary())
        return EntriesOf("a dictionary", value, PlainOf);
    if (value.AsSymbol() || value.AsCall())
        RaiseUnexpected("a number, a text, a sequence or a dictionary", value);
    if (const bool* truth = value.AsBool())
        return *truth;
    if (value.AsText())
        return TextOf(value);
    if (const std::int64_t* number = value.AsInteger())
        return *number;
    return value.IsNone() ? cls_Value() : NumberOf(value);
}

cls_Value AttributeOf(const cls_Description& description, const cls_Attribute& attribute,
                      const cmd_Value& value);

cls_Value::Object NewObject(const cls_Description& description)
{
    return {{"class", description.Name()}};
}

void AddMember(cls_Value::Object& object, const cls_Description& description, const cls_Attribute& attribute,
               const cmd_Value& value)
{
    object.emplace_back(attribute.field.Name().CString(),
                        Within(attribute.word, [&] { return AttributeOf(description, attribute, value); }));
}

const cls_Attribute& AttributeByWord(const cls_Description& description, const std::string& word,
                                     const std::string& given)
{
    if (const cls_Attribute* attribute = description.FindByWord(word))
        return *attribute;
    std::vector<std::string> words;
    for (const cls_Attribute* attribute : description.AllAttributes())
        words.emplace_back(attribute->word);
    throw cls_ValueError("", std::string(description.Name()) + " has no word " + word + ", given " + given +
                                 ": " + cmd_ExpectedOneOf(word, words));
}

cls_Value ObjectOfCall(const cls_Description& root, const cmd_Value::Call& call)
{
    const std::vector<const cls_Description*> classes = cmd_ClassesOfWord(root, call.word);
    if (classes.empty())
        throw cls_ValueError("", "found " + call.word + "(...), " +
                                     cmd_ExpectedOneOf(call.word, cmd_ConstructorsOf(root)));
    const cls_Description& description = *classes.front();
    cls_Value::Object object = NewObject(description);
    for (const auto& [word, value] : call.arguments)
        AddMember(object, description, AttributeByWord(description, word, value.Summary()), value);
    return object;
}

const cls_Description& ClassOfDictionary(const cls_Description& root, const cmd_Value::Dictionary& dictionary)
{
    const auto isClass = [](const auto& entry) { return entry.first == "class"; };
    const auto found = std::find_if(dictionary.begin(), dictionary.end(), isClass);
    if (found == dictionary.end())
    {
        if (const cls_Description* sole = SoleClass(root))
            return *sole;
        throw cls_ValueError(
            "", std::string("expected the entry 'class', the name of a class derived from ") + root.Name());
    }
    const std::string* name = found->second.AsName();
    const cls_Description* description = name ? cls_Descriptions().Find(*name) : nullptr;
    if (!description || !description->IsA(root.Id()) || description->IsAbstract())
        RaiseUnexpected(std::string("the name of a class derived from ") + root.Name() + " as 'class'",
                        found->second);
    return *description;
}

/// The entries may go by word or by stored name.
cls_Value ObjectOfDictionary(const cls_Description& root, const cmd_Value::Dictionary& dictionary)
{
    const cls_Description& description = ClassOfDictionary(root, dictionary);
    cls_Value::Object object = NewObject(description);
    for (const auto& [key, value] : dictionary)
    {
        if (key == "class")
            continue;
        const cls_Attribute* byName = description.FindByName(key);
        AddMember(object, description, byName ? *byName : AttributeByWord(description, key, value.Summary()),
                  value);
    }
    return object;
}

cls_Value ObjectOfElements(const cls_Description& root, const cmd_Value& value)
{
    const cls_Description* description = SoleClass(root);
    if (!description)
        RaiseUnexpected(std::string("an object of a class derived from ") + root.Name(), value);
    const std::vector<const cls_Attribute*> attributes = description->AllAttributes();
    const cmd_Value::Elements& elements = *value.AsElements();
    if (elements.size() != attributes.size())
        RaiseUnexpected("a tuple of " + std::to_string(attributes.size()), value);
    cls_Value::Object object = NewObject(*description);
    for (std::size_t i = 0; i < elements.size(); ++i)
        AddMember(object, *description, *attributes[i], elements[i]);
    return object;
}

cls_Value ObjectOf(const cls_Description& root, const cmd_Value& value)
{
    if (const cmd_Value::Call* call = value.AsCall())
        return ObjectOfCall(root, *call);
    if (const cmd_Value::Dictionary* dictionary = value.AsDictionary())
        return ObjectOfDictionary(root, *dictionary);
    if (value.AsElements())
        return ObjectOfElements(root, value);
    const std::vector<std::string> words = cmd_ConstructorsOf(root);
    RaiseUnexpected(
        words.empty() ? std::string("an object of class ") + root.Name() : words.front() + "(...)", value);
}

cls_Value ObjectOrNoneOf(const cls_Description& root, const cmd_Value& value)
{
    return value.IsNone() ? cls_Value() : ObjectOf(root, value);
}

/// A number, or the symbol that stands for one that is not set.
template <class Convert>
cls_Value NumberOrSymbolOf(const char* symbol, const cls_Value& unset, const char* expected,
                           const cmd_Value& value, Convert convert)
{
    if (!symbol)
        return convert(value);
    const std::string* name = value.AsName();
    if (name && *name == symbol)
        return unset;
    try
    {
        return convert(value);
    }
    catch (const cls_ValueError&)
    {
        RaiseUnexpected(std::string(expected) + " or " + symbol, value);
    }
}

cls_Value AttributeOf(const cls_Description& description, const cls_Attribute& attribute,
                      const cmd_Value& value)
{
    using enum cls_KindEnm;
    const cls_Kind& kind = *attribute.kind;
    const auto object = [&kind](const cmd_Value& given) { return ObjectOrNoneOf(*kind.Of(), given); };
    switch (kind.Id())
    {
    case Int:
        return NumberOrSymbolOf(cmd_UnsetSymbolOf(description, attribute), cls_UnsetInt, "an integer", value,
                                IntegerOf);
    case Double:
        return NumberOrSymbolOf(cmd_UnsetSymbolOf(description, attribute), cls_UnsetDouble, "a number", value,
                                NumberOf);
    case String:
        return TextOf(value);
    case Bool:
        return BoolOf(value);
    case Enum:
        return EnumTextOf(*kind.Enum(), value);
    case Optional:
        return object(value);
    case Object:
        return ObjectOf(*kind.Of(), value);
    case ListInt:
        return SequenceOf("a sequence of integers", value, IntegerOf);
    case ListDouble:
        return SequenceOf("a sequence of numbers", value, NumberOf);
    case ListBool:
        return SequenceOf("a sequence of True and False", value, BoolOf);
    case ListString:
        return SequenceOf("a sequence of texts in quotes", value, TextOf);
    case ListObject:
        return SequenceOf("a sequence of objects", value, object);
    case MapObject:
    case MapObjectInt:
        return EntriesOf("a dictionary of objects", value, object);
    case Array2D:
        return RowsOf(value);
    case Table:
        return TableOf(value);
    case MapArray2D:
        return EntriesOf("a dictionary of rows of numbers", value, RowsOf);
    case MapFloat:
        return EntriesOf("a dictionary of numbers", value, NumberOf);
    default:
        return PlainOf(value);
    }
}

/// Numbers at any depth; those that are texts in a plain value, as "NaN", are numbers in a script.
cmd_Value ScriptOfNumbers(const cls_Value& value)
{
    if (const cls_Value::Array* array = value.AsArray())
    {
        cmd_Value::Tuple tuple;
        tuple.elements.reserve(array->size());
        for (const cls_Value& element : *array)
            tuple.elements.push_back(ScriptOfNumbers(element));
        return tuple;
    }
    if (const cls_Value::Object* object = value.AsObject())
    {
        cmd_Value::Dictionary dictionary;
        for (const auto& [key, entry] : *object)
            dictionary.emplace_back(key, ScriptOfNumbers(entry));
        return dictionary;
    }
    return cls_DoubleOfValue(value);
}

cmd_Value ScriptOfObjects(const cls_Value& value)
{
    if (const cls_Value::Array* array = value.AsArray())
    {
        cmd_Value::Tuple tuple;
        for (const cls_Value& element : *array)
            tuple.elements.push_back(ScriptOfObjects(element));
        return tuple;
    }
    return value.IsNull() ? cmd_Value() : cmd_ScriptOfObject(value);
}

/// Of a map of objects, or of one of its entries.
cmd_Value ScriptOfMap(const cls_Value& value)
{
    if (!value.AsObject() || cmd_ClassOfValue(value))
        return ScriptOfObjects(value);
    cmd_Value::Dictionary dictionary;
    for (const auto& [key, entry] : *value.AsObject())
        dictionary.emplace_back(key, ScriptOfObjects(entry));
    return dictionary;
}

/// The rows of a table where nothing else differs from a new object's, else a dictionary of its parts; or a
/// part of it.
cmd_Value ScriptOfTable(const cls_Description& description, const cls_Attribute& attribute,
                        const cls_Value& value)
{
    if (!value.AsObject())
        return value.AsBool() ? cmd_ValueOfPlain(value) : ScriptOfNumbers(value);
    const cls_AnyObject fresh(description, description.Info().create());
    const cls_Value usual = attribute.kind->Export(attribute.Member(fresh.Get()));
    const cls_Value* rows = nullptr;
    bool isUsual = true;
    cmd_Value::Dictionary parts;
    for (const auto& [name, part] : *value.AsObject())
    {
        if (part.AsArray())
            rows = &part;
        else
            isUsual = isUsual && part == *usual.Find(name);
        parts.emplace_back(name, part.AsArray() ? ScriptOfNumbers(part) : cmd_ValueOfPlain(part));
    }
    return rows && isUsual ? ScriptOfNumbers(*rows) : cmd_Value(parts);
}

bool IsUnset(const cls_Value& value)
{
    if (const double* number = value.AsDouble())
        return *number == cls_UnsetDouble;
    const std::int64_t* number = value.AsInteger();
    return number && *number == cls_UnsetInt;
}

} // namespace

const char* cmd_ConstructorOf(const cls_Description& description)
{
    for (const cls_Word& word : description.Words())
    {
        if (std::strcmp(word.name, "constructor") == 0)
            return word.word;
    }
    return nullptr;
}

const cls_Description* cmd_ClassOfValue(const cls_Value& value)
{
    const cls_Value* name = value.Find("class");
    return name && name->AsText() ? cls_Descriptions().Find(*name->AsText()) : nullptr;
}

const char* cmd_UnsetSymbolOf(const cls_Description& description, const cls_Attribute& attribute)
{
    const cls_Description* layer = LayerOf(description, attribute);
    if (!layer)
        return nullptr;
    for (const omu_EnumTable* table : layer->Enums())
    {
        if (table->rowCount == 1 && IsEnumOf(*table, attribute.field.Name().CString()))
            return table->rows[0].name;
    }
    return nullptr;
}

std::vector<const cls_Description*> cmd_ClassesOfWord(const cls_Description& root, const std::string& word)
{
    std::vector<const cls_Description*> classes;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        const char* constructor = description->IsAbstract() ? nullptr : cmd_ConstructorOf(*description);
        if (constructor && word == constructor && description->IsA(root.Id()))
            classes.push_back(description);
    }
    return classes;
}

std::vector<std::string> cmd_ConstructorsOf(const cls_Description& root)
{
    std::vector<std::string> words;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        const char* constructor = description->IsAbstract() ? nullptr : cmd_ConstructorOf(*description);
        if (constructor && description->IsA(root.Id()))
            words.emplace_back(constructor);
    }
    return words;
}

const cls_Attribute& cmd_RequireAttribute(const cls_Description& description, const std::string& word,
                                          const std::string& given)
{
    try
    {
        return AttributeByWord(description, word, given);
    }
    catch (const cls_ValueError& error)
    {
        throw cmd_Error(error.what());
    }
}

void cmd_SetAttribute(const cls_Description& description, void* object, const cls_Attribute& attribute,
                      const cmd_Value& value)
{
    try
    {
        const cls_Value plain = AttributeOf(description, attribute, value);
        attribute.kind->Import(attribute.member(object), plain);
    }
    catch (const cls_ValueError& error)
    {
        throw cmd_Error(error.Within(std::string(description.Name()) + '.' + attribute.word).what());
    }
}

cmd_Value cmd_GetAttribute(const cls_Description& description, const void* object,
                           const cls_Attribute& attribute)
{
    return cmd_ScriptOfAttribute(description, attribute, attribute.kind->Export(attribute.Member(object)));
}

cmd_Value cmd_ScriptOfAttribute(const cls_Description& description, const cls_Attribute& attribute,
                                const cls_Value& value)
{
    using enum cls_KindEnm;
    const cls_Kind& kind = *attribute.kind;
    switch (kind.Id())
    {
    case Int:
    case Double:
    {
        const char* symbol = IsUnset(value) ? cmd_UnsetSymbolOf(description, attribute) : nullptr;
        if (symbol)
            return cmd_Value::Symbol{symbol};
        return kind.Id() == Int ? cmd_ValueOfPlain(value) : ScriptOfNumbers(value);
    }
    case Enum:
        return value.AsText() ? cmd_Value(cmd_Value::Symbol{*value.AsText()}) : cmd_ValueOfPlain(value);
    case ListDouble:
    case Array2D:
    case MapArray2D:
    case MapFloat:
        return ScriptOfNumbers(value);
    case Table:
        return ScriptOfTable(description, attribute, value);
    case Optional:
    case Object:
    case ListObject:
        return ScriptOfObjects(value);
    case MapObject:
    case MapObjectInt:
        return ScriptOfMap(value);
    default:
        return cmd_ValueOfPlain(value);
    }
}

cmd_Value cmd_ScriptOfObject(const cls_Value& object)
{
    const cls_Description* description = cmd_ClassOfValue(object);
    if (!description)
        return cmd_ValueOfPlain(object);
    const char* constructor = cmd_ConstructorOf(*description);
    cmd_Value::Dictionary members;
    for (const cls_Attribute* attribute : description->AllAttributes())
    {
        const cls_Value* value = object.Find(attribute->field.Name().CString());
        if (value)
            members.emplace_back(attribute->word, cmd_ScriptOfAttribute(*description, *attribute, *value));
    }
    if (constructor)
        return cmd_Value::Call{constructor, std::move(members)};
    const cls_Description* root = description;
    while (root->Base())
        root = root->Base();
    if (SoleClass(*root) != description)
    {
        members.insert(members.begin(), {"class", description->Name()});
        return members;
    }
    cmd_Value::Tuple tuple;
    for (auto& member : members)
        tuple.elements.push_back(std::move(member.second));
    return tuple;
}
