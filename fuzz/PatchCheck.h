// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <xsg/changes/PatchApplication.h>
#include <xsg/changes/SceneDiff.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/values/Printable.h>

#include <algorithm>

namespace fuzz
{

/// What must hold whatever a patch has in it. The fuzzer and the test that replays its corpus share this.
class PatchCheck
{
public:
    /// The first line is given, so that what comes after it is met at once.
    void operator()(const std::uint8_t* data, std::size_t size) const
    {
        std::string text(xsg::PatchText::FirstLine);
        text += '\n';
        text.append(reinterpret_cast<const char*>(data), size);
        xsg::SceneChanges changes;
        SbSentence sentence;
        if (!xsg::PatchText::read(text, "fuzzed.xsgpatch", changes, sentence)) {
            const std::string& error = sentence.getText();
            require(error.rfind("fuzzed.xsgpatch:", 0) == 0 && error.back() == '.' &&
                        error.find('\n') == std::string::npos,
                    "the error is no sentence with its place: " + error);
            require(error == xsg::printable(error), "the error shows bytes that are no text: " + error);
            return;
        }
        const std::string once = xsg::PatchText::write(changes);
        xsg::SceneChanges again;
        require(xsg::PatchText::read(once, "again", again, sentence),
                "a patch that was written cannot be read: " + sentence.getText());
        require(xsg::PatchText::write(again) == once,
                "a patch changes when it is written and read:\n" + once);
        apply(changes);
    }

private:
    /// Every change is made, was made, or is listed; what comes out can be saved and read, and compared.
    static void apply(const xsg::SceneChanges& changes)
    {
        SoRef<SoNode> scene = sample();
        const xsg::PatchResult result = xsg::applyChanges(changes, scene);
        require(result.applied + result.alreadySo + static_cast<int>(result.misfits.size()) >=
                    static_cast<int>(changes.size()),
                "a change is neither made nor listed");
        const std::string text = SoSceneFile::writeText(scene.get());
        std::string error;
        const SoRef<SoNode> read = SoSceneFile::readText(text, "applied", error);
        require(read.get(), "what a patch made cannot be read: " + error + "\n" + text);
        SoRef<SoNode> other = sample();
        xsg::applyChanges(xsg::compareScenes(other.get(), read.get()), other);
        require(SoSceneFile::writeText(other.get()) == SoSceneFile::writeText(read.get()),
                "what differs does not make the scene:\n" + text);
    }
    static SoRef<SoNode> sample()
    {
        std::string error;
        return SoSceneFile::readText(
            "#Xsg V1.0 utf8\n"
            "Separator \"s\" {\n"
            "  Cube @1 { width: 2\n}\n  Cube { width: 3 <- @1.width\n}\n  Material \"a b\" {}\n"
            "  Group \"g\" {\n    @1\n    Sphere \"x\" {}\n"
            "    Points { points: [ 0 0 0, 1 1 1 ]\n}\n    Foreign { a: 1\nb: 2\n}\n  }\n}\n",
            "sample", error);
    }
};

} // namespace fuzz
