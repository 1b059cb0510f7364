// What a person sees and does in the editor of each type: one row for each place where a value is edited.
#pragma once

#include <QList>
#include <QStringList>

#include <ostream>
#include <string>
#include <vector>

class QWidget;

struct EditorRow {
    const char* name;
    const char* type;   // of the field
    const char* editor; // the extension name of its editor
    bool inGrid;        // in the popup of the editor, not beside its button
    std::vector<std::string> values;
    std::vector<std::string> shown; // of the first two values: what the inputs show, with '|' between them
    int input;                      // which of the inputs the person takes; -1 where there is none
    const char* keys;               // what is typed into it
    const char* applied;            // what the first value becomes by that
    int commands;                   // that are recorded for it
    bool eachKey;                   // each key is applied, so that nothing ever waits
};

const std::vector<EditorRow>& editorRows();

// The inputs for the row's value, in reading order.
QList<QWidget*> inputsOf(const EditorRow& row, QWidget* editor);
// The same, for the lines among them that somebody types into.
QList<QWidget*> linesOf(const EditorRow& row, QWidget* editor);
// Everything that the keyboard goes through, in reading order.
QList<QWidget*> stopsOf(const EditorRow& row, QWidget* editor);
std::string shownIn(const EditorRow& row, QWidget* editor);

// Opens the grid where the row is in one, as a person does.
void open(const EditorRow& row, QWidget* editor);
// Types without ending it. Every key counts: what stood there is replaced.
void typeInto(QWidget* input, const QString& keys);

std::ostream& operator<<(std::ostream& out, const EditorRow& row);
