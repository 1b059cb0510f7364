// SPDX-License-Identifier: MIT
// Parts of lists, copied out and put back.
#include <gtest/gtest.h>

#include <xsg/core/SoChangeListener.h>
#include <xsg/core/SoMField.h>
#include <xsg/core/SoNotification.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFEnum.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/base/SoMFNode.h>

#include "EveryField.h"
#include "support/SoFieldGallery.h"

namespace
{

class LastChange final : public SoChangeListener
{
public:
    explicit LastChange(SoField& field)
        : m_field(field)
    {
        field.addListener(this);
    }
    ~LastChange() { m_field.removeListener(this); }
    void changed(const SoNotification& change) override
    {
        ++count;
        start = change.start;
        number = change.count;
    }
    void subjectDestroyed() override {}

    int count = 0;
    int start = -2;
    int number = -2;

private:
    SoField& m_field;
};

class ReplaceValues : public EveryField
{
protected:
    bool isMeant(const FieldSample& candidate) const override { return candidate.isList; }
    std::unique_ptr<SoMField> create(int count, std::size_t first = 0) const
    {
        auto* field = dynamic_cast<SoMField*>(sample().create().release());
        for (int i = 0; i < count; ++i)
            field->set1(i, value(first + static_cast<std::size_t>(i)));
        return std::unique_ptr<SoMField>(field);
    }
    std::string value(std::size_t i) const { return sample().values[i % sample().values.size()]; }
    std::string list(const std::vector<std::size_t>& indices) const
    {
        std::string text = "[ ";
        for (std::size_t i = 0; i < indices.size(); ++i)
            text += (i > 0 ? ", " : "") + value(indices[i]);
        return indices.empty() ? "[ ]" : text + " ]";
    }
};

} // namespace

TEST_F(ReplaceValues, ReplacesFewerAsManyAndMore)
{
    forEach([this] {
        const auto from = create(4, 1); // 1 2 3 4
        for (int inserted = 0; inserted <= 3; ++inserted) {
            const auto field = create(5); // 0 1 2 3 4
            const LastChange change(*field);
            ASSERT_TRUE(field->replaceValues(1, 2, *from, 1, inserted));
            std::vector<std::size_t> expected = {0};
            for (int i = 0; i < inserted; ++i)
                expected.push_back(2 + static_cast<std::size_t>(i));
            expected.insert(expected.end(), {3, 4});
            EXPECT_EQ(textOf(*field), list(expected)) << inserted;
            EXPECT_EQ(change.count, 1);
            EXPECT_EQ(change.start, 1);
            EXPECT_EQ(change.number, inserted == 2 ? 2 : -1);
            EXPECT_FALSE(field->isDefault());
        }
    });
}

TEST_F(ReplaceValues, TakesValuesOfItsOwnField)
{
    forEach([this] {
        const auto field = create(4);
        ASSERT_TRUE(field->replaceValues(0, 1, *field, 0, 4));
        EXPECT_EQ(textOf(*field), list({0, 1, 2, 3, 1, 2, 3}));
        ASSERT_TRUE(field->replaceValues(1, 4, *field, 3, 2));
        EXPECT_EQ(textOf(*field), list({0, 3, 1, 2, 3}));
    });
}

TEST_F(ReplaceValues, RefusesWhatLiesOutside)
{
    forEach([this] {
        const auto field = create(3);
        const auto from = create(2);
        const int changes = changesOf(*field);
        constexpr int Max = std::numeric_limits<int>::max();
        const int refused[][4] = {{-1, 1, 0, 1}, {0, -1, 0, 1},  {0, 4, 0, 1},   {4, 0, 0, 1},
                                  {0, 1, -1, 1}, {0, 1, 0, -1},  {0, 1, 0, 3},   {0, 1, 3, 0},
                                  {2, 2, 0, 0},  {Max, 1, 0, 0}, {1, Max, 0, 0}, {0, 0, 1, Max}};
        for (const auto& at : refused)
            EXPECT_FALSE(field->replaceValues(at[0], at[1], *from, at[2], at[3]));
        EXPECT_EQ(textOf(*field), list({0, 1, 2}));
        EXPECT_EQ(changesOf(*field), changes);
    });
}

TEST_F(ReplaceValues, RefusesValuesOfAnotherType)
{
    forEach([this] {
        const auto field = create(3);
        const int changes = changesOf(*field);
        for (const FieldSample& other : fieldSamples()) {
            const auto from = other.create();
            auto* list = dynamic_cast<SoMField*>(from.get());
            const bool colors = sample().type.find("Color") != std::string::npos ||
                                sample().type.find("Vec3f") != std::string::npos;
            if (!list || other.type == sample().type ||
                (colors && (other.type == "MFColor" || other.type == "MFVec3f")))
                continue;
            EXPECT_FALSE(field->replaceValues(0, 1, *list, 0, 0)) << other.type;
        }
        EXPECT_EQ(textOf(*field), list({0, 1, 2}));
        EXPECT_EQ(changesOf(*field), changes);
    });
}

TEST_F(ReplaceValues, ASliceHoldsAPartAndGivesItBack)
{
    forEach([this] {
        const auto field = create(5);
        const auto slice = field->makeSlice();
        ASSERT_TRUE(slice);
        EXPECT_EQ(slice->getTypeId(), field->getTypeId());
        EXPECT_EQ(slice->getNum(), 0);
        ASSERT_TRUE(slice->replaceValues(0, slice->getNum(), *field, 1, 3));
        EXPECT_EQ(textOf(*slice), list({1, 2, 3}));
        field->deleteValues(0);
        ASSERT_TRUE(field->replaceValues(0, 0, *slice, 0, 3));
        EXPECT_EQ(textOf(*field), list({1, 2, 3}));
    });
}

TEST(ReplaceValuesOf, ColorsAndVectorsAreOneType)
{
    SoMFColor colors;
    colors.setValue(SbVec3f(1, 0, 0));
    SoMFVec3f vectors;
    EXPECT_TRUE(vectors.replaceValues(0, 0, colors, 0, 1));
    EXPECT_TRUE(colors.replaceValues(0, 0, vectors, 0, 1));
    EXPECT_EQ(colors.getNum(), 2);
}

TEST(ReplaceValuesOf, ASliceOfNodesKeepsThemAlive)
{
    SoMFNode field;
    SoRef<SoFieldGallery> node(new SoFieldGallery);
    field.set1Value(0, SoRef<SoNode>(node.get()));
    const auto slice = field.makeSlice();
    ASSERT_TRUE(slice->replaceValues(0, 0, field, 0, 1));
    field.deleteValues(0);
    EXPECT_EQ(node->getRefCount(), 2);
    ASSERT_TRUE(field.replaceValues(0, 0, *slice, 0, 1));
    EXPECT_EQ(field[0].get(), node.get());
    EXPECT_EQ(node->getRefCount(), 3);
}
