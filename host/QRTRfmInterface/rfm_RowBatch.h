#pragma once

#include "ovr_Export.h"
#include "rfm_Statement.h"

#include <memory>
#include <string>
#include <vector>

struct rfm_TableForm;

/// Gathers rows of one table and puts them in several at a time, which takes less than a statement for each.
/// Rows that were not flushed are lost with the batch.
class OVR_EXPORT rfm_RowBatch
{
public:
    /// `width` is the count of the table's columns; `deed` what is done with each row.
    rfm_RowBatch(rfm_Database& database, const cow_String& table, int width);
    rfm_RowBatch(rfm_Database& database, const rfm_TableForm& form, const char* deed = "INSERT");

    /// One for rows without the key: each takes the number after the highest in the table.
    static rfm_RowBatch WithoutKeys(rfm_Database& database, const rfm_TableForm& form);

    /// Takes a row of `width` cells; texts and blobs are copied. Rows are put in in this order.
    void Add(const rfm_Cell* cells);
    /// The place for the cells of the next row, which `Take` then takes.
    rfm_Cell* NextRow() { return gathered.data() + static_cast<std::ptrdiff_t>(rowCount) * width; }
    void Take();
    /// Puts in what has been gathered.
    void Flush();

private:
    /// Takes as many rows at once as the count of parameters allows.
    static constexpr int mostRows = 16;
    static constexpr int mostParameters = 600;
    static constexpr std::size_t arenaSize = 32768;

    std::string SqlFor(int rows) const;
    void Run(rfm_Statement& statement, const rfm_Cell* cells, int rows);
    void Keep(rfm_Cell& cell);

    rfm_RowBatch(rfm_Database& database, const cow_String& table, const std::string& sqlStart, int width);

    rfm_Database& database;
    cow_String table;
    std::string sqlStart;
    int width;
    int rowLimit;
    rfm_Statement single;
    std::unique_ptr<rfm_Statement> several;
    std::vector<rfm_Cell> gathered;
    int rowCount = 0;
    std::unique_ptr<char[]> arena;
    std::size_t arenaUsed = 0;
};
