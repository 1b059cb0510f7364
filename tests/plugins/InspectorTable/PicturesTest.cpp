// SPDX-License-Identifier: MIT
// Each type of list as a table, light and dark, large and small. SCOPIX_PICTURES names the folder that the
// pictures go to.
#include "TableFixture.h"
#include "table/ListAccess.h"

#include <xsg/nodes/shapes/SoCube.h>

#include <QDir>

namespace
{

using namespace inspector;

QPalette darkPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2b, 0x2e, 0x33));
    palette.setColor(QPalette::Base, QColor(0x21, 0x23, 0x27));
    palette.setColor(QPalette::Button, QColor(0x36, 0x3a, 0x40));
    palette.setColor(QPalette::Mid, QColor(0x3a, 0x3e, 0x45));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, QColor(0xdf, 0xe3, 0xe8));
    return palette;
}

class EveryList : public ::testing::Test
{
protected:
    EveryList()
    {
        gallery->mfNode.set1Value(0, new SoCube);
        gallery->mfNode.setDefault(true);
        const SoFieldData* data = gallery->getFieldData();
        for (int i = 0; SoField* field = data->getField(gallery.get(), i); ++i) {
            if (auto* list = dynamic_cast<SoMField*>(field))
                lists.push_back(list);
        }
    }
    void save(QWidget& widget, const QString& name)
    {
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (folder.isEmpty())
            return;
        EXPECT_TRUE(TestHost::waitFor([&] { return !widget.findChild<FiguresLine*>()->isBusy(); }));
        TestHost::pump();
        QDir().mkpath(folder);
        EXPECT_TRUE(widget.grab().save(QDir(folder).filePath(name + ".png")));
    }

    TestHost host;
    SoRef<SoFieldGallery> gallery{new SoFieldGallery};
    std::vector<SoMField*> lists;
};

} // namespace

TEST_F(EveryList, IsShownByAnEditorOfItsOwn)
{
    ASSERT_EQ(lists.size(), ListAccess::types().size());
    for (SoMField* list : lists) {
        TableFieldEditor editor(list->getTypeId());
        for (const bool isDark : {false, true}) {
            host.edit(editor, list);
            QWidget& widget = *editor.getWidget();
            widget.setPalette(isDark ? darkPalette() : QPalette());
            widget.resize(420, 320);
            TestHost::pump();
            EXPECT_EQ(editor.table()->view().rows().count(), list->getNum());
            const QString name = QString::fromLatin1(list->getTypeId().getName().getString());
            save(widget, name + (isDark ? "-dark" : "-light"));
        }
        EXPECT_TRUE(list->isDefault()) << "showing writes nothing";
        host.release(editor);
    }
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(EveryList, FitsIntoANarrowDockAtAnySize)
{
    for (const double scale : {1.0, 1.75, 3.0}) {
        TableFieldEditor editor(SoMFVec3f::getClassTypeId());
        host.edit(editor, &gallery->mfVec3f);
        QWidget& widget = *editor.getWidget();
        QFont font = widget.font();
        font.setPointSizeF(font.pointSizeF() * scale);
        widget.setFont(font);
        const int width = int(220 * scale);
        for (const QWidget* part : widget.findChildren<QWidget*>())
            EXPECT_LE(part->minimumSizeHint().width(), width) << part->objectName().toStdString();
        EXPECT_LE(widget.minimumSizeHint().width(), width) << scale;
        widget.resize(width, int(420 * scale));
        TestHost::pump();
        const ListTableView& view = editor.table()->view();
        EXPECT_GE(view.geometry().rowHeight, QFontMetrics(font).height());
        EXPECT_GE(view.geometry().cell({0, 0}).width(), QFontMetrics(font).horizontalAdvance("0.125"));
        EXPECT_TRUE(view.geometry().cellsArea().contains(view.geometry().cell({0, 0})));
        save(widget, "narrow-" + QString::number(scale));
        host.release(editor);
    }
}
