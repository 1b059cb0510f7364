// SPDX-License-Identifier: MIT
// What a person does with the nodes of a running program.
#pragma once

#include "LiveWindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QDialog>

namespace scopix
{

class LiveStructure : public LiveWindow
{
protected:
    LiveStructure()
    {
        for (const NodeId id : {1, 2, 4})
            program.scene.property(id, "radius", number(1));
    }
    // The tree with the sky and the earth unfolded.
    void attachAndUnfold()
    {
        attach();
        ASSERT_TRUE(unfold("sky"));
        ASSERT_TRUE(unfold("earth"));
    }
    // Once it is open.
    void inDialog(const char* name, const std::function<void(QDialog&)>& act)
    {
        auto* looks = new QTimer(&window);
        QObject::connect(looks, &QTimer::timeout, [looks, name, act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || dialog->objectName() != QLatin1String(name))
                return;
            looks->stop();
            looks->deleteLater();
            act(*dialog);
        });
        looks->start(0);
    }
    void add(const char* type)
    {
        inDialog("typeChooser", [type](QDialog& dialog) {
            auto* line = dialog.findChild<QLineEdit*>();
            QTest::keyClicks(line, type);
            QTest::keyClick(line, Qt::Key_Return);
        });
        QTest::keyClick(&window.getTree(), Qt::Key_A, Qt::ShiftModifier);
    }
    void press(Qt::Key key) { QTest::keyClick(&window.getTree(), key, Qt::ControlModifier); }
    std::vector<NodeId> childrenOf(NodeId id) { return program.scene.nodes[id].children; }
    LiveScene& scene() { return *window.getLive().getScene(); }
    // As from the menu of the tree.
    void act(const char* text)
    {
        for (QAction* each : window.getTree().actions()) {
            if (each->text().remove('&') == QString::fromUtf8(text))
                return each->trigger();
        }
        FAIL() << text;
    }
    void selectAll(const std::vector<const char*>& names)
    {
        QList<SoPath> paths;
        for (const char* name : names) {
            paths.append(SoPath());
            std::vector<QModelIndex> way{row(name)};
            while (way.back().parent().isValid())
                way.push_back(way.back().parent());
            for (auto at = way.rbegin(); at != way.rend(); ++at)
                paths.back().append(model().nodeAt(*at));
        }
        services.selectPaths(paths);
    }
    bool has(NodeId id, const std::vector<NodeId>& children)
    {
        return wait([&] { return childrenOf(id) == children; });
    }
    bool shows(const char* name, int count)
    {
        return wait([&] { return row(name).isValid() && model().rowCount(row(name)) == count; });
    }
    bool isTold(const char* words)
    {
        return wait([&] { return !told.filter(QString::fromUtf8(words)).isEmpty(); });
    }
};

} // namespace scopix
