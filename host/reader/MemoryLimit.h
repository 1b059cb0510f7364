// SPDX-License-Identifier: MIT
// Keeps what a model may take of the machine's memory in proportion to its file: a bad one may ask for
// anything.
#pragma once

class QString;

namespace scopix
{

/// From here on this process can have 1.5 GiB more than it has, and many times the bytes of the file
/// at `path` and of those beside it, in which its buffers may be; no more than the machine has. Memory
/// refused is std::bad_alloc.
void limitMemoryFor(const QString& path);

} // namespace scopix
