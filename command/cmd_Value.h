#pragma once

#include "ovr_Export.h"

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

class cls_Value;

/// A value as a script writes it: None, True and False, numbers, texts in quotes, symbols such as STEP,
/// tuples, lists, dictionaries with texts as keys, and calls of constructors with keyword arguments.
class OVR_EXPORT cmd_Value
{
public:
    using Elements = std::vector<cmd_Value>;
    /// Keys and values in the order given.
    using Dictionary = std::vector<std::pair<std::string, cmd_Value>>;

    struct Symbol
    {
        std::string name;
        friend bool operator==(const Symbol&, const Symbol&) = default;
    };

    struct Tuple
    {
        Elements elements;
        friend bool operator==(const Tuple&, const Tuple&) = default;
    };

    struct List
    {
        Elements elements;
        friend bool operator==(const List&, const List&) = default;
    };

    struct Call
    {
        std::string word;
        Dictionary arguments;
        // A defaulted one would look into the pairs while the value's own class is not complete.
        friend bool operator==(const Call& left, const Call& right)
        {
            return left.word == right.word && left.arguments == right.arguments;
        }
    };

    /// None.
    cmd_Value() = default;
    cmd_Value(bool value);
    cmd_Value(int value);
    cmd_Value(std::int64_t value);
    cmd_Value(double value);
    cmd_Value(const char* value);
    cmd_Value(std::string value);
    cmd_Value(Symbol value);
    cmd_Value(Tuple value);
    cmd_Value(List value);
    cmd_Value(Dictionary value);
    cmd_Value(Call value);

    bool IsNone() const;
    /// The value as one of its forms, or null if it has another.
    const bool* AsBool() const;
    const std::int64_t* AsInteger() const;
    const double* AsDouble() const;
    const std::string* AsText() const;
    const Symbol* AsSymbol() const;
    const Dictionary* AsDictionary() const;
    const Call* AsCall() const;
    /// The elements of a tuple or list, or null.
    const Elements* AsElements() const;
    /// The name of a symbol or the characters of a text, or null.
    const std::string* AsName() const;

    /// The value in one line of Python that stands for it: numbers in the shortest form that reads back bit
    /// for bit, texts quoted and escaped as Python's repr does; bytes that are no UTF-8 as "\udc80" to
    /// "\udcff".
    std::string Text() const;
    /// The value in short, for messages: at most some sixty characters.
    std::string Summary() const;

    friend bool operator==(const cmd_Value&, const cmd_Value&) = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Symbol, Tuple, List, Dictionary,
                 Call>
        form;
};

/// Keyword arguments of a command.
using cmd_Arguments = cmd_Value::Dictionary;

/// A text as a Python literal.
OVR_EXPORT std::string cmd_QuotedText(const std::string& text);

/// A plain value as a script would write it: arrays become tuples, objects dictionaries.
OVR_EXPORT cmd_Value cmd_ValueOfPlain(const cls_Value& value);
