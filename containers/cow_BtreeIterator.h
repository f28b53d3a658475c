#pragma once

#include "cow_Btree.h"

#include <new>
#include <utility>

/// Walks a map in key order, either way. It refers to the map and shares nothing of it, so the map must
/// outlive it and must not change while it is in use. A new iterator stands nowhere, as an exhausted one
/// does.
template <class K, class V>
class cow_BtreeIterator
{
    using Node = cow_BtreeNode<K, V>;
    using Handle = typename Node::Handle;

public:
    explicit cow_BtreeIterator(const cow_Btree<K, V>& aMap) : map(aMap) {}

    cow_BtreeIterator(const cow_BtreeIterator&) = delete;
    cow_BtreeIterator& operator=(const cow_BtreeIterator&) = delete;

    ~cow_BtreeIterator() { Clear(); }

    /// Goes to the lowest key. This and the other three return whether the iterator stands on an entry.
    bool First() { return Start<&Node::Left>(); }

    /// Goes to the highest key.
    bool Last() { return Start<&Node::Right>(); }

    /// Goes to the next higher key; an exhausted iterator stays so.
    bool Next() { return Step<&Node::Left, &Node::Right>(); }

    /// Goes to the next lower key; an exhausted iterator stays so.
    bool Previous() { return Step<&Node::Right, &Node::Left>(); }

    /// True when the iterator stands on no entry.
    bool IsExhausted() const { return top == nullptr; }

    /// The entry's key. Must not be called on an exhausted iterator, like Value.
    const K& Key() const { return (*top->handle)->Key(); }
    const V& Value() const { return (*top->handle)->Value(); }

private:
    using Side = const Handle* (Node::*)() const;

    struct Cell
    {
        const Handle* handle;
        Cell* next;
    };

    template <Side ahead>
    bool Start()
    {
        Clear();
        PushDown<ahead>(map.Root());
        return !IsExhausted();
    }

    /// One entry on, where `back` is the side of a node that was walked before the node itself, and `ahead`
    /// the other.
    template <Side back, Side ahead>
    bool Step()
    {
        if (IsExhausted())
            return false;
        if (const Handle* child = ((**top->handle).*ahead)())
        {
            PushDown<back>(child);
            return true;
        }
        const Handle* done = nullptr;
        do
        {
            done = Pop();
        }
        while (!IsExhausted() && ((**top->handle).*ahead)() == done);
        return !IsExhausted();
    }

    template <Side side>
    void PushDown(const Handle* handle)
    {
        for (; handle != nullptr; handle = ((**handle).*side)())
            top = ::new (mem_OperatorNewThrow(sizeof(Cell))) Cell{handle, top};
    }

    const Handle* Pop()
    {
        Cell* cell = std::exchange(top, top->next);
        const Handle* handle = cell->handle;
        mem_FreeSized(cell, sizeof *cell);
        return handle;
    }

    void Clear()
    {
        while (!IsExhausted())
            Pop();
    }

    const cow_Btree<K, V>& map;
    Cell* top = nullptr;
};
