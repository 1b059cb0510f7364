// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <random>

namespace torture
{

using Random = std::mt19937_64;

/// From 0 to below `end`, the same on every machine.
inline quint64 below(Random& random, quint64 end)
{
    return end > 0 ? random() % end : 0;
}

template <class List>
const auto& oneOf(Random& random, const List& list)
{
    return list[static_cast<int>(below(random, static_cast<quint64>(list.size())))];
}

/// The content of a file after one to four accidents: flipped bits, ends cut off, holes, parts that come
/// twice or in another place, numbers that are far too large.
QByteArray mutated(QByteArray content, Random& random);

} // namespace torture
