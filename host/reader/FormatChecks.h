// SPDX-License-Identifier: MIT
// One sentence when a file of this format is not whole, as far as its header tells; else empty. The importer
// does not notice by itself: cut files keep it busy for ever.
#pragma once

class QString;

namespace scopix
{

QString checkBinaryGltf(const QString& path);
QString checkPly(const QString& path);

} // namespace scopix
