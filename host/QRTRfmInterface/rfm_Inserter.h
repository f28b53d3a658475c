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

    void Flush() { batch.Flush(); }

private:
    rfm_RowBatch batch;
    std::vector<rfm_Cell> row; ///< key, cells, check number
    unsigned checkSeed;
};
