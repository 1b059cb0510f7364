// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>

/// A node of a type of which one lives at a time, each at the address of the one before: for tests that what
/// was remembered about a destroyed node is not taken for the next one's.
template <class Node>
class AtOneAddress : public Node
{
public:
    static void* operator new(std::size_t size)
    {
        alignas(Node) static std::byte place[sizeof(Node)];
        EXPECT_EQ(size, sizeof(place));
        EXPECT_FALSE(isTaken) << "the one before still lives";
        isTaken = true;
        return place;
    }
    static void operator delete(void* /*place*/) { isTaken = false; }

private:
    inline static bool isTaken = false;
};
