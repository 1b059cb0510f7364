// SPDX-License-Identifier: MIT
#include "reader/MemoryLimit.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

namespace scopix
{

namespace
{

rlim_t pageSize()
{
    return static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// Counted as the limit counts it, which for a sanitizer's own tables is far more than there is.
rlim_t dataInUse()
{
    QFile counts(QStringLiteral("/proc/self/statm"));
    if (!counts.open(QIODevice::ReadOnly))
        return 0;
    constexpr int DataColumn = 5; // man 5 proc: size, resident, shared, text, lib, data
    return counts.readAll().split(' ').value(DataColumn).toULongLong() * pageSize();
}

rlim_t bytesBeside(const QString& path)
{
    rlim_t bytes = 0;
    QDirIterator files(QFileInfo(path).absolutePath(), QDir::Files);
    while (files.hasNext()) {
        files.next();
        bytes += static_cast<rlim_t>(files.fileInfo().size());
    }
    return bytes;
}

} // namespace

void limitMemoryFor(const QString& path)
{
    constexpr rlim_t Least = rlim_t{3} << 29; // 1.5 GiB, with which the process stays below 2 GiB
    constexpr rlim_t PerByte = 64;            // text grows some tenfold, a packed model several times that
    const rlim_t machine = static_cast<rlim_t>(sysconf(_SC_PHYS_PAGES)) * pageSize();
    const rlim_t model = std::min(bytesBeside(path), machine / PerByte);
    const rlim_t most = dataInUse() + std::min(machine, Least + PerByte * model);
    const rlimit limit{most, most};
    setrlimit(RLIMIT_DATA, &limit);
}

} // namespace scopix
