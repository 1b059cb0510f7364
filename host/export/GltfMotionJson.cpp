// SPDX-License-Identifier: MIT
#include "export/GltfMotionJson.h"

#include "export/ExportNames.h"
#include "export/GltfMotion.h"
#include "export/GltfValues.h"
#include "export/SceneMotion.h"

#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <array>
#include <memory>

namespace scopix
{

namespace
{

using Component = GltfBuffer::Component;

constexpr std::size_t Together = 4; // joints of a point in one accessor

template <class Field>
const Field& atRest(const Field& field)
{
    return static_cast<const Field&>(SoAnimatedValues::getInstance().getRest(field));
}

void insertParts(QJsonObject& object, const SoTransform& transform)
{
    const SbVec3f move = atRest(transform.translation).getValue();
    const SbVec3f scale = atRest(transform.scaleFactor).getValue();
    const SbRotation turn = atRest(transform.rotation).getValue().normalized();
    if (move != SbVec3f())
        object.insert(key("translation"), array(move));
    if (scale != SbVec3f(1, 1, 1))
        object.insert(key("scale"), array(scale));
    if (turn == SbRotation())
        return;
    QJsonArray numbers;
    for (int i = 0; i < 4; ++i)
        numbers.append(finite(turn.getValue()[i]));
    object.insert(key("rotation"), numbers);
}

// What a target adds to each corner.
int addTarget(const SoMFVec3f& offsets, int target, const GltfContent::Mesh& mesh, bool isPosition,
              GltfBuffer& buffer)
{
    const SbVec3f* from = offsets.getValues(target * (offsets.getNum() / mesh.morph->weights.getNum()));
    const auto write = [from, &mesh](ExportSink& out) {
        for (const std::uint32_t place : mesh.places) {
            for (int i = 0; i < 3; ++i)
                out.raw(static_cast<float>(finite(from[place][i])));
        }
    };
    SbBox3f box;
    for (const std::uint32_t place : mesh.places)
        box.extendBy(from[place]);
    QJsonObject more;
    if (isPosition)
        more = {{key("min"), array(box.getMin())}, {key("max"), array(box.getMax())}};
    return buffer.add(Component::Float, "VEC3", mesh.places.size(), 3 * sizeof(float), write, more);
}

void insertMorph(QJsonObject& mesh, QJsonObject& primitive, const GltfContent::Mesh& from, GltfBuffer& buffer)
{
    const SoMorph& morph = *from.morph;
    const SoMFFloat& rest = atRest(morph.weights);
    QJsonArray weights;
    QJsonArray targets;
    for (int i = 0; i < morph.weights.getNum(); ++i) {
        weights.append(i < rest.getNum() ? finite(rest[i]) : 0.0);
        QJsonObject target{{key("POSITION"), addTarget(morph.pointOffsets, i, from, true, buffer)}};
        if (from.hasMorphedNormals)
            target.insert(key("NORMAL"), addTarget(morph.normalOffsets, i, from, false, buffer));
        targets.append(target);
    }
    insertList(mesh, "weights", weights);
    insertList(primitive, "targets", targets);
}

/// Of each corner, the joints that bend it, four of them at a time.
class Influences
{
public:
    Influences(const SoSkin& skin, const std::vector<std::uint32_t>& places)
        : m_skin(skin)
        , m_places(places)
        , m_joints(static_cast<std::size_t>(skin.bones.getNum()))
    {
        const std::vector<int> bones = bonesInUse(skin);
        for (std::size_t i = 0; i < bones.size(); ++i)
            m_joints[static_cast<std::size_t>(bones[i])] = static_cast<std::uint16_t>(i);
    }

    std::size_t countSets() const
    {
        std::size_t most = 1;
        for (const std::uint32_t place : m_places)
            most = std::max(most, countAt(place));
        return (most + Together - 1) / Together;
    }
    void writeJoints(ExportSink& out, std::size_t set) const
    {
        forEach(set, [&](const Four& four) {
            for (const One& one : four)
                out.raw(one.joint);
        });
    }
    void writeWeights(ExportSink& out, std::size_t set) const
    {
        forEach(set, [&](const Four& four) {
            for (const One& one : four)
                out.raw(one.weight);
        });
    }

private:
    struct One {
        std::uint16_t joint = 0;
        float weight = 0;
    };
    using Four = std::array<One, Together>;

    std::size_t perPoint() const { return static_cast<std::size_t>(m_skin.bonesPerPoint.getValue()); }
    float weightAt(std::uint32_t place, std::size_t k) const
    {
        return m_skin.weights[static_cast<int>(place * perPoint() + k)];
    }
    std::size_t countAt(std::uint32_t place) const
    {
        std::size_t count = 0;
        for (std::size_t k = 0; k < perPoint(); ++k)
            count += weightAt(place, k) > 0 ? 1 : 0;
        return count;
    }

    template <class Visit>
    void forEach(std::size_t set, Visit visit) const
    {
        for (const std::uint32_t place : m_places) {
            Four four;
            std::size_t at = 0;
            for (std::size_t k = 0; k < perPoint(); ++k) {
                if (!(weightAt(place, k) > 0))
                    continue;
                if (at / Together == set)
                    four[at % Together] = {jointAt(place, k), weightAt(place, k)};
                ++at;
            }
            visit(four);
        }
    }
    std::uint16_t jointAt(std::uint32_t place, std::size_t k) const
    {
        const std::int32_t bone = m_skin.boneIndices[static_cast<int>(place * perPoint() + k)];
        return m_joints[static_cast<std::size_t>(bone)];
    }

