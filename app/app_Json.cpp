#include "app_Json.h"

#include "app_Error.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <unordered_set>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace
{

using Json = nlohmann::json;

constexpr std::size_t deepest = 64;

/// Walks over a text and tells how far the parser has come.
class CountingIterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator() = default;
    CountingIterator(const char* position, const char** reached) : position(position), reached(reached) {}

    reference operator*() const { return *position; }

    CountingIterator& operator++()
    {
        *reached = ++position;
        return *this;
    }

    CountingIterator operator++(int)
    {
        const CountingIterator before = *this;
        ++*this;
        return before;
    }

    friend bool operator==(const CountingIterator& a, const CountingIterator& b)
    {
        return a.position == b.position;
    }

    friend bool operator!=(const CountingIterator& a, const CountingIterator& b) { return !(a == b); }

private:
    const char* position = nullptr;
    const char** reached = nullptr;
};

/// A text that is parsed, its name, and how far the parser has come.
class Source
{
public:
    Source(const std::string& text, const std::string& name) : text(text), name(name), reached(text.data()) {}

    CountingIterator Begin() { return CountingIterator(text.data(), &reached); }

    CountingIterator End() { return CountingIterator(text.data() + text.size(), &reached); }

    /// "FILE:LINE:COLUMN", of the character that was read last.
    std::string Place() const
    {
        const char* const begin = text.data();
        const char* const last = reached > begin ? reached - 1 : begin;
        const char* const lineBegin =
            std::find(std::make_reverse_iterator(last), std::make_reverse_iterator(begin), '\n').base();
        return fmt::format("{}:{}:{}", name, Line(), last - lineBegin + 1);
    }

    /// Line of the character that was read last.
    long Line() const
    {
        const char* const last = reached > text.data() ? reached - 1 : reached;
        line += std::count(counted, last, '\n');
        counted = last;
        return line;
    }

    const std::string& Name() const { return name; }

    /// Bytes that were read.
    std::size_t Reached() const { return static_cast<std::size_t>(reached - text.data()); }

private:
    const std::string& text;
    const std::string& name;
    const char* reached;
    // Lines are counted on from where they were counted last.
    mutable const char* counted = text.data();
    mutable long line = 1;
};

/// What is wrong, from the parser's own message, without the place that it repeats.
std::string Reason(const std::string& message)
{
    const std::size_t column = message.find(", column ");
    if (column != std::string::npos)
        return message.substr(message.find(": ", column) + 2);
    const std::size_t bracket = message.find("] ");
    return bracket == std::string::npos ? message : message.substr(bracket + 2);
}

/// Builds values from the events of the parser.
class Builder : public nlohmann::json_sax<Json>
{
public:
    explicit Builder(Source& source) : source(source) {}

    bool null() override { return Put(cls_Value()); }

    bool boolean(bool truth) override { return Put(truth); }

    bool number_integer(number_integer_t number) override { return Put(static_cast<std::int64_t>(number)); }

    bool number_unsigned(number_unsigned_t number) override
    {
        if (number > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max()))
            return Put(static_cast<double>(number));
        return Put(static_cast<std::int64_t>(number));
    }

    bool number_float(number_float_t number, const string_t&) override { return Put(number); }

    bool string(string_t& text) override { return Put(std::move(text)); }

    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return Open(true); }

    bool end_object() override { return Close(); }

    bool start_array(std::size_t) override { return Open(false); }

    bool end_array() override { return Close(); }

    bool key(string_t& name) override
    {
        Level& level = levels.back();
        if (name.find('\0') != std::string::npos)
            Raise("a name may not hold a null character");
        if (!level.names.insert(name).second)
            Raise("the name " + app_JsonText(name) + " stands twice in one object");
        level.name = std::move(name);
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const Json::exception& error) override
    {
        Raise(Reason(error.what()));
    }

    cls_Value Take() { return std::move(root); }

protected:
    [[noreturn]] void Raise(const std::string& reason) const
    {
        throw app_Error(source.Place() + ": " + reason);
    }

    std::size_t Depth() const { return levels.size(); }

    /// The member that is being read at a level.
    const std::string& Name(std::size_t depth) const { return levels[depth].name; }

    const Source& From() const { return source; }

    /// Called when an array or object begins.
    virtual void Opening(bool) {}

    /// Takes a value that is complete, or leaves it to the array, object or root that it belongs to.
    virtual bool TakeAway(const cls_Value&) { return false; }

private:
    struct Level
    {
        bool isObject;
        cls_Value::Object members;
        cls_Value::Array elements;
        std::string name;
        std::unordered_set<std::string> names;
    };

    bool Open(bool isObject)
    {
        if (levels.size() == deepest)
            Raise(fmt::format("nested more than {} deep", deepest));
        Opening(isObject);
        levels.push_back({isObject, {}, {}, {}, {}});
        return true;
    }

    bool Close()
    {
        Level level = std::move(levels.back());
        levels.pop_back();
        return level.isObject ? Put(std::move(level.members)) : Put(std::move(level.elements));
    }

    bool Put(cls_Value value)
    {
        if (TakeAway(value))
            return true;
        if (levels.empty())
            root = std::move(value);
        else if (levels.back().isObject)
            levels.back().members.emplace_back(std::move(levels.back().name), std::move(value));
        else
            levels.back().elements.push_back(std::move(value));
        return true;
    }

    Source& source;
    std::vector<Level> levels;
    cls_Value root;
};

