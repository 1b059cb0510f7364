// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <support/SoFieldGallery.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SceneReader.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/values/Printable.h>

#include <algorithm>
#include <set>

namespace fuzz
{

/// What must hold whatever a scene file has in it. The fuzzer and the test that replays its corpus share
/// this.
class SceneFileCheck
{
public:
    SceneFileCheck()
        : m_callback(SoReadError::getHandlerCallback())
        , m_data(SoReadError::getHandlerData())
    {
        SoReadError::setHandlerCallback(
            [](const SoError* error, void* self) {
                auto& check = *static_cast<SceneFileCheck*>(self);
                ++check.m_errors;
                check.m_line = static_cast<const SoReadError*>(error)->getLine();
            },
            this);
    }
    ~SceneFileCheck() { SoReadError::setHandlerCallback(m_callback, m_data); }
    SceneFileCheck(const SceneFileCheck&) = delete;
    SceneFileCheck& operator=(const SceneFileCheck&) = delete;

    /// The first line is given, so that what comes after it is met at once.
    void operator()(const std::uint8_t* data, std::size_t size)
    {
        std::string text(SoSceneFile::FirstLine);
        text += '\n';
        text.append(reinterpret_cast<const char*>(data), size);
        const SoRef<SoNode> scene = read(text);
        if (!scene)
            return;
        SoBoundingBoxAction().getBox(scene.get());
        const std::string once = SoSceneFile::writeText(scene.get());
        const SoRef<SoNode> again = read(once);
        require(again.get(), "a scene that was written cannot be read: " + m_error + "\n" + once);
        const std::string twice = SoSceneFile::writeText(again.get());
        forgetReferences(scene.get());
        forgetReferences(again.get());
        require(twice == once,
                "a scene changes when it is read and written:\n" + once + "\nbecomes\n" + twice);
    }

private:
    /// A node that refers to one that it stands in would keep both alive.
    static void forgetReferences(SoNode* root)
    {
        std::set<SoNode*> seen;
        std::vector<SoNode*> open{root};
        while (!open.empty()) {
            SoNode* node = open.back();
            open.pop_back();
            if (!seen.insert(node).second)
                continue;
            if (auto* gallery = dynamic_cast<SoFieldGallery*>(node)) {
                gallery->sfNode.setValue(nullptr);
                gallery->mfNode.setNum(0);
            }
            if (SoGroup* group = node->asGroup())
                open.insert(open.end(), group->getChildren().begin(), group->getChildren().end());
        }
    }

    /// A scene and no error, or one error that names its place.
    SoRef<SoNode> read(const std::string& text)
    {
        m_errors = 0;
        SoRef<SoNode> scene = SoSceneFile::readText(text, "fuzzed.xsg", m_error);
        require(m_errors == (scene ? 0 : 1), "there must be a scene or one error");
        readInPieces(text, scene.get());
        if (scene)
            return scene;
        const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
        require(m_line >= 1 && m_line <= lines, "the error names a line that does not exist");
        const std::string place = "fuzzed.xsg:" + std::to_string(m_line) + ": Column ";
        require(m_error.rfind(place, 0) == 0 && m_error[place.size()] >= '1' && m_error[place.size()] <= '9',
                "the error does not begin with its place: " + m_error);
        require(m_error.find('\n') == std::string::npos && m_error.back() == '.',
                "the error is no single sentence: " + m_error);
        require(m_error == xsg::printable(m_error), "the error shows bytes that are no text: " + m_error);
        return scene;
    }

    /// Piece by piece it gives the same.
    void readInPieces(const std::string& text, SoNode* whole) const
    {
        std::size_t at = 0;
        xsg::SceneReader reader([&](char* to, std::size_t size) {
            const std::size_t count = std::min({size, 1 + text.size() % 13, text.size() - at});
            text.copy(to, count, at);
            at += count;
            return count;
        });
        while (!reader.advance(xsg::SceneReader::Clock::time_point::min())) {
        }
        const SoRef<SoNode> scene = reader.takeScene();
        require(!scene == !whole,
                "in pieces it is no scene, or only so: " + m_error + reader.getProblem().getText());
        if (!scene) {
            // How far was looked ahead decides whether a byte 0 is reported or what is wrong before it.
            if (text.find('\0') != std::string::npos)
                return;
            const std::string place =
                std::to_string(reader.getLine()) + ": Column " + std::to_string(reader.getColumn()) + ": ";
            require(m_error == "fuzzed.xsg:" + place + reader.getProblem().getText() + ".",
                    "in pieces the error is another one: " + m_error + " " + place +
                        reader.getProblem().getText());
            return;
        }
        const std::string text1 = SoSceneFile::writeText(scene.get());
        forgetReferences(scene.get());
        require(text1 == SoSceneFile::writeText(whole), "in pieces it is another scene:\n" + text1);
    }

    SoErrorCB* m_callback;
    void* m_data;
    int m_errors = 0;
    int m_line = 0;
    std::string m_error;
};

} // namespace fuzz
