// SPDX-License-Identifier: MIT
#include "model/ModelFile.h"

#include "model/ModelReadResult.h"

#include <QDataStream>

#include <algorithm>
#include <tuple>
#include <type_traits>

namespace scopix
{

namespace
{

constexpr std::uint32_t Mark = 0x5370784D;

// The members of each part of a model, for both directions: `Part` is const where it is written.
template <class Part>
auto membersOf(Part& part)
{
    using Plain = std::remove_const_t<Part>;
    if constexpr (std::is_same_v<Plain, ModelData::Mesh>) {
        return std::tie(part.name, part.material, part.corners, part.points, part.normals,
                        part.textureCoordinates, part.secondTextureCoordinates, part.colors, part.index);
    } else if constexpr (std::is_same_v<Plain, ModelData::Material>) {
        return std::tie(part.name, part.ambient, part.diffuse, part.specular, part.emissive, part.shininess,
                        part.transparency, part.picture, part.clampS, part.clampT, part.physical,
                        part.pictures);
    } else if constexpr (std::is_same_v<Plain, ModelData::Picture>) {
        return std::tie(part.name, part.width, part.height, part.components, part.bytes);
    } else if constexpr (std::is_same_v<Plain, ModelMotion>) {
        return std::tie(part.skins, part.morphs, part.clips);
    } else if constexpr (std::is_same_v<Plain, ModelMotion::Skin>) {
        return std::tie(part.mesh, part.bones, part.binds, part.bonesPerPoint, part.boneIndices,
                        part.weights);
    } else if constexpr (std::is_same_v<Plain, ModelMotion::Morph>) {
        return std::tie(part.mesh, part.weights, part.pointOffsets, part.normalOffsets);
    } else if constexpr (std::is_same_v<Plain, ModelMotion::Clip>) {
        return std::tie(part.name, part.seconds, part.tracks);
    } else if constexpr (std::is_same_v<Plain, ModelMotion::Track>) {
        return std::tie(part.node, part.property, part.between, part.times, part.values);
    } else if constexpr (std::is_same_v<Plain, ModelData::Node>) {
        return std::tie(part.name, part.matrix, part.meshes, part.children, part.light, part.camera);
    } else {
        static_assert(std::is_same_v<Plain, ModelData>);
        return std::tie(part.meshes, part.materials, part.pictures, part.lights, part.cameras, part.nodes,
                        part.motion);
    }
}

// What can be handed over as the bytes that it has in memory.
template <class T>
constexpr bool isPlain = std::is_trivially_copyable_v<T>;

template <class T>
struct IsList : std::false_type {
};
template <>
struct IsList<std::string> : std::true_type {
};
template <class T>
struct IsList<std::vector<T>> : std::true_type {
};

// QDataStream counts in int; a model may be larger than that.
void writeBytes(QDataStream& stream, const void* from, std::size_t size)
{
    const auto* at = static_cast<const char*>(from);
    const auto wanted = static_cast<qint64>(size);
    if (stream.status() == QDataStream::Ok && stream.device()->write(at, wanted) != wanted)
        stream.setStatus(QDataStream::WriteFailed);
}

void readBytes(QDataStream& stream, void* to, std::size_t size)
{
    const auto wanted = static_cast<qint64>(size);
    if (stream.status() == QDataStream::Ok && stream.device()->read(static_cast<char*>(to), wanted) != wanted)
        stream.setStatus(QDataStream::ReadPastEnd);
}

template <class T>
void write(QDataStream& stream, const T& value)
{
    if constexpr (isPlain<T>) {
        writeBytes(stream, &value, sizeof value);
    } else if constexpr (IsList<T>::value) {
        stream << static_cast<quint64>(value.size());
        if constexpr (isPlain<typename T::value_type>)
            writeBytes(stream, value.data(), value.size() * sizeof(typename T::value_type));
        else
            for (const auto& each : value)
                write(stream, each);
    } else {
        std::apply([&](const auto&... member) { (write(stream, member), ...); }, membersOf(value));
    }
}

// An element takes a byte or more, so that a wrong count asks for no memory that is not there.
template <class List>
void readSize(QDataStream& stream, List& list)
{
    using Element = typename List::value_type;
    quint64 count = 0;
    stream >> count;
    if (count >
        static_cast<quint64>(stream.device()->bytesAvailable()) / (isPlain<Element> ? sizeof(Element) : 1))
        stream.setStatus(QDataStream::ReadCorruptData);
    list.resize(stream.status() == QDataStream::Ok ? count : 0);
}

template <class T>
void read(QDataStream& stream, T& value)
{
    if constexpr (isPlain<T>) {
        readBytes(stream, &value, sizeof value);
    } else if constexpr (IsList<T>::value) {
        readSize(stream, value);
        if constexpr (isPlain<typename T::value_type>)
            readBytes(stream, value.data(), value.size() * sizeof(typename T::value_type));
        else
            for (auto& each : value)
                read(stream, each);
    } else {
        std::apply([&](auto&... member) { (read(stream, member), ...); }, membersOf(value));
    }
}

template <class List>
bool isPlace(int place, const List& list)
{
    return place >= -1 && place < static_cast<int>(list.size());
}

template <class List>
bool isItem(int place, const List& list)
{
    return place >= 0 && isPlace(place, list);
}

bool isConsistent(const ModelMotion::Skin& skin, const ModelData& model)
{
    return isItem(skin.mesh, model.meshes) && skin.binds.size() == skin.bones.size() &&
           std::all_of(skin.bones.begin(), skin.bones.end(),
                       [&](int bone) { return isItem(bone, model.nodes); }) &&
           std::all_of(skin.boneIndices.begin(), skin.boneIndices.end(),
                       [&](int bone) { return isPlace(bone, skin.bones); });
}

bool isConsistent(const ModelMotion& motion, const ModelData& model)
{
    const auto hasMesh = [&](const ModelMotion::Morph& morph) { return isItem(morph.mesh, model.meshes); };
    const auto hasNodes = [&](const ModelMotion::Clip& clip) {
        return std::all_of(clip.tracks.begin(), clip.tracks.end(),
                           [&](const auto& track) { return isItem(track.node, model.nodes); });
    };
    return std::all_of(motion.skins.begin(), motion.skins.end(),
                       [&](const auto& skin) { return isConsistent(skin, model); }) &&
           std::all_of(motion.morphs.begin(), motion.morphs.end(), hasMesh) &&
           std::all_of(motion.clips.begin(), motion.clips.end(), hasNodes);
}

bool isConsistent(const ModelData& model)
{
    const auto allOf = [](const auto& list, auto good) {
        return std::all_of(list.begin(), list.end(), good);
    };
    const auto isNode = [&](const ModelData::Node& node) {
        const auto place = &node - model.nodes.data();
        return isPlace(node.light, model.lights) && isPlace(node.camera, model.cameras) &&
               allOf(node.meshes, [&](int mesh) { return mesh >= 0 && isPlace(mesh, model.meshes); }) &&
               allOf(node.children, [&](int child) { return child > place && isPlace(child, model.nodes); });
    };
    return allOf(model.nodes, isNode) && isConsistent(model.motion, model) &&
           allOf(model.meshes,
                 [&](const auto& mesh) {
                     return isPlace(mesh.material, model.materials) && mesh.corners >= 1 && mesh.corners <= 3;
                 }) &&
           allOf(model.materials, [&](const auto& look) {
               return isPlace(look.picture, model.pictures) && allOf(look.pictures, [&](const auto& each) {
                          return isPlace(each.picture, model.pictures) && each.use >= 0 && each.use < 8 &&
                                 (each.coordinates == 0 || each.coordinates == 1);
                      });
           });
}

} // namespace

bool writeModelFile(const ModelReadResult& model, QIODevice& file)
{
    QDataStream stream(&file);
    stream << Mark << model.error;
    write(stream, model.notes);
    write(stream, model.data);
    stream << Mark;
    return stream.status() == QDataStream::Ok;
}

bool readModelFile(QIODevice& file, ModelReadResult& model)
{
    QDataStream stream(&file);
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    stream >> begin >> model.error;
    read(stream, model.notes);
    read(stream, model.data);
    stream >> end;
    return stream.status() == QDataStream::Ok && stream.atEnd() && begin == Mark && end == Mark &&
           isConsistent(model.data);
}

} // namespace scopix
