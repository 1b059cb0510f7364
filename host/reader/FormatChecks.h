// SPDX-License-Identifier: MIT
// One sentence when a file of this format is incomplete, judging by its header; else empty. The importer
// does not check this itself: truncated files make it run forever.
#pragma once

class QString;

namespace scopix
{

QString checkBinaryGltf(const QString& path);
QString checkPly(const QString& path);

} // namespace scopix
