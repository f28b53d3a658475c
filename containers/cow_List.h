#pragma once

#include "cow_COW.h"
#include "mem_Allocation.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

/// A run of elements that several lists may share: room for 1 << blockShift elements, of which those are
/// constructed that lie in the range of the lists that hold the block.
template <class T>
struct cow_ListBlock
{
    int share;
    T* data;
};

/// A sequence by value: a table of blocks, with a share count on the table and on each block. A copy costs
/// one increment; a change copies the table and the blocks that it touches, if they are shared; both ends
/// grow in amortized constant time. Element i lies at position offset + i, counted from the start of block 0.
///
/// An index out of range ends the process through abort. When an element's constructor throws, the count is
/// unchanged. Counts are plain integers: a list and all its copies belong to one thread at a time.
template <class T>
class cow_List
{
public:
    class const_iterator;
    using value_type = T;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using reference = const T&;
    using const_reference = const T&;
    using iterator = const_iterator;

    cow_List() { SetEmpty(); }
    explicit cow_List(const T& a) : cow_List() { Append(a); }
    cow_List(const T& a, const T& b) : cow_List(a) { Append(b); }
    cow_List(const T& a, const T& b, const T& c) : cow_List(a, b) { Append(c); }
    cow_List(const T& a, const T& b, const T& c, const T& d) : cow_List(a, b, c) { Append(d); }

    /// Shares the content of `other`.
    cow_List(const cow_List& other) noexcept
        : count(other.count),
          tableSize(other.tableSize),
          blockShift(other.blockShift),
          offset(other.offset),
          tableShare(other.tableShare),
          table(other.table)
    {
        ++*tableShare;
        CloseEnds();
    }

    /// Shares the content of `other`.
    cow_List& operator=(const cow_List& other) noexcept
    {
        if (this == &other)
            return *this;
        // Releasing can destroy the element that `other` is part of, so its fields are taken first.
        cow_List taken(other);
        Swap(taken);
        return *this;
    }

    ~cow_List()
    {
        if ((*tableShare)-- == 1)
            Destroy();
    }

    /// Makes the list empty, with room for `n` elements in 8 to 16 blocks, or in blocks of 16 when `n` is
    /// below 256. The size of the blocks stays until the list is resized to 0.
    void Initialize(int n)
    {
        cow_List fresh;
        if (n > 0)
            fresh.MakeRoom(n);
        Swap(fresh);
    }

    /// Number of elements.
    int Count() const { return count; }
    bool IsEmpty() const { return count == 0; }

    /// The element to read; a bad index aborts.
    const T& operator[](int i) const
    {
        CheckIndex(i);
        return *At(offset + i);
    }

    /// The element to write, private to this list from now on; a bad index aborts. The address is good until
    /// the next change of the list or copy of it.
    T* Get(int i)
    {
        CheckIndex(i);
        const int position = offset + i;
        if (!IsPrivate(position)) [[unlikely]]
        {
            CopyArray();
            IsolateRange(i, i);
        }
        return At(position);
    }

    void Append(const T& value)
    {
        // Read before the branch, so that a loop of calls can keep it in a register.
        const int countBefore = count;
        if (table == nullptr || Head().backNext == Head().backEnd) [[unlikely]]
            OpenBack();
        ::new (static_cast<void*>(Head().backNext)) T(value);
        ++Head().backNext;
        count = countBefore + 1;
    }

    void Prepend(const T& value)
    {
        const int countBefore = count;
        if (table == nullptr || Head().frontNext == Head().frontEnd) [[unlikely]]
            OpenFront();
        ::new (static_cast<void*>(Head().frontNext - 1)) T(value);
        --Head().frontNext;
        --offset;
        count = countBefore + 1;
    }

    /// Puts `value` before element `i`; `i` may be the count, any other index out of range aborts.
    void InsertIndex(int i, const T& value)
    {
        if (i == count)
            return Append(value);
        if (i == 0)
            return Prepend(value);
        CheckIndex(i);
        CopyArray();
        CloseEnds();
        // `value` may be one of the elements that move.
        Holding held(value);
        if (count - i > i)
            InsertTowardsFront(i, held);
        else
            InsertTowardsBack(i, held);
    }

    /// Removes element `i`; a bad index aborts.
    void RemoveIndex(int i)
    {
        CheckIndex(i);
        CopyArray();
        CloseEnds();
        if (count - i <= i)
            RemoveTowardsBack(i);
        else
            RemoveTowardsFront(i);
    }

