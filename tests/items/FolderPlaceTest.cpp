// SPDX-License-Identifier: MIT
#include "items/old/FolderPlace.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace {

using zbbrowser::detail::FolderPlace;

//! A tree of places that a plain walk puts in order.
struct Node {
    explicit Node(Node* owner)
        : place(owner == nullptr ? nullptr : &owner->place) {}

    FolderPlace place;
    std::vector<std::unique_ptr<Node>> children;
};

void Walk(Node const& node, std::vector<Node const*>& out) {
    out.push_back(&node);
    for (auto const& child : node.children)
        Walk(*child, out);
}

TEST(FolderPlaceTest, NoPlaceIsBeforeItself) {
    FolderPlace const root(nullptr);
    EXPECT_FALSE(root.IsBefore(root));
}

TEST(FolderPlaceTest, APlaceIsBeforeThoseBelowIt) {
    FolderPlace root(nullptr);
    FolderPlace child(&root);
    FolderPlace const grandchild(&child);
    EXPECT_TRUE(root.IsBefore(grandchild));
    EXPECT_FALSE(grandchild.IsBefore(root));
    EXPECT_TRUE(child.IsBefore(grandchild));
}

TEST(FolderPlaceTest, WhatIsBelowAPlaceIsBeforeItsNextSibling) {
    FolderPlace root(nullptr);
    FolderPlace first(&root);
    FolderPlace const second(&root);
    FolderPlace const below(&first);
    EXPECT_TRUE(below.IsBefore(second));
    EXPECT_FALSE(second.IsBefore(below));
}

TEST(FolderPlaceTest, AnyTwoPlacesStandAsAWalkFindsThem) {
    std::mt19937 random(7);
    Node root(nullptr);
    std::vector<Node*> nodes{&root};
    nodes.reserve(400);
    while (nodes.size() < 400) {
        // Some long chains, some wide families
        auto* const owner = random() % 3 != 0 ? nodes.back() : nodes[random() % nodes.size()];
        nodes.push_back(owner->children.emplace_back(std::make_unique<Node>(owner)).get());
    }
    std::vector<Node const*> order;
    Walk(root, order);
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t j = 0; j < order.size(); ++j)
            ASSERT_EQ(order[i]->place.IsBefore(order[j]->place), i < j) << i << " " << j;
    }
}

} // namespace
