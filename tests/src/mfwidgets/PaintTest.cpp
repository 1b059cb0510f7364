// SPDX-License-Identifier: MIT
// What a cell looks like: the text as much of it as fits, the selection, the swatch.
#include "EdMFColorWidget.h"
#include "EdMFStringWidget.h"
#include "MultiFixture.h"

#include <xsg/fields/SoMFColor.h>

#include <QAbstractItemDelegate>
#include <QImage>
#include <QPainter>

namespace
{

constexpr int CellHeight = 24;

QImage blank(int width)
{
    QImage image(width, CellHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage cell(const EdMFieldTable& table, int column, int width, QStyle::State state = QStyle::State_Enabled)
{
    QImage image = blank(width);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = state;
    option.palette = table.palette();
    table.itemDelegate()->paint(&painter, option, table.model()->index(0, column));
    return image;
}

// The cell as it is to look, with this text in it.
QImage drawn(const QString& text, int width, const QColor& pen, const QBrush& background = Qt::white)
{
    QImage image = blank(width);
    QPainter painter(&image);
    painter.fillRect(image.rect(), background);
    painter.setPen(pen);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

// As many characters as stay strictly narrower than the cell, less four pixels, together with the dots; at
// least one.
QString fitting(const QString& text, int width)
{
    QImage image = blank(1);
    const QFontMetrics metrics = QPainter(&image).fontMetrics();
    if (metrics.horizontalAdvance(text) <= width - 4)
        return text;
    int kept = 1;
    while (kept < text.size() && metrics.horizontalAdvance("..." + text.left(kept + 1)) < width - 4)
        ++kept;
    return text.left(kept) + "...";
}

using Texts = MultiFixture<EdMFStringWidget, SoMFString>;

} // namespace

TEST(Paint, ATextThatDoesNotFitEndsInDots)
{
    Texts f("[ \"iiii The quick brown fox, WWWW and a lazy dog: \303\244\303\266\303\274\" ]");
    f.open();
    const QString text = f.editor.getFieldValue(0, 0);
    const QColor pen = f.table().palette().color(QPalette::Text);
    int whole = 0;
    for (int width = 6; width < 480; ++width) {
        const QString shown = fitting(text, width);
        whole += shown == text;
        ASSERT_EQ(cell(f.table(), 0, width), drawn(shown, width, pen)) << width << ' ' << shown.toStdString();
    }
    EXPECT_GT(whole, 0) << "the widest cells show all of it";
}

TEST(Paint, OfATextOfMegabytesOnlyTheStartIsLookedAt)
{
    Texts f;
    f.field.set1Value(0, SbString(std::string(10'000'000, 'x').c_str()));
    f.open();
    EXPECT_EQ(f.editor.getCellText(0, 0, 80), QString(80, 'x'));
    EXPECT_EQ(f.editor.getFieldValue(0, 0).size(), 10'000'000);
    EXPECT_EQ(cell(f.table(), 0, 80),
              drawn(fitting(QString(100, 'x'), 80), 80, f.table().palette().color(QPalette::Text)));
}

TEST(Paint, ASelectedCellIsHighlighted)
{
    Texts f("[ \"text\" ]");
    f.open();
    const QPalette palette = f.table().palette();
    EXPECT_EQ(cell(f.table(), 0, 80, QStyle::State_Enabled | QStyle::State_Selected),
              drawn("text", 80, palette.color(QPalette::HighlightedText), palette.highlight()));
}

TEST(Paint, ACellOfADisabledTableIsGrey)
{
    Texts f("[ \"text\" ]");
    f.open();
    EXPECT_EQ(cell(f.table(), 0, 80, QStyle::State_None),
              drawn("text", 80, f.table().palette().color(QPalette::Disabled, QPalette::Text)));
}

TEST(Paint, TheSwatchHasTheColourOfItsRow)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 1 0.2 0 ]");
    f.open();
    QImage expected = blank(80);
    expected.fill(QColor(255, 51, 0));
    EXPECT_EQ(cell(f.table(), 0, 80), expected);
    EXPECT_EQ(cell(f.table(), 2, 80), drawn("0.2", 80, f.table().palette().color(QPalette::Text)));
}