    /// Removes the last element and returns it; aborts on an empty list.
    T Pop()
    {
        CheckIndex(count - 1);
        T last(*At(offset + count - 1));
        RemoveIndex(count - 1);
        return last;
    }

    /// Makes room for `n` elements, or drops those from index `n` on; never raises the count. 0 also takes
    /// the block size and the offset back to those of a new list.
    void Resize(int n)
    {
        n = std::max(n, 0);
        if (n < count || n == 0)
            return Shrink(n);
        CopyArray();
        FitTable(PositionFor(n));
    }

    /// Extends the list to `n` elements with copies of `value`; does nothing when it has as many.
    void Fill(int n, const T& value)
    {
        if (count >= n)
            return;
        const auto make = [&value](T* place, int, int run)
        {
            std::uninitialized_fill_n(place, run, value);
            return run;
        };
        Resize(n);
        Construct(n - count, make);
    }

    /// The elements with from <= index < to; bounds out of range are clamped.
    cow_List Slice(int from, int to) const
    {
        const int least = std::max(from, 0);
        const int end = std::min(std::max(to, least), count);
        const int first = std::min(end, least);
        cow_List slice;
        slice.Initialize(end - first);
        slice.ConstructFrom(*this, first, end - first);
        return slice;
    }

    /// Appends all elements of `other`, which may be this list.
    void Concatenate(const cow_List& other)
    {
        Resize(PositionFor(std::int64_t{count} + other.count) - offset);
        ConstructFrom(other, 0, other.count);
    }

    /// Replaces the content by `n` elements.
    void SetFromArray(const T* array, int n)
    {
        n = std::max(n, 0);
        Resize(n);
        if (n == 0)
            return;
        const int present = count;
        if (present > 0)
            IsolateRange(0, present - 1);
        ForRuns(offset, present, [&](T* place, int done, int run) { std::copy_n(array + done, run, place); });
        const auto make = [array, present](T* place, int done, int run)
        {
            std::uninitialized_copy_n(array + present + done, run, place);
            return run;
        };
        Construct(n - present, make);
    }

    /// A new array of the elements, made by `new T[n]`; sets `n` to their number. The caller owns it and
    /// frees it with `delete[]`. Handles among the elements share their values with the list.
    T* GetCArray(int& n) const
    {
        std::unique_ptr<T[]> array(new T[static_cast<std::size_t>(count)]);
        ForRuns(offset, count,
                [&](const T* place, int done, int run) { std::copy_n(place, run, &array[done]); });
        n = count;
        return array.release();
    }

    /// Equal counts and equal elements; an element that both lists share is equal to itself whatever its
    /// equality says.
    bool IsEqual(const cow_List& other) const requires std::equality_comparable<T>
    {
        if (count != other.count)
            return false;
        const auto same = [](const T& a, const T& b)
        { return std::addressof(a) == std::addressof(b) || a == b; };
        return std::equal(begin(), end(), other.begin(), same);
    }

    /// Index of the first element equal to `value`, or -1.
    int FindMember(const T& value) const requires std::equality_comparable<T>
    {
        int index = 0;
        for (const T& element : *this)
        {
            if (element == value)
                return index;
            ++index;
        }
        return -1;
    }

    bool IsMember(const T& value) const requires std::equality_comparable<T>
    {
        return FindMember(value) >= 0;
    }

    void AppendUnlessMember(const T& value) requires std::equality_comparable<T>
    {
        if (!IsMember(value))
            Append(value);
    }

    /// Removes the first element equal to `value`, if there is one.
    void RemoveMember(const T& value) requires std::equality_comparable<T>
    {
        const int index = FindMember(value);
        if (index >= 0)
            RemoveIndex(index);
    }

    /// The elements of this list, in order and with their duplicates, that `other` does not have.
    cow_List Difference(const cow_List& other) const requires std::equality_comparable<T>
    {
        cow_List difference;
        for (const T& element : *this)
        {
            if (!other.IsMember(element))
                difference.Append(element);
        }
        return difference;
    }

    /// Read-only iteration in place. Unlike cow_ListIter, an iterator holds no share and is good until the
    /// list changes or goes.
    const_iterator begin() const { return const_iterator(*this); }
    const_iterator end() const { return const_iterator(); }

    // The steps that the operations above are made of.

    /// Makes the table private; blocks stay shared.
    void CopyArray()
    {
        if (*tableShare > 1) [[unlikely]]
            UnshareTable();
    }

