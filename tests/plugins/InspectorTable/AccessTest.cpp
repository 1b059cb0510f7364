// SPDX-License-Identifier: MIT
// Every type of list as cells.
#include "support/SoFieldGallery.h"
#include "table/ListAccess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace inspector;

namespace
{

std::vector<SoMField*> listsOf(SoFieldGallery& gallery)
{
    std::vector<SoMField*> lists;
    const SoFieldData* data = gallery.getFieldData();
    for (int i = 0; SoField* field = data->getField(&gallery, i); ++i) {
        if (auto* list = dynamic_cast<SoMField*>(field))
            lists.push_back(list);
    }
    return lists;
}

template <class Field>
QString typed(const char* text, int column = 0)
{
    Field field;
    field.setNum(1);
    const ListAccess* access = ListAccess::of(field);
    return access->setText(field, 0, column, text) ? access->text(field, 0, column) : QString("refused");
}

} // namespace

TEST(ListAccess, EveryTypeHasOneAndItsTextsReadBackToTheSameBits)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    for (SoMField* list : listsOf(*gallery)) {
        const ListAccess* access = ListAccess::of(*list);
        ASSERT_NE(access, nullptr) << list->getTypeId().getName().getString();
        ASSERT_EQ(access->headings().size(), access->longHeadings().size());
        const std::unique_ptr<SoMField> copy = list->makeSlice();
        copy->setNum(list->getNum());
        for (int row = 0; row < list->getNum(); ++row) {
            for (int column = 0; column < access->columnCount(); ++column) {
                const QString text = access->text(*list, row, column);
                EXPECT_TRUE(access->setText(*copy, row, column, text)) << text.toStdString();
            }
        }
        EXPECT_TRUE(copy->isSame(*list)) << list->getTypeId().getName().getString();
    }
}

TEST(ListAccess, NumbersReadBackToTheSameBits)
{
    SoMFFloat field;
    field.setNum(1);
    const ListAccess* access = ListAccess::of(field);
    for (const float value : {0.1F, -0.0F, 3.4028235e38F, 1e-45F, 16777217.F, 0.30000001F}) {
        field.set1Value(0, value);
        const QString text = access->text(field, 0, 0);
        field.set1Value(0, 7);
        ASSERT_TRUE(access->setText(field, 0, 0, text));
        EXPECT_EQ(std::signbit(field[0]), std::signbit(value));
        EXPECT_EQ(field[0], value);
    }
    field.set1Value(0, std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(access->text(field, 0, 0), "nan");
    EXPECT_TRUE(access->setText(field, 0, 0, "nan"));
}

TEST(ListAccess, HalfTypedNumbersAreNone)
{
    for (const char* text : {"", "-", "1e", "1e+", "0x", "1.5.2", "--1", "+-1", "1,234.5", "abc", "1 2"}) {
        EXPECT_EQ(typed<SoMFFloat>(text), "refused") << text;
        EXPECT_EQ(typed<SoMFInt32>(text), "refused") << text;
    }
    EXPECT_EQ(typed<SoMFFloat>(" +1.50 "), "1.5");
    EXPECT_EQ(typed<SoMFFloat>("1,5"), "1.5");
    EXPECT_EQ(typed<SoMFFloat>("1."), "1");
}

TEST(ListAccess, WhatATypeCannotHoldIsRefused)
{
    EXPECT_EQ(typed<SoMFShort>("32767"), "32767");
    EXPECT_EQ(typed<SoMFShort>("32768"), "refused");
    EXPECT_EQ(typed<SoMFUShort>("-1"), "refused");
    EXPECT_EQ(typed<SoMFUInt32>("4294967295"), "4294967295");
    EXPECT_EQ(typed<SoMFUInt32>("0xffffffff"), "4294967295");
    EXPECT_EQ(typed<SoMFInt32>("1.5"), "refused");
    EXPECT_EQ(typed<SoMFFloat>("1e39"), "refused");
    EXPECT_EQ(typed<SoMFBool>("2"), "refused");
    EXPECT_EQ(typed<SoMFBool>("true"), "TRUE");
    SoMFShort field;
    field.setNum(1);
    const ListAccess* access = ListAccess::of(field);
    EXPECT_FALSE(access->setNumber(field, 0, 0, 32767.6));
    EXPECT_FALSE(access->setNumber(field, 0, 0, std::nan("")));
    EXPECT_TRUE(access->setNumber(field, 0, 0, -2.5));
    EXPECT_EQ(field[0], -3) << "the nearest one";
}

TEST(ListAccess, EnumerationsAndMasksUseTheirNames)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const ListAccess* seasons = ListAccess::of(gallery->mfEnum);
    EXPECT_EQ(seasons->text(gallery->mfEnum, 1, 0), "WINTER");
    EXPECT_EQ(seasons->choices(gallery->mfEnum).size(), 4);
    const std::unique_ptr<SoMField> copy = gallery->mfEnum.makeSlice();
    copy->setNum(1);
    EXPECT_TRUE(seasons->setText(*copy, 0, 0, "AUTUMN"));
    EXPECT_FALSE(seasons->setText(*copy, 0, 0, "MONSOON"));
    EXPECT_TRUE(seasons->setText(*copy, 0, 0, "77"));
    EXPECT_EQ(seasons->text(*copy, 0, 0), "77") << "a value without a name";

    const ListAccess* sides = ListAccess::of(gallery->mfBitMask);
    EXPECT_EQ(sides->text(gallery->mfBitMask, 0, 0), "LEFT | RIGHT");
    const std::unique_ptr<SoMField> mask = gallery->mfBitMask.makeSlice();
    mask->setNum(1);
    EXPECT_TRUE(sides->setText(*mask, 0, 0, "TOP|0x100"));
    EXPECT_EQ(sides->text(*mask, 0, 0), "TOP | 0x100") << "bits without a name";
}

TEST(ListAccess, AColourIsASwatchWhateverItsNumbersAre)
{
    SoMFColor field;
    field.setNum(1);
    const ListAccess* access = ListAccess::of(field);
    field.set1Value(0, SbVec3f(-1, 5, std::numeric_limits<float>::quiet_NaN()));
    EXPECT_EQ(access->swatch(field, 0), QColor(0, 255, 0));
    SoMFVec3f vectors;
    vectors.setNum(1);
    EXPECT_FALSE(ListAccess::of(vectors)->swatch(vectors, 0).isValid());
}
