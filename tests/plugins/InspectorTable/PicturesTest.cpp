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
    static QString pictureFolder()
    {
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (!folder.isEmpty())
            QDir().mkpath(folder);
        return folder;
    }
    static void drawInto(QImage& sheet, QPoint at, QWidget& widget)
    {
        if (pictureFolder().isEmpty())
            return;
        EXPECT_TRUE(TestHost::waitFor([&] { return !widget.findChild<FiguresLine*>()->isBusy(); }));
        TestHost::pump();
        widget.layout()->activate();
        QPainter painter(&sheet);
        painter.drawPixmap(at, widget.grab());
    }

    TestHost host;
    SoRef<SoFieldGallery> gallery{new SoFieldGallery};
    std::vector<SoMField*> lists;
};

} // namespace

TEST_F(EveryList, IsShownByAnEditorOfItsOwn)
{
    ASSERT_EQ(lists.size(), ListAccess::types().size());
    const QSize size(300, 320);
    constexpr int Across = 5;
    for (const bool isDark : {false, true}) {
        QImage sheet(Across * size.width(), (int(lists.size()) + Across - 1) / Across * size.height(),
                     QImage::Format_RGB32);
        sheet.fill((isDark ? darkPalette() : QPalette()).color(QPalette::Window));
        int place = 0;
        for (SoMField* list : lists) {
            TableFieldEditor editor(list->getTypeId());
            host.edit(editor, list);
            QWidget& widget = *editor.getWidget();
            widget.setPalette(isDark ? darkPalette() : QPalette());
            widget.resize(size);
            TestHost::pump();
            EXPECT_EQ(editor.table()->view().rows().count(), list->getNum());
            EXPECT_TRUE(list->isDefault()) << "showing writes nothing";
            drawInto(sheet, QPoint(place % Across * size.width(), place / Across * size.height()), widget);
            host.release(editor);
            ++place;
        }
        const QString folder = pictureFolder();
        if (!folder.isEmpty()) {
            EXPECT_TRUE(sheet.save(folder + (isDark ? "/all-dark.png" : "/all-light.png")));
        }
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
        host.release(editor);
    }
}
