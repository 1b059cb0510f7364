// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>

#include <ostream>
#include <string>
#include <vector>

class QWidget;

/// What a user sees and does in the editor of each type: one row for each place where a value is edited.
struct EditorRow {
    enum Place { Own, General, Grid }; // an editor of its own, the general one, or the grid of its own
    enum Applied { AtTheEnd, AtEachKey };

    const char* type; // of the field
    Place place;
    std::vector<std::string> values;
    std::vector<std::string> shown; // of the first two values: what the inputs show, with '|' between them
    int input;                      // which of the inputs the user takes; -1 where there is none
    const char* keys;               // what is typed into it
    const char* applied;            // what the first value becomes by that
    int commands;                   // that are recorded for it
    Applied when;

    std::string name() const { return std::string(type) + (isInGrid() ? "Grid" : ""); }
    /// The extension name of the editor.
    std::string editor() const { return place == General ? "SField" : type; }
    bool isInGrid() const { return place == Grid; }
    /// Nothing that is typed ever waits.
    bool isEachKeyApplied() const { return when == AtEachKey; }
};

const std::vector<EditorRow>& editorRows();

/// The inputs for the row's value, in reading order.
QList<QWidget*> inputsOf(const EditorRow& row, QWidget* editor);
/// The same, for the lines among them that somebody types into.
QList<QWidget*> linesOf(const EditorRow& row, QWidget* editor);
/// All stops of the Tab key, in reading order.
QList<QWidget*> stopsOf(const EditorRow& row, QWidget* editor);
std::string shownIn(const EditorRow& row, QWidget* editor);

/// Opens the grid where the row is in one, as a user does.
void open(const EditorRow& row, QWidget* editor);
/// Types without ending it. Every key counts: what stood there is replaced.
void typeInto(QWidget* input, const QString& keys);

std::ostream& operator<<(std::ostream& out, const EditorRow& row);
