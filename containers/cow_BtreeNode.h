#pragma once

#include "cow_BtreePath.h"
#include "cow_COW.h"
#include "cow_KeyOrder.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <new>
#include <utility>

template <class K, class V>
class cow_Btree;
template <class K, class V>
class cow_BtreeBuilder;

/// One key and its value in a cow_Btree, with the two subtrees below it. Nodes are copy-on-write values: any
/// number of trees can hold one node, and whoever wants to change it makes a copy that shares both subtrees
/// first.
///
/// A slot (left, right, the tree's root) points at a handle on the heap. Trees that share a subtree point at
/// one and the same handle, whose share count tells how many do. A handle is therefore never changed while it
/// is shared: Writable puts a new one into the slot.
template <class K, class V>
class cow_BtreeNode
{
public:
    using Handle = cow_COW<cow_BtreeNode, cow_Direct<cow_BtreeNode>>;

    /// A leaf.
    cow_BtreeNode(const K& aKey, const V& aValue) : value(aValue), key(aKey) {}

    /// Shares both subtrees.
    cow_BtreeNode(const cow_BtreeNode& other)
        : value(other.value), key(other.key), left(other.left), right(other.right), height(other.height)
    {
        Share(left);
        Share(right);
    }

    cow_BtreeNode& operator=(const cow_BtreeNode&) = delete;

    ~cow_BtreeNode()
    {
        Release(left);
        Release(right);
    }

    const K& Key() const { return key; }
    const V& Value() const { return value; }
    /// The subtree of the lower keys, or null.
    const Handle* Left() const { return left; }
    /// The subtree of the higher keys, or null.
    const Handle* Right() const { return right; }
    /// Steps to the deepest leaf below, as it was last computed: removing a successor from deep below a node
    /// leaves the heights between the two as they were.
    int Height() const { return height; }

    /// The value under `sought` in this subtree, or null.
    const V* ConstFind(const K& sought) const
    {
        const cow_BtreeNode* node = this;
        for (;;)
        {
            const cow_BtreeNode* lower = Fetch(node->left);
            const cow_BtreeNode* higher = Fetch(node->right);
            const int order = cow_KeyOrder<K>::Compare(sought, node->key);
            if (order == 0)
                return &node->value;
            node = order < 0 ? lower : higher;
            if (node == nullptr)
                return nullptr;
        }
    }

    /// The value under `sought` to write, or null. Every node on the way there becomes private to this tree,
    /// found or not.
    V* Find(const K& sought)
    {
        cow_BtreeNode* node = this;
        for (;;)
        {
            Fetch(node->left);
            Fetch(node->right);
            const int order = cow_KeyOrder<K>::Compare(sought, node->key);
            if (order == 0)
                return &node->value;
            Handle*& slot = order < 0 ? node->left : node->right;
            if (slot == nullptr)
                return nullptr;
            node = Writable(slot);
        }
    }

    /// Puts a new leaf into this subtree and balances everything below this node, or returns false when the
    /// key is there already. Only for a node that no other tree holds.
    bool InsertUnlessMember(const K& newKey, const V& newValue)
    {
        int change = 0;
        return Insert(newKey, newValue, change);
    }

    /// Takes the node with the key `sought` out of this subtree and balances everything below this node, or
    /// returns false when there is none. `parent` has this node in one of its slots; no other tree holds
    /// either of them.
    bool Remove(const K& sought, cow_BtreeNode* parent)
    {
        int change = 0;
        return Erase(sought, parent, change);
    }

    /// Puts `replacement` (or null) into the slot of `parent` that leads to `oldNode`, and releases what was
    /// there.
    static void RemoveNode(cow_BtreeNode* parent, const cow_BtreeNode* oldNode, Handle* replacement)
    {
        const bool lower = parent->left != nullptr && parent->left->ConstGet() == oldNode;
        Release(std::exchange(lower ? parent->left : parent->right, replacement));
    }

    /// One rotation towards the lower side if the heights of the two children differ by more than 1; an
    /// absent child counts 0, as a leaf does. `self` is the handle of this node, which no other tree may
    /// hold. Returns the handle of the child that took this node's place, for the caller to store, or null
    /// when nothing changed.
    Handle* Balance(Handle* self)
    {
        const int lean = Lean();
        if (lean > 1)
            return Rotate(self, &cow_BtreeNode::right, &cow_BtreeNode::left);
        if (lean < -1)
            return Rotate(self, &cow_BtreeNode::left, &cow_BtreeNode::right);
        return nullptr;
    }

private:
    friend class cow_Btree<K, V>;
    friend class cow_BtreeBuilder<K, V>;

    using Path = cow_BtreePath<cow_BtreeNode>;

    struct FreeBlock
    {
        void operator()(void* block) const noexcept { mem_Free(block); }
    };

