// SPDX-License-Identifier: MIT
#include <xsg/files/SoSceneFile.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/files/SceneReading.h>
#include <xsg/files/SceneWriter.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/WorkPieces.h>

namespace
{

using Clock = xsg::SceneWriter::Clock;

// False where the structure changed meanwhile, so that the writer must not go on.
bool writeInPieces(xsg::SceneWriter& writer, const SoNode* root, const std::function<void(double)>& goOn)
{
    const std::uint64_t structure = SoGroup::getStructureCount();
    writer.begin(root);
    while (!writer.advance(goOn ? Clock::now() + xsg::WorkPieces::Length : Clock::time_point::max())) {
        goOn(writer.getProgress());
        if (SoGroup::getStructureCount() != structure)
            return false;
    }
    return true;
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
    return readText(text, name, error, {});
}

SoRef<SoNode> SoSceneFile::readText(std::string_view text, const std::string& name, std::string& error,
                                    const std::function<void(double)>& goOn)
{
    xsg::SceneReader reader(text);
    SoRef<SoNode> root = reader.read(goOn);
    xsg::feeds.bytesParsed.add(static_cast<std::int64_t>(text.size()));
    if (!root)
        error = xsg::postReadError(name, reader);
    return root;
}

bool SoSceneFile::write(const SoNode* root, const std::string& path, std::string& error)
{
    return write(root, path, error, {});
}

bool SoSceneFile::write(const SoNode* root, const std::string& path, std::string& error,
                        const std::function<void(double)>& goOn)
{
    SbSentence sentence;
    const bool isWritten = write(root, path, sentence, goOn);
    if (!isWritten)
        error = sentence.getText();
    return isWritten;
}

bool SoSceneFile::write(const SoNode* root, const std::string& path, SbSentence& error,
                        const std::function<void(double)>& goOn)
{
    xsg::FileReplacement file(path);
    bool isGood = file.open();
    xsg::SceneWriter writer([&](const std::string& piece) { isGood = isGood && file.write(piece); });
    if (isGood && !writeInPieces(writer, root, goOn))
        return write(root, path, error, {});
    if (isGood && file.commit())
        return true;
    error = SbSentence("%1: The file cannot be written: %2.", path, file.getProblem());
    return false;
}

std::string SoSceneFile::writeText(const SoNode* root)
{
    return writeText(root, {});
}

std::string SoSceneFile::writeText(const SoNode* root, const std::function<void(double)>& goOn)
{
    std::string text;
    xsg::SceneWriter writer([&](const std::string& piece) { text += piece; });
    return writeInPieces(writer, root, goOn) ? text : writeText(root);
}
