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

/// Its path and its folder, with symbolic links resolved.
QString path();
QString folder();

/// The path of a program that the host starts for work that must not harm its own process, such as
/// "scopix-read-model". They lie in the folder "scopix" beside the library.
QString helperProgram(const QString& name);
/// Its ELF header as it lies in memory, which shows what kind of machine this process runs on.
const Header& header();

} // namespace OwnLibrary

} // namespace scopix
