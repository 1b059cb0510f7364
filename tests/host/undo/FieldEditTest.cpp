// SPDX-License-Identifier: MIT
// Every way to write a field of every type is seen before it happens, and taken back to the last bit and
// flag.
#include "undo/FieldEdit.h"

#include <support/SoFieldGallery.h>

#include <xsg/core/SoWriteRecorder.h>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>

using namespace scopix;

namespace
{

class Recorder : public SoWriteRecorder
{
public:
    explicit Recorder(SoField& field)
        : edit(field)
    {
        setActive(this);
    }
    ~Recorder() override { setActive(nullptr); }
    void aboutToWrite(SoField& field, int start, int removed) override
    {
        if (&field != &edit.field())
            return;
        ++count;
        edit.aboutToWrite(start, removed);
    }
    void end()
    {
        setActive(nullptr);
        edit.close();
    }

    FieldEdit edit;
    int count = 0;
};

// A typed copy, beside what the edit keeps.
struct Snapshot {
    explicit Snapshot(const SoField& field)
        : value(dynamic_cast<SoField*>(field.getTypeId().createInstance()))
        , isIgnored(field.isIgnored())
        , isDefault(field.isDefault())
    {
        EXPECT_TRUE(value->copyFrom(field));
    }
    bool matches(const SoField& field) const
    {
        return value->isSame(field) && isIgnored == field.isIgnored() && isDefault == field.isDefault();
    }
    std::unique_ptr<SoField> value;
    bool isIgnored;
    bool isDefault;
};

using Write = std::function<void(SoField&)>;
using Writes = std::map<std::string, Write>;

template <class T>
void addSingle(Writes& writes, SoField& field)
{
    if (auto* single = dynamic_cast<SoSValue<T>*>(&field))
        writes["setValue"] = [single](SoField&) { single->setValue(T{}); };
}

template <class T>
void addList(Writes& writes, SoField& field)
{
    auto* list = dynamic_cast<SoMValue<T>*>(&field);
    if (!list)
        return;
    writes["setValue"] = [list](SoField&) { list->setValue(T{}); };
    writes["set1Value"] = [list](SoField&) { list->set1Value(list->getNum() - 1, T{}); };
    writes["set1Value behind"] = [list](SoField&) { list->set1Value(list->getNum() + 3, T{}); };
    writes["setValues"] = [list](SoField&) { list->setValues(1, 2, std::array<T, 2>{}.data()); };
    writes["setValues over the end"] = [list](SoField&) { list->setValues(2, 9, std::array<T, 9>{}.data()); };
    writes["setValues behind"] = [list](SoField&) { list->setValues(20, 1, std::array<T, 1>{}.data()); };
    writes["setValues of all"] = [list](SoField&) { list->setValues(std::vector<T>(5)); };
    writes["startEditing"] = [list](SoField&) {
        list->startEditing()[0] = T{};
        list->finishEditing();
    };
}

template <class... T>
void addTyped(Writes& writes, SoField& field)
{
    (addSingle<T>(writes, field), ...);
    (addList<T>(writes, field), ...);
}

void addAllLists(Writes& writes, SoMField& list)
{
    const auto last = [&list] { return list.getNum() - 1; };
    const auto textOf1 = [&list](int index) {
        SbString text;
        list.get1(index, text);
        return text;
    };
    writes["setNum 0"] = [&list](SoField&) { list.setNum(0); };
    writes["setNum fewer"] = [&list, last](SoField&) { list.setNum(last()); };
    writes["setNum more"] = [&list](SoField&) { list.setNum(list.getNum() + 2); };
    writes["set1"] = [=, &list](SoField&) { list.set1(0, textOf1(last())); };
    writes["set1 behind"] = [=, &list](SoField&) { list.set1(list.getNum() + 2, textOf1(0)); };
    writes["set1 refused"] = [&list](SoField&) { list.set1(1, SbString("[")); };
    writes["insertSpace"] = [&list](SoField&) { list.insertSpace(1, 2); };
    writes["deleteValues"] = [&list](SoField&) { list.deleteValues(1, 1); };
    writes["deleteValues of all"] = [&list](SoField&) { list.deleteValues(0); };
    writes["replaceValues"] = [&list](SoField&) { list.replaceValues(0, 2, list, 1, 1); };
    writes["valueChanged"] = [&list](SoField&) { list.valueChanged(0, 1); };
    writes["many"] = [=, &list](SoField&) {
        list.insertSpace(list.getNum(), 3);
        list.deleteValues(0, 1);
        list.set1(2, textOf1(0));
        list.insertSpace(0, 1);
        list.deleteValues(3, 2);
        list.setIgnored(!list.isIgnored());
    };
}

Writes writesOf(SoField& field)
{
    Writes writes;
    SbString text;
    field.get(text);
    writes["set"] = [text](SoField& written) { written.set(text); };
    writes["set refused"] = [](SoField& written) { written.set(SbString("[ , ]")); };
    writes["setWithoutPropagation"] = [text](SoField& written) { written.setWithoutPropagation(text); };
    writes["setIgnored"] = [](SoField& written) { written.setIgnored(!written.isIgnored()); };
    writes["setDefault"] = [](SoField& written) { written.setDefault(!written.isDefault()); };
    const std::shared_ptr<SoTypedObject> fresh(field.getTypeId().createInstance());
    writes["copyFrom"] = [fresh](SoField& written) { written.copyFrom(dynamic_cast<SoField&>(*fresh)); };
    addTyped<float, double, std::int32_t, std::uint32_t, short, unsigned short, SbBool, SbString, SbName,
             SbTime, SbVec2f, SbVec3f, SbVec4f, SbVec2d, SbVec3d, SbVec4d, SbVec2i32, SbVec2s, SbVec3s,
             SbPlane, SbRotation, SbMatrix, SbBox3f, SoRef<SoNode>>(writes, field);
    addSingle<bool>(writes, field);
    addSingle<SbColor>(writes, field);
    addSingle<SbBox3s>(writes, field);
    if (auto* choice = dynamic_cast<SoSFEnum*>(&field))
        writes["setValue"] = [choice](SoField&) { choice->setValue(choice->getValue() + 1); };
    if (auto* image = dynamic_cast<SoSFImage*>(&field))
        writes["setValue"] = [image](SoField&) { image->setValue(3, 2, 1, nullptr); };
    if (auto* list = dynamic_cast<SoMField*>(&field))
        addAllLists(writes, *list);
    return writes;
}

std::vector<SoField*> fieldsOf(SoFieldGallery& gallery)
{
    std::vector<SoField*> fields;
    const SoFieldData* data = gallery.getFieldData();
    for (int i = 0; i < data->getNumFields(); ++i)
        fields.push_back(data->getField(&gallery, i));
    return fields;
}

// Node references, and three values in each list.
SoRef<SoFieldGallery> fullGallery()
{
    SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    gallery->sfNode.setValue(SoRef<SoNode>(new SoFieldGallery));
    for (int i = 0; i < 3; ++i)
        gallery->mfNode.set1Value(i, SoRef<SoNode>(new SoFieldGallery));
    for (SoField* field : fieldsOf(*gallery)) {
        auto* list = dynamic_cast<SoMField*>(field);
        if (list && list->getNum() < 3)
            list->setNum(3);
        field->setDefault(true);
    }
    return gallery;
}

} // namespace

