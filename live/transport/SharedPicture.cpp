// SPDX-License-Identifier: MIT
#include "SharedPicture.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace scopix::live
{

namespace
{

constexpr int Seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

std::size_t sizeOf(std::uint32_t width, std::uint32_t height)
{
    return std::size_t(width) * height * 4;
}

bool isAllowed(std::uint32_t width, std::uint32_t height)
{
    return width > 0 && height > 0 && width <= LargestPicture && height <= LargestPicture;
}

bool writeAll(int file, const std::uint8_t* data, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = write(file, data, size);
        if (written <= 0)
            return false;
        data += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool isSafe(const FileDescriptor& memory, std::size_t size)
{
    struct stat status {
    };
    const int seals = fcntl(memory.number(), F_GET_SEALS);
    return seals >= 0 && (seals & Seals) == Seals && fstat(memory.number(), &status) == 0 &&
           status.st_size >= static_cast<off_t>(size);
}

} // namespace

FileDescriptor sharedPixels(const Picture& picture)
{
    const std::size_t size = sizeOf(picture.width, picture.height);
    if (!isAllowed(picture.width, picture.height) || picture.pixels.size() != size)
        return FileDescriptor();
    FileDescriptor memory(memfd_create("scopix-picture", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory || !writeAll(memory.number(), picture.pixels.data(), size) ||
        fcntl(memory.number(), F_ADD_SEALS, Seals) != 0)
        return FileDescriptor();
    return memory;
}

std::optional<Picture> pictureIn(const FileDescriptor& memory, std::uint32_t width, std::uint32_t height)
{
    const std::size_t size = sizeOf(width, height);
    if (!isAllowed(width, height) || !isSafe(memory, size))
        return std::nullopt;
    void* pixels = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, memory.number(), 0);
    if (pixels == MAP_FAILED)
        return std::nullopt;
    const auto* start = static_cast<const std::uint8_t*>(pixels);
    Picture picture{width, height, {start, start + size}};
    munmap(pixels, size);
    return picture;
}

} // namespace scopix::live
