#include "cmd_Value.h"

#include "cls_Value.h"
#include "cmd_Utf8.h"
#include "omu_Repr.h"

cmd_Value::cmd_Value(bool value) : form(value) {}

cmd_Value::cmd_Value(int value) : form(static_cast<std::int64_t>(value)) {}

cmd_Value::cmd_Value(std::int64_t value) : form(value) {}

cmd_Value::cmd_Value(double value) : form(value) {}

cmd_Value::cmd_Value(const char* value) : form(std::string(value)) {}

cmd_Value::cmd_Value(std::string value) : form(std::move(value)) {}

cmd_Value::cmd_Value(Symbol value) : form(std::move(value)) {}

cmd_Value::cmd_Value(Tuple value) : form(std::move(value)) {}

cmd_Value::cmd_Value(List value) : form(std::move(value)) {}

cmd_Value::cmd_Value(Dictionary value) : form(std::move(value)) {}

cmd_Value::cmd_Value(Call value) : form(std::move(value)) {}

bool cmd_Value::IsNone() const
{
    return std::holds_alternative<std::monostate>(form);
}

const bool* cmd_Value::AsBool() const
{
    return std::get_if<bool>(&form);
}

const std::int64_t* cmd_Value::AsInteger() const
{
    return std::get_if<std::int64_t>(&form);
}

const double* cmd_Value::AsDouble() const
{
    return std::get_if<double>(&form);
}

const std::string* cmd_Value::AsText() const
{
    return std::get_if<std::string>(&form);
}

const cmd_Value::Symbol* cmd_Value::AsSymbol() const
{
    return std::get_if<Symbol>(&form);
}

const cmd_Value::Dictionary* cmd_Value::AsDictionary() const
{
    return std::get_if<Dictionary>(&form);
}

const cmd_Value::Call* cmd_Value::AsCall() const
{
    return std::get_if<Call>(&form);
}

const cmd_Value::Elements* cmd_Value::AsElements() const
{
    if (const Tuple* tuple = std::get_if<Tuple>(&form))
        return &tuple->elements;
    const List* list = std::get_if<List>(&form);
    return list ? &list->elements : nullptr;
}

const std::string* cmd_Value::AsName() const
{
    const Symbol* symbol = AsSymbol();
    return symbol ? &symbol->name : AsText();
}

namespace
{

std::string DictionaryText(const cmd_Value::Dictionary& dictionary)
{
    std::string text = "{";
    for (const auto& [key, value] : dictionary)
        text += (text.size() > 1 ? ", " : "") + cmd_QuotedText(key) + ": " + value.Text();
    return text + '}';
}

std::string CallText(const cmd_Value::Call& call)
{
    std::string text = call.word + '(';
    const char* separator = "";
    for (const auto& [word, value] : call.arguments)
    {
        text += separator + word + '=' + value.Text();
        separator = ", ";
    }
    return text + ')';
}

std::string Joined(const cmd_Value::Elements& elements)
{
    std::string text;
    for (const cmd_Value& element : elements)
        text += (text.empty() ? "" : ", ") + element.Text();
    return text;
}

constexpr std::size_t longestSummary = 60;

} // namespace

std::string cmd_QuotedText(const std::string& text)
{
    return omu_ReprOfText(text.c_str()).CString();
}

std::string cmd_Value::Text() const
{
    if (const bool* truth = AsBool())
        return *truth ? "True" : "False";
    if (const std::int64_t* number = AsInteger())
        return std::to_string(*number);
    if (const double* number = AsDouble())
        return omu_ReprOfDouble(*number).CString();
    if (const std::string* text = AsText())
        return cmd_QuotedText(*text);
    if (const Symbol* symbol = AsSymbol())
        return symbol->name;
    if (const Tuple* tuple = std::get_if<Tuple>(&form))
        return '(' + Joined(tuple->elements) + (tuple->elements.size() == 1 ? ",)" : ")");
    if (const List* list = std::get_if<List>(&form))
        return '[' + Joined(list->elements) + ']';
    if (const Dictionary* dictionary = AsDictionary())
        return DictionaryText(*dictionary);
    if (const Call* call = AsCall())
        return CallText(*call);
    return "None";
}

std::string cmd_Value::Summary() const
{
    const std::string text = Text();
    if (text.size() <= longestSummary)
        return text;
    if (const Elements* elements = AsElements())
        return (std::holds_alternative<Tuple>(form) ? "a tuple of " : "a list of ") +
               std::to_string(elements->size());
    if (const Dictionary* dictionary = AsDictionary())
        return "a dictionary of " + std::to_string(dictionary->size());
    if (const Call* call = AsCall())
        return call->word + "(...)";
    std::size_t end = longestSummary;
    while (!cmd_IsCharacterStart(text, end))
        --end;
    return text.substr(0, end) + "...";
}

cmd_Value cmd_ValueOfPlain(const cls_Value& value)
{
    if (const bool* truth = value.AsBool())
        return *truth;
    if (const std::int64_t* number = value.AsInteger())
        return *number;
    if (const double* number = value.AsDouble())
        return *number;
    if (const std::string* text = value.AsText())
        return *text;
    if (const cls_Value::Array* array = value.AsArray())
    {
        cmd_Value::Tuple tuple;
        for (const cls_Value& element : *array)
            tuple.elements.push_back(cmd_ValueOfPlain(element));
        return tuple;
    }
    if (const cls_Value::Object* object = value.AsObject())
    {
        cmd_Value::Dictionary dictionary;
        for (const auto& [name, member] : *object)
            dictionary.emplace_back(name, cmd_ValueOfPlain(member));
        return dictionary;
    }
    return cmd_Value();
}
