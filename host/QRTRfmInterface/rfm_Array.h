#pragma once

#include "rfm_ArrayStore.h"

/// One array of numbers of type `T`, stored as `Type`, behind its handle.
template <class T, rfm_Type Type>
class rfm_Array
{
    static_assert(sizeof(T) == rfm_SizeOf(Type));

public:
    /// The array under `handle`, or for handle 0 one that is still to be written.
    rfm_Array(rfm_ArrayStore& store, std::int64_t handle) : store(&store), handle(handle) {}

    std::int64_t Handle() const { return handle; }

    /// Numbers that make up one entry of the array.
    int FieldCount() const { return 1; }

    /// Count of numbers; 0 for handle 0. Throws `rom_StoreException` if there is no such array.
    std::int64_t Length() const { return handle == 0 ? 0 : store->Open(handle, Type); }

    /// Copies all numbers to `values`, which has room for `Length()` of them.
    void Read(T* values) const
    {
        if (Length() > 0)
            store->Read(values);
    }

    /// Stores the numbers as a new array and takes its handle.
    void Write(const T* values, std::int64_t length) { handle = store->Insert(Type, values, length); }

private:
    rfm_ArrayStore* store;
    std::int64_t handle;
};
