// SPDX-License-Identifier: MIT
#include <xsg/files/SoSceneFile.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SceneReader.h>
#include <xsg/files/SceneWriter.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/SpecialFile.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace
{

constexpr std::size_t LargestFile = std::size_t{1} << 32U;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

void refuse(const std::string& path, const std::string& sentence, std::string& error)
{
    error = path + ": " + sentence;
    SoReadError::post(SbString(path), 0, SbString(sentence));
}

void refuse(const std::string& path, const xsg::SceneReader& reader, std::string& error)
{
    const std::string sentence = reader.getProblem() + ".";
    error = path + ":" + std::to_string(reader.getLine()) + ": Column " + std::to_string(reader.getColumn()) +
            ": " + sentence;
    SoReadError::post(SbString(path), reader.getLine(), reader.getColumn(), SbString(sentence));
}

// Reads up to `size` more bytes.
void readMore(std::FILE* file, std::size_t size, std::string& text)
{
    const std::size_t before = text.size();
    text.resize(before + size);
    text.resize(before + std::fread(text.data() + before, 1, size, file));
}

bool readAll(const std::string& path, std::string& text, std::string& error)
{
    if (xsg::isSpecialFile(path)) { // before it is opened, for which a pipe would wait
        refuse(path, "A scene file was expected, but this is not a file.", error);
        return false;
    }
    const File file(std::fopen(path.c_str(), "rb"));
    struct stat about {
    };
    if (!file || fstat(fileno(file.get()), &about) != 0) {
        refuse(path, "The file cannot be read: " + std::string(std::strerror(errno)) + ".", error);
        return false;
    }
    const auto size = static_cast<std::size_t>(about.st_size);
    if (size > LargestFile) {
        refuse(path,
               "A scene file of at most 4 GiB was expected, but this one has " + std::to_string(size) +
                   " bytes.",
               error);
        return false;
    }
    // What begins otherwise is refused for its first line, however long it is.
    readMore(file.get(), std::min(size, SoSceneFile::FirstLine.size()), text);
    if (text == SoSceneFile::FirstLine)
        readMore(file.get(), size - text.size(), text);
    if (std::ferror(file.get())) {
        refuse(path, "The file cannot be read to its end.", error);
        return false;
    }
    return true;
}

} // namespace

SoRef<SoNode> SoSceneFile::read(const std::string& path, std::string& error)
{
    std::string text;
    if (!readAll(path, text, error))
        return nullptr;
    xsg::feeds.filesRead.add();
    return readText(text, path, error);
}

SoRef<SoNode> SoSceneFile::readText(std::string_view text, const std::string& name, std::string& error)
{
    xsg::SceneReader reader(text);
    SoRef<SoNode> root = reader.read();
    xsg::feeds.bytesParsed.add(static_cast<std::int64_t>(text.size()));
    if (!root)
        refuse(name, reader, error);
    return root;
}

bool SoSceneFile::write(const SoNode* root, const std::string& path, std::string& error)
{
    xsg::FileReplacement file(path);
    bool isGood = file.open();
    xsg::SceneWriter writer([&](const std::string& piece) { isGood = isGood && file.write(piece); });
    if (isGood)
        writer.write(root);
    if (isGood && file.commit())
        return true;
    error = path + ": The file cannot be written: " + file.getProblem() + ".";
    return false;
}

std::string SoSceneFile::writeText(const SoNode* root)
{
    std::string text;
    xsg::SceneWriter([&](const std::string& piece) { text += piece; }).write(root);
    return text;
}
