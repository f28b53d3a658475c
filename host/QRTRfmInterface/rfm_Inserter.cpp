#include "rfm_Inserter.h"

#include "rfm_Check.h"

#include <algorithm>

rfm_Inserter::rfm_Inserter(rfm_Database& database, const rfm_TableForm& form, rfm_OnConflict onConflict)
    : batch(database, form, onConflict == rfm_OnConflict::Replace ? "REPLACE" : "INSERT"),
      row(form.columns.size() + 2),
      checkSeed(form.checkSeed)
{}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells)
{
    rfm_Check check(checkSeed, key);
    for (std::size_t i = 0; i < row.size() - 2; ++i)
        check.Add(cells[i]);
    Insert(key, cells, rfm_Cell::Integer(check.Number()));
}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells, const rfm_Cell& check)
{
    row.front() = rfm_Cell::Integer(key);
    std::copy_n(cells, row.size() - 2, row.begin() + 1);
    row.back() = check;
    batch.Add(row.data());
}
