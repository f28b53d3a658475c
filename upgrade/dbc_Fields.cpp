#include "dbc_Fields.h"

void dbc_MapText(const dbc_Row& input, dbc_Row& output, const rfm_FieldHandle& field,
                 std::initializer_list<dbc_TextPair> pairs, dbc_Fold fold)
{
    if (!dbc_Has(input, field))
        return;
    cow_String text = input.GetText(field);
    if (fold == dbc_Fold::UpperCase)
        text = text.ToUpper();
    for (const auto& [old, current] : pairs)
    {
        if (text == old)
            return output.PutText(field, current);
    }
}
