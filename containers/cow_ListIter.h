#pragma once

#include "cow_List.h"

/// Forward iterator that holds a share of the list: a change of the list during iteration leaves the iterator
/// on the old content.
///
///     for (cow_ListIter<int> iter(list); !iter.AtEnd(); iter.Next())
///         Use(iter.Element());
template <class T>
class cow_ListIter
{
public:
    /// Stands at the first element.
    explicit cow_ListIter(const cow_List<T>& source)
        : list(source), end(list.count + list.offset), blockSize(list.BlockSize())
    {
        First();
    }

    /// Goes to the first element.
    void First()
    {
        position = list.offset;
        place = position & (blockSize - 1);
        data = list.count == 0 ? nullptr : BlockData();
    }

    /// Goes to the next element. Must not be called at the end.
    void Next()
    {
        if (++position == end)
            data = nullptr;
        else if (++place == blockSize)
        {
            place = 0;
            data = BlockData();
        }
    }

    bool AtEnd() const { return data == nullptr; }
    /// The element to read. Must not be called at the end.
    const T& Element() const { return data[place]; }
    /// Position of the element, counted as the list's offset is.
    int Position() const { return position; }
    /// Index of the element.
    int Index() const { return position - list.offset; }

private:
    const T* BlockData() const { return list.table[position >> list.blockShift]->data; }

    cow_List<T> list;
    int end;
    int blockSize;
    int position;
    int place;
    const T* data;
};
