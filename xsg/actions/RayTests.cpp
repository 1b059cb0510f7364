// SPDX-License-Identifier: MIT
#include <xsg/actions/RayTests.h>

#include <algorithm>
#include <cmath>

bool xsg::meetsBox(const SbRay& ray, const SbBox3f& box)
{
    float enter = 0;
    float leave = std::numeric_limits<float>::max();
    for (int i = 0; i < 3; ++i) {
        const float inverse = 1.0F / ray.direction[i];
        float near = (box.getMin()[i] - ray.origin[i]) * inverse;
        float far = (box.getMax()[i] - ray.origin[i]) * inverse;
        if (near > far)
            std::swap(near, far);
        // Written so that NaN (0/0: the ray lies in the plane of a side) changes nothing.
        enter = near > enter ? near : enter;
        leave = far < leave ? far : leave;
    }
    return enter <= leave;
}

bool xsg::meetsTriangle(const SbRay& ray, const SbVec3f& a, const SbVec3f& b, const SbVec3f& c,
                        float& distance, SbVec3f& normal)
{
    const SbVec3f ab = b - a;
    const SbVec3f ac = c - a;
    const SbVec3f p = cross(ray.direction, ac);
    const float determinant = ab.dot(p);
    if (determinant == 0 || !std::isfinite(determinant))
        return false;
    const float inverse = 1.0F / determinant;
    const SbVec3f toOrigin = ray.origin - a;
    const float u = toOrigin.dot(p) * inverse;
    const SbVec3f q = cross(toOrigin, ab);
    const float v = ray.direction.dot(q) * inverse;
    if (!(u >= 0 && v >= 0 && u + v <= 1))
        return false;
    distance = ac.dot(q) * inverse;
    normal = cross(ab, ac);
    return distance >= 0;
}

bool xsg::passesSegment(const SbRay& ray, const SbVec3f& a, const SbVec3f& b, float tolerance,
                        float& distance)
{
    const SbVec3f along = b - a;
    const SbVec3f toA = a - ray.origin;
    const float d = along.dot(ray.direction);
    const float lengthSquared = along.dot(along);
    // The place on the segment that is nearest to the ray's line.
    const float denominator = lengthSquared - d * d;
    float place = denominator > 0 ? (d * toA.dot(ray.direction) - along.dot(toA)) / denominator : 0.0F;
    place = std::clamp(place, 0.0F, 1.0F);
    const SbVec3f nearest = a + along * place;
    distance = (nearest - ray.origin).dot(ray.direction);
    if (!(distance >= 0))
        return false;
    return (nearest - ray.at(distance)).length() <= tolerance * distance;
}
