// SPDX-License-Identifier: MIT
// What commands are compared with: a program with the same libraries that does nothing, reads scenes, or
// reads them and writes the first:
//
//     bench_plain_program [read FILE... | write OUT FILE...]
#include <xsg/files/SoSceneFile.h>
#include <xsg/registry/SoDB.h>

#include <cstring>
#include <string>

int main(int argc, char** argv)
{
    if (argc < 3)
        return 0;
    SoDB::init();
    const bool writes = std::strcmp(argv[1], "write") == 0;
    SoNode* first = nullptr;
    std::string error;
    for (int i = writes ? 3 : 2; i < argc; ++i) {
        SoNode* scene = SoSceneFile::read(argv[i], error).release(); // lives until the end, as in a command
        if (!scene)
            return 1;
        first = first ? first : scene;
    }
    return !writes || (first && SoSceneFile::write(first, argv[2], error)) ? 0 : 1;
}
