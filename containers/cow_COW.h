#pragma once

#include "mem_Allocation.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// Policy of handles whose values are copied by T's copy constructor and destroyed by T's own destructor.
/// The values come from mem_OperatorNewThrow, be it by New, by Copy, or by the class's own operator new.
template <class T>
class cow_Direct
{
public:
    /// A new T made from `arguments`, in storage of mem_OperatorNewThrow. The caller owns it.
    template <class... Arguments>
    static T* New(Arguments&&... arguments)
    {
        static_assert(alignof(T) <= alignof(std::max_align_t));
        void* storage = mem_OperatorNewThrow(sizeof(T));
        try
        {
            return ::new (storage) T(std::forward<Arguments>(arguments)...);
        }
        catch (...)
        {
            mem_Free(storage);
            throw;
        }
    }

    static T* Copy(const T& value) { return New(value); }

    static void Delete(T* value) noexcept
    {
        std::destroy_at(value);
        mem_FreeSized(value, sizeof(T));
    }
};

/// Policy of handles on a polymorphic root: values are copied by their virtual Copy() and deleted through
/// their virtual destructor.
template <class T>
class cow_Virtual
{
public:
    static T* Copy(const T& value) { return value.Copy(); }

    static void Delete(T* value) noexcept
    {
        static_assert(std::has_virtual_destructor_v<T>);
        delete value;
    }
};

/// A share count and the value that it counts the holders of. The count is a block of its own; 1 means sole
/// owner. A bare holder copies and releases nothing by itself; cow_COW does.
template <class T>
class cow_CountedHld
{
public:
    /// Takes ownership of `value`, which may be null, with a count of 1. If that fails, `value` stays the
    /// caller's.
    explicit cow_CountedHld(T* value) : count(NewCount()), referent(value) {}

    /// The value to read, or null.
    const T* ConstGet() const { return referent; }
    bool IsNull() const { return referent == nullptr; }
    /// How many handles hold the value.
    int ShareCount() const { return *count; }
    /// Address of the count, the same for all holders of one value.
    const int* CountBlock() const { return count; }

    /// Adds a holder to the count, which must call Release in its turn.
    void Share() { ++*count; }

    /// Takes 1 from the count and tells whether this was the last holder, which must then call Delete.
    bool Release() { return (*count)-- == 1; }

    /// For the last holder: deletes the value, then frees the count.
    void Delete() noexcept
    {
        DeleteReferent();
        FreeCount();
    }

    /// Deletes the value, if there is one: through its virtual destructor where T has one, else by the plain
    /// destructor and mem_Free.
    void DeleteReferent() noexcept
    {
        if constexpr (std::has_virtual_destructor_v<T>)
            DeleteReferentBy<cow_Virtual<T>>();
        else
            DeleteReferentBy<cow_Direct<T>>();
    }

protected:
    cow_CountedHld(const cow_CountedHld&) = default;
    cow_CountedHld& operator=(const cow_CountedHld&) = delete;

    static int* NewCount() { return ::new (mem_OperatorNewTinyThrow(sizeof(int))) int(1); }

    template <class P>
    void DeleteReferentBy() noexcept
    {
        if (referent != nullptr)
            P::Delete(std::exchange(referent, nullptr));
    }

    void FreeCount() noexcept { mem_FreeSized(std::exchange(count, nullptr), sizeof(int)); }

    int* count;
    T* referent;
};

/// Counted copy-on-write handle on a T, which may be null. Copies share the value; Get makes a private copy
/// of a shared one. T is copied and deleted by the policy P, cow_Direct<T> or cow_Virtual<T>. Counts are
/// plain integers: a value and all its handles belong to one thread at a time.
template <class T, class P>
class cow_COW : public cow_CountedHld<T>
{
    using Holder = cow_CountedHld<T>;

public:
    /// Holds no value, with a count of its own.
    cow_COW() : Holder(nullptr) {}

    /// Takes ownership of `value`, which may be null; deletes it when there is no memory for the count.
    cow_COW(T* value)
    try : Holder(value)
    {}
    catch (...)
    {
        if (value != nullptr)
            P::Delete(value);
    }

    /// Holds a copy of `value`.
    cow_COW(const T& value) : cow_COW(P::Copy(value)) {}

    cow_COW(const cow_COW& other) : Holder(other) { ++*this->count; }

    cow_COW& operator=(const cow_COW& other)
    {
        if (this == &other)
            return *this;
        // Releasing can destroy the object that `other` is part of, so its fields are taken first.
        cow_COW taken(other);
        std::swap(this->count, taken.count);
        std::swap(this->referent, taken.referent);
        return *this;
    }

