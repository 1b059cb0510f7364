// SPDX-License-Identifier: MIT
#include "OsgArrays.h"

#include <algorithm>
#include <optional>

namespace scopix::live
{

namespace
{

/// One more than the greatest vertex that is drawn; none where a number is negative.
std::optional<std::size_t> verticesUsed(const osg::PrimitiveSet& set)
{
    if (const auto* arrays = dynamic_cast<const osg::DrawArrays*>(&set)) {
        if (arrays->getFirst() < 0 || arrays->getCount() < 0)
            return std::nullopt;
        return std::size_t(arrays->getFirst()) + std::size_t(arrays->getCount());
    }
    if (const auto* lengths = dynamic_cast<const osg::DrawArrayLengths*>(&set)) {
        const bool negative = std::any_of(lengths->begin(), lengths->end(), [](int n) { return n < 0; });
        if (lengths->getFirst() < 0 || negative)
            return std::nullopt;
        std::size_t end = std::size_t(lengths->getFirst());
        for (int length : *lengths)
            end += std::size_t(length);
        return end;
    }
    std::size_t end = 0;
    for (unsigned i = 0; i < set.getNumIndices(); ++i)
        end = std::max(end, std::size_t(set.index(i)) + 1);
    return end;
}

bool hasEnough(const osg::Array* array, std::size_t vertices, std::size_t sets)
{
    if (!array)
        return true;
    switch (array->getBinding()) {
    case osg::Array::BIND_PER_VERTEX:
        return array->getNumElements() >= vertices;
    case osg::Array::BIND_PER_PRIMITIVE_SET:
        return array->getNumElements() >= sets;
    case osg::Array::BIND_OVERALL:
        return array->getNumElements() >= 1;
    default:
        return true;
    }
}

bool haveEnough(const osg::Geometry::ArrayList& arrays, std::size_t vertices, std::size_t sets)
{
    return std::all_of(arrays.begin(), arrays.end(),
                       [&](const auto& array) { return hasEnough(array.get(), vertices, sets); });
}

/// Leaves room for what the program itself modifies later, before the next number is due.
unsigned nextCount()
{
    static unsigned last = 1U << 24;
    return last += 64;
}

} // namespace

bool isWithinArrays(const osg::Geometry& geometry)
{
    std::size_t vertices = 0;
    for (const auto& set : geometry.getPrimitiveSetList()) {
        const auto used = set ? verticesUsed(*set) : 0;
        if (!used)
            return false;
        vertices = std::max(vertices, *used);
    }
    const std::size_t sets = geometry.getNumPrimitiveSets();
    const osg::Array* positions = geometry.getVertexArray();
    return vertices <= (positions ? positions->getNumElements() : 0) &&
           hasEnough(geometry.getNormalArray(), vertices, sets) &&
           hasEnough(geometry.getColorArray(), vertices, sets) &&
           hasEnough(geometry.getSecondaryColorArray(), vertices, sets) &&
           hasEnough(geometry.getFogCoordArray(), vertices, sets) &&
           haveEnough(geometry.getTexCoordArrayList(), vertices, sets) &&
           haveEnough(geometry.getVertexAttribArrayList(), vertices, sets);
}

void renewArrays(osg::Geometry& geometry)
{
    const unsigned count = nextCount();
    osg::Geometry::ArrayList arrays;
    geometry.getArrayList(arrays);
    for (const auto& array : arrays)
        array->setModifiedCount(count);
    for (const auto& set : geometry.getPrimitiveSetList())
        if (set)
            set->setModifiedCount(count);
}

} // namespace scopix::live
