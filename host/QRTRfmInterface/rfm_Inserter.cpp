#include "rfm_Inserter.h"

#include "rfm_Check.h"

rfm_Inserter::rfm_Inserter(rfm_Database& database, const rfm_TableForm& form)
    : statement(database, form.SqlToInsert(), form.name),
      count(static_cast<int>(form.columns.size())),
      checkSeed(form.checkSeed)
{}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells)
{
    rfm_Check check(checkSeed, key);
    for (int i = 0; i < count; ++i)
        check.Add(cells[i]);
    Insert(key, cells, rfm_Cell::Integer(check.Number()));
}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells, const rfm_Cell& check)
{
    statement.Bind(1, key);
    for (int i = 0; i < count; ++i)
        statement.Bind(i + 2, cells[i]);
    statement.Bind(count + 2, check);
    statement.Run(key);
}