    ~cow_COW()
    {
        if (this->Release())
            Delete();
    }

    /// The value to write. A shared value is copied first, and the other holders keep the old one; when that
    /// throws, the handle is as before. Must not be called on a handle without a value.
    T* Get() { return *this->count == 1 ? this->referent : GetCopy(); }

    /// The value to read. Must not be called on a handle without a value.
    const T& operator*() const { return *this->referent; }
    /// The value to read. Must not be called on a handle without a value.
    const T* operator->() const { return this->referent; }

    /// As cow_CountedHld::Delete, by this handle's policy.
    [[gnu::noinline]] void Delete() noexcept
    {
        DeleteReferent();
        this->FreeCount();
    }

    /// As cow_CountedHld::DeleteReferent, by this handle's policy.
    void DeleteReferent() noexcept { this->template DeleteReferentBy<P>(); }

private:
    [[gnu::noinline]] T* GetCopy()
    {
        T* copy = P::Copy(std::as_const(*this->referent));
        // The copy may itself have released the other shares.
        if (*this->count == 1)
        {
            P::Delete(std::exchange(this->referent, copy));
            return copy;
        }
        cow_COW fresh(copy);
        std::swap(this->count, fresh.count);
        std::swap(this->referent, fresh.referent);
        return copy;
    }
};

/// The handle as an element of lists and maps.
template <class T, class P>
class cow_ArrayCOW : public cow_COW<T, P>
{
public:
    using cow_COW<T, P>::cow_COW;

    cow_ArrayCOW() = default;
    /// Shares the value of `handle`.
    cow_ArrayCOW(const cow_COW<T, P>& handle) : cow_COW<T, P>(handle) {}
};

/// Whether moving a T's bytes to another place and forgetting the old place is as good as moving the T: true
/// for types without pointers into themselves. Containers then move elements by their bytes. A type declares
/// itself by a specialization.
template <class T>
inline constexpr bool cow_IsRelocatable = std::is_trivially_copyable_v<T>;
template <class T, class P>
inline constexpr bool cow_IsRelocatable<cow_COW<T, P>> = true;
template <class T, class P>
inline constexpr bool cow_IsRelocatable<cow_ArrayCOW<T, P>> = true;

/// A handle on a value of any class, for code that only hands it on. It is a handle of its real type seen
/// through another: it may be passed by pointer or reference and turned back with cow_Restored, but not
/// copied, read through or released as it stands.
using cow_ErasedCOW = cow_COW<int, cow_Direct<int>>;

/// `holder` (a cow_COW or a bare cow_CountedHld) as a handle of no known type.
template <class T>
const cow_ErasedCOW& cow_Erased(const cow_CountedHld<T>& holder)
{
    static_assert(sizeof(cow_CountedHld<T>) == sizeof(cow_ErasedCOW));
    return reinterpret_cast<const cow_ErasedCOW&>(holder);
}

/// The handle of real type that was turned to `erased`.
template <class T, class P>
const cow_COW<T, P>& cow_Restored(const cow_ErasedCOW& erased)
{
    static_assert(sizeof(cow_COW<T, P>) == sizeof(cow_ErasedCOW));
    return reinterpret_cast<const cow_COW<T, P>&>(erased);
}

/// Address of the value that `erased` holds, whatever its class, or null: tells shared objects from new ones.
inline const void* cow_ErasedReferent(const cow_ErasedCOW& erased)
{
    const void* fields[2];
    static_assert(sizeof fields == sizeof erased);
    std::memcpy(fields, static_cast<const void*>(&erased), sizeof fields);
    return fields[1];
}

/// A counted holder on the heap, in a tiny block, that takes ownership of `value`; cow_DeleteHolder<T> undoes
/// it.
template <class T>
cow_CountedHld<T>* cow_NewHolder(T* value)
{
    static_assert(sizeof(cow_CountedHld<T>) == 16);
    void* storage = mem_OperatorNewTinyThrow(sizeof(cow_CountedHld<T>));
    try
    {
        return ::new (storage) cow_CountedHld<T>(value);
    }
    catch (...)
    {
        mem_Free(storage);
        throw;
    }
}

/// Body of a root class's CowDtor: releases the share of a holder made by cow_NewHolder<T>, deletes the value
/// if it was the last, and frees the holder itself. Null does nothing.
template <class T>
void cow_DeleteHolder(cow_ErasedCOW* erased)
{
    if (erased == nullptr)
        return;
    auto* holder = reinterpret_cast<cow_CountedHld<T>*>(erased);
    if (holder->Release())
        holder->Delete();
    mem_FreeSized(holder, sizeof *holder);
}
