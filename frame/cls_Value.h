#pragma once

#include "ovr_Export.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// A value outside any class: what an attribute looks like to a program that prints it, reads it from a file
/// or takes it from a script. Null stands for an absent object.
class OVR_EXPORT cls_Value
{
public:
    using Array = std::vector<cls_Value>;
    /// Members in order; a nested object's first member is "class".
    using Object = std::vector<std::pair<std::string, cls_Value>>;

    cls_Value() = default;
    cls_Value(bool value);
    cls_Value(int value);
    cls_Value(std::int64_t value);
    cls_Value(double value);
    cls_Value(const char* value);
    cls_Value(std::string value);
    cls_Value(Array value);
    cls_Value(Object value);

    bool IsNull() const;
    /// The value as one of its forms, or null if it has another.
    const bool* AsBool() const;
    const std::int64_t* AsInteger() const;
    const double* AsDouble() const;
    const std::string* AsText() const;
    const Array* AsArray() const;
    const Object* AsObject() const;
    Array* AsArray();
    Object* AsObject();

    /// The member of this name, or null; also null if this is no object.
    const cls_Value* Find(const std::string& name) const;

    /// The value in short, for messages: at most some sixty characters.
    std::string Summary() const;

    friend bool operator==(const cls_Value&, const cls_Value&) = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object> form;
};

/// A value that does not fit the place where it is put. `Path()` leads to the place from the outermost
/// object, as in "data[3][1]"; the text says what was found and what was expected.
class OVR_EXPORT cls_ValueError : public std::runtime_error
{
public:
    cls_ValueError(const std::string& path, const std::string& message);

    const std::string& Path() const { return path; }

    /// The text without the path.
    const std::string& Message() const { return message; }

    /// The same error seen from one object further out: `step` is put before the path.
    cls_ValueError Within(const std::string& step) const;

private:
    std::string path;
    std::string message;
};

/// Throws `cls_ValueError` with an empty path: "expected <expected>, found <value>".
[[noreturn]] OVR_EXPORT void cls_RaiseUnexpected(const char* expected, const cls_Value& found);

/// A double as a value: NaN and the infinities are the texts "NaN", "Infinity" and "-Infinity".
OVR_EXPORT cls_Value cls_ValueOfDouble(double number);
/// The reverse; integers are taken too. Throws `cls_ValueError`.
OVR_EXPORT double cls_DoubleOfValue(const cls_Value& value);
/// An integer of 32 bits; throws `cls_ValueError` for anything else.
OVR_EXPORT int cls_IntOfValue(const cls_Value& value);
/// A boolean; throws `cls_ValueError` for anything else.
OVR_EXPORT bool cls_BoolOfValue(const cls_Value& value);
/// A text; throws `cls_ValueError` for anything else.
OVR_EXPORT const std::string& cls_TextOfValue(const cls_Value& value);
/// An array; throws `cls_ValueError` for anything else.
OVR_EXPORT const cls_Value::Array& cls_ArrayOfValue(const cls_Value& value);
