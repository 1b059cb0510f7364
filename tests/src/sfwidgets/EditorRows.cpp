#include "EditorRows.h"

#include "Person.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <algorithm>

namespace
{

constexpr const char* One = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
constexpr const char* Moved = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
constexpr const char* Red = "1 1 3 0xff0000";
constexpr const char* Lime = "1 1 3 0x00ff00";

} // namespace

const std::vector<EditorRow>& editorRows()
{
    static const std::vector<EditorRow> rows{
        {"SFBool", "SFBool", "SFBool", false, {"TRUE", "FALSE"}, {"+", "-"}, 0, " ", "FALSE", 1, true},
        {"SFInt32", "SFInt32", "SFInt32", false, {"-42", "7", "0"}, {"-42", "7"}, 0, "17", "17", 1, false},
        {"SFShort", "SFShort", "SFShort", false, {"-42", "7", "0"}, {"-42", "7"}, 0, "17", "17", 1, false},
        {"SFUInt32",
         "SFUInt32",
         "SFUInt32",
         false,
         {"3000000000", "7"},
         {"3000000000", "7"},
         0,
         "17",
         "17",
         1,
         false},
        {"SFUShort", "SFUShort", "SFUShort", false, {"40000", "7"}, {"40000", "7"}, 0, "17", "17", 1, false},
        {"SFFloat",
         "SFFloat",
         "SFFloat",
         false,
         {"0.5", "2.25"},
         {"0.500000", "2.250000"},
         0,
         "1.5",
         "1.5",
         1,
         false},
        {"SFDouble",
         "SFDouble",
         "SFDouble",
         false,
         {"0.1", "2.25"},
         {"0.1", "2.25"},
         0,
         "1.5",
         "1.5",
         1,
         false},
        {"SFVec2f",
         "SFVec2f",
         "SFVec2f",
         false,
         {"0.25 0.75", "1 2"},
         {"0.25|0.75", "1|2"},
         1,
         "5",
         "0.25 5",
         1,
         false},
        {"SFVec3f",
         "SFVec3f",
         "SFVec3f",
         false,
         {"1 2 3", "4 5 6"},
         {"1|2|3", "4|5|6"},
         1,
         "9",
         "1 9 3",
         1,
         false},
        {"SFVec4f",
         "SFVec4f",
         "SFVec4f",
         false,
         {"1 2 3 4", "5 6 7 8"},
         {"1|2|3|4", "5|6|7|8"},
         3,
         "9",
         "1 2 3 9",
         1,
         false},
        {"SFPlane",
         "SFPlane",
         "SFPlane",
         false,
         {"0 1 0 2", "0 0 1 3"},
         {"0|1|0|2", "0|0|1|3"},
         3,
         "9",
         "0 1 0 9",
         1,
         false},
        {"SFRotation",
         "SFRotation",
         "SFRotation",
         false,
         {"0 0 1 0", "0 1 0 0"},
         {"0|0|1|3.14159", "0|1|0|3.14159"},
         3,
         "0",
         "0 0 0 1",
         1,
         false},
        {"SFVec2i32",
         "SFVec2i32",
         "SFVec2i32",
         false,
         {"640 480", "1 2"},
         {"640|480", "1|2"},
         1,
         "9",
         "640 9",
         1,
         true},
        {"SFVec2s", "SFVec2s", "SFVec2s", false, {"-3 4", "1 2"}, {"-3|4", "1|2"}, 1, "9", "-3 9", 1, true},
        {"SFColor",
         "SFColor",
         "SFColor",
         false,
         {"1 0.5 0", "0 0 1"},
         {"1|0.5|0", "0|0|1"},
         2,
         "0.25",
         "1 0.5 0.25",
         1,
         false},
        {"SFEnum",
         "SFEnum",
         "SFEnum",
         false,
         {"SUMMER", "WINTER", "SPRING"},
         {"SUMMER", "WINTER"},
         0,
         "A",
         "AUTUMN",
         1,
         true},
        {"SFBitMask",
         "SFBitMask",
         "SFBitMask",
         false,
         {"LEFT | TOP", "RIGHT"},
         {"LEFT+|RIGHT-|TOP+|BOTTOM-", "LEFT-|RIGHT+|TOP-|BOTTOM-"},
         1,
         " ",
         "LEFT | RIGHT | TOP",
         0,
         true},
        {"SFString",
         "SFString",
         "SFString",
         false,
         {"\"one\"", "\"a \\\"b\\\"\""},
         {"one", "a \"b\""},
         0,
         "x y",
         "\"x y\"",
         1,
         false},
        {"SFName",
         "SFName",
         "SFName",
         false,
         {"Table", "Chair"},
         {"Table", "Chair"},
         0,
         "Leg",
         "Leg",
         1,
         false},
        {"SFFilePathString",
         "SFFilePathString",
         "SFFilePathString",
         false,
         {"\"a/b.png\"", "\"c.png\""},
         {"a/b.png", "c.png"},
         0,
         "d.png",
         "\"d.png\"",
         1,
         false},
        {"SFImage", "SFImage", "SFImage", false, {Red, Lime}, {"#ff0000", "#00ff00"}, -1, "", Red, 0, true},
        {"SFBox3s",
         "SFBox3s",
         "SFBox3s",
         false,
         {"1 2 3 4 5 6", "0 0 0 1 1 1"},
         {"1 2 3 4 5 6", "0 0 0 1 1 1"},
         0,
         "2 2 2 3 3 3",
         "2 2 2 3 3 3",
         2,
         true},
        {"SFBox3sGrid",
         "SFBox3s",
         "SFBox3s",
         true,
         {"1 2 3 4 5 6", "0 0 0 1 1 1"},
         {"1|2|3|4|5|6", "0|0|0|1|1|1"},
         4,
         "9",
         "1 2 3 4 9 6",
         1,
         false},
        {"SFMatrix", "SFMatrix", "SFMatrix", false, {Moved, One}, {Moved, One}, 0, One, One, 2, true},
        {"SFMatrixGrid",
         "SFMatrix",
         "SFMatrix",
         true,
         {One, Moved},
         {"1|0|0|0|0|1|0|0|0|0|1|0|0|0|0|1", "1|5|9|13|2|6|10|14|3|7|11|15|4|8|12|16"},
         3,
         "9",
         "1 0 0 0 0 1 0 0 0 0 1 0 9 0 0 1",
         1,
         false},
        {"SFTime", "SFTime", "SField", false, {"1.5", "2"}, {"1.5", "2"}, 0, "9", "9", 2, true},
        {"SFVec3d",
         "SFVec3d",
         "SField",
         false,
         {"1 2 3", "4 5 6"},
         {"1 2 3", "4 5 6"},
         0,
         "7 8 9",
         "7 8 9",
         2,
         true},
    };
    return rows;
}

