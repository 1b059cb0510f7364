// SPDX-License-Identifier: MIT
#pragma once

#include "app/HostSession.h"

#include <support/Settling.h>
#include <support/Waiting.h>

#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QCheckBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace scopix;

/// The least that a host's window is.
class BareWindow : public HostWindow
{
public:
    BareWindow()
    {
        setCentralWidget(new QWidget);
        centralWidget()->setFocusPolicy(Qt::StrongFocus);
    }
    QMenu* viewMenu() override { return &m_view; }
    QMenu* profilesMenu() override { return &m_profiles; }
    void openFile(const QString&) override { emit openFinished(false); }
    bool selectField(const QString&, const QString&) override { return false; }
    bool saveScreenshot(const QString&) override { return false; }

private:
    QMenu m_view;
    QMenu m_profiles;
};

/// A running host with the real plug-in and a node to edit, and ways to act in it as a user does.
class Session
{
public:
    explicit Session(const HostSession::MakeWindow& makeWindow =
                         [](HostServices&, UserNotifier&) { return std::make_unique<BareWindow>(); })
        : host(makeWindow, ProfileFile(m_folder.filePath(QStringLiteral("profiles.json"))))
    {
        host.notifier().setAttended(false);
        EXPECT_TRUE(host.plugins().loadPlugin(QStringLiteral(SCOPIX_PLUGIN)));
        QMainWindow& window = host.window();
        window.resize(1000, 700);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window));
        settle();
    }

    QUndoStack& stack() { return host.services().undoStack(); }
    void select(SoField* field)
    {
        host.services().select(field);
        settle();
    }
    void selectNothing() { select(static_cast<SoField*>(nullptr)); }

    /// The dock of this title, or null.
    QDockWidget* dock(const QString& title = QStringLiteral("Field Editor"))
    {
        for (auto* dock : host.window().findChildren<QDockWidget*>()) {
            if (dock->windowTitle() == title)
                return dock;
        }
        return nullptr;
    }
    bool editorShown() { return dock() && dock()->isVisible() && dock()->widget(); }
    template <class Widget>
    Widget* inEditor(const char* name = nullptr)
    {
        auto* widget = dock()->widget();
        return widget->findChild<Widget*>(name ? QString::fromLatin1(name) : QString());
    }
    QLineEdit* input() { return inEditor<QLineEdit>(); }
    void click(QWidget* widget)
    {
        QTest::mouseClick(widget, Qt::LeftButton);
        settle();
    }
    void typeAnew(const QString& text)
    {
        click(input());
        QTest::keyClick(input(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(input(), text);
        settle();
    }

    /// The middle of the slider's handle.
    QPoint handle()
    {
        auto* slider = inEditor<QSlider>();
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = slider->orientation();
        option.minimum = slider->minimum();
        option.maximum = slider->maximum();
        option.sliderPosition = slider->sliderPosition();
        option.sliderValue = slider->value();
        return slider->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
            .center();
    }
    /// Presses the handle, moves it in steps of `step` pixels, calls `during` after each, and releases it.
    template <class During>
    void drag(int steps, int step, During during)
    {
        auto* slider = inEditor<QSlider>();
        QPoint at = handle();
        QTest::mousePress(slider, Qt::LeftButton, {}, at);
        for (int i = 0; i < steps; ++i) {
            at.rx() += step;
            QMouseEvent move(QEvent::MouseMove, at, slider->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(slider, &move);
            settle();
            during();
        }
        QTest::mouseRelease(slider, Qt::LeftButton, {}, at);
        settle();
    }

    static void settle() { settleHost(); }

private:
    QTemporaryDir m_folder;

public:
    SoRef<SoMaterial> material{new SoMaterial};
    HostSession host;
};
