#include "kamC_PsdDefinition.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_PsdDefinition)

void kamC_PsdDefinition::AssertValid() const
{
    kamC_Assert(g >= 0.0, 13);
    kamC_Assert(dbReference >= 0.0, 14);
    kamC_Assert(!(user && type == PsdTypeEnm::DB), 23);
    if (user)
        return;
    kamC_Assert(table.Columns() == 3, 15);
    if (type != PsdTypeEnm::DB)
        return;
    for (int row = 0; row < table.Rows(); ++row)
    {
        const double band = table.ConstGet(row, 2);
        kamC_Assert(1.0 <= band && band <= 15.0, 25);
    }
}
