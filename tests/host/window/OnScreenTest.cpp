// SPDX-License-Identifier: MIT
// Nothing opens where part of it cannot be seen.
#include "window/OnScreen.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QScreen>
#include <QTest>

using namespace scopix;

namespace
{

const QRect Screen(100, 50, 1000, 700);
const QMargins Frame(2, 20, 2, 2);

TEST(OnScreen, WhatFitsStaysWhereItIs)
{
    const QRect inside(102, 70, 996, 678);
    EXPECT_EQ(OnScreen::fitted(inside, Frame, Screen), inside);
    EXPECT_EQ(OnScreen::fitted(QRect(300, 300, 10, 10), Frame, Screen), QRect(300, 300, 10, 10));
}

TEST(OnScreen, WhatIsOutsideComesInsideWithItsFrame)
{
    const QSize size(400, 300);
    for (const QPoint corner : {QPoint(-5000, 300), QPoint(5000, 300), QPoint(300, -5000), QPoint(300, 5000),
                                QPoint(100, 50), QPoint(5000, 5000)}) {
        const QRect place = OnScreen::fitted(QRect(corner, size), Frame, Screen);
        EXPECT_EQ(place.size(), size);
        EXPECT_TRUE(Screen.contains(place.marginsAdded(Frame))) << corner.x() << ' ' << corner.y();
    }
}

TEST(OnScreen, WhatIsTooLargeIsAsLargeAsTheScreen)
{
    EXPECT_EQ(OnScreen::fitted(QRect(0, 0, 5000, 5000), Frame, Screen).marginsAdded(Frame), Screen);
    EXPECT_EQ(OnScreen::fitted(QRect(900, 300, 5000, 100), Frame, Screen).marginsAdded(Frame),
              QRect(100, 280, 1000, 122));
}

// On the screen that there is, as a window left on one that is gone, with a dialog that was sized elsewhere.
TEST(OnScreen, WindowsAndTheirDialogsOpenOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QMainWindow window;
    new OnScreen(window);
    window.setGeometry(screen.right() + 4000, -3000, 500, 400);
    window.show();
    ASSERT_TRUE(waitForExposed(&window));
    EXPECT_TRUE(screen.contains(window.geometry()));
    EXPECT_EQ(window.size(), QSize(500, 400));

    QWidget inner(&window);
    QDialog dialog(&inner);
    dialog.setGeometry(-700, -700, screen.width() * 3, screen.height() * 3);
    dialog.show();
    ASSERT_TRUE(waitForExposed(&dialog));
    EXPECT_TRUE(screen.contains(dialog.geometry()));

    // What belongs to another window is its own business.
    QWidget other;
    other.setGeometry(-700, 40, 300, 200);
    other.show();
    ASSERT_TRUE(waitForExposed(&other));
    EXPECT_EQ(other.x(), -700);
}

} // namespace
