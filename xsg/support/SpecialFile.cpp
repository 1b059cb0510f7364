// SPDX-License-Identifier: MIT
#include <xsg/support/SpecialFile.h>

#include <filesystem>

bool xsg::isSpecialFile(const std::string& path)
{
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}
