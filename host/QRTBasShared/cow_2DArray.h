#pragma once

#include "cow_COW.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

/// Content of a cow_2DArray: rows times columns values, one row behind the other.
template <class T>
class cow_2DArrayRep
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    /// All values zero. A negative size aborts; one that memory cannot hold throws std::bad_alloc.
    cow_2DArrayRep(int rows, int columns) : rows(rows), columns(columns), data(Allocate(rows, columns))
    {
        if (data != nullptr)
            std::memset(data, 0, Bytes());
    }

    cow_2DArrayRep(const cow_2DArrayRep& other)
        : rows(other.rows), columns(other.columns), data(Allocate(rows, columns))
    {
        if (data != nullptr)
            std::memcpy(data, other.data, Bytes());
    }

    cow_2DArrayRep& operator=(const cow_2DArrayRep&) = delete;

    ~cow_2DArrayRep() { mem_Free(data); }

    int Rows() const { return rows; }
    int Columns() const { return columns; }
    /// The values, or null if there are none.
    const T* ConstData() const { return data; }
    T* Data() { return data; }

    std::size_t Size() const { return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns); }
    std::size_t Bytes() const { return Size() * sizeof(T); }

private:
    static T* Allocate(int rows, int columns)
    {
        if (rows < 0 || columns < 0)
            std::abort();
        const std::size_t size = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
        if (size > PTRDIFF_MAX / sizeof(T))
            throw std::bad_alloc();
        return size == 0 ? nullptr : static_cast<T*>(mem_OperatorNewThrowBuiltin(size * sizeof(T)));
    }

    int rows;
    int columns;
    T* data;
};

/// Two-dimensional array of plain values in rows. A copy shares the values; a change makes them private
/// first.
template <class T>
class cow_2DArray
{
    using Rep = cow_2DArrayRep<T>;

public:
    /// No rows and no columns.
    cow_2DArray() = default;

    /// All values zero. A negative size aborts; one that memory cannot hold throws std::bad_alloc.
    cow_2DArray(int rows, int columns) : rep(cow_Direct<Rep>::New(rows, columns)) {}

    int Rows() const { return rep.IsNull() ? 0 : rep->Rows(); }
    int Columns() const { return rep.IsNull() ? 0 : rep->Columns(); }

    /// The value to read; a bad index aborts.
    const T& ConstGet(int row, int column) const { return ConstData()[Index(row, column)]; }

    /// The value to write, private to this array from now on; a bad index aborts. The address is good until
    /// the next copy of the array.
    T& Get(int row, int column)
    {
        const std::size_t index = Index(row, column);
        return rep.Get()->Data()[index];
    }

    void Set(int row, int column, const T& value) { Get(row, column) = value; }

    /// All values, row by row, or null if there are none.
    const T* ConstData() const { return rep.IsNull() ? nullptr : rep->ConstData(); }

    /// The same to write, private to this array from now on. Good until the next copy of the array.
    T* Data() { return rep.IsNull() ? nullptr : rep.Get()->Data(); }

    /// How many arrays share the values; 0 for one made without a size.
    int ShareCount() const { return rep.IsNull() ? 0 : rep.ShareCount(); }

    /// Equal sizes and equal values: an array that holds a NaN equals none, not even itself.
    friend bool operator==(const cow_2DArray& left, const cow_2DArray& right)
    {
        if (!left.HasSizeOf(right))
            return false;
        const T* other = right.ConstData();
        for (std::size_t i = 0; i < left.Size(); ++i)
        {
            if (!(left.ConstData()[i] == other[i]))
                return false;
        }
        return true;
    }

    /// Equal sizes and the same bits in every value.
    bool IdenticalTo(const cow_2DArray& other) const
    {
        if (!HasSizeOf(other))
            return false;
        return ConstData() == other.ConstData() ||
               std::memcmp(ConstData(), other.ConstData(), Size() * sizeof(T)) == 0;
    }

private:
    std::size_t Size() const { return rep.IsNull() ? 0 : rep->Size(); }

    bool HasSizeOf(const cow_2DArray& other) const
    {
        return Rows() == other.Rows() && Columns() == other.Columns();
    }

    std::size_t Index(int row, int column) const
    {
        if (row < 0 || row >= Rows() || column < 0 || column >= Columns()) [[unlikely]]
            std::abort();
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(Columns()) +
               static_cast<std::size_t>(column);
    }

    cow_COW<Rep, cow_Direct<Rep>> rep;
};
