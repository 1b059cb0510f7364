// SPDX-License-Identifier: MIT
// What ./run passes to the program, by a program that only prints it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace
{

class Run : public testing::Test
{
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(folder + "/tools");
        std::filesystem::create_directories(folder + "/build/release/bin");
        std::filesystem::copy_file(SCOPIX_SOURCE_DIR "/run", folder + "/run",
                                   std::filesystem::copy_options::overwrite_existing);
        std::ofstream(folder + "/tools/setup.sh")
            << "scopix_root=$(cd \"$(dirname \"${BASH_SOURCE[0]}\")/..\" && pwd)\n"
               "scopix_build_packages=()\n"
               "scopix_install() { :; }\n"
               "scopix_build() { :; }\n"
               "scopix_fail() { echo \"refused: $*\"; exit 1; }\n";
        const std::string program = folder + "/build/release/bin/scopix";
        std::ofstream(program) << "#!/bin/sh\nfor each in \"$@\"; do printf '<%s>' \"$each\"; done\n";
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::string run(const std::string& arguments)
    {
        const std::string line = "DISPLAY=:none \"" + folder + "/run\" " + arguments;
        std::string said;
        FILE* pipe = popen(line.c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
            said += static_cast<char>(c);
        pclose(pipe);
        return said;
    }

    const std::string folder =
        std::filesystem::canonical(std::filesystem::path(testing::TempDir())).string() + "/run-" +
        testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string shown = "<" + folder + "/data/scenes/showcase.xsg>";
};

} // namespace

TEST_F(Run, OpensTheShippedSceneByDefault)
{
    EXPECT_EQ(run(""), shown);
    EXPECT_EQ(run("--counters"), shown + "<--counters>");
    EXPECT_EQ(run("--select Glass.shininess -platform offscreen"),
              shown + "<--select><Glass.shininess><-platform><offscreen>");
    EXPECT_TRUE(std::filesystem::exists(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
}

TEST_F(Run, OpensTheFileThatIsNamed)
{
    EXPECT_EQ(run("my.xsg"), "<my.xsg>");
    EXPECT_EQ(run("--plugin a.so 'my model.glb' --quit"), "<--plugin><a.so><my model.glb><--quit>");
    EXPECT_EQ(run("--screenshot=out.png my.xsg"), "<--screenshot=out.png><my.xsg>");
}
