#include "rfm_Inserter.h"

#include "rfm_Check.h"
#include "rfm_Database.h"

#include <algorithm>

rfm_Inserter::rfm_Inserter(rfm_Database& database, const rfm_TableForm& form, rfm_OnConflict onConflict)
    : database(database),
      form(form),
      batch(database, form, onConflict == rfm_OnConflict::Replace ? "REPLACE" : "INSERT")
{}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells)
{
    Insert(key, cells, rfm_Cell::Integer(CheckOf(key, cells)));
}

void rfm_Inserter::Insert(std::int64_t key, const rfm_Cell* cells, const rfm_Cell& check)
{
    FlushAppended();
    rfm_Cell* row = batch.NextRow();
    *row = rfm_Cell::Integer(key);
    *std::copy_n(cells, form.columns.size(), row + 1) = check;
    batch.Take();
}

void rfm_Inserter::Append(std::int64_t key, const rfm_Cell* cells)
{
    batch.Flush();
    if (!appender)
        appender.reset(new rfm_RowBatch(rfm_RowBatch::WithoutKeys(database, form)));
    *std::copy_n(cells, form.columns.size(), appender->NextRow()) = rfm_Cell::Integer(CheckOf(key, cells));
    appender->Take();
    lastAppended = key;
}

void rfm_Inserter::Flush()
{
    batch.Flush();
    FlushAppended();
}

void rfm_Inserter::FlushAppended()
{
    if (lastAppended == 0)
        return;
    appender->Flush();
    if (!highest)
        highest = std::make_unique<rfm_Statement>(
            database, "SELECT MAX(" + rfm_Quoted(form.keyColumn) + ") FROM " + form.SqlName(), form.name);
    const std::int64_t found = highest->Step() ? highest->Column(0).integer : 0;
    highest->Reset();
    if (found != lastAppended)
        database.Raise("The row was put in as row " + std::to_string(found) + ".", form.name, lastAppended,
                       form.keyColumn);
    lastAppended = 0;
}

std::int64_t rfm_Inserter::CheckOf(std::int64_t key, const rfm_Cell* cells) const
{
    rfm_Check check(form.checkSeed, key);
    for (std::size_t i = 0; i < form.columns.size(); ++i)
        check.Add(cells[i]);
    return check.Number();
}
