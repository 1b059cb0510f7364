// SPDX-License-Identifier: MIT
// The scene-graph library, with its n-th allocation failing: the call is done or refused, or std::bad_alloc
// says that there is no memory; nothing is leaked, and a file is the old one or the new one.
#include "FailingAllocations.h"

#include <support/SoFieldGallery.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/core/SoMField.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <new>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;

// With what scenes can have in them: names, labels, nodes in two places, connections, lists, references,
// unknown nodes.
constexpr auto Text = R"(#Xsg V1.0 utf8
Separator "whole scene" {
    Material @paint {
        diffuseColor: [ 1 0 0, 0 1 0, 0 0 1 ]
        transparency: 0.5 !ignored
    }
    Sphere { radius: 2 <- @box.width }
    Cube @box { width: 3 }
    Text2 { string: [ "a first line that is longer than a short string", "another" ] }
    Coordinate3 { point: [ 1 2 3, 4 5 6, 7 8 9, 10 11 12 ] }
    Stranger "who knows" { something: 1 2 3 }
    Separator { @paint @paint }
}
)";

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

SoRef<SoNode> scene()
{
    std::string error;
    SoRef<SoNode> root = SoSceneFile::readText(Text, "scene", error);
    EXPECT_TRUE(root) << error;
    return root;
}

class Allocations : public ::testing::Test
{
protected:
    Allocations()
    {
        m_folder = fs::temp_directory_path() / ("allocations-" + std::to_string(getpid()));
        fs::create_directories(m_folder);
        SoReadError::setHandlerCallback([](const SoError*, void*) {}, nullptr);
    }
    ~Allocations() override
    {
        EXPECT_GT(m_most, 2) << "nothing was allocated";
        SoReadError::setHandlerCallback(nullptr, nullptr);
        fs::remove_all(m_folder);
    }

    /// Fails each allocation of `act` in turn, until it needs no more; calls `check` after each with whether
    /// it was done.
    void failEach(const std::function<bool()>& act, const std::function<void(bool)>& check)
    {
        for (int i = 0; i < 2; ++i) { // what is made once and kept is made now
            EXPECT_TRUE(act());
            m_kept = nullptr;
            check(true);
        }
        long nth = 1;
        for (bool isReached = true; isReached && !HasFailure(); ++nth) {
            const long alive = failing::allocationsAlive();
            bool isDone = false;
            failing::failAllocation(nth);
            try {
                isDone = act();
            } catch (const std::bad_alloc&) { // as it should
            }
            isReached = failing::allocationsAsked() >= nth;
            failing::failAllocation(0);
            m_kept = nullptr; // now: taking a scene apart needs memory and cannot be refused
            EXPECT_LE(failing::allocationsAlive(), alive) << "leaked when allocation " << nth << " failed";
            check(isDone);
        }
        m_most = std::max(m_most, nth);
    }
    void failEach(const std::function<bool()>& act)
    {
        failEach(act, [](bool) {});
    }
    std::string path(const char* name) const { return (m_folder / name).string(); }

    SoRef<SoNode> m_kept; // what an act has made

private:
    fs::path m_folder;
    long m_most = 0;
};

TEST_F(Allocations, OfReadingAScene)
{
    failEach([this] {
        std::string error;
        m_kept = SoSceneFile::readText(Text, "scene", error);
        return m_kept.get() != nullptr;
    });
}

TEST_F(Allocations, OfRefusingAScene)
{
    const std::string bad = std::string(Text) + "}";
    failEach([&] {
        std::string error;
        return !SoSceneFile::readText(bad, "scene", error);
    });
}

TEST_F(Allocations, OfReadingAFile)
{
    std::ofstream(path("scene.xsg")) << Text;
    failEach([&] {
        std::string error;
        m_kept = SoSceneFile::read(path("scene.xsg"), error);
        return m_kept.get() != nullptr;
    });
}

TEST_F(Allocations, OfWritingAScene)
{
    const SoRef<SoNode> root = scene();
    const std::string text = SoSceneFile::writeText(root.get());
    failEach([&] { return SoSceneFile::writeText(root.get()) == text; });
}

TEST_F(Allocations, OfWritingAFile)
{
    const SoRef<SoNode> root = scene();
    const std::string before = "what was there";
    const std::string after = SoSceneFile::writeText(root.get());
    const std::string file = path("scene.xsg");
    const auto act = [&] {
        std::string error;
        return SoSceneFile::write(root.get(), file, error);
    };
    const auto check = [&](bool isDone) {
        const std::string now = contentOf(file);
        EXPECT_TRUE(now == after || (now == before && !isDone)) << now;
        const auto folder = fs::path(file).parent_path();
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "a temporary file is left";
        std::ofstream(file) << before;
    };
    std::ofstream(file) << before;
    failEach(act, check);
}

TEST_F(Allocations, OfBoundingBoxes)
{
    const SoRef<SoNode> root = scene();
    failEach([&] {
        SoBoundingBoxAction().getBox(root.get());
        return true;
    });
}

// Every type of field: its text is read and written, or the value stays as it was.
TEST_F(Allocations, OfFieldsAndTheirTexts)
{
    const SoRef<SoFieldGallery> from(new SoFieldGallery);
    const SoRef<SoFieldGallery> to(new SoFieldGallery);
    const SoFieldData* data = from->getFieldData();
    for (int i = 0; i < data->getNumFields(); ++i) {
        SoField* source = data->getField(from.get(), i);
        SoField* target = data->getField(to.get(), i);
        if (auto* list = dynamic_cast<SoMField*>(source))
            list->setNum(40);
        SCOPED_TRACE(source->getName().getString());
        failEach([&] {
            SbString written;
            source->get(written);
            return !target->set(written) || target->isSame(*source);
        });
    }
}

} // namespace
