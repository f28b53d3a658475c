#pragma once

#include "dbc_Row.h"

#include <map>
#include <stdexcept>
#include <string>
#include <variant>

/// A row of a table that a test makes up: the fields that the table has, and what is in them. Asking for
/// what is not there throws std::logic_error.
class MemoryRow final : public dbc_Row
{
public:
    using Value = std::variant<std::monostate, std::int64_t, bool, double, std::string>;
    using Fields = std::map<std::string, Value>;

    /// What a field without value holds.
    static constexpr std::monostate none{};

    explicit MemoryRow(Fields fields = {}, std::int64_t oid = 1) : fields(std::move(fields)), oid(oid) {}

    const Fields& All() const { return fields; }

    bool HasField(const rfm_FieldHandle& field) const override { return Find(field) != nullptr; }

    bool HasValue(const rfm_FieldHandle& field) const override
    {
        const Value* value = Find(field);
        return value != nullptr && !std::holds_alternative<std::monostate>(*value);
    }

    std::int64_t GetInt(const rfm_FieldHandle& field) const override { return Get<std::int64_t>(field); }
    cow_String GetText(const rfm_FieldHandle& field) const override
    {
        return Get<std::string>(field).c_str();
    }
    double GetDouble(const rfm_FieldHandle& field) const override { return Get<double>(field); }
    bool GetBool(const rfm_FieldHandle& field) const override { return Get<bool>(field); }

    void PutInt(const rfm_FieldHandle& field, std::int64_t value) override { fields[Name(field)] = value; }
    void PutText(const rfm_FieldHandle& field, const cow_String& value) override
    {
        fields[Name(field)] = std::string(value.View());
    }
    void PutDouble(const rfm_FieldHandle& field, double value) override { fields[Name(field)] = value; }
    void PutBool(const rfm_FieldHandle& field, bool value) override { fields[Name(field)] = value; }
    void PutAbsent(const rfm_FieldHandle& field) override { fields[Name(field)] = none; }

    std::int64_t Oid() const override { return oid; }

private:
    static std::string Name(const rfm_FieldHandle& field)
    {
        if (field.Index() != -1)
            throw std::logic_error("a conversion finds its fields by name");
        return std::string(field.Name().View());
    }

    /// The field, or for the bare name of a reference its row number.
    const Value* Find(const rfm_FieldHandle& field) const
    {
        const std::string name = Name(field);
        for (const std::string& each : {name, name + "#OID"})
        {
            if (const auto found = fields.find(each); found != fields.end())
                return &found->second;
        }
        return nullptr;
    }

    template <class T>
    const T& Get(const rfm_FieldHandle& field) const
    {
        const auto found = fields.find(Name(field));
        if (found == fields.end() || !std::holds_alternative<T>(found->second))
            throw std::logic_error("the row has no such value in " + Name(field));
        return std::get<T>(found->second);
    }

    Fields fields;
    std::int64_t oid;
};

/// One line of a table of conversions: what the input row holds, and all that is put into the output row.
struct ConversionRow
{
    const char* input;
    MemoryRow::Fields from;
    MemoryRow::Fields to;
};
