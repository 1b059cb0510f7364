// SPDX-License-Identifier: MIT
#include <xsg/files/SoSceneFile.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/files/SceneReading.h>
#include <xsg/files/SceneWriter.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool refuseWriting(const std::string& path, int code, std::string& error)
{
    error = path + ": The file cannot be written: " + std::strerror(code) + ".";
    return false;
}

// Writes everything and makes sure that it is on the disk, so that the rename cannot outrun the data.
int writeTo(int descriptor, const SoNode* root)
{
    const File file(fdopen(descriptor, "wb"));
    int problem = 0;
    xsg::SceneWriter writer([&](const std::string& piece) {
        if (problem == 0 && std::fwrite(piece.data(), 1, piece.size(), file.get()) != piece.size())
            problem = errno;
    });
    writer.write(root);
    if (problem == 0 && (std::fflush(file.get()) != 0 || fsync(descriptor) != 0))
        problem = errno;
    return problem;
}

} // namespace

SoRef<SoNode> SoSceneFile::read(const std::string& path, std::string& error)
{
    xsg::SceneReading reading(path);
    reading.advance(xsg::SceneReader::Clock::time_point::max());
    error = reading.getError();
    return reading.takeScene();
}

SoRef<SoNode> SoSceneFile::readText(std::string_view text, const std::string& name, std::string& error)
{
    xsg::SceneReader reader(text);
    SoRef<SoNode> root = reader.read();
    xsg::feeds.bytesParsed.add(static_cast<std::int64_t>(text.size()));
    if (!root)
        error = xsg::postReadError(name, reader);
    return root;
}

bool SoSceneFile::write(const SoNode* root, const std::string& path, std::string& error)
{
    // Beside the file, since a rename works only within one file system.
    std::string temporary = path + ".XXXXXX";
    const int descriptor = mkstemp(temporary.data());
    if (descriptor < 0)
        return refuseWriting(path, errno, error);
    struct stat about {
    };
    const mode_t mode = stat(path.c_str(), &about) == 0 ? about.st_mode & 07777U : 0644U;
    fchmod(descriptor, mode);
    int problem = writeTo(descriptor, root);
    if (problem == 0 && std::rename(temporary.c_str(), path.c_str()) != 0)
        problem = errno;
    if (problem == 0)
        return true;
    std::remove(temporary.c_str());
    return refuseWriting(path, problem, error);
}

std::string SoSceneFile::writeText(const SoNode* root)
{
    std::string text;
    xsg::SceneWriter([&](const std::string& piece) { text += piece; }).write(root);
    return text;
}