/// Hands over the named objects of a model.
class ModelBuilder : public Builder
{
public:
    ModelBuilder(Source& source, const app_TakeObject& takeObject, const app_TakeRepository& takeRepository)
        : Builder(source), takeObject(takeObject), takeRepository(takeRepository)
    {}

protected:
    void Opening(bool isObject) override
    {
        if (Depth() == 0 && !isObject)
            RaiseNoModel(cls_Value::Array());
        if (Depth() == 1 && !isObject)
            RaiseNoRepository(cls_Value::Array());
        if (Depth() == 2)
            objectLine = From().Line();
    }

    bool TakeAway(const cls_Value& value) override
    {
        switch (Depth())
        {
        case 0:
            if (!value.AsObject())
                RaiseNoModel(value);
            return false;
        case 1:
            if (!value.AsObject())
                RaiseNoRepository(value);
            AtLine(From().Line(), [this] { takeRepository(Name(0)); });
            return true;
        case 2:
            AtLine(value.AsObject() || value.AsArray() ? objectLine : From().Line(),
                   [this, &value] { takeObject(Name(0), Name(1), value, From().Reached()); });
            return true;
        default:
            return false;
        }
    }

private:
    [[noreturn]] void RaiseNoModel(const cls_Value& found) const
    {
        Raise("expected a model, an object of repositories, found " + found.Summary());
    }

    [[noreturn]] void RaiseNoRepository(const cls_Value& found) const
    {
        Raise(Name(0) + ": expected a repository, an object of named objects, found " + found.Summary());
    }

    template <class Act>
    void AtLine(long line, Act act) const
    {
        try
        {
            act();
        }
        catch (const cls_ValueError& error)
        {
            throw app_Error(fmt::format("{}:{}: {}", From().Name(), line, error.what()));
        }
    }

    const app_TakeObject& takeObject;
    const app_TakeRepository& takeRepository;
    long objectLine = 1;
};

/// Looks for a member "class" of the outermost object that is a text.
class ClassFinder : public nlohmann::json_sax<Json>
{
public:
    bool Found() const { return found; }

    bool null() override { return Other(); }

    bool boolean(bool) override { return Other(); }

    bool number_integer(number_integer_t) override { return Other(); }

    bool number_unsigned(number_unsigned_t) override { return Other(); }

    bool number_float(number_float_t, const string_t&) override { return Other(); }

    bool string(string_t&) override
    {
        found = found || (depth == 1 && isClass);
        return !found && Other();
    }

    bool binary(binary_t&) override { return Other(); }

    bool start_object(std::size_t) override { return Deeper(); }

    bool end_object() override { return Higher(); }

    bool start_array(std::size_t) override { return depth > 0 && Deeper(); }

    bool end_array() override { return Higher(); }

    bool key(string_t& name) override
    {
        isClass = depth == 1 && name == "class";
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const Json::exception&) override { return false; }

private:
    bool Other()
    {
        isClass = false;
        return true;
    }

    bool Deeper()
    {
        ++depth;
        return Other();
    }

    bool Higher()
    {
        --depth;
        return true;
    }

    std::size_t depth = 0;
    bool isClass = false;
    bool found = false;
};

void Parse(Source& source, Builder& builder)
{
    Json::sax_parse(source.Begin(), source.End(), &builder);
}

} // namespace

cls_Value app_ParseJson(const std::string& text, const std::string& source)
{
    Source from(text, source);
    Builder builder(from);
    Parse(from, builder);
    return builder.Take();
}

void app_ParseJsonModel(const std::string& text, const std::string& source, const app_TakeObject& takeObject,
                        const app_TakeRepository& takeRepository)
{
    Source from(text, source);
    ModelBuilder builder(from, takeObject, takeRepository);
    Parse(from, builder);
}

bool app_IsJsonObject(const std::string& text)
{
    ClassFinder finder;
    Json::sax_parse(text, &finder);
    return finder.Found();
}

