#pragma once

#include "ovr_Export.h"
#include "rfm_RowBatch.h"
#include "rfm_TableForm.h"

/// What becomes of a row whose key is there already.
enum class rfm_OnConflict
{
    Fail,
    Replace
};

/// Puts rows into one table. They are there for reading after `Flush`.
class OVR_EXPORT rfm_Inserter
{
public:
    rfm_Inserter(rfm_Database& database, const rfm_TableForm& form,
                 rfm_OnConflict onConflict = rfm_OnConflict::Fail);

    /// `cells` are as many as the table has columns.
    void Insert(std::int64_t key, const rfm_Cell* cells);
    /// The same with a check number that is given: a null cell for a row without one.
    void Insert(std::int64_t key, const rfm_Cell* cells, const rfm_Cell& check);

    /// The same for a key that follows the highest in the table, or is 1 in an empty one: nobody else may
    /// have put in a higher one. SQLite need not look then whether the row is there.
    void Append(std::int64_t key, const rfm_Cell* cells);

    void Flush();

private:
    void FlushAppended();
    std::int64_t CheckOf(std::int64_t key, const rfm_Cell* cells) const;

    rfm_Database& database;
    rfm_TableForm form;
    rfm_RowBatch batch;
    std::unique_ptr<rfm_RowBatch> appender; ///< made when it is needed
    std::unique_ptr<rfm_Statement> highest;
    std::int64_t lastAppended = 0;
};
