// SPDX-License-Identifier: MIT
#include <xsg/files/SoSceneFile.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/files/SceneReading.h>
#include <xsg/files/SceneWriter.h>
#include <xsg/support/FileReplacement.h>

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
