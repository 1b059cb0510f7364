// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <initializer_list>
#include <vector>

/// A glTF model of three nodes, made for tests: "root" with "bone" and "mesh" in it, and a clip of what the
/// tests add. Its data is in the file.
class AnimatedGltf
{
public:
    AnimatedGltf()
    {
        m_nodes = {QJsonObject{{"name", "root"}, {"children", QJsonArray{1, 2}}},
                   QJsonObject{{"name", "bone"}, {"translation", QJsonArray{0, 1, 0}}},
                   QJsonObject{{"name", "mesh"}, {"mesh", 0}, {"translation", QJsonArray{5, 0, 0}}}};
        m_attributes["POSITION"] = add({0, 0, 0, 1, 0, 0, 0, 2, 0}, "VEC3");
    }

    void rename(int node, const char* name)
    {
        QJsonObject renamed = m_nodes[node].toObject();
        renamed["name"] = QLatin1String(name);
        m_nodes[node] = renamed;
    }

    /// The triangle's third corner belongs to the bone, the others to the root.
    void addSkin()
    {
        const int joints = add({0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0}, "VEC4", true);
        m_attributes["JOINTS_0"] = joints;
        m_attributes["WEIGHTS_0"] = add({1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0}, "VEC4");
        const int binds = add(
            {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, -1, 0, 1},
            "MAT4");
        m_skins = {QJsonObject{{"joints", QJsonArray{0, 1}}, {"inverseBindMatrices", binds}}};
        QJsonObject mesh = m_nodes[2].toObject();
        mesh["skin"] = 0;
        m_nodes[2] = mesh;
    }

    /// One that moves the third corner by 4 along z.
    void addMorph() { m_targets = {QJsonObject{{"POSITION", add({0, 0, 0, 0, 0, 0, 0, 0, 4}, "VEC3")}}}; }

    void addChannel(int node, const char* path, const std::vector<float>& times,
                    const std::vector<float>& values, const char* type, const char* interpolation = "LINEAR")
    {
        m_samplers.append(QJsonObject{{"input", add(times, "SCALAR")},
                                      {"output", add(values, type)},
                                      {"interpolation", interpolation}});
        m_channels.append(
            QJsonObject{{"sampler", m_samplers.size() - 1},
                        {"target", QJsonObject{{"node", node}, {"path", QLatin1String(path)}}}});
    }

    QByteArray text() const
    {
        QJsonObject primitive{{"attributes", m_attributes}};
        if (!m_targets.isEmpty())
            primitive["targets"] = m_targets;
        QJsonObject gltf{
            {"asset", QJsonObject{{"version", "2.0"}}},
            {"scene", 0},
            {"scenes", QJsonArray{QJsonObject{{"nodes", QJsonArray{0}}}}},
            {"nodes", m_nodes},
            {"meshes", QJsonArray{QJsonObject{{"name", "triangle"}, {"primitives", QJsonArray{primitive}}}}},
            {"accessors", m_accessors},
            {"bufferViews", m_views},
            {"buffers", QJsonArray{QJsonObject{{"byteLength", m_bytes.size()},
                                               {"uri", "data:application/octet-stream;base64," +
                                                           QString(m_bytes.toBase64())}}}}};
        if (!m_skins.isEmpty())
            gltf["skins"] = m_skins;
        if (!m_channels.isEmpty())
            gltf["animations"] =
                QJsonArray{QJsonObject{{"name", "clip"}, {"samplers", m_samplers}, {"channels", m_channels}}};
        return QJsonDocument(gltf).toJson();
    }

private:
    int add(const std::vector<float>& numbers, const char* type, bool asBytes = false)
    {
        const int start = m_bytes.size();
        for (const float number : numbers) {
            if (asBytes)
                m_bytes.append(static_cast<char>(number));
            else
                m_bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
        }
        const QString kind = QLatin1String(type);
        const int width = kind == "SCALAR" ? 1 : kind == "VEC3" ? 3 : kind == "VEC4" ? 4 : 16;
        m_views.append(
            QJsonObject{{"buffer", 0}, {"byteOffset", start}, {"byteLength", m_bytes.size() - start}});
        QJsonObject accessor{{"bufferView", m_views.size() - 1},
                             {"componentType", asBytes ? 5121 : 5126},
                             {"count", int(numbers.size()) / width},
                             {"type", kind}};
        if (kind == "SCALAR") {
            accessor["min"] = QJsonArray{double(numbers.front())};
            accessor["max"] = QJsonArray{double(numbers.back())};
        }
        m_accessors.append(accessor);
        while (m_bytes.size() % 4 != 0)
            m_bytes.append('\0');
        return m_accessors.size() - 1;
    }

    QByteArray m_bytes;
    QJsonArray m_nodes;
    QJsonObject m_attributes;
    QJsonArray m_targets;
    QJsonArray m_skins;
    QJsonArray m_samplers;
    QJsonArray m_channels;
    QJsonArray m_accessors;
    QJsonArray m_views;
};
