#pragma once

#include "cow_List.h"

#include <algorithm>
#include <memory>
#include <vector>

/// The list's layout once more, without elements and with shared pointers in place of counts: the tests hold
/// the fields of a real list, and who shares what, against it. Copies share as those of lists do.
class ListLayout
{
public:
    void Initialize(int n)
    {
        *this = ListLayout();
        if (n < 1)
            return;
        int exponent = 0;
        while (n >> exponent > 1)
            ++exponent;
        int slots = 16;
        if (exponent > 7)
        {
            // The eighths of a power of two that hold n, and the slack.
            const int eighth = 1 << (exponent - 3);
            slots += (n + eighth - 1) / eighth;
            blockShift = exponent - 3;
        }
        table->resize(static_cast<std::size_t>(slots));
    }

    void Get(int i)
    {
        if (TableShare() == 1 && BlockShare((offset + i) >> blockShift) == 1)
            return;
        CopyArray();
        Isolate(i, i);
    }

    void Append() { Extend(1); }

    void Prepend()
    {
        Prefix();
        Isolate(-1, -1);
        --offset;
        ++count;
    }

    void InsertIndex(int i)
    {
        if (i == count)
            return Append();
        if (i == 0)
            return Prepend();
        if (count - i > i)
        {
            Prefix();
            Isolate(-1, i);
            --offset;
        }
        else
        {
            Resize(count + 1);
            Isolate(i, count);
        }
        ++count;
    }

    void RemoveIndex(int i)
    {
        CopyArray();
        if (count - i <= i)
        {
            Isolate(i, count - 1);
            --count;
            DropIfBoundary(offset + count, offset + count);
            return;
        }
        Isolate(0, i);
        --count;
        ++offset;
        // An empty list keeps no block.
        DropIfBoundary(count == 0 ? 0 : offset, offset - 1);
    }

    void Resize(int n)
    {
        CopyArray();
        const int position = n == 0 ? 0 : offset + n;
        if (n < count || n == 0)
        {
            const int kept = (position + BlockSize() - 1) >> blockShift;
            if (position % BlockSize() != 0 && BlockShare(kept - 1) > 1)
                At(kept - 1) = NewBlock();
            for (int slot = kept; slot < TableSize(); ++slot)
                At(slot) = nullptr;
        }
        const int unit = 16 * BlockSize();
        table->resize(static_cast<std::size_t>((position + unit - 1) / unit * 16));
        count = std::min(count, n);
        if (n == 0)
        {
            blockShift = 4;
            offset = 0;
        }
    }

    void Extend(int n)
    {
        Resize(count + n);
        if (n > 0)
            Isolate(count, count + n - 1);
        count += n;
    }

    void SetFromArray(int n)
    {
        Resize(n);
        if (n > 0)
            Isolate(0, n - 1);
        count = n;
    }

    ListLayout Slice(int from, int to) const
    {
        ListLayout slice;
        slice.Initialize(to - from);
        if (to > from)
            slice.Isolate(0, to - from - 1);
        slice.count = to - from;
        return slice;
    }

    int Count() const { return count; }
    int TableSize() const { return static_cast<int>(table->size()); }
    int BlockShift() const { return blockShift; }
    int Offset() const { return offset; }
    int TableShare() const { return static_cast<int>(table.use_count()); }
    int BlockShare(int slot) const { return static_cast<int>(At(slot).use_count()); }

private:
    struct Block
    {};
    using Slot = std::shared_ptr<Block>;

    static Slot NewBlock() { return std::make_shared<Block>(); }

    int BlockSize() const { return 1 << blockShift; }
    Slot& At(int slot) const { return (*table)[static_cast<std::size_t>(slot)]; }

    void CopyArray()
    {
        if (TableShare() > 1)
            table = std::make_shared<std::vector<Slot>>(*table);
    }

    void Isolate(int first, int last)
    {
        for (int slot = (offset + first) >> blockShift; slot <= (offset + last) >> blockShift; ++slot)
        {
            if (BlockShare(slot) != 1)
                At(slot) = NewBlock();
        }
    }

    void Prefix()
    {
        CopyArray();
        if (offset != 0)
            return;
        const int used = (BlockSize() + count - 1) >> blockShift;
        if (used == TableSize())
            Resize((used << blockShift) + 1);
        const int shift = TableSize() - used;
        std::rotate(table->begin(), table->begin() + used, table->end());
        offset = shift << blockShift;
    }

    /// Drops the block that holds `position` if `boundary` begins a block.
    void DropIfBoundary(int boundary, int position)
    {
        if (boundary % BlockSize() == 0)
            At(position >> blockShift) = nullptr;
    }

    int count = 0;
    int blockShift = 4;
    int offset = 0;
    std::shared_ptr<std::vector<Slot>> table = std::make_shared<std::vector<Slot>>();
};

/// True when the list's fields and share counts are those of the layout.
template <class T>
bool HasLayout(const cow_List<T>& list, const ListLayout& layout)
{
    if (list.Count() != layout.Count() || list.TableSize() != layout.TableSize() ||
        list.BlockShift() != layout.BlockShift() || list.Offset() != layout.Offset() ||
        list.TableShare() != layout.TableShare())
        return false;
    for (int slot = 0; slot < list.TableSize(); ++slot)
    {
        if (list.BlockShare(slot) != layout.BlockShare(slot))
            return false;
    }
    return true;
}
