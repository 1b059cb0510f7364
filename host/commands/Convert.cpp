// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/SceneFiles.h"

namespace scopix
{

int convertFile(const Arguments& arguments)
{
    if (!canWriteScene(arguments.values[1], FileKinds::ScenesAndModels))
        return Failed;
    const SoRef<SoNode> root = loadOrComplain(arguments.values[0]);
    return root && writeScene(root.get(), arguments.values[1]) ? Fine : Failed;
}

} // namespace scopix