    /// Makes the blocks that hold elements first..last exist and private, with this list's elements in them;
    /// -1 is the place before element 0. The table must be private and reach that far.
    void IsolateRange(int first, int last)
    {
        const int lastSlot = (offset + last) >> blockShift;
        for (int slot = (offset + first) >> blockShift; slot <= lastSlot; ++slot)
            PrivateBlock(slot);
    }

    /// Makes room at the front, where there is none, out of all free room at the back; makes the table
    /// private.
    void Prefix()
    {
        if (offset == 0)
            ShiftTable();
        else
            CopyArray();
    }

    /// Copy-constructs `n` elements, all in one private block, over raw storage at index `start`.
    void InitializeBlock(const T* source, int start, int n)
    {
        std::uninitialized_copy_n(source, n, At(offset + start));
    }

    /// Ends the process: `index` is out of range.
    [[noreturn, gnu::noinline, gnu::cold]] void RaiseOutOfRange([[maybe_unused]] int index) const
    {
        std::abort();
    }

    // The layout, for tests and reports.

    /// Slots in the block table.
    int TableSize() const { return tableSize; }
    /// log2 of the elements in a block.
    int BlockShift() const { return blockShift; }
    /// Position of element 0.
    int Offset() const { return offset; }
    /// How many lists and iterators share the table.
    int TableShare() const { return *tableShare; }
    /// The block in a slot of the table, or null; a bad slot aborts.
    const cow_ListBlock<T>* Block(int slot) const
    {
        if (static_cast<unsigned>(slot) >= static_cast<unsigned>(tableSize))
            RaiseOutOfRange(slot);
        return table[slot];
    }
    /// How many tables share the block in a slot, 0 when there is none; a bad slot aborts.
    int BlockShare(int slot) const
    {
        const cow_ListBlock<T>* block = Block(slot);
        return block == nullptr ? 0 : block->share;
    }

private:
    template <class>
    friend class cow_ListIter;

    using ListBlock = cow_ListBlock<T>;

    static constexpr int newBlockShift = 4;
    static constexpr int usualBlockSize = 1 << newBlockShift;
    static constexpr int tableUnitShift = 4;
    static constexpr int tableUnit = 1 << tableUnitShift;

    /// A copy of a value on its way into the list. Relocatable elements go there by their bytes.
    class Holding
    {
    public:
        explicit Holding(const T& value) { ::new (static_cast<void*>(storage)) T(value); }
        Holding(const Holding&) = delete;
        Holding& operator=(const Holding&) = delete;
        ~Holding()
        {
            if (!moved)
                std::destroy_at(Value());
        }

        void AssignTo(T* place) { *place = std::move(*Value()); }
        void RelocateTo(T* place) noexcept
        {
            RelocateRun(place, Value(), 1);
            moved = true;
        }

    private:
        T* Value() { return std::launder(reinterpret_cast<T*>(storage)); }

        alignas(T) std::byte storage[sizeof(T)];
        bool moved = false;
    };

    static void RelocateRun(T* to, const T* from, int n) noexcept
    {
        std::memmove(static_cast<void*>(to), static_cast<const void*>(from),
                     static_cast<std::size_t>(n) * sizeof(T));
    }

    static int* NewShare() { return ::new (mem_OperatorNewTinyThrow(sizeof(int))) int(1); }

    /// Lies right before the table's slots. Its storage begins `gap` unused slots before it and has room for
    /// `capacity` slots in all, so that the table grows at both ends without being copied each time.
    struct TableHead
    {
        T* backNext;  ///< place behind the last element, where Append writes next; or as backEnd: closed
        T* backEnd;   ///< end of that private block
        T* frontNext; ///< place of element 0, before which Prepend writes next; or as frontEnd: closed
        T* frontEnd;  ///< start of that private block
        int gap;
        int capacity;
    };

    TableHead& Head() const { return reinterpret_cast<TableHead*>(table)[-1]; }

    /// Storage of a table, with its head, for `capacity` slots of which the first `gap` stay unused.
    static ListBlock** NewTable(int gap, int capacity)
    {
        const auto slots = static_cast<std::size_t>(capacity) * sizeof(ListBlock*);
        auto* storage = static_cast<std::byte*>(mem_OperatorNewThrow(sizeof(TableHead) + slots));
        auto* head =
            reinterpret_cast<TableHead*>(storage + static_cast<std::size_t>(gap) * sizeof(ListBlock*));
        ::new (static_cast<void*>(head)) TableHead{nullptr, nullptr, nullptr, nullptr, gap, capacity};
        return reinterpret_cast<ListBlock**>(head + 1);
    }

