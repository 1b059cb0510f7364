// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/SoSkin.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/transforms/SoTransformation.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <array>

template class SoTyped<SoSkin, SoNode>;

namespace
{

// Three columns of four: how a point becomes x, y and z.
using Blend = std::array<float, 12>;

Blend blendOf(const SbMatrix& m)
{
    Blend result;
    for (std::size_t i = 0; i < 12; ++i)
        result[i] = m.getValue()[i / 3 * 4 + i % 3];
    return result;
}

// For normals: what is at right angles to a surface stays so.
Blend normalBlendOf(const SbMatrix& m)
{
    const std::optional<SbMatrix> inverse = m.inverse();
    return blendOf(inverse ? inverse->transposed() : m);
}

SbVec3f move(const Blend& b, const SbVec3f& p, float w)
{
    return {p[0] * b[0] + p[1] * b[3] + p[2] * b[6] + w * b[9],
            p[0] * b[1] + p[1] * b[4] + p[2] * b[7] + w * b[10],
            p[0] * b[2] + p[1] * b[5] + p[2] * b[8] + w * b[11]};
}

struct Influences {
    const std::int32_t* bones;
    const float* weights;
    int perPoint;
};

void bendAll(const Influences& by, const std::vector<Blend>& blends, const SbVec3f* from, int count, float w,
             SbVec3f* to)
{
    for (int i = 0; i < count; ++i) {
        Blend sum{};
        for (int k = 0; k < by.perPoint; ++k) {
            const int at = i * by.perPoint + k;
            const float weight = by.weights[at];
            const Blend& blend = blends[static_cast<std::size_t>(by.bones[at])];
            for (std::size_t n = 0; n < sum.size(); ++n)
                sum[n] += weight * blend[n];
        }
        to[i] = move(sum, from[i], w);
    }
}

std::vector<Blend> blendsOf(const std::vector<SbMatrix>& matrices, Blend (*blend)(const SbMatrix&))
{
    std::vector<Blend> blends;
    std::transform(matrices.begin(), matrices.end(), std::back_inserter(blends), blend);
    return blends;
}

} // namespace

SoSkin::~SoSkin()
{
    for (const SoRef<SoNode>& bone : m_watched)
        bone->removeListener(this);
}

void SoSkin::notify(const SoNotification& change)
{
    if (!m_reportsPose)
        ++m_listCount;
    if (change.field == &bones && !m_reportsPose)
        watchBones();
    SoTyped::notify(change);
}

void SoSkin::watchBones()
{
    for (const SoRef<SoNode>& bone : m_watched)
        bone->removeListener(this);
    m_watched.clear();
    for (int i = 0; i < bones.getNum(); ++i) {
        if (bones[i]) {
            bones[i]->addListener(this);
            m_watched.push_back(bones[i]);
        }
    }
}

// A skeleton has many bones, and what is old already cannot become older.
void SoSkin::changed(const SoNotification& /*change*/)
{
    ++m_poseCount;
    if (m_isStale)
        return;
    m_isStale = true;
    m_reportsPose = true;
    bones.touch();
    m_reportsPose = false;
}

bool SoSkin::fits(int pointCount) const
{
    if (m_checked.pointCount != pointCount || m_checked.listCount != m_listCount) {
        const std::int64_t influences = static_cast<std::int64_t>(pointCount) * bonesPerPoint.getValue();
        m_checked = {m_listCount, pointCount,
                     influences > 0 && boneIndices.getNum() == influences && weights.getNum() == influences &&
                         hasValidPlaces()};
    }
    return m_checked.isGood;
}

bool SoSkin::hasValidPlaces() const
{
    const int count = bones.getNum();
    bool isGood = parents.getNum() == count && binds.getNum() == count && place.getValue() < count;
    for (int i = 0; isGood && i < count; ++i)
        isGood = parents[i] < i;
    const std::int32_t* indices = boneIndices.getValues();
    return isGood && std::all_of(indices, indices + boneIndices.getNum(),
                                 [count](std::int32_t bone) { return bone >= 0 && bone < count; });
}

void SoSkin::apply(SoState& state) const
{
    const int count = state.points ? state.points->points.getNum() : 0;
    const bool isGood = count > 0 && fits(count);
    m_isStale = false;
    if (!isGood)
        return;
    const std::uint64_t changes = (std::uint64_t{m_listCount} << 32U) + m_poseCount;
    if (m_made.isOld(state, changes))
        m_made.make(state, changes, [&](SbVec3f* points, SbVec3f* normals) { bend(state, points, normals); });
    m_made.apply(state);
}

std::vector<SbMatrix> SoSkin::getBonePlaces() const
{
    std::vector<SbMatrix> matrices;
    for (int i = 0; i < bones.getNum(); ++i) {
        const auto* bone = dynamic_cast<const SoTransformation*>(bones[i].get());
        const SbMatrix own = bone ? bone->getMatrix() : SbMatrix();
        const int parent = parents[i];
        matrices.push_back(parent < 0 ? own : own * matrices[static_cast<std::size_t>(parent)]);
    }
    const int at = place.getValue();
    const std::optional<SbMatrix> back =
        at < 0 ? std::nullopt : matrices[static_cast<std::size_t>(at)].inverse();
    if (back) {
        for (SbMatrix& matrix : matrices)
            matrix = matrix * *back;
    }
    return matrices;
}

void SoSkin::bend(const SoState& state, SbVec3f* points, SbVec3f* normals) const
{
    std::vector<SbMatrix> matrices = getBonePlaces();
    for (int i = 0; i < bones.getNum(); ++i)
        matrices[static_cast<std::size_t>(i)] = binds[i] * matrices[static_cast<std::size_t>(i)];
    const Influences by{boneIndices.getValues(), weights.getValues(), bonesPerPoint.getValue()};
    const int count = state.points->points.getNum();
    bendAll(by, blendsOf(matrices, blendOf), state.points->points.getValues(), count, 1, points);
    if (!normals)
        return;
    bendAll(by, blendsOf(matrices, normalBlendOf), state.normals->vectors.getValues(), count, 0, normals);
    std::transform(normals, normals + count, normals, [](const SbVec3f& n) { return n.normalized(); });
}
