// SPDX-License-Identifier: MIT
#include "model/ModelFile.h"

#include "model/ModelReadResult.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace scopix
{

namespace
{

constexpr std::uint32_t Mark = 0x5370784D;

class Writer
{
public:
    explicit Writer(QIODevice& file)
        : m_file(file)
    {
    }
    bool isGood() const { return m_good; }

    void bytes(const void* from, std::size_t size)
    {
        const auto wanted = static_cast<qint64>(size);
        m_good = m_good && m_file.write(static_cast<const char*>(from), wanted) == wanted;
    }
    template <class List>
    void resize(const List& list)
    {
        const std::uint64_t count = list.size();
        bytes(&count, sizeof count);
    }

private:
    QIODevice& m_file;
    bool m_good = true;
};

class Reader
{
public:
    Reader(const char* bytes, std::size_t size)
        : m_at(bytes)
        , m_rest(size)
    {
    }
    bool isGood() const { return m_good; }
    bool isAtEnd() const { return m_rest == 0; }

    void bytes(void* to, std::size_t size)
    {
        m_good = m_good && size <= m_rest;
        if (!m_good || size == 0)
            return;
        std::memcpy(to, m_at, size);
        m_at += size;
        m_rest -= size;
    }
    template <class List>
    void resize(List& list)
    {
        std::uint64_t count = 0;
        bytes(&count, sizeof count);
        // An element takes a byte or more, so a wrong count asks for no memory that is not there.
        constexpr std::size_t Least =
            std::is_trivially_copyable_v<typename List::value_type> ? sizeof(typename List::value_type) : 1;
        m_good = m_good && count <= m_rest / Least;
        list.resize(m_good ? count : 0);
    }

private:
    const char* m_at;
    std::size_t m_rest;
    bool m_good = true;
};

// What a model consists of, told once for both ways.
template <class Way>
class Archive
{
public:
    explicit Archive(Way& way)
        : m_way(way)
    {
    }

    template <class... Parts>
    void operator()(Parts&... parts)
    {
        (pass(parts), ...);
    }

private:
    template <class T>
    std::enable_if_t<std::is_trivially_copyable_v<T>> pass(T& value)
    {
        m_way.bytes(&value, sizeof value);
    }
    void pass(std::string& text) { passList(text); }
    template <class T>
    void pass(std::vector<T>& list)
    {
        passList(list);
    }
    template <class List>
    void passList(List& list)
    {
        m_way.resize(list);
        if constexpr (std::is_trivially_copyable_v<typename List::value_type>) {
            m_way.bytes(list.data(), list.size() * sizeof(typename List::value_type));
        } else {
            for (auto& each : list)
                pass(each);
        }
    }

    void pass(ModelData::Mesh& m)
    {
        (*this)(m.name, m.material, m.points, m.normals, m.textureCoordinates, m.colors, m.index);
    }
    void pass(ModelData::Material& m)
    {
        (*this)(m.name, m.ambient, m.diffuse, m.specular, m.emissive, m.shininess, m.transparency, m.picture,
                m.clampS, m.clampT);
    }
    void pass(ModelData::Picture& p) { (*this)(p.name, p.width, p.height, p.components, p.bytes); }
    void pass(ModelData::Node& n) { (*this)(n.name, n.matrix, n.meshes, n.children, n.light, n.camera); }
    void pass(ModelData& m) { (*this)(m.meshes, m.materials, m.pictures, m.lights, m.cameras, m.nodes); }

    Way& m_way;
};

template <class List>
bool isPlace(int place, const List& list)
{
    return place >= -1 && place < static_cast<int>(list.size());
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
    return allOf(model.nodes, isNode) &&
           allOf(model.meshes, [&](const auto& mesh) { return isPlace(mesh.material, model.materials); }) &&
           allOf(model.materials, [&](const auto& look) { return isPlace(look.picture, model.pictures); });
}

} // namespace

bool writeModelFile(const ModelReadResult& model, QIODevice& file)
{
    Writer writer(file);
    std::uint32_t mark = Mark;
    std::string error = model.error.toStdString();
    // Writing changes nothing; the other way does.
    Archive<Writer> pass(writer);
    pass(mark, error, const_cast<ModelData&>(model.data), mark);
    return writer.isGood();
}

bool readModelFile(const char* bytes, std::size_t size, ModelReadResult& model)
{
    Reader reader(bytes, size);
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
    std::string error;
    Archive<Reader> pass(reader);
    pass(begin, error, model.data, end);
    model.error = QString::fromStdString(error);
    return reader.isGood() && reader.isAtEnd() && begin == Mark && end == Mark && isConsistent(model.data);
}

} // namespace scopix
