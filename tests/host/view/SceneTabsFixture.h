// SPDX-License-Identifier: MIT
#pragma once

#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"
#include "window/SceneTabs.h"

#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

using namespace scopix;

/// Answers each question of the window by the button of this name, and counts them.
class Answers : public QObject
{
public:
    explicit Answers(QString button)
        : m_button(std::move(button))
    {
        startTimer(1);
    }
    QStringList texts() const { return m_texts; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box == m_last)
            return;
        m_last = box;
        m_texts << box->text();
        for (QAbstractButton* each : box->buttons()) {
            if (each->text().remove('&') == m_button)
                return each->click();
        }
        ADD_FAILURE() << "no button " << qPrintable(m_button);
        box->reject();
    }

private:
    QString m_button;
    QPointer<QMessageBox> m_last;
    QStringList m_texts;
};

/// A program of its own, with its window.
struct Program {
    Program()
    {
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        window.getFiles().getScenes().setPause(20, 50);
        window.show();
        EXPECT_TRUE(waitForActive(&window)); // else shortcuts do not act
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    QStringList told;
};

/// What a person does with several scenes in one window.
class Tabs : public testing::Test
{
protected:
    Tabs()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        program = std::make_unique<Program>();
    }
    ~Tabs() override
    {
        program.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }

    // A scene with a few nodes that are called so.
    QString makeFile(const QString& name)
    {
        SoRef<SoSeparator> root(new SoSeparator);
        root->setName(SbName("root" + name.toStdString()));
        for (int i = 0; i < 3; ++i) {
            auto* group = new SoSeparator;
            root->addChild(group);
            auto* material = new SoMaterial;
            material->setName(SbName("paint" + name.toStdString() + std::to_string(i)));
            group->addChild(material);
            group->addChild(new SoCube);
        }
        const QString path = home.filePath(name + ".xsg");
        std::string error;
        EXPECT_TRUE(SoSceneFile::write(root.get(), path.toStdString(), error)) << error;
        return path;
    }
    // Of a scene that makeFile() made.
    QString makePatch(const QString& name, const QString& node)
    {
        const QString path = home.filePath(name + ".xsgpatch");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#XsgPatch V1.0 utf8\nset /Separator[" + QByteArray::number(node.right(1).toInt()) + "]/" +
                   node.toUtf8() + ".shininess 0.75\n");
        return path;
    }
    void openInTab(const QString& path)
    {
        QSignalSpy opened(&files(), &SceneFiles::opened);
        files().openInTab(path);
        ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        EXPECT_TRUE(opened.first().first().toBool());
        settle();
    }
    void settle()
    {
        SoSensorQueue::getInstance().process();
        QCoreApplication::processEvents();
    }
    SceneFiles& files() { return program->window.getFiles(); }
    HostServices& services() { return program->services; }
    OpenScenes& scenes() { return files().getScenes(); }
    SceneTabs& tabs() { return program->window.getTabs(); }
    SceneTreeView& tree() { return program->window.getTree(); }
    QString title() { return files().getDocument().getTitle(); }
    std::string text() { return SoSceneFile::writeText(program->window.getScene()); }
    void clickTab(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&tabs(), button, {}, tabs().tabRect(index).center());
        settle();
    }
    void key(int key, Qt::KeyboardModifiers modifiers)
    {
        if (!program->window.isActiveWindow()) { // a dialog was
            program->window.activateWindow();
            ASSERT_TRUE(waitForActive(&program->window));
        }
        tree().setFocus();
        QTest::keyClick(&tree(), static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    void clickRow(const QModelIndex& index)
    {
        tree().scrollTo(index);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(index).center());
        settle();
    }
    void duplicate()
    {
        clickRow(tree().getModel().index(0, 0, tree().getModel().index(0, 0)));
        key(Qt::Key_D, Qt::ControlModifier);
    }
    QStringList names()
    {
        QStringList names;
        for (int i = 0; i < tabs().count(); ++i)
            names << tabs().tabText(i);
        return names;
    }
    void drop(const QStringList& paths, Qt::KeyboardModifiers modifiers)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QSignalSpy opened(&files(), &SceneFiles::opened);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&program->window, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&program->window, &event);
        ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        settle();
    }
    void moveMouse(QPoint to)
    {
        QMouseEvent event(QEvent::MouseMove, to, tabs().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&tabs(), &event);
    }
    // By the mouse, beyond the middle of the other one.
    void dragTab(int from, int to)
    {
        const QPoint start = tabs().tabRect(from).center();
        const QRect end = tabs().tabRect(to);
        const QPoint goal(from < to ? end.right() : end.left(), start.y());
        QTest::mousePress(&tabs(), Qt::LeftButton, {}, start);
        for (int step = 1; step <= 20; ++step)
            moveMouse(start + (goal - start) * step / 20);
        QTest::mouseRelease(&tabs(), Qt::LeftButton, {}, goal);
        settle();
    }
    QStringList kept() const { return QDir(home.filePath("scopix/recovery")).entryList({"*.xsg"}); }

    QTemporaryDir home;
    std::unique_ptr<Program> program;
};