    void FreeTable() noexcept
    {
        if (table != nullptr)
            mem_Free(reinterpret_cast<ListBlock**>(&Head()) - Head().gap);
    }

    /// Before a change other than Append and Prepend, and when the table gets another holder: their next
    /// places have to be found anew. An open end belongs to a table that is not shared.
    void CloseEnds() noexcept
    {
        if (table == nullptr)
            return;
        Head().backNext = Head().backEnd = nullptr;
        Head().frontNext = Head().frontEnd = nullptr;
    }

    int BlockSize() const { return 1 << blockShift; }

    T* At(int position) const { return table[position >> blockShift]->data + (position & (BlockSize() - 1)); }

    void CheckIndex(int i) const
    {
        if (static_cast<unsigned>(i) >= static_cast<unsigned>(count)) [[unlikely]]
            RaiseOutOfRange(i);
    }

    /// Whether the element at `position`, which the table reaches, can be written as it is.
    bool IsPrivate(int position) const
    {
        if (*tableShare > 1)
            return false;
        const ListBlock* block = table[position >> blockShift];
        return block != nullptr && block->share == 1;
    }

    /// The position after element n - 1, which must be one that an int can hold.
    int PositionFor(std::int64_t n) const
    {
        if (n > INT_MAX - offset)
            throw std::length_error("cow_List: more elements than a list can number");
        return static_cast<int>(offset + n);
    }

    int SlotsFor(std::int64_t position) const
    {
        const int unitShift = blockShift + tableUnitShift;
        const std::int64_t units = (position + (std::int64_t{1} << unitShift) - 1) >> unitShift;
        return static_cast<int>(units << tableUnitShift);
    }

    void SetEmpty()
    {
        count = 0;
        tableSize = 0;
        blockShift = newBlockShift;
        offset = 0;
        table = nullptr;
        tableShare = NewShare();
    }

    void Swap(cow_List& other) noexcept
    {
        std::swap(count, other.count);
        std::swap(tableSize, other.tableSize);
        std::swap(blockShift, other.blockShift);
        std::swap(offset, other.offset);
        std::swap(tableShare, other.tableShare);
        std::swap(table, other.table);
    }

    /// Sets block size and table of an empty list so that `n` elements take 8 to 16 blocks.
    void MakeRoom(int n)
    {
        // The exponent of n as a float is its rounded log2, and the top of its fraction tells the blocks
        // needed.
        const auto bits = std::bit_cast<std::uint32_t>(static_cast<float>(n));
        const int shift = static_cast<int>(bits >> 23) - 130;
        int slots = tableUnit;
        if (shift > newBlockShift)
            slots += static_cast<int>(((bits & 0x7FFFFFu) + 0x8FFFFFu) >> 20);
        table = NewTable(0, slots);
        std::fill_n(table, slots, nullptr);
        tableSize = slots;
        blockShift = std::max(shift, newBlockShift);
    }

    /// A block with share 1 and raw storage.
    ListBlock* NewBlock() const
    {
        // A size known to the compiler takes the shorter way through the slab.
        if (blockShift == newBlockShift) [[likely]]
            return NewBlockOf(sizeof(T) << newBlockShift);
        return NewBlockOf(sizeof(T) << blockShift);
    }

    static ListBlock* NewBlockOf(std::size_t bytes)
    {
        static_assert(sizeof(ListBlock) == 16 && alignof(T) <= alignof(std::max_align_t));
        void* storage = mem_OperatorNewTinyThrow(sizeof(ListBlock));
        try
        {
            return ::new (storage) ListBlock{1, static_cast<T*>(mem_OperatorNewThrow(bytes))};
        }
        catch (...)
        {
            mem_Free(storage);
            throw;
        }
    }

    /// A new block of the usual size in an empty slot; returns its data.
    T* AddUsualBlock(unsigned slot)
    {
        ListBlock* block = NewBlockOf(sizeof(T) << newBlockShift);
        table[slot] = block;
        return block->data;
    }

    void FreeBlock(ListBlock* block) const noexcept
    {
        if (blockShift == newBlockShift) [[likely]]
            mem_FreeSized(block->data, sizeof(T) << newBlockShift);
        else
            mem_Free(block->data);
        mem_FreeSized(block, sizeof *block);
    }

