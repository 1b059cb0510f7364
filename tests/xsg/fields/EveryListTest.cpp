// SPDX-License-Identifier: MIT
// What holds for every type of lists.
#include <gtest/gtest.h>

#include <xsg/errors/SoMemoryError.h>
#include <xsg/fields/SoMFVec3f.h>

#include "EveryField.h"
#include "xsg/errors/Collected.h"

#include <new>
#include <stdexcept>

namespace
{

class EveryList : public EveryField
{
protected:
    bool isMeant(const FieldSample& candidate) const override { return candidate.isList; }
    std::unique_ptr<SoMField> create() const
    {
        return std::unique_ptr<SoMField>(dynamic_cast<SoMField*>(sample().create().release()));
    }
    std::string value(std::size_t i) const { return sample().values[i % sample().values.size()]; }
};

std::string text1(const SoMField& field, int index)
{
    SbString text("left over");
    EXPECT_TRUE(field.get1(index, text));
    return text.str();
}

} // namespace

TEST_F(EveryList, ReadsAndWritesSingleValues)
{
    forEach([this] {
        const auto field = create();
        for (std::size_t i = 0; i < sample().values.size(); ++i) {
            ASSERT_TRUE(field->set1(static_cast<int>(i), value(i))) << value(i);
            EXPECT_EQ(text1(*field, static_cast<int>(i)), value(i));
        }
        EXPECT_EQ(field->getNum(), static_cast<int>(sample().values.size()));
        EXPECT_EQ(textOf(*field), sample().goodTexts().back());
    });
}

