#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

/// The ordered map's algorithms once more, as plain recursion over nodes that nobody shares: the tests hold
/// the shape and every height of a real map against it.
template <class K, class V>
class BtreeModel
{
public:
    struct Node
    {
        V value;
        K key;
        std::unique_ptr<Node> left;
        std::unique_ptr<Node> right;
        int height = 0;
    };

    bool Insert(const K& key, const V& value)
    {
        if (!root)
        {
            root = NewNode(key, value);
            count = 1;
            return true;
        }
        if (!Insert(*root, key, value))
            return false;
        ++count;
        Balance(root);
        return true;
    }

    bool Remove(const K& key)
    {
        if (!root || !Remove(root, key))
            return false;
        --count;
        if (root)
            Balance(root);
        return true;
    }

    const Node* Root() const { return root.get(); }
    int Count() const { return count; }

private:
    using Slot = std::unique_ptr<Node>;

    static Slot NewNode(const K& key, const V& value)
    {
        return Slot(new Node{value, key, nullptr, nullptr, 0});
    }

    static int HeightOrZero(const Slot& slot) { return slot ? slot->height : 0; }

    static void Recompute(Node& node)
    {
        node.height = 0;
        if (node.left)
            node.height = std::max(node.height, node.left->height + 1);
        if (node.right)
            node.height = std::max(node.height, node.right->height + 1);
    }

    static void Balance(Slot& slot)
    {
        const int difference = HeightOrZero(slot->right) - HeightOrZero(slot->left);
        if (difference > 1)
            Rotate(slot, &Node::right, &Node::left);
        else if (difference < -1)
            Rotate(slot, &Node::left, &Node::right);
    }

    static void Rotate(Slot& slot, Slot Node::*tall, Slot Node::*low)
    {
        Slot node = std::move(slot);
        Slot child = std::move(node.get()->*tall);
        node.get()->*tall = std::move(child.get()->*low);
        Recompute(*node);
        child.get()->*low = std::move(node);
        Recompute(*child);
        slot = std::move(child);
    }

    static bool Insert(Node& node, const K& key, const V& value)
    {
        if (!(key < node.key) && !(node.key < key))
            return false;
        Slot& slot = key < node.key ? node.left : node.right;
        if (!slot)
        {
            slot = NewNode(key, value);
            Recompute(node);
            return true;
        }
        if (!Insert(*slot, key, value))
            return false;
        Balance(slot);
        Recompute(node);
        return true;
    }

    static bool Remove(Slot& self, const K& key)
    {
        Node& node = *self;
        if (key < node.key || node.key < key)
        {
            Slot& child = key < node.key ? node.left : node.right;
            if (!child || !Remove(child, key))
                return false;
            if (child)
                Balance(child);
            Recompute(node);
            return true;
        }
        self = Replacement(node);
        return true;
    }

    static Slot Replacement(Node& node)
    {
        if (!node.left)
            return std::move(node.right);
        if (!node.right)
            return std::move(node.left);
        Slot successor;
        if (!node.right->left)
        {
            successor = std::move(node.right);
        }
        else
        {
            Node* parent = node.right.get();
            while (parent->left->left)
                parent = parent->left.get();
            successor = std::move(parent->left);
            parent->left = std::move(successor->right);
            successor->right = std::move(node.right);
            Recompute(*parent);
        }
        successor->left = std::move(node.left);
        Recompute(*successor);
        return successor;
    }

    Slot root;
    int count = 0;
};