    /// Takes the list's share from the block in `slot`, if there is one; the last one destroys the elements,
    /// from the last down. True when the block is left to be freed. The slot keeps its pointer.
    bool ReleaseBlock(int slot) noexcept
    {
        ListBlock* block = table[slot];
        if (block == nullptr || --block->share > 0)
            return false;
        if constexpr (!std::is_trivially_destructible_v<T>)
        {
            const Range range = RangeIn(slot);
            DestroyDown(block->data + range.first, block->data + range.end);
        }
        return true;
    }

    void DropBlock(int slot) noexcept
    {
        if (ReleaseBlock(slot))
            FreeBlock(table[slot]);
        table[slot] = nullptr;
    }

    static void DestroyDown(T* first, T* end) noexcept
    {
        if constexpr (!std::is_trivially_destructible_v<T>)
        {
            while (end != first)
                std::destroy_at(--end);
        }
    }

    /// Releases the blocks, the table and the share count of a list that nothing shares any more. Blocks that
    /// were made one after the other are freed together.
    [[gnu::noinline]] void Destroy() noexcept
    {
        {
            mem_FreeMany<sizeof(T) << newBlockShift> data;
            mem_FreeMany<sizeof(ListBlock)> blocks;
            for (int slot = 0; slot < tableSize; ++slot)
            {
                if (!ReleaseBlock(slot))
                    continue;
                if (blockShift == newBlockShift) [[likely]]
                    data.Add(table[slot]->data);
                else
                    mem_Free(table[slot]->data);
                blocks.Add(table[slot]);
            }
        }
        FreeTable();
        mem_Free(tableShare);
    }

    struct Range
    {
        int first;
        int end;
    };

    /// The places in the block of `slot` that this list's elements take.
    Range RangeIn(int slot) const
    {
        const std::int64_t start = std::int64_t{slot} << blockShift;
        const auto place = [&](std::int64_t position)
        { return static_cast<int>(std::clamp<std::int64_t>(position - start, 0, BlockSize())); };
        return {place(offset), place(std::int64_t{offset} + count)};
    }

    /// The data of the block in `slot`, which is made or isolated if need be.
    T* PrivateBlock(int slot)
    {
        if (table[slot] == nullptr)
            table[slot] = NewBlock();
        else if (table[slot]->share > 1) [[unlikely]]
            IsolateBlock(slot);
        return table[slot]->data;
    }

    [[gnu::noinline]] void UnshareTable()
    {
        ListBlock** copy = nullptr;
        int* fresh = NewShare();
        if (tableSize != 0)
        {
            try
            {
                copy = NewTable(0, tableSize);
            }
            catch (...)
            {
                mem_Free(fresh);
                throw;
            }
            std::memcpy(copy, table, static_cast<std::size_t>(tableSize) * sizeof(ListBlock*));
            ShareBlocks();
            CloseEnds();
        }
        --*tableShare;
        tableShare = fresh;
        table = copy;
    }

    void ShareBlocks() noexcept
    {
        for (int slot = 0; slot < tableSize; ++slot)
        {
            if (table[slot] != nullptr)
                ++table[slot]->share;
        }
    }

    /// Replaces a shared block by a private one with copies of the list's elements, up to the place `end`.
    void IsolateBlock(int slot, int end)
    {
        ListBlock* shared = table[slot];
        const int first = RangeIn(slot).first;
        ListBlock* block = NewBlock();
        try
        {
            if (end > first)
                std::uninitialized_copy_n(shared->data + first, end - first, block->data + first);
        }
        catch (...)
        {
            FreeBlock(block);
            throw;
        }
        --shared->share;
        table[slot] = block;
    }

    [[gnu::noinline]] void IsolateBlock(int slot) { IsolateBlock(slot, RangeIn(slot).end); }

    /// Grows or shrinks the private table to the whole units that reach `position`.
    void FitTable(std::int64_t position)
    {
        const int slots = SlotsFor(position);
        if (slots != tableSize) [[unlikely]]
            SetTableSize(slots);
    }

    [[gnu::noinline]] void SetTableSize(int slots)
    {
        // An operation that failed can have left blocks behind the last element.
        for (int slot = slots; slot < tableSize; ++slot)
            DropBlock(slot);
        LayTable(slots, 0);
    }