TEST_F(EveryList, HasNoTextBeyondItsEnd)
{
    forEach([this] {
        const auto field = create();
        field->set1(0, value(0));
        for (const int index : {-1, 1, 2'000'000'000}) {
            SbString text("left over");
            EXPECT_FALSE(field->get1(index, text));
            EXPECT_EQ(text, SbString(""));
        }
    });
}

TEST_F(EveryList, Set1BeyondTheEndGrowsTheField)
{
    forEach([this] {
        const auto field = create();
        const auto fresh = create();
        fresh->setNum(1);
        ASSERT_TRUE(field->set1(3, value(1)));
        ASSERT_EQ(field->getNum(), 4);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(text1(*field, i), text1(*fresh, 0));
        EXPECT_EQ(text1(*field, 3), value(1));
    });
}

TEST_F(EveryList, Set1RefusesMalformedText)
{
    forEach([this] {
        const auto field = create();
        field->set(sample().goodTexts().back());
        const int changes = changesOf(*field);
        const std::string before = textOf(*field);
        for (const std::string& bad : sample().badValues) {
            for (const int index : {0, 1, 100, 2'000'000'000})
                EXPECT_FALSE(field->set1(index, bad)) << bad;
        }
        EXPECT_FALSE(field->set1(-1, value(0)));
        EXPECT_FALSE(field->set1(2'147'483'647, value(0)));
        EXPECT_EQ(textOf(*field), before);
        EXPECT_EQ(changesOf(*field), changes);
    });
}

TEST_F(EveryList, InsertsAndDeletesValues)
{
    forEach([this] {
        const auto field = create();
        const auto fresh = create();
        fresh->setNum(1);
        const std::string empty = text1(*fresh, 0);
        for (std::size_t i = 0; i < 3; ++i)
            field->set1(static_cast<int>(i), value(i));
        field->insertSpace(1, 2);
        ASSERT_EQ(field->getNum(), 5);
        const std::string expected[] = {value(0), empty, empty, value(1), value(2)};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(text1(*field, i), expected[i]);
        field->deleteValues(1, 2);
        EXPECT_EQ(field->getNum(), 3);
        EXPECT_EQ(text1(*field, 1), value(1));
        field->insertSpace(100, 1); // clamped to the end
        EXPECT_EQ(text1(*field, 3), empty);
        field->insertSpace(-5, 1); // clamped to the beginning
        EXPECT_EQ(text1(*field, 1), value(0));
        field->deleteValues(3, 1000);
        EXPECT_EQ(field->getNum(), 3);
        field->deleteValues(1);
        EXPECT_EQ(field->getNum(), 1);
        const int changes = changesOf(*field);
        field->deleteValues(1, 5);
        field->deleteValues(0, 0);
        field->insertSpace(0, 0);
        field->insertSpace(0, -1);
        EXPECT_EQ(field->getNum(), 1);
        EXPECT_EQ(changesOf(*field), changes);
        field->deleteValues(-3, 4);
        EXPECT_EQ(field->getNum(), 0);
        field->setNum(-1);
        EXPECT_EQ(field->getNum(), 0);
        EXPECT_EQ(textOf(*field), "[ ]");
    });
}

TEST_F(EveryList, ATextWithoutBracketsIsOneValue)
{
    forEach([this] {
        const auto field = create();
        for (std::size_t i = 0; i < sample().values.size(); ++i) {
            ASSERT_TRUE(field->set(value(i))) << value(i);
            EXPECT_EQ(field->getNum(), 1);
            EXPECT_EQ(text1(*field, 0), value(i));
        }
    });
}

TEST_F(EveryList, ListsTolerateMissingAndTrailingCommas)
{
    forEach([this] {
        const auto field = create();
        const auto expected = create();
        ASSERT_TRUE(expected->set("[ " + value(0) + ", " + value(1) + " ]"));
        for (const std::string& text :
             {"[" + value(0) + "," + value(1) + "]", "[" + value(0) + " ,\n " + value(1) + " , ]"}) {
            ASSERT_TRUE(field->set(text)) << text;
            EXPECT_TRUE(field->isSame(*expected)) << text;
        }
        // A name may go on where a blank stands alone.
        ASSERT_TRUE(field->set("[ " + value(0) + "\n" + value(1) + " ]"));
        EXPECT_TRUE(field->isSame(*expected));
    });
}

TEST_F(EveryList, ConvertsFromAndToASingleValue)
{
    forEach([this] {
        const std::string singleType = "SF" + sample().type.substr(2);
        const auto single = sampleOf(singleType).create();
        const auto list = create();
        single->set(sampleOf(singleType).values[1 % sampleOf(singleType).values.size()]);
        ASSERT_TRUE(list->copyFrom(*single));
        ASSERT_EQ(list->getNum(), 1);
        const auto back = sampleOf(singleType).create();
        ASSERT_TRUE(back->copyFrom(*list));
        EXPECT_TRUE(back->isSame(*single));
        // From an empty list there is nothing to take.
        list->setNum(0);
        EXPECT_FALSE(back->copyFrom(*list));
        EXPECT_TRUE(back->isSame(*single));
    });
}

TEST_F(EveryList, AMillionValuesComeBack)
{
    forEach([this] {
        constexpr int Count = 1'000'000;
        const auto field = create();
        ASSERT_TRUE(field->set1(Count - 1, value(1)));
        const auto again = create();
        ASSERT_TRUE(again->set(textOf(*field)));
        EXPECT_EQ(again->getNum(), Count);
        EXPECT_TRUE(again->isSame(*field));
    });
}

// Of every length that the texts of neighbouring values can have.
TEST_F(EveryList, TenThousandDifferentValuesComeBack)
{
    forEach([this] {
        std::string text = "[ " + value(0);
        for (std::size_t i = 1; i < 10'000; ++i)
            text += ", " + value(i * i % 1009);
        text += " ]";
        const auto field = create();
        ASSERT_TRUE(field->set(text));
        EXPECT_EQ(field->getNum(), 10'000);
        EXPECT_EQ(textOf(*field), text);
    });
}

// --- Memory

namespace
{

// A field for whose values there is no memory.
class FullField : public SoMFVec3f
{
protected:
    void resize(int /*count*/) override { throw std::bad_alloc(); }
    void open(int /*start*/, int /*count*/) override { throw std::length_error("open"); }
};

} // namespace

TEST(NoMemory, LeavesTheFieldAndIsReported)
{
    const Collected<SoMemoryError> errors;
    FullField field;
    field.setValue(SbVec3f(1, 2, 3));
    const int changes = changesOf(field);
    field.setNum(1'000'000'000);
    field.set1Value(1'000'000'000, SbVec3f());
    EXPECT_FALSE(field.set1(1'000'000'000, "1 1 1"));
    const SbVec3f values[2];
    field.setValues(1, 2, values);
    field.insertSpace(0, 1'000'000'000);
    field.insertSpace(1, 1'000'000'000);
    EXPECT_EQ(textOf(field), "[ 1 2 3 ]");
    EXPECT_EQ(changesOf(field), changes);
    ASSERT_EQ(errors.texts.size(), 6U);
    EXPECT_EQ(errors.texts[0],
              "No memory for the values of the field \"\": 12000000000 bytes were asked for.");
}
