// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <cstdint>

class SoState;

namespace xsg
{

/// The points and normals that a node makes of those before it, for the shapes after it; kept until one of
/// them changes. Belongs to the node that makes them.
class DerivedPoints
{
public:
    /// Whether they are to be made: for other points or normals than last time, or another `count` of the
    /// maker's changes.
    bool isOld(const SoState& state, std::uint64_t count) const;
    /// Without normals where the state has none of the same number.
    template <class Make>
    void make(const SoState& state, std::uint64_t count, Make makeValues)
    {
        const SoAnimatedValues::Writing writing; // it is nobody's edit
        begin(state, count);
        makeValues(m_points->points.startEditing(),
                   hasNormals() ? m_normals->vectors.startEditing() : nullptr);
        m_points->points.finishEditing();
        m_normals->vectors.finishEditing();
    }
    void apply(SoState& state) const;

private:
    struct Source {
        std::uint64_t id = 0;
        std::uint32_t changes = 0;
        friend bool operator==(const Source& a, const Source& b)
        {
            return a.id == b.id && a.changes == b.changes;
        }
    };
    static Source sourceOf(const SoNode* node);
    bool hasNormals() const { return m_normals->vectors.getNum() > 0; }
    void begin(const SoState& state, std::uint64_t count);

    SoRef<SoPoints> m_points;
    SoRef<SoNormals> m_normals;
    Source m_fromPoints;
    Source m_fromNormals;
    std::uint64_t m_count = 0;
};

} // namespace xsg