    cow_BtreeNode() : value(), key() {}

    /// A handle on a new node made from `arguments`.
    template <class... Arguments>
    static Handle* NewHandle(const Arguments&... arguments)
    {
        std::unique_ptr<void, FreeBlock> block(mem_OperatorNewThrow(sizeof(Handle)));
        auto* handle = ::new (block.get()) Handle(cow_Direct<cow_BtreeNode>::New(arguments...));
        block.release();
        return handle;
    }

    static void Share(Handle* handle)
    {
        if (handle != nullptr)
            handle->Share();
    }

    static void Release(Handle* handle)
    {
        if (handle == nullptr)
            return;
        if (handle->ShareCount() == 1)
            Destroy(handle);
        else
            handle->Release();
    }

    /// Destroys the last share of a tree without recursion: as long as the top has a lower subtree, that
    /// subtree's top is lifted above it.
    [[gnu::noinline]] static void Destroy(Handle* top)
    {
        while (top != nullptr)
        {
            cow_BtreeNode* node = Owned(top);
            Handle* lower = node->left;
            if (lower == nullptr)
            {
                Handle* rest = std::exchange(node->right, nullptr);
                std::destroy_at(top);
                mem_FreeSized(top, sizeof *top);
                top = IsLast(rest) ? rest : nullptr;
            }
            else if (IsLast(lower))
            {
                node->left = std::exchange(Owned(lower)->right, top);
                top = lower;
            }
            else
            {
                node->left = nullptr;
            }
        }
    }

    /// True when the caller's share of `handle` is the only one; else gives it back.
    static bool IsLast(Handle* handle)
    {
        if (handle == nullptr || handle->ShareCount() == 1)
            return true;
        handle->Release();
        return false;
    }

    /// The node in `slot`, copied into a handle of its own first if another tree holds it too.
    static cow_BtreeNode* Writable(Handle*& slot)
    {
        if (slot->ShareCount() != 1)
            Unshare(slot);
        return Owned(slot);
    }

    /// The node of a handle that is known not to be shared: its count lies elsewhere and need not be loaded.
    static cow_BtreeNode* Owned(Handle* handle) { return const_cast<cow_BtreeNode*>(handle->ConstGet()); }

    [[gnu::noinline]] static void Unshare(Handle*& slot)
    {
        Handle* copy = NewHandle(**slot);
        Release(std::exchange(slot, copy));
    }

    /// The node below `handle`, or null. Starts to load it: on the way down both children are fetched while
    /// the keys are compared, since a node and its handle lie apart.
    static const cow_BtreeNode* Fetch(const Handle* handle)
    {
        if (handle == nullptr)
            return nullptr;
        const cow_BtreeNode* node = handle->ConstGet();
        __builtin_prefetch(node);
        return node;
    }

    /// The same with what its key has elsewhere, where the node itself is looked at anyway.
    static const cow_BtreeNode* FetchWithKey(const Handle* handle)
    {
        const cow_BtreeNode* node = Fetch(handle);
        if constexpr (requires { cow_KeyOrder<K>::Fetch(node->key); })
        {
            if (node != nullptr)
                cow_KeyOrder<K>::Fetch(node->key);
        }
        return node;
    }

    static int HeightAbove(const cow_BtreeNode* node) { return node == nullptr ? 0 : node->height + 1; }
    static int HeightAbove(const Handle* handle)
    {
        return HeightAbove(handle == nullptr ? nullptr : handle->ConstGet());
    }

    /// How much taller the right child is than the left, where an absent child is as tall as a leaf.
    static int LeanOf(int aboveLeft, int aboveRight)
    {
        return std::max(aboveRight, 1) - std::max(aboveLeft, 1);
    }

    static bool IsTooMuch(int lean) { return lean < -1 || lean > 1; }

    int Lean() const { return LeanOf(HeightAbove(left), HeightAbove(right)); }

    /// Whether this node, with these children, would stay as it is if it were balanced and its height
    /// recomputed.
    bool IsSettled(const cow_BtreeNode* lower, const cow_BtreeNode* higher) const
    {
        const int aboveLeft = HeightAbove(lower);
        const int aboveRight = HeightAbove(higher);
        return height == std::max(aboveLeft, aboveRight) && !IsTooMuch(LeanOf(aboveLeft, aboveRight));
    }

    /// Recomputes the height, and returns the lean.
    int ComputeHeight()
    {
        const int aboveLeft = HeightAbove(left);
        const int aboveRight = HeightAbove(right);
        height = std::max(aboveLeft, aboveRight);
        return LeanOf(aboveLeft, aboveRight);
    }

    [[gnu::noinline]] Handle* Rotate(Handle* self, Handle* cow_BtreeNode::*tall, Handle* cow_BtreeNode::*low)
    {
        cow_BtreeNode* child = Writable(this->*tall);
        Handle* top = std::exchange(this->*tall, child->*low);
        child->*low = self;
        ComputeHeight();
        child->ComputeHeight();
        return top;
    }

