// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <link.h>

namespace scopix
{

/// The file that this code was loaded from: the host library, wherever the program that embeds it lies.
namespace OwnLibrary
{

using Header = ElfW(Ehdr);

/// Its folder, with symbolic links resolved.
QString folder();

/// Its ELF header as it lies in memory, which shows what kind of machine this process runs on.
const Header& header();

} // namespace OwnLibrary

} // namespace scopix