    /// Gives the private table `slots` slots, with the present ones moved up by `shift`. Slots that fall off
    /// the end must be null; new ones are.
    void LayTable(int slots, int shift)
    {
        const int kept = std::min(tableSize, slots - shift);
        if (slots == 0)
        {
            FreeTable();
            table = nullptr;
        }
        else if (FitsStorage(slots, shift))
            MoveHeadDown(shift);
        else
            NewStorage(slots, shift, kept);
        tableSize = slots;
        if (slots == 0)
            return;
        CloseEnds();
        std::fill_n(table, shift, nullptr);
        std::fill(table + shift + kept, table + slots, nullptr);
    }

    bool FitsStorage(int slots, int shift) const
    {
        constexpr int wasteful = 8;
        if (table == nullptr || Head().gap < shift)
            return false;
        return Head().gap - shift + slots <= Head().capacity && Head().capacity / wasteful <= slots;
    }

    void MoveHeadDown(int shift) noexcept
    {
        TableHead head = Head();
        head.gap -= shift;
        table -= shift;
        ::new (static_cast<void*>(&Head())) TableHead(head);
    }

    /// New storage for LayTable: room as long as the table itself at the end that grows, at the other as it
    /// was.
    void NewStorage(int slots, int shift, int kept)
    {
        int gap = 0;
        int back = 0;
        if (table != nullptr && slots > tableSize)
        {
            gap = shift > 0 ? slots : std::min(Head().gap, slots);
            back = shift > 0 ? std::min(Head().capacity - Head().gap - tableSize, slots) : slots;
        }
        ListBlock** fresh = NewTable(gap, gap + slots + back);
        std::copy_n(table, kept, fresh + shift);
        FreeTable();
        table = fresh;
    }

    void Shrink(int n)
    {
        if (n == 0 && *tableShare > 1)
        {
            cow_List fresh;
            return Swap(fresh);
        }
        CopyArray();
        CloseEnds();
        const int position = n == 0 ? 0 : offset + n;
        const int keptSlots = static_cast<int>((std::int64_t{position} + BlockSize() - 1) >> blockShift);
        const int lastPlace = position & (BlockSize() - 1);
        const bool isSharedBlockCut = lastPlace != 0 && table[keptSlots - 1]->share > 1;
        // What can throw comes first, so that a failed copy leaves all elements in place.
        if (isSharedBlockCut)
            IsolateBlock(keptSlots - 1, lastPlace);
        for (int slot = keptSlots; slot < tableSize; ++slot)
            DropBlock(slot);
        if (lastPlace != 0 && !isSharedBlockCut)
            DestroyDown(At(position), table[keptSlots - 1]->data + RangeIn(keptSlots - 1).end);
        count = n;
        FitTable(position);
        if (n == 0)
        {
            blockShift = newBlockShift;
            offset = 0;
        }
    }

    /// Makes the place behind the last element ready to be written. Most often a block of the usual size has
    /// just become full, and an empty slot follows in the same unit of the table.
    [[gnu::noinline]] void OpenBack()
    {
        const unsigned position = static_cast<unsigned>(offset) + static_cast<unsigned>(count);
        const unsigned slot = position >> newBlockShift;
        if (table == nullptr || blockShift != newBlockShift || Head().backNext == nullptr ||
            slot % tableUnit == 0 || table[slot] != nullptr || position > INT_MAX - usualBlockSize)
            return FindBack();
        T* data = AddUsualBlock(slot);
        Head().backNext = data;
        Head().backEnd = data + usualBlockSize;
    }

    /// As OpenBack, whatever the state.
    [[gnu::noinline]] void FindBack()
    {
        CopyArray();
        const std::int64_t position = std::int64_t{offset} + count;
        const auto slot = static_cast<int>(position >> blockShift);
        if ((slot | (tableUnit - 1)) + 1 != tableSize) [[unlikely]]
            FitTable(PositionFor(std::int64_t{count} + 1));
        T* data = PrivateBlock(slot);
        Head().backNext = data + (position & (BlockSize() - 1));
        Head().backEnd = data + BlockSize();
    }

    /// Makes the place before element 0 ready to be written; most often as OpenBack, if the table has a slot
    /// left before it.
    [[gnu::noinline]] void OpenFront()
    {
        const unsigned slot = (static_cast<unsigned>(offset) >> newBlockShift) - 1;
        if (table == nullptr || blockShift != newBlockShift || Head().frontNext == nullptr || offset == 0 ||
            table[slot] != nullptr)
            return FindFront();
        T* data = AddUsualBlock(slot);
        Head().frontNext = data + usualBlockSize;
        Head().frontEnd = data;
    }

