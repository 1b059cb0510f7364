// SPDX-License-Identifier: MIT
#include "model/ModelFormats.h"

namespace scopix
{

QStringList modelEndings()
{
    static const QString all = QStringLiteral("gltf glb obj stl ply dae fbx 3ds 3mf blend x x3d dxf off lwo "
                                              "lws lxo ac ac3d acc amf ase ask b3d bsp bvh cob "
                                              "csm enff hmp ifc ifczip iqm irr irrmesh md2 md3 md5mesh mdc "
                                              "mdl mesh ms3d ndo nff ogex pk3 pmx q3o q3s sib "
                                              "smd ter uc x3db xgl xml zae zgl 3d");
    return all.split(QLatin1Char(' '));
}

} // namespace scopix
