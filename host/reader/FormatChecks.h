// SPDX-License-Identifier: MIT
// One sentence when a file of this format is incomplete, judging by its header; else empty. The importer
// does not check this itself: truncated files make it run forever.
#pragma once

class QString;

namespace scopix
{

QString checkBinaryGltf(const QString& path);
QString checkPly(const QString& path);

/// Why a glTF file, as text or binary, that the importer does not recognize is none, as the end of a
/// sentence; empty where it looks like one.
QString gltfFault(const QString& path);

} // namespace scopix