TEST(FieldEditOfEveryField, EveryWriteIsSeenAndTakenBack)
{
    const SoRef<SoFieldGallery> names = fullGallery();
    for (std::size_t i = 0; i < fieldsOf(*names).size(); ++i) {
        for (const auto& [name, unused] : writesOf(*fieldsOf(*names)[i])) {
            const SoRef<SoFieldGallery> gallery = fullGallery();
            SoField& field = *fieldsOf(*gallery)[i];
            SCOPED_TRACE(std::string(field.getName().getString()) + " " + name);
            const Write write = writesOf(field).at(name);
            const Snapshot before(field);
            Recorder recorder(field);
            write(field);
            recorder.end();
            const Snapshot after(field);
            EXPECT_GE(recorder.count, 1);
            EXPECT_EQ(recorder.edit.isNothing(), before.matches(field));
            for (int times = 0; times < 2; ++times) {
                ASSERT_TRUE(recorder.edit.undo());
                ASSERT_TRUE(before.matches(field));
                ASSERT_TRUE(recorder.edit.redo());
                ASSERT_TRUE(after.matches(field));
            }
        }
    }
}

TEST(FieldEditOfEveryField, EveryTypeOfFieldHasATypedWrite)
{
    const SoRef<SoFieldGallery> gallery = fullGallery();
    for (SoField* field : fieldsOf(*gallery))
        EXPECT_EQ(writesOf(*field).count("setValue"), 1U) << field->getName().getString();
}

