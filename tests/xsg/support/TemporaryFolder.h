// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <sys/stat.h>

/// A test in an empty folder of its own, which goes with it.
class InTemporaryFolder : public testing::Test
{
protected:
    InTemporaryFolder()
    {
        std::string name = testing::TempDir() + "XXXXXX";
        folder = mkdtemp(name.data());
    }
    ~InTemporaryFolder() override { std::filesystem::remove_all(folder); }

    std::string at(const std::string& name) const { return folder / name; }
    std::string make(const std::string& name, const std::string& text) const
    {
        std::ofstream(at(name)) << text;
        return at(name);
    }
    static std::string textOf(const std::string& path)
    {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    static mode_t modeOf(const std::string& path)
    {
        struct stat about {
        };
        stat(path.c_str(), &about);
        return about.st_mode & 07777U;
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            found.push_back(entry.path().filename());
        std::sort(found.begin(), found.end());
        return found;
    }

    std::filesystem::path folder;
};
