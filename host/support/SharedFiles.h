// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// The path of a file or folder that is installed with the program, such as "docs/nodes.md" or
/// "scenes/showcase.xsg"; empty where it is not. They lie below share/scopix beside the libraries, which may
/// be in a folder for one kind of machine, or beside the program.
QString sharedFile(const QString& name);

} // namespace scopix
