// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace inspector
{

/// Sorts indices a piece at a time, so that the window stays alive; equal ones keep their order. A merge sort
/// that can stop after any number of steps.
class PieceSort
{
public:
    using Less = std::function<bool(int, int)>;

    PieceSort(std::vector<int> indices, Less less);

    /// Goes on by about `amount` indices; true when all is sorted.
    bool step(std::size_t amount);
    std::size_t done() const { return m_done; }
    std::size_t total() const { return m_total; }
    std::vector<int> take() { return std::move(m_from); }

private:
    void sortBlock();
    void merge(std::size_t amount);
    void beginRun();
    void beginPass();

    static constexpr std::size_t Block = 4096;

    std::vector<int> m_from;
    std::vector<int> m_to;
    Less m_less;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
    std::size_t m_sorted = 0; // by blocks
    std::size_t m_width = Block;
    std::size_t m_left = 0;  // of the two runs that are being merged: next of the first,
    std::size_t m_right = 0; // next of the second,
    std::size_t m_middle = 0;
    std::size_t m_end = 0;
};

} // namespace inspector
