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
    Node(Node const* owner, std::uint64_t number)
        : place(owner == nullptr ? nullptr : &owner->place, number) {}

    FolderPlace place;
    std::vector<std::unique_ptr<Node>> children;
};

void Walk(Node const& node, std::vector<Node const*>& out) {
    out.push_back(&node);
    for (auto const& child : node.children)
        Walk(*child, out);
}

TEST(FolderPlaceTest, NoPlaceIsBeforeItself) {
    FolderPlace const root(nullptr, 0);
    EXPECT_FALSE(root.IsBefore(root));
}

TEST(FolderPlaceTest, APlaceIsBeforeThoseBelowIt) {
    FolderPlace const root(nullptr, 0);
    FolderPlace const child(&root, 1);
    FolderPlace const grandchild(&child, 2);
    EXPECT_TRUE(root.IsBefore(grandchild));
    EXPECT_FALSE(grandchild.IsBefore(root));
    EXPECT_TRUE(child.IsBefore(grandchild));
}

TEST(FolderPlaceTest, WhatIsBelowAPlaceIsBeforeItsNextSibling) {
    FolderPlace const root(nullptr, 0);
    FolderPlace const first(&root, 1);
    FolderPlace const second(&root, 2);
    FolderPlace const below(&first, 3);
    EXPECT_TRUE(below.IsBefore(second));
    EXPECT_FALSE(second.IsBefore(below));
}

TEST(FolderPlaceTest, AnyTwoPlacesStandAsAWalkFindsThem) {
    std::mt19937 random(7);
    Node root(nullptr, 0);
    std::vector<Node*> nodes{&root};
    nodes.reserve(400);
    while (nodes.size() < 400) {
        // Some long chains, some wide families
        auto* const owner = random() % 3 != 0 ? nodes.back() : nodes[random() % nodes.size()];
        nodes.push_back(
            owner->children.emplace_back(std::make_unique<Node>(owner, nodes.size())).get());
    }
    std::vector<Node const*> order;
    Walk(root, order);
    for (std::size_t i = 0; i < order.size(); ++i) {
        for (std::size_t j = 0; j < order.size(); ++j)
            ASSERT_EQ(order[i]->place.IsBefore(order[j]->place), i < j) << i << " " << j;
    }
}

} // namespace
