#pragma once

#include "ovr_Export.h"
#include "rfm_Cursor.h"
#include "rfm_Inserter.h"
#include "rfm_Type.h"

#include <memory>

/// The arrays of numbers of one store, each under a handle of its own.
class OVR_EXPORT rfm_ArrayStore
{
public:
    explicit rfm_ArrayStore(rfm_Database& database);

    /// Adds an array of `length` numbers as they lie in memory, a bool in one byte, and returns its handle.
    std::int64_t Insert(rfm_Type type, const void* values, std::int64_t length);

    /// Makes the arrays that were inserted last readable.
    void Flush();

    /// Goes to an array and returns its length. Throws if there is none of this type under the handle, or its
    /// bytes do not fit its length.
    std::int64_t Open(std::int64_t handle, rfm_Type type);
    /// Copies the numbers of the array that was opened last. Throws if a bool is neither 0 nor 1.
    void Read(void* values) const;

private:
    std::int64_t LastHandle() const;
    [[noreturn]] void RaiseDamaged(const char* field, const char* message) const;

    rfm_Database& database;
    std::unique_ptr<rfm_Inserter> inserter;
    std::unique_ptr<rfm_Cursor> cursor;
    std::int64_t lastHandle = 0;
    rfm_Type openType = rfm_TypeDouble;
    std::string swapped;
};
