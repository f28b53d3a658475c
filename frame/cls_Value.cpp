#include "cls_Value.h"

#include <cmath>
#include <cstdio>
#include <limits>

cls_Value::cls_Value(bool value) : form(value) {}

cls_Value::cls_Value(int value) : form(static_cast<std::int64_t>(value)) {}

cls_Value::cls_Value(std::int64_t value) : form(value) {}

cls_Value::cls_Value(double value) : form(value) {}

cls_Value::cls_Value(const char* value) : form(std::string(value)) {}

cls_Value::cls_Value(std::string value) : form(std::move(value)) {}

cls_Value::cls_Value(Array value) : form(std::move(value)) {}

cls_Value::cls_Value(Object value) : form(std::move(value)) {}

bool cls_Value::IsNull() const
{
    return std::holds_alternative<std::monostate>(form);
}

const bool* cls_Value::AsBool() const
{
    return std::get_if<bool>(&form);
}

const std::int64_t* cls_Value::AsInteger() const
{
    return std::get_if<std::int64_t>(&form);
}

const double* cls_Value::AsDouble() const
{
    return std::get_if<double>(&form);
}

const std::string* cls_Value::AsText() const
{
    return std::get_if<std::string>(&form);
}

const cls_Value::Array* cls_Value::AsArray() const
{
    return std::get_if<Array>(&form);
}

const cls_Value::Object* cls_Value::AsObject() const
{
    return std::get_if<Object>(&form);
}

cls_Value::Array* cls_Value::AsArray()
{
    return std::get_if<Array>(&form);
}

cls_Value::Object* cls_Value::AsObject()
{
    return std::get_if<Object>(&form);
}

const cls_Value* cls_Value::Find(const std::string& name) const
{
    const Object* object = AsObject();
    if (!object)
        return nullptr;
    for (const auto& [memberName, member] : *object)
    {
        if (memberName == name)
            return &member;
    }
    return nullptr;
}

namespace
{

constexpr std::size_t longestText = 40;

std::string NumberText(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

std::string Shortened(const std::string& text)
{
    if (text.size() <= longestText)
        return '"' + text + '"';
    return '"' + text.substr(0, longestText) + "...\"";
}

} // namespace

std::string cls_Value::Summary() const
{
    if (const bool* truth = AsBool())
        return *truth ? "true" : "false";
    if (const std::int64_t* number = AsInteger())
        return std::to_string(*number);
    if (const double* number = AsDouble())
        return NumberText(*number);
    if (const std::string* text = AsText())
        return Shortened(*text);
    if (const Array* array = AsArray())
        return "an array of " + std::to_string(array->size());
    if (const Object* object = AsObject())
        return "an object of " + std::to_string(object->size()) + " members";
    return "null";
}

namespace
{

std::string WithPath(const std::string& path, const std::string& message)
{
    return path.empty() ? message : path + ": " + message;
}

std::string Joined(const std::string& outer, const std::string& inner)
{
    if (outer.empty() || inner.empty() || inner.front() == '[')
        return outer + inner;
    return outer + '.' + inner;
}

} // namespace

cls_ValueError::cls_ValueError(const std::string& path, const std::string& message)
    : std::runtime_error(WithPath(path, message)), path(path), message(message)
{}

cls_ValueError cls_ValueError::Within(const std::string& step) const
{
    return cls_ValueError(Joined(step, path), message);
}

void cls_RaiseUnexpected(const char* expected, const cls_Value& found)
{
    throw cls_ValueError("", std::string("expected ") + expected + ", found " + found.Summary());
}

cls_Value cls_ValueOfDouble(double number)
{
    if (std::isnan(number))
        return "NaN";
    if (std::isinf(number))
        return number > 0.0 ? "Infinity" : "-Infinity";
    return number;
}

double cls_DoubleOfValue(const cls_Value& value)
{
    if (const double* number = value.AsDouble())
        return *number;
    if (const std::int64_t* number = value.AsInteger())
        return static_cast<double>(*number);
    const std::string* text = value.AsText();
    if (text && *text == "NaN")
        return std::numeric_limits<double>::quiet_NaN();
    if (text && *text == "Infinity")
        return std::numeric_limits<double>::infinity();
    if (text && *text == "-Infinity")
        return -std::numeric_limits<double>::infinity();
    cls_RaiseUnexpected("a number", value);
}

int cls_IntOfValue(const cls_Value& value)
{
    const std::int64_t* number = value.AsInteger();
    if (!number || *number < std::numeric_limits<int>::min() || *number > std::numeric_limits<int>::max())
        cls_RaiseUnexpected("an integer of 32 bits", value);
    return static_cast<int>(*number);
}

bool cls_BoolOfValue(const cls_Value& value)
{
    const bool* truth = value.AsBool();
    if (!truth)
        cls_RaiseUnexpected("true or false", value);
    return *truth;
}

const std::string& cls_TextOfValue(const cls_Value& value)
{
    const std::string* text = value.AsText();
    if (!text)
        cls_RaiseUnexpected("a text", value);
    return *text;
}

const cls_Value::Array& cls_ArrayOfValue(const cls_Value& value)
{
    const cls_Value::Array* array = value.AsArray();
    if (!array)
        cls_RaiseUnexpected("an array", value);
    return *array;
}
