#include "dbc_NewFields.h"

namespace
{

class Writer
{
public:
    Writer(dbc_Row& row, const rfm_FieldHandle& field) : row(row), field(field) {}

    void operator()(int value) const { row.PutInt(field, value); }
    void operator()(double value) const { row.PutDouble(field, value); }
    void operator()(bool value) const { row.PutBool(field, value); }
    void operator()(const char* value) const { row.PutText(field, value); }

private:
    dbc_Row& row;
    const rfm_FieldHandle& field;
};

} // namespace

void dbc_NewField::Put(dbc_Row& output) const
{
    std::visit(Writer(output, field), value);
}

void dbc_PutNew(dbc_Row& output, std::span<const dbc_NewField> fields)
{
    for (const dbc_NewField& field : fields)
        field.Put(output);
}

void dbc_PutMissing(const dbc_Row& input, dbc_Row& output, std::span<const dbc_NewField> fields)
{
    for (const dbc_NewField& field : fields)
    {
        if (!dbc_Has(input, field.Field()))
            field.Put(output);
    }
}
