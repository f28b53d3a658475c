#pragma once

#include "mem_Allocation.h"

#include <cstddef>
#include <cstring>

/// The steps from a node of a map down to another: each node, and which of its two slots leads on. The first
/// `inlineDepth` steps lie in the path itself, which only a very large map exceeds.
template <class Node, int inlineDepth = 48>
class cow_BtreePath
{
public:
    struct Step
    {
        Node* node;
        typename Node::Handle** slot;
    };

    cow_BtreePath() {}
    cow_BtreePath(const cow_BtreePath&) = delete;
    cow_BtreePath& operator=(const cow_BtreePath&) = delete;

    ~cow_BtreePath()
    {
        if (steps != inlineSteps)
            mem_Free(steps);
    }

    /// Throws std::bad_alloc and leaves the path as it is when it has to grow and cannot.
    void Push(Node* node, typename Node::Handle** slot)
    {
        if (depth == capacity) [[unlikely]]
            Grow();
        steps[depth++] = Step{node, slot};
    }

    int Depth() const { return depth; }
    const Step& operator[](int level) const { return steps[level]; }

private:
    [[gnu::noinline]] void Grow()
    {
        const std::size_t bytes = static_cast<std::size_t>(capacity) * sizeof(Step);
        auto* grown = static_cast<Step*>(mem_OperatorNewThrow(2 * bytes));
        std::memcpy(grown, steps, bytes);
        if (steps != inlineSteps)
            mem_Free(steps);
        steps = grown;
        capacity *= 2;
    }

    int depth = 0;
    int capacity = inlineDepth;
    Step* steps = inlineSteps;
    Step inlineSteps[inlineDepth];
};
