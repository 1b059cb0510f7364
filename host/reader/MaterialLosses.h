// SPDX-License-Identifier: MIT
// What materials of a file say and materials here cannot show.
#pragma once

#include <QStringList>

struct aiScene;

namespace scopix
{

/// A sentence for each kind of thing, with the count of the materials that have it. What no list here knows
/// is named as the importer names it.
QStringList materialLosses(const aiScene& scene);

} // namespace scopix