    const SoSkin& m_skin;
    const std::vector<std::uint32_t>& m_places;
    std::vector<std::uint16_t> m_joints; // of each bone: its place among those in use
};

void insertJoints(QJsonObject& primitive, const GltfContent::Mesh& from, GltfBuffer& buffer)
{
    QJsonObject attributes = primitive.value(key("attributes")).toObject();
    const auto influences = std::make_shared<const Influences>(*from.skin, from.places);
    const std::size_t count = from.places.size();
    for (std::size_t set = 0; set < influences->countSets(); ++set) {
        const QString number = QString::number(set);
        attributes.insert(
            key("JOINTS_") + number,
            buffer.add(Component::UnsignedShort, "VEC4", count, Together * sizeof(std::uint16_t),
                       [influences, set](ExportSink& out) { influences->writeJoints(out, set); }, {}));
        attributes.insert(
            key("WEIGHTS_") + number,
            buffer.add(Component::Float, "VEC4", count, Together * sizeof(float),
                       [influences, set](ExportSink& out) { influences->writeWeights(out, set); }, {}));
    }
    primitive.insert(key("attributes"), attributes);
}

int addNumbers(const std::vector<float>& numbers, const char* type, std::size_t width, GltfBuffer& buffer,
               const QJsonObject& more = {})
{
    const auto write = [&numbers](ExportSink& out) {
        for (const float number : numbers)
            out.raw(number);
    };
    return buffer.add(Component::Float, type, numbers.size() / width, width * sizeof(float), write, more);
}

QJsonObject describe(const GltfContent::Skin& skin, GltfBuffer& buffer)
{
    QJsonArray joints;
    for (const std::size_t joint : skin.joints)
        joints.append(static_cast<qint64>(joint));
    const SoSkin& from = *skin.from;
    const auto write = [&from](ExportSink& out) {
        for (const int bone : bonesInUse(from)) {
            for (int i = 0; i < 16; ++i)
                out.raw(static_cast<float>(finite(from.binds[bone].getValue()[i])));
        }
    };
    const int binds = buffer.add(Component::Float, "MAT4", skin.joints.size(), 16 * sizeof(float), write, {});
    QJsonObject object{{key("joints"), joints}, {key("inverseBindMatrices"), binds}};
    setName(object, exportedName(from));
    return object;
}

QJsonObject describe(const GltfContent::Keys& keys, GltfBuffer& buffer)
{
    const QString type = key(keys.type);
    const std::size_t width = type == key("VEC4") ? 4 : type == key("VEC3") ? 3 : 1;
    const QJsonObject range{{key("min"), QJsonArray{finite(keys.times.front())}},
                            {key("max"), QJsonArray{finite(keys.times.back())}}};
    const char* between = keys.interpolation == SoTrack::Step    ? "STEP"
                          : keys.interpolation == SoTrack::Cubic ? "CUBICSPLINE"
                                                                 : "LINEAR";
    return {{key("input"), addNumbers(keys.times, "SCALAR", 1, buffer, range)},
            {key("output"), addNumbers(keys.values, keys.type, width, buffer)},
            {key("interpolation"), key(between)}};
}

QJsonObject describe(const GltfContent::Clip& clip, GltfBuffer& buffer)
{
    QJsonArray samplers;
    for (const GltfContent::Keys& keys : clip.keys)
        samplers.append(describe(keys, buffer));
    QJsonArray channels;
    for (const GltfContent::Channel& channel : clip.channels)
        channels.append(
            QJsonObject{{key("sampler"), static_cast<qint64>(channel.keys)},
                        {key("target"), QJsonObject{{key("node"), static_cast<qint64>(channel.node)},
                                                    {key("path"), key(channel.property)}}}});
    QJsonObject object{{key("samplers"), samplers}, {key("channels"), channels}};
    setName(object, clip.name);
    return object;
}

} // namespace

void insertPlace(QJsonObject& object, const GltfContent::Node& node)
{
    const bool isPlain = node.mover && isA<SoTransform>(*node.mover) &&
                         scopix::isPlain(static_cast<const SoTransform&>(*node.mover));
    const SbMatrix matrix = node.mover ? node.mover->getMatrix() : node.matrix;
    if (isPlain)
        insertParts(object, static_cast<const SoTransform&>(*node.mover));
    else if (!(matrix == SbMatrix()))
        object.insert(key("matrix"), array(matrix));
}

void insertBending(QJsonObject& mesh, QJsonObject& primitive, const GltfContent::Mesh& from,
                   GltfBuffer& buffer)
{
    if (from.morph)
        insertMorph(mesh, primitive, from, buffer);
    if (from.skin)
        insertJoints(primitive, from, buffer);
}

QJsonArray describeSkins(const GltfContent& content, GltfBuffer& buffer)
{
    QJsonArray all;
    for (const GltfContent::Skin& skin : content.skins)
        all.append(describe(skin, buffer));
    return all;
}

QJsonArray describeClips(const GltfContent& content, GltfBuffer& buffer)
{
    QJsonArray all;
    for (const GltfContent::Clip& clip : content.clips)
        all.append(describe(clip, buffer));
    return all;
}

} // namespace scopix
