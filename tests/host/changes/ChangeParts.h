// SPDX-License-Identifier: MIT
// A window with the dock of changes, worked in as a person does.
#pragma once

#include "TreeParts.h"
#include "changes/ChangesPanel.h"
#include "changes/SceneEdits.h"
#include "window/SceneChanges.h"

#include <xsg/changes/PatchApplication.h>
#include <xsg/changes/SceneDiff.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <QDockWidget>
#include <QToolButton>

#include <algorithm>

class ChangesWindow : public TreeWindow
{
protected:
    ChangesWindow()
    {
        window.getView().hide(); // pictures take most of the time, and nothing here looks at them
        changes.show();
        settle();
    }
    template <class Node>
    Node& named(const char* name)
    {
        return *dynamic_cast<Node*>(SoFieldContainer::getByName(name));
    }
    // As an editor of the field does.
    template <class Write>
    void edit(SoField& field, Write write)
    {
        services.select(&field);
        {
            const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
            write();
        }
        services.history().endStep();
        settle();
    }
    // As "path: before → after", in the order of the rows.
    QStringList rows()
    {
        settle();
        QStringList all;
        const QAbstractItemModel& shown = *list.model();
        for (int row = 0; row < shown.rowCount(); ++row) {
            const auto text = [&](int column) { return shown.index(row, column).data().toString(); };
            all << QStringLiteral("%1: %2 → %3")
                       .arg(text(ChangesModel::PathColumn), text(ChangesModel::BeforeColumn),
                            text(ChangesModel::AfterColumn));
        }
        return all;
    }
    QModelIndex rowWith(const QString& path, int column = ChangesModel::PathColumn)
    {
        settle();
        const QAbstractItemModel& shown = *list.model();
        for (int row = 0; row < shown.rowCount(); ++row) {
            if (shown.index(row, 0).data().toString() == path)
                return shown.index(row, column);
        }
        ADD_FAILURE() << path.toStdString() << " is not in " << rows().join("; ").toStdString();
        return {};
    }
    void clickRow(const QModelIndex& index, Qt::KeyboardModifiers keys = {})
    {
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, list.visualRect(index).center());
        settle();
    }
    void keyInList(int key, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        list.setFocus();
        QTest::keyClick(&list, static_cast<Qt::Key>(key), keys);
        settle();
    }
    void tick(const QString& path)
    {
        list.setCurrentIndex(rowWith(path));
        keyInList(Qt::Key_Space);
    }
    // Into the line that opens in a cell.
    void typeInto(const QModelIndex& index, const QString& text)
    {
        list.setCurrentIndex(index);
        keyInList(Qt::Key_F2,
                  index.column() == ChangesModel::BeforeColumn ? Qt::ShiftModifier : Qt::NoModifier);
        auto* line = list.viewport()->findChild<QLineEdit*>();
        ASSERT_TRUE(line);
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
        settle();
    }
    ChangeKeySet all()
    {
        changes.getEdits().update();
        const ChangeKeys& keys = changes.getEdits().list();
        return {keys.begin(), keys.end()};
    }
    QToolButton& button(const char* name) { return *panel.findChild<QToolButton*>(name); }
    void press(const char* name)
    {
        QTest::mouseClick(&button(name), Qt::LeftButton);
        settle();
    }

    SceneChanges& changes = window.getChanges();
    ChangesPanel& panel = changes.getPanel();
    QTreeView& list = panel.getView();
};
