// SPDX-License-Identifier: MIT
#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "text/ValueText.h"
#include <xsg/fields/SoMFFloat.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

void nextTurn()
{
    SoSensorQueue::getInstance().process();
}

class FieldList : public testing::Test
{
protected:
    FieldList() { model.setContainer(material.get()); }
    QModelIndex cell(const SoField& field, int column) const
    {
        return model.indexOf(&field).siblingAtColumn(column);
    }
    QString value(const SoField& field) const
    {
        return model.data(cell(field, FieldListModel::ValueColumn)).toString();
    }

    SoRef<SoMaterial> material{new SoMaterial};
    FieldListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(FieldList, ShowsNameTypeAndValue)
{
    ASSERT_EQ(model.rowCount(), material->getFieldData()->getNumFields());
    const SoField& field = material->shininess;
    EXPECT_EQ(model.data(cell(field, FieldListModel::NameColumn)), "shininess");
    EXPECT_EQ(model.data(cell(field, FieldListModel::TypeColumn)), "SFFloat");
    EXPECT_EQ(value(field), "0.2");
}

TEST_F(FieldList, FollowsEachFieldOncePerTurn)
{
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    material->transparency.setValue(0.25F);
    material->transparency.setValue(0.5F);
    EXPECT_EQ(changed.count(), 0);
    nextTurn();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex(), model.indexOf(&material->transparency));
    EXPECT_EQ(value(material->transparency), "0.5");
}

TEST_F(FieldList, MarksDefaultIgnoredAndConnected)
{
    const auto flag = [&](int role) { return model.data(cell(material->transparency, 0), role).toBool(); };
    const auto icon = [&] {
        return model.data(cell(material->transparency, 0), Qt::DecorationRole)
            .value<QIcon>()
            .pixmap(14)
            .toImage();
    };
    EXPECT_TRUE(flag(FieldListModel::DefaultRole));
    const QImage asDefault = icon();
    material->transparency.setValue(0.5F);
    EXPECT_FALSE(flag(FieldListModel::DefaultRole));
    const QImage asChanged = icon();
    EXPECT_NE(asDefault, asChanged);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    nextTurn();
    material->transparency.setIgnored(true);
    nextTurn();
    EXPECT_EQ(changed.count(), 2);
    EXPECT_TRUE(flag(FieldListModel::IgnoredRole));
    EXPECT_NE(icon(), asChanged);
    material->transparency.connectFrom(&material->shininess);
    EXPECT_TRUE(flag(FieldListModel::ConnectedRole));
}

TEST_F(FieldList, MarksAndPatchesAreSeenInASelectedRowToo)
{
    const auto icon = [&](SoField& field, int column, QIcon::Mode mode) {
        return model.data(cell(field, column), Qt::DecorationRole).value<QIcon>().pixmap(14, mode).toImage();
    };
    material->transparency.setValue(0.5F);
    nextTurn();
    const QImage mark = icon(material->transparency, 0, QIcon::Selected);
    EXPECT_GT(qGray(mark.pixel(mark.rect().center())), 200) << "light on the highlight";
    const int value = FieldListModel::ValueColumn;
    EXPECT_EQ(icon(material->emissiveColor, value, QIcon::Selected),
              icon(material->emissiveColor, value, QIcon::Normal));
}

TEST_F(FieldList, ShowsColoursAsPatches)
{
    material->emissiveColor.setValue(1, 0, 0);
    const auto patch = [&](const SoField& field) {
        return model.data(cell(field, FieldListModel::ValueColumn), Qt::DecorationRole)
            .value<QIcon>()
            .pixmap(14)
            .toImage();
    };
    EXPECT_EQ(patch(material->emissiveColor).pixelColor(7, 7), QColor(Qt::red));
    EXPECT_FALSE(patch(material->diffuseColor).isNull());
    EXPECT_TRUE(patch(material->shininess).isNull());
    material->emissiveColor.setValue(std::nanf(""), 5.0F, -1.0F);
    EXPECT_EQ(patch(material->emissiveColor).pixelColor(7, 7), QColor(Qt::green));
}

TEST_F(FieldList, EmptiesItselfBeforeItsNodeIsDestroyed)
{
    material->transparency.setValue(0.5F);
    material = SoRef<SoMaterial>();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.getContainer(), nullptr);
    nextTurn();
}