std::string app_JsonText(const std::string& text)
{
    return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string app_JsonNumber(double number)
{
    if (!std::isfinite(number))
        return app_WriteJson(cls_ValueOfDouble(number), app_JsonLayout::OneLine);
    // Without its fraction the number would be read as an integer, which has no negative zero.
    if (number == 0.0 && std::signbit(number))
        return "-0.0";
    std::string text = fmt::format("{}", number);
    const std::size_t exponent = text.find('e');
    if (exponent != std::string::npos && text[exponent + 1] == '+')
        text.erase(exponent + 1, 1);
    return text;
}

namespace
{

constexpr std::size_t lineWidth = 100;
constexpr std::size_t recordWidth = 260;
constexpr std::size_t step = 2;

bool IsScalar(const cls_Value& value)
{
    return !value.AsArray() && !value.AsObject();
}

std::string ScalarText(const cls_Value& value)
{
    if (const bool* truth = value.AsBool())
        return *truth ? "true" : "false";
    if (const std::int64_t* number = value.AsInteger())
        return std::to_string(*number);
    if (const double* number = value.AsDouble())
        return app_JsonNumber(*number);
    if (const std::string* text = value.AsText())
        return app_JsonText(*text);
    return "null";
}

/// Lays out one value.
class Writer
{
public:
    explicit Writer(app_JsonLayout layout) : layout(layout) {}

    void Write(const cls_Value& value, std::size_t indent)
    {
        if (layout == app_JsonLayout::OneLine)
        {
            WriteFlat(value, std::string::npos);
            return;
        }
        if (FitsFlat(value, indent))
            return;
        if (const cls_Value::Array* elements = value.AsArray())
            WriteArray(*elements, indent);
        else
            WriteObject(*value.AsObject(), indent);
    }

    std::string Take() { return std::move(out); }

private:
    /// Writes the value on the current line if it may stand and has room there.
    bool FitsFlat(const cls_Value& value, std::size_t indent)
    {
        const std::size_t before = out.size();
        const bool isObject = value.AsObject() && !value.AsObject()->empty();
        const std::size_t width = isObject ? recordWidth : lineWidth;
        if (IsScalar(value))
            WriteFlat(value, std::string::npos);
        else if (!MayBeFlat(value) || !WriteFlat(value, before + width - std::min(width, indent)))
        {
            out.resize(before);
            return false;
        }
        return true;
    }

    bool MayBeFlat(const cls_Value& value) const
    {
        if (const cls_Value::Array* elements = value.AsArray())
            return std::all_of(elements->begin(), elements->end(),
                               [this](const cls_Value& element)
                               { return !element.AsObject() && MayBeFlat(element); });
        const cls_Value::Object* members = value.AsObject();
        if (!members || members->empty())
            return true;
        return layout == app_JsonLayout::Records &&
               std::all_of(members->begin(), members->end(),
                           [](const auto& member) { return IsScalar(member.second); });
    }

    /// False as soon as the text grows beyond `limit`.
    bool WriteFlat(const cls_Value& value, std::size_t limit)
    {
        if (const cls_Value::Array* elements = value.AsArray())
        {
            out += '[';
            for (std::size_t i = 0; i < elements->size(); ++i)
            {
                out += i == 0 ? "" : ", ";
                if (!WriteFlat((*elements)[i], limit))
                    return false;
            }
            out += ']';
        }
        else if (const cls_Value::Object* members = value.AsObject())
        {
            out += '{';
            for (std::size_t i = 0; i < members->size(); ++i)
            {
                out += (i == 0 ? "" : ", ") + app_JsonText((*members)[i].first) + ": ";
                if (!WriteFlat((*members)[i].second, limit))
                    return false;
            }
            out += '}';
        }
        else
            out += ScalarText(value);
        return out.size() <= limit;
    }

    void NewLine(std::size_t indent)
    {
        out += '\n';
        out.append(indent, ' ');
    }

    void WriteArray(const cls_Value::Array& elements, std::size_t indent)
    {
        if (std::all_of(elements.begin(), elements.end(), IsScalar))
            return WriteFilled(elements, indent);
        out += '[';
        for (std::size_t i = 0; i < elements.size(); ++i)
        {
            out += i == 0 ? "" : ",";
            NewLine(indent + step);
            Write(elements[i], indent + step);
        }
        NewLine(indent);
        out += ']';
    }

    /// As many scalars on each line as it holds.
    void WriteFilled(const cls_Value::Array& elements, std::size_t indent)
    {
        out += '[';
        NewLine(indent + step);
        std::size_t column = indent + step;
        for (std::size_t i = 0; i < elements.size(); ++i)
        {
            const std::string text = ScalarText(elements[i]);
            if (i > 0)
                out += ',';
            if (i > 0 && column + text.size() + 2 > lineWidth)
            {
                NewLine(indent + step);
                column = indent + step;
            }
            else if (i > 0)
                out += ' ';
            out += text;
            column += text.size() + 2;
        }
        NewLine(indent);
        out += ']';
    }

    void WriteObject(const cls_Value::Object& members, std::size_t indent)
    {
        out += '{';
        for (std::size_t i = 0; i < members.size(); ++i)
        {
            out += i == 0 ? "" : ",";
            NewLine(indent + step);
            out += app_JsonText(members[i].first) + ": ";
            Write(members[i].second, indent + step);
        }
        NewLine(indent);
        out += '}';
    }

    app_JsonLayout layout;
    std::string out;
};

} // namespace

std::string app_WriteJson(const cls_Value& value, app_JsonLayout layout, std::size_t indent)
{
    Writer writer(layout);
    writer.Write(value, indent);
    return writer.Take();
}
