// SPDX-License-Identifier: MIT
// Each editor as a user sees it, with what the gallery of fields holds. The pictures of the documentation
// come from here: SCOPIX_PICTURES names the folder that they go to.
#include "ListEditors.h"
#include "MultiFixture.h"

#include <xsg/core/SoFieldContainer.h>

#include <QDir>

namespace
{

constexpr int DockWidth = 420;
constexpr int PictureHeight = 170;

// The text that the gallery's field of this type has.
SbString galleryText(SoType type)
{
    const SoRef<SoFieldContainer> gallery(
        dynamic_cast<SoFieldContainer*>(SoType::fromName("FieldGallery").createInstance()));
    const SoFieldData* data = gallery->getFieldData();
    SbString text;
    for (int i = 0; const SoField* field = data->getField(gallery.get(), i); ++i) {
        if (field->getTypeId() == type)
            field->get(text);
    }
    return text;
}

template <class Kind>
class Picture : public testing::Test
{
protected:
    MultiFixture<typename Kind::Editor, typename Kind::Field> f;
};

} // namespace

TYPED_TEST_SUITE(Picture, ListEditors, );

TYPED_TEST(Picture, FitsIntoANarrowDock)
{
    auto& f = this->f;
    ASSERT_TRUE(f.field.set(galleryText(f.field.getTypeId())));
    f.open();
    QWidget* editor = f.editor.getWidgetContainer();
    EXPECT_LE(editor->minimumSizeHint().width(), DockWidth);
    editor->resize(DockWidth, PictureHeight);
    TestHost::pump();
    for (const auto* button : editor->findChildren<QPushButton*>())
        EXPECT_TRUE(editor->rect().contains(button->geometry())) << button->objectName().toStdString();
    EXPECT_GE(f.table().viewport()->height(), f.table().rowHeight(0)) << "one row is seen whole";
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    const QString name = QString::fromLatin1(f.editor.getName().getString()) + ".png";
    EXPECT_TRUE(editor->grab().save(QDir(folder).filePath(name)));
}