TEST(ValueText, ShortensLongListsWithoutReadingThemThrough)
{
    SoRef<SoPoints> points(new SoPoints);
    points->points.setValues(std::vector<SbVec3f>(1000000));
    const QString text = valueText(points->points);
    EXPECT_TRUE(text.startsWith("1000000 × [0 0 0, 0 0 0")) << qPrintable(text);
    EXPECT_TRUE(text.endsWith(QChar(0x2026)));
    EXPECT_LE(text.size(), 160);
    points->points.setValues(std::vector<SbVec3f>{});
    EXPECT_EQ(valueText(points->points), "empty");
    points->points.setValue({1, 2, 3});
    EXPECT_EQ(valueText(points->points), "1 2 3");
}

// A list that counts the values it turns into text.
class CountingList : public SoMFFloat
{
public:
    mutable int written = 0;

protected:
    void writeValue(std::string& out, int index) const override
    {
        ++written;
        SoMFFloat::writeValue(out, index);
    }
};

TEST(ValueText, AsksAListOnlyForWhatIsShown)
{
    CountingList list;
    list.setValues(std::vector<float>(100000, 1.0F));
    valueText(list);
    EXPECT_GT(list.written, 0);
    EXPECT_LT(list.written, 200);
}

TEST(ValueText, CutsTextsBetweenCharacters)
{
    SoSFString field;
    field.setValue(SbString(QString(300, QChar(0x20ac)).toUtf8().constData()));
    const QString text = valueText(field, 10);
    EXPECT_EQ(text, QString(9, QChar(0x20ac)) + QChar(0x2026));
    field.setValue("two\nlines");
    EXPECT_EQ(valueText(field), QStringLiteral("two⏎lines"));
}

TEST(ValueText, ShowsAPicturesSizes)
{
    SoRef<SoTexture2> texture(new SoTexture2);
    EXPECT_EQ(valueText(texture->image), "no picture");
    const std::vector<unsigned char> bytes(2 * 3 * 4);
    texture->image.setValue(2, 3, 4, bytes.data());
    EXPECT_EQ(valueText(texture->image), QStringLiteral("2 × 3, RGBA"));
}

// Counts the values that a view asks for.
class CountingModel : public FieldListModel
{
public:
    mutable int values = 0;
    QVariant data(const QModelIndex& index, int role) const override
    {
        values += role == Qt::DisplayRole && index.column() == ValueColumn;
        return FieldListModel::data(index, role);
    }
};

TEST(FieldListLaziness, OnlyVisibleRowsAreAskedForTheirText)
{
    SoRef<SoMaterial> material(new SoMaterial);
    CountingModel model;
    model.setContainer(material.get());
    FieldListView view;
    view.setModel(&model);
    view.resize(300, view.header()->sizeHint().height() + 2 * view.sizeHintForRow(0));
    view.show();
    model.values = 0;
    view.viewport()->grab();
    EXPECT_GT(model.values, 0);
    EXPECT_LE(model.values, 3);
    ASSERT_GT(model.rowCount(), 4);
}

class FieldListSelection : public testing::Test
{
protected:
    FieldListSelection()
    {
        view.resize(300, 300);
        view.show();
        view.setContainer(material.get());
        QObject::connect(&view, &FieldListView::fieldSelected, [this](SoField* f) { selected.push_back(f); });
    }
    SoRef<SoMaterial> material{new SoMaterial};
    FieldListView view;
    std::vector<SoField*> selected;
};

TEST_F(FieldListSelection, ReportsWhatTheUserClicks)
{
    const QRect row = view.visualRect(view.getModel().indexOf(&material->transparency));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, row.center());
    ASSERT_EQ(selected.size(), 1U);
    EXPECT_EQ(selected[0], &material->transparency);
}

TEST_F(FieldListSelection, ShowingAFieldShowsItsNodeAndReportsNothing)
{
    SoRef<SoPoints> points(new SoPoints);
    view.showField(&points->points);
    EXPECT_EQ(view.getModel().getContainer(), points.get());
    EXPECT_EQ(view.getModel().fieldAt(view.currentIndex()), &points->points);
    view.showField(nullptr);
    EXPECT_FALSE(view.currentIndex().isValid());
    EXPECT_EQ(selected.size(), 0U);
}

} // namespace
