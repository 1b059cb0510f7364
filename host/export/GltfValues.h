// SPDX-License-Identifier: MIT
// Values as glTF files have them.
#pragma once

#include "export/GltfBuffer.h"

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbVec.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <cmath>
#include <string>
#include <vector>

namespace scopix
{

inline QString key(const char* text)
{
    return QString::fromLatin1(text);
}

/// The format has no numbers that are not finite.
inline double finite(float number)
{
    return std::isfinite(number) ? static_cast<double>(number) : 0;
}

QJsonArray array(const SbVec3f& v);
QJsonArray array(const SbMatrix& matrix);
void setName(QJsonObject& object, const std::string& name);
/// A list of places must not be empty.
void insertList(QJsonObject& object, const char* name, const QJsonArray& list);

/// The place of an accessor; the vectors must outlive the buffer.
int addVectors(GltfBuffer& buffer, const std::vector<SbVec3f>& vectors, const QJsonObject& more = {});
/// The same with the box around them, as the format wants it for positions.
int addPoints(GltfBuffer& buffer, const std::vector<SbVec3f>& points);

} // namespace scopix
