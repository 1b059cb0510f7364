// SPDX-License-Identifier: MIT
#include "export/GltfValues.h"

#include <xsg/values/SbBox.h>

namespace scopix
{

QJsonArray array(const SbVec3f& v)
{
    return {finite(v[0]), finite(v[1]), finite(v[2])};
}

QJsonArray array(const SbMatrix& matrix)
{
    QJsonArray all;
    for (int i = 0; i < 16; ++i)
        all.append(finite(matrix.getValue()[i]));
    return all;
}

void setName(QJsonObject& object, const std::string& name)
{
    if (!name.empty())
        object.insert(key("name"), QString::fromStdString(name));
}

void insertList(QJsonObject& object, const char* name, const QJsonArray& list)
{
    if (!list.isEmpty())
        object.insert(key(name), list);
}

int addVectors(GltfBuffer& buffer, const std::vector<SbVec3f>& vectors, const QJsonObject& more)
{
    const auto write = [&vectors](ExportSink& out) {
        for (const SbVec3f& v : vectors) {
            for (int i = 0; i < 3; ++i)
                out.raw(static_cast<float>(finite(v[i])));
        }
    };
    return buffer.add(GltfBuffer::Component::Float, "VEC3", vectors.size(), 3 * sizeof(float), write, more);
}

int addPoints(GltfBuffer& buffer, const std::vector<SbVec3f>& points)
{
    SbBox3f box;
    for (const SbVec3f& point : points)
        box.extendBy({static_cast<float>(finite(point[0])), static_cast<float>(finite(point[1])),
                      static_cast<float>(finite(point[2]))});
    return addVectors(buffer, points, {{key("min"), array(box.getMin())}, {key("max"), array(box.getMax())}});
}

} // namespace scopix
