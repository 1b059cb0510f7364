// SPDX-License-Identifier: MIT
// What a model file has and a scene made of it has not, in words for the user.
#pragma once

#include <QStringList>

struct aiScene;

namespace scopix
{

/// What nodes there are none for: a sentence for each kind of thing, with its count.
QStringList partsLeftOut(const aiScene& scene);
/// "2 NOUNS are missing …: “a”, “b”." Nothing for no names.
QStringList missingMaterialFiles(const QStringList& names);
QStringList missingPictures(const QStringList& names);

} // namespace scopix
