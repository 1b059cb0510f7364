// SPDX-License-Identifier: MIT
#include "panels/FieldListView.h"
#include "panels/FieldListModel.h"
#include <support/SoFieldGallery.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>

using namespace scopix;

namespace
{

class FieldListColumns : public testing::Test
{
protected:
    void show(int width, int pointSize)
    {
        QFont font;
        font.setPointSize(pointSize);
        view.setFont(font);
        view.resize(width, 300);
        view.setContainer(gallery.get());
        view.show();
        QCoreApplication::processEvents();
    }
    int widthOf(int column) const { return view.header()->sectionSize(column); }
    /// What the widest cell of the column and its header ask for.
    int neededBy(int column) const
    {
        const QAbstractItemModel& model = view.getModel();
        int width = view.header()->sectionSizeHint(column);
        for (int row = 0; row < model.rowCount(); ++row)
            width = std::max(width, view.sizeHintForIndex(model.index(row, column)).width());
        return width;
    }

    SoRef<SoFieldGallery> gallery{new SoFieldGallery};
    FieldListView view;
};

} // namespace

TEST_F(FieldListColumns, ShowsEveryColumnWithoutScrollingSideways)
{
    for (const int pointSize : {9, 14, 30}) {
        for (const int width : {200, 330, 900}) {
            show(width, pointSize);
            EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << width << ' ' << pointSize;
            EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
            for (int column = 0; column < FieldListModel::ColumnCount; ++column)
                EXPECT_GE(widthOf(column), 50) << column;
            EXPECT_GE(widthOf(FieldListModel::ValueColumn), view.viewport()->width() / 3);
        }
    }
    EXPECT_EQ(view.textElideMode(), Qt::ElideRight);
}

TEST_F(FieldListColumns, GivesNamesAndTypesWhatTheyNeedWhereThereIsRoom)
{
    show(2000, 9);
    EXPECT_EQ(widthOf(FieldListModel::NameColumn), neededBy(FieldListModel::NameColumn));
    EXPECT_EQ(widthOf(FieldListModel::TypeColumn), neededBy(FieldListModel::TypeColumn));
    const int type = widthOf(FieldListModel::TypeColumn);

    const SoRef<SoMaterial> material(new SoMaterial);
    view.setContainer(material.get());
    QCoreApplication::processEvents();
    EXPECT_EQ(widthOf(FieldListModel::TypeColumn), neededBy(FieldListModel::TypeColumn));
    EXPECT_LT(widthOf(FieldListModel::TypeColumn), type) << "another node, other widths";
}

TEST_F(FieldListColumns, ToolTipHasWhatIsCutOff)
{
    show(200, 14);
    const QModelIndex index = view.getModel().indexOf(&gallery->sfFilePathString);
    for (int column = 0; column < FieldListModel::ColumnCount; ++column) {
        const QString tip = view.getModel().data(index.siblingAtColumn(column), Qt::ToolTipRole).toString();
        for (const char* part : {"sfFilePathString", "SFFilePathString", "textures/wood.png"})
            EXPECT_TRUE(tip.contains(part)) << part;
    }
}

TEST(FieldListClipboard, CopiesTheWholeValueOfTheChosenField)
{
    const SoRef<SoMaterial> material(new SoMaterial);
    const SoRef<SoTexture2> texture(new SoTexture2);
    material->diffuseColor.setValues(std::vector<SbVec3f>(400, SbVec3f(0.25F, 0.5F, 1)));
    texture->fileName.setValue("two words.png");
    FieldListView view;
    QApplication::clipboard()->clear();
    QTest::keySequence(&view, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "") << "nothing is chosen";
    view.showField(&material->diffuseColor);
    QTest::keySequence(&view, QKeySequence::Copy);
    SbString text;
    material->diffuseColor.get(text);
    EXPECT_GT(text.getLength(), 1000);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), text.str());
    view.showField(&texture->fileName);
    QTest::keySequence(&view, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "two words.png");
}