TEST(FieldEdit, WhatComesOverAConnectionIsNoWrite)
{
    const SoRef<SoFieldGallery> gallery = fullGallery();
    SoSFFloat source;
    ASSERT_TRUE(gallery->sfFloat.connectFrom(&source));
    Recorder recorder(gallery->sfFloat);
    source.setValue(7);
    EXPECT_EQ(gallery->sfFloat.getValue(), 7);
    EXPECT_EQ(recorder.count, 0);
}

TEST(FieldEdit, KeepsOnlyWhatDiffers)
{
    SoMFFloat field;
    field.setValues(std::vector<float>(1'000'000, 1));
    Recorder recorder(field);
    field.set1Value(0, 2);
    field.set1Value(999'999, 3);
    recorder.end();
    EXPECT_LT(recorder.edit.bytes(), 2000U);
    ASSERT_TRUE(recorder.edit.undo());
    EXPECT_EQ(field[0], 1);
    EXPECT_EQ(field[999'999], 1);
    ASSERT_TRUE(recorder.edit.redo());
    EXPECT_EQ(field[999'999], 3);
}

TEST(FieldEdit, FollowsAWalkInEitherDirection)
{
    for (const bool backwards : {false, true}) {
        SoMFInt32 field;
        for (int i = 0; i < 1000; ++i)
            field.set1Value(i, i);
        Recorder recorder(field);
        for (int i = 100; i < 900; ++i)
            field.set1Value(backwards ? 999 - i : i, -i);
        field.deleteValues(backwards ? 50 : 950, 10);
        recorder.end();
        ASSERT_TRUE(recorder.edit.undo());
        ASSERT_EQ(field.getNum(), 1000);
        for (int i = 0; i < 1000; ++i)
            ASSERT_EQ(field[i], i);
    }
}

TEST(FieldEdit, LeavesAListThatHasAnotherLength)
{
    SoMFFloat field;
    field.setValues(std::vector<float>{1, 2, 3});
    Recorder recorder(field);
    field.deleteValues(1, 1);
    recorder.end();
    field.setNum(1);
    EXPECT_FALSE(recorder.edit.undo());
    EXPECT_EQ(field.getNum(), 1);
}

TEST(FieldEdit, WhatOthersWriteLaterIsNotPartOfIt)
{
    SoSFFloat field;
    Recorder recorder(field);
    field.setValue(1);
    recorder.edit.compare();
    SoWriteRecorder::setActive(nullptr);
    field.setValue(2);
    recorder.end();
    ASSERT_TRUE(recorder.edit.undo());
    EXPECT_EQ(field.getValue(), 0);
    ASSERT_TRUE(recorder.edit.redo());
    EXPECT_EQ(field.getValue(), 1);
}

TEST(FieldEdit, KeepsNodesAlive)
{
    SoMFNode field;
    auto* node = new SoFieldGallery;
    field.set1Value(0, SoRef<SoNode>(node));
    Recorder recorder(field);
    field.deleteValues(0);
    recorder.end();
    ASSERT_EQ(node->getRefCount(), 1);
    ASSERT_TRUE(recorder.edit.undo());
    EXPECT_EQ(field[0].get(), node);
}