namespace
{

template <class Keep>
QList<QWidget*> inReadingOrder(QWidget* parent, Keep keep)
{
    QList<QWidget*> found;
    for (QWidget* widget : parent->findChildren<QWidget*>()) {
        if (widget->window() == parent->window() && keep(widget))
            found << widget;
    }
    const auto earlier = [parent](const QWidget* a, const QWidget* b) {
        const QPoint first = a->mapTo(parent, a->rect().center());
        const QPoint second = b->mapTo(parent, b->rect().center());
        constexpr int SameLine = 6;
        return std::abs(first.y() - second.y()) > SameLine ? first.y() < second.y() : first.x() < second.x();
    };
    std::sort(found.begin(), found.end(), earlier);
    return found;
}

bool isInnerLine(const QWidget* widget)
{
    return qobject_cast<const QSpinBox*>(widget->parentWidget());
}

bool isLine(const QWidget* widget)
{
    return qobject_cast<const QSpinBox*>(widget) ||
           (qobject_cast<const QLineEdit*>(widget) && !isInnerLine(widget));
}

bool isInput(const QWidget* widget)
{
    // The box beside a slider is no value.
    const auto* box = qobject_cast<const QCheckBox*>(widget);
    return isLine(widget) || qobject_cast<const QComboBox*>(widget) ||
           (box && box->parentWidget()->objectName() != "EdSliderFrame") ||
           widget->objectName() == "m_imageBox";
}

QWidget* placeOf(const EditorRow& row, QWidget* editor)
{
    return row.inGrid ? editor->findChild<QGridLayout*>("m_popupFrameLayout")->parentWidget() : editor;
}

std::string textOf(const QWidget* input)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(input))
        return line->text().toStdString();
    if (const auto* spin = qobject_cast<const QSpinBox*>(input))
        return spin->text().toStdString();
    if (const auto* combo = qobject_cast<const QComboBox*>(input))
        return combo->currentText().toStdString();
    if (const auto* box = qobject_cast<const QCheckBox*>(input))
        return box->text().toStdString() + (box->isChecked() ? '+' : '-');
    const QPixmap picture = qobject_cast<const QLabel*>(input)->pixmap(Qt::ReturnByValue);
    return picture.isNull() ? "empty" : picture.toImage().pixelColor(0, 0).name().toStdString();
}

} // namespace

QList<QWidget*> inputsOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), isInput);
}

QList<QWidget*> linesOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), isLine);
}

QList<QWidget*> stopsOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), [](const QWidget* widget) {
        return widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
               !isInnerLine(widget);
    });
}

std::string shownIn(const EditorRow& row, QWidget* editor)
{
    std::string shown;
    for (const QWidget* input : inputsOf(row, editor))
        shown += (shown.empty() ? "" : "|") + textOf(input);
    return shown;
}

void open(const EditorRow& row, QWidget* editor)
{
    if (row.inGrid && !placeOf(row, editor)->isVisible())
        QTest::mouseClick(editor->findChild<QPushButton*>("m_editButton"), Qt::LeftButton);
}

void typeInto(QWidget* input, const QString& keys)
{
    person::focus(input);
    if (auto* line = qobject_cast<QLineEdit*>(input))
        line->selectAll();
    if (auto* spin = qobject_cast<QSpinBox*>(input))
        spin->selectAll();
    QTest::keyClicks(input, keys);
}

std::ostream& operator<<(std::ostream& out, const EditorRow& row)
{
    return out << row.name;
}