    /// As OpenFront, whatever the state.
    [[gnu::noinline]] void FindFront()
    {
        Prefix();
        const int position = offset - 1;
        T* data = PrivateBlock(position >> blockShift);
        Head().frontNext = data + (position & (BlockSize() - 1)) + 1;
        Head().frontEnd = data;
    }

    [[gnu::noinline]] void ShiftTable()
    {
        CopyArray();
        const int used = static_cast<int>((std::int64_t{BlockSize()} + count - 1) >> blockShift);
        int slots = tableSize;
        if (used == slots)
            slots = SlotsFor((std::int64_t{used} << blockShift) + 1);
        const int shift = std::min(slots - used, (INT_MAX >> blockShift) - used);
        if (shift < 1)
            throw std::length_error("cow_List: more elements than a list can number");
        // An operation that failed can have left blocks behind the last element.
        for (int slot = used; slot < tableSize; ++slot)
            DropBlock(slot);
        LayTable(slots, shift);
        offset = shift << blockShift;
    }

    /// Calls visit(first, done, run) for each run of places in one block, from `position` on, `n` places in
    /// all.
    template <class Visit>
    void ForRuns(int position, int n, Visit visit) const
    {
        for (int done = 0; done < n;)
        {
            const int place = (position + done) & (BlockSize() - 1);
            const int run = std::min(n - done, BlockSize() - place);
            visit(At(position + done), done, run);
            done += run;
        }
    }

    /// Elements constructed behind the last one and not yet counted; destroyed unless they come to be.
    class Uncounted
    {
    public:
        explicit Uncounted(cow_List& owner) : list(owner) {}
        Uncounted(const Uncounted&) = delete;
        Uncounted& operator=(const Uncounted&) = delete;
        ~Uncounted()
        {
            list.ForRuns(list.offset + list.count, constructed,
                         [](T* place, int, int run) { std::destroy_n(place, run); });
        }

        void Add(int n) { constructed += n; }
        void Count() { list.count += std::exchange(constructed, 0); }

    private:
        cow_List& list;
        int constructed = 0;
    };

    /// Extends the list by `n` elements, for which the private table has room: make(place, done, run)
    /// constructs at most `run` of them side by side, all that it tells to have made or none.
    template <class Make>
    void Construct(int n, Make make)
    {
        CloseEnds();
        if (n == 0)
            return;
        IsolateRange(count, count + n - 1);
        const int end = offset + count + n;
        Uncounted added(*this);
        for (int position = offset + count; position < end;)
        {
            const int run = std::min(end - position, BlockSize() - (position & (BlockSize() - 1)));
            const int made = make(At(position), position - offset - count, run);
            added.Add(made);
            position += made;
        }
        added.Count();
    }

    /// Extends the list by the `n` elements of `source` from index `first` on.
    void ConstructFrom(const cow_List& source, int first, int n)
    {
        const auto make = [&source, first](T* place, int done, int run)
        {
            const int from = source.offset + first + done;
            const int part = std::min(run, source.BlockSize() - (from & (source.BlockSize() - 1)));
            std::uninitialized_copy_n(source.At(from), part, place);
            return part;
        };
        Construct(n, make);
    }

    struct DestroyInPlace
    {
        void operator()(T* place) const { std::destroy_at(place); }
    };
    using Placed = std::unique_ptr<T, DestroyInPlace>;

    /// The elements at positions from + 1 .. to go one place down; relocatable ones leave `to` raw and fill
    /// `from`.
    void MoveDown(int from, int to)
    {
        const int lastPlace = BlockSize() - 1;
        int place = from & lastPlace;
        ListBlock** block = table + (from >> blockShift);
        for (int left = to - from; left > 0; ++block)
        {
            T* data = (*block)->data;
            const int run = std::min(left, lastPlace - place);
            MoveRun(data + place + 1, data + place, run);
            left -= run;
            if (left-- > 0)
                MoveElement(data + lastPlace, block[1]->data);
            place = 0;
        }
    }

    /// The elements at positions from .. to - 1 go one place up; relocatable ones leave `from` raw and fill
    /// `to`.
    void MoveUp(int from, int to)
    {
        const int lastPlace = BlockSize() - 1;
        int place = to & lastPlace;
        ListBlock** block = table + (to >> blockShift);
        for (int left = to - from; left > 0; --block)
        {
            T* data = (*block)->data;
            const int run = std::min(left, place);
            MoveRun(data + place - run, data + place - run + 1, run);
            left -= run;
            if (left-- > 0)
                MoveElement(data, block[-1]->data + lastPlace);
            place = lastPlace;
        }
    }