    /// Balances the node in `slot`. A node that was put there in place of its removed parent can be shared
    /// still, so it is made private before it is changed.
    static void BalanceSlot(Handle*& slot)
    {
        if (IsTooMuch((*slot)->Lean()))
            RotateSlot(slot);
    }

    static void RotateSlot(Handle*& slot)
    {
        cow_BtreeNode* node = Writable(slot);
        slot = node->Balance(slot);
    }

    /// Balances and recomputes along `path`, from its end up to its first node, which keeps its place; or to
    /// where nothing more would change, since the height is as before and all nodes above are settled, as
    /// those before level `unsettled` are. When copying a node for a rotation fails, the rotations left are
    /// not done, but the heights are.
    static void Rebalance(const Path& path, int unsettled)
    {
        int level = path.Depth() - 1;
        if (level < 0)
            return;
        const Handle* changed = *path[level].slot;
        int lean = changed == nullptr ? 0 : (*changed)->Lean();
        try
        {
            for (; level >= 0; --level)
            {
                const auto& step = path[level];
                if (IsTooMuch(lean)) [[unlikely]]
                    RotateSlot(*step.slot);
                const int heightBefore = step.node->height;
                lean = step.node->ComputeHeight();
                if (step.node->height == heightBefore && level <= unsettled && !IsTooMuch(lean))
                    return;
            }
        }
        catch (...)
        {
            for (; level >= 0; --level)
                path[level].node->ComputeHeight();
            throw;
        }
    }

    /// As InsertUnlessMember. Adds 1 to `count` as soon as the key is in the tree, so that it is right even
    /// if balancing fails.
    bool Insert(const K& newKey, const V& newValue, int& count)
    {
        Path path;
        int unsettled = INT_MAX;
        cow_BtreeNode* node = this;
        for (;;)
        {
            const cow_BtreeNode* lower = FetchWithKey(node->left);
            const cow_BtreeNode* higher = FetchWithKey(node->right);
            const int order = cow_KeyOrder<K>::Compare(newKey, node->key);
            if (order == 0)
                return false;
            Handle*& slot = order < 0 ? node->left : node->right;
            if (!node->IsSettled(lower, higher)) [[unlikely]]
                unsettled = std::min(unsettled, path.Depth());
            path.Push(node, &slot);
            if (slot == nullptr)
            {
                slot = NewHandle(newKey, newValue);
                break;
            }
            node = Writable(slot);
        }
        ++count;
        Rebalance(path, unsettled);
        return true;
    }

    /// As Remove. Takes 1 from `count` as soon as the key is out of the tree.
    bool Erase(const K& sought, cow_BtreeNode* parent, int& count)
    {
        Path path;
        int unsettled = INT_MAX;
        cow_BtreeNode* node = this;
        for (;;)
        {
            const cow_BtreeNode* lower = FetchWithKey(node->left);
            const cow_BtreeNode* higher = FetchWithKey(node->right);
            const int order = cow_KeyOrder<K>::Compare(sought, node->key);
            if (order == 0)
                break;
            Handle*& slot = order < 0 ? node->left : node->right;
            if (slot == nullptr)
                return false;
            if (!node->IsSettled(lower, higher)) [[unlikely]]
                unsettled = std::min(unsettled, path.Depth());
            path.Push(node, &slot);
            parent = node;
            node = Writable(slot);
        }
        Handle* replacement = node->TakeReplacement();
        --count;
        RemoveNode(parent, node, replacement);
        Rebalance(path, unsettled);
        return true;
    }

    /// What comes into this node's place when it goes: its only child, or its successor with the children of
    /// both. Leaves this node without children. Of the nodes between here and the successor, only the
    /// successor's parent gets its height recomputed.
    Handle* TakeReplacement()
    {
        if (left == nullptr || right == nullptr)
        {
            Handle* higher = std::exchange(right, nullptr);
            Handle* lower = std::exchange(left, nullptr);
            return lower == nullptr ? higher : lower;
        }
        cow_BtreeNode* above = nullptr;
        Handle** slot = &right;
        cow_BtreeNode* successor = Writable(right);
        while (successor->left != nullptr)
        {
            above = successor;
            slot = &successor->left;
            successor = Writable(*slot);
        }
        Handle* replacement = *slot;
        if (above != nullptr)
        {
            above->left = std::exchange(successor->right, right);
            above->ComputeHeight();
        }
        successor->left = std::exchange(left, nullptr);
        right = nullptr;
        successor->ComputeHeight();
        return replacement;
    }

    V value;
    K key;
    Handle* left = nullptr;
    Handle* right = nullptr;
    int height = 0;
};
