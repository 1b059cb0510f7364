// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/KeySampling.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr float NearlySame = 0.9995F; // cosine between rotations, above which a straight line does

using Keys = xsg::KeyList;

std::size_t stride(const Keys& keys)
{
    return keys.between == Keys::Between::Cubic ? 3 * keys.width : keys.width;
}

const float* valueOf(const Keys& keys, std::size_t key)
{
    return keys.values + key * stride(keys) + (keys.between == Keys::Between::Cubic ? keys.width : 0);
}

void mix(const float* a, const float* b, float shareA, float shareB, std::size_t width, float* to)
{
    for (std::size_t i = 0; i < width; ++i)
        to[i] = shareA * a[i] + shareB * b[i];
}

void normalize(float* four)
{
    float sum = 0;
    for (int i = 0; i < 4; ++i)
        sum += four[i] * four[i];
    const float scale = sum > 0 ? 1 / std::sqrt(sum) : 0;
    for (int i = 0; i < 4; ++i)
        four[i] *= scale;
}

void turn(const float* a, const float* b, float share, float* to)
{
    float cosine = 0;
    for (int i = 0; i < 4; ++i)
        cosine += a[i] * b[i];
    const float side = cosine < 0 ? -1.0F : 1.0F; // the same rotation, the shorter way
    cosine *= side;
    if (cosine > NearlySame) {
        mix(a, b, 1 - share, side * share, 4, to);
    } else {
        const float angle = std::acos(std::min(cosine, 1.0F));
        mix(a, b, std::sin((1 - share) * angle) / std::sin(angle),
            side * std::sin(share * angle) / std::sin(angle), 4, to);
    }
    normalize(to);
}

void curve(const Keys& keys, std::size_t key, float share, float seconds, float* to)
{
    const std::size_t width = keys.width;
    const float* from = valueOf(keys, key);
    const float* leaving = from + width;
    const float* next = valueOf(keys, key + 1);
    const float* arriving = next - width;
    const float s2 = share * share;
    const float s3 = s2 * share;
    for (std::size_t i = 0; i < width; ++i)
        to[i] = (2 * s3 - 3 * s2 + 1) * from[i] + seconds * (s3 - 2 * s2 + share) * leaving[i] +
                (3 * s2 - 2 * s3) * next[i] + seconds * (s3 - s2) * arriving[i];
    if (keys.isRotation)
        normalize(to);
}

} // namespace

void xsg::sampleKeys(const KeyList& keys, float time, float* to)
{
    if (keys.count == 0)
        return;
    const float* end = keys.times + keys.count;
    const auto after = static_cast<std::size_t>(std::upper_bound(keys.times, end, time) - keys.times);
    const std::size_t key = after > 0 ? after - 1 : 0;
    const bool isBetween = after > 0 && after < keys.count;
    if (!isBetween || keys.between == KeyList::Between::Step) {
        std::copy_n(valueOf(keys, key), keys.width, to);
        return;
    }
    const float seconds = keys.times[key + 1] - keys.times[key];
    const float share = (time - keys.times[key]) / seconds;
    if (keys.between == KeyList::Between::Cubic)
        curve(keys, key, share, seconds, to);
    else if (keys.isRotation)
        turn(valueOf(keys, key), valueOf(keys, key + 1), share, to);
    else
        mix(valueOf(keys, key), valueOf(keys, key + 1), 1 - share, share, keys.width, to);
}