    /// The `n` elements at `first` go to `to`, one place lower or higher.
    static void MoveRun(T* first, T* to, int n)
    {
        if constexpr (cow_IsRelocatable<T>)
            RelocateRun(to, first, n);
        else if (to < first)
            std::move(first, first + n, to);
        else
            std::move_backward(first, first + n, to + n);
    }

    static void MoveElement(T* to, T* from)
    {
        if constexpr (cow_IsRelocatable<T>)
            RelocateRun(to, from, 1);
        else
            *to = std::move(*from);
    }

    void InsertTowardsFront(int i, Holding& held)
    {
        Prefix();
        IsolateRange(-1, i);
        if constexpr (cow_IsRelocatable<T>)
        {
            MoveDown(offset - 1, offset + i - 1);
            held.RelocateTo(At(offset + i - 1));
        }
        else
        {
            Placed added(::new (static_cast<void*>(At(offset - 1))) T(std::as_const(*At(offset))));
            MoveDown(offset, offset + i - 1);
            held.AssignTo(At(offset + i - 1));
            static_cast<void>(added.release());
        }
        --offset;
        ++count;
    }

    void InsertTowardsBack(int i, Holding& held)
    {
        FitTable(PositionFor(std::int64_t{count} + 1));
        IsolateRange(i, count);
        const int end = offset + count;
        if constexpr (cow_IsRelocatable<T>)
        {
            MoveUp(offset + i, end);
            held.RelocateTo(At(offset + i));
        }
        else
        {
            Placed added(::new (static_cast<void*>(At(end))) T(std::as_const(*At(end - 1))));
            MoveUp(offset + i, end - 1);
            held.AssignTo(At(offset + i));
            static_cast<void>(added.release());
        }
        ++count;
    }

    void RemoveTowardsBack(int i)
    {
        IsolateRange(i, count - 1);
        const int last = offset + count - 1;
        if constexpr (cow_IsRelocatable<T>)
        {
            std::destroy_at(At(offset + i));
            MoveDown(offset + i, last);
        }
        else
        {
            MoveDown(offset + i, last);
            std::destroy_at(At(last));
        }
        --count;
        if ((last & (BlockSize() - 1)) == 0)
            DropBlock(last >> blockShift);
    }

    void RemoveTowardsFront(int i)
    {
        IsolateRange(0, i);
        if constexpr (cow_IsRelocatable<T>)
        {
            std::destroy_at(At(offset + i));
            MoveUp(offset, offset + i);
        }
        else
        {
            MoveUp(offset, offset + i);
            std::destroy_at(At(offset));
        }
        ++offset;
        --count;
        if (count == 0 || (offset & (BlockSize() - 1)) == 0)
            DropBlock((offset - 1) >> blockShift);
    }

    int count;
    int tableSize;
    int blockShift;
    int offset;
    int* tableShare;
    ListBlock** table;
};

template <class T>
inline constexpr bool cow_IsRelocatable<cow_List<T>> = true;

/// Forward iterator over a list that changes under it or goes; all that end are equal.
template <class T>
class cow_List<T>::const_iterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = const T*;
    using reference = const T&;

    const_iterator() = default;

    reference operator*() const { return *current; }
    pointer operator->() const { return current; }

    const_iterator& operator++()
    {
        if (++current == blockEnd)
            EnterBlock(++slot, 0);
        return *this;
    }

    const_iterator operator++(int)
    {
        const_iterator before = *this;
        ++*this;
        return before;
    }

    bool operator==(const const_iterator& other) const { return current == other.current; }

private:
    friend class cow_List;

    explicit const_iterator(const cow_List& list) : left(list.count), blockSize(list.BlockSize())
    {
        EnterBlock(list.table + (list.offset >> list.blockShift), list.offset & (blockSize - 1));
    }

    void EnterBlock(ListBlock* const* entered, int place)
    {
        slot = entered;
        const int run = std::min(left, blockSize - place);
        left -= run;
        current = run == 0 ? nullptr : (*slot)->data + place;
        blockEnd = run == 0 ? nullptr : current + run;
    }

    const T* current = nullptr;
    const T* blockEnd = nullptr;
    ListBlock* const* slot = nullptr;
    int left = 0;
    int blockSize = 0;
};
