// SPDX-License-Identifier: MIT
#pragma once

#include "app/HostSession.h"
#include "support/MessageBoxes.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

/// A home of its own for the profile file and the window's layout; it outlives the sessions in it.
class CounterHome
{
public:
    CounterHome()
    {
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XSGHOME"})
            qputenv(name, m_folder.path().toLocal8Bit());
        qputenv("XSG_PERFCOUNTER_ENABLE", "1");
        QDir(m_folder.path()).mkpath(QStringLiteral("data/Scopix"));
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(SCOPIX_SOURCE_DIR "/data/Scopix/PerfCounter.xml"), profileFile()));
    }
    ~CounterHome()
    {
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XSGHOME", "XSG_PERFCOUNTER_ENABLE"})
            qunsetenv(name);
    }
    QString profileFile() const { return m_folder.filePath(QStringLiteral("data/Scopix/PerfCounter.xml")); }

private:
    QTemporaryDir m_folder;
};

/// Counts the events of a type that reach an object.
class EventCount : public QObject
{
public:
    EventCount(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    int count() const { return m_count; }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == m_type;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

/// The program with a model and its counters switched on, on a real display, and ways to act in it as a
/// person does: with mouse and keys, which go to the window as the window system would send them.
class CounterSession
{
public:
    CounterSession()
        : m_host([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        QSignalSpy opened(&m_host.window(), &HostWindow::openFinished);
        m_host.window().resize(1240, 820);
        m_host.start(CommandLine::parse({"scopix", SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"}));
        EXPECT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        EXPECT_TRUE(waitForExposed(&m_host.window()));
        EXPECT_EQ(m_boxes.take(), QStringList());
    }

    MainWindow& window() { return static_cast<MainWindow&>(m_host.window()); }
    QDockWidget* dock() { return window().findChild<QDockWidget*>(QStringLiteral("PerfCounter")); }
    /// A part of the dock, by its name.
    template <class Widget = QWidget>
    Widget* part(const char* name)
    {
        return dock()->findChild<Widget*>(QString::fromLatin1(name));
    }
    QListWidget* list() { return dock()->findChild<QListWidget*>(); }
    QTableWidget* legend() { return part<QTableWidget>("m_legend"); }
    QTimer* clock() { return part("m_viewer")->findChild<QTimer*>({}, Qt::FindDirectChildrenOnly); }

    QPoint placeOf(const QListWidgetItem* item)
    {
        list()->scrollToItem(item);
        return inWindow(list()->viewport(), list()->visualItemRect(item).center());
    }
    QListWidgetItem* listed(const QString& name)
    {
        return list()->findItems(name, Qt::MatchExactly).value(0);
    }

    void click(QPoint place, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(handle(), Qt::LeftButton, keys, place);
    }
    void click(const char* part) { click(middleOf(this->part(part))); }
    void clickLegend(const QString& name)
    {
        const QTableWidgetItem* item = legend()->findItems(name, Qt::MatchExactly).value(0);
        ASSERT_TRUE(item);
        click(inWindow(legend()->viewport(), legend()->visualItemRect(item).center()));
    }

    /// Presses in one place, drags to the middle of a part, and lets go once the part has noticed.
    void drag(QPoint from, const char* target)
    {
        QWidget* to = part(target);
        EventCount moves(to, QEvent::DragMove);
        int tries = 0;
        QTimer hand; // works while the drag waits for its end
        QObject::connect(&hand, &QTimer::timeout, [&] {
            if (moves.count() >= 2 || ++tries > 500)
                QTest::mouseRelease(handle(), Qt::LeftButton, {}, middleOf(to));
            else
                QTest::mouseMove(handle(), middleOf(to) + QPoint(tries % 2, 0));
        });
        QTest::mousePress(handle(), Qt::LeftButton, {}, from);
        hand.start(5);
        QTest::mouseMove(handle(), from + QPoint(30, 0));
        EXPECT_TRUE(waitFor([&] { return moves.count() >= 2 && !QGuiApplication::mouseButtons(); }));
    }

    /// Turns the model by one long drag, to and fro, until `enough` is true.
    template <class Enough>
    void orbit(Enough enough)
    {
        const QPoint middle = middleOf(&window().getView());
        QTest::mousePress(handle(), Qt::LeftButton, {}, middle);
        int step = 0;
        EXPECT_TRUE(waitFor([&] {
            const int right = std::abs(++step % 100 - 50);
            QTest::mouseMove(handle(), middle + QPoint(right, step % 7));
            return enough();
        }));
        QTest::mouseRelease(handle(), Qt::LeftButton, {}, middle);
    }

    QStringList legendNames()
    {
        QStringList names;
        for (int row = 0; row < legend()->rowCount(); ++row)
            names.append(legend()->item(row, 0)->text());
        return names;
    }
    QColor legendColor(const QString& name)
    {
        const QTableWidgetItem* item = legend()->findItems(name, Qt::MatchExactly).value(0);
        return item ? item->foreground().color() : QColor();
    }
    /// What the text view says about a counter.
    double shownValue(const QString& name)
    {
        auto* table = part<QTableWidget>("m_textView");
        const QTableWidgetItem* item = table->findItems(name, Qt::MatchExactly).value(0);
        return item ? table->item(item->row(), 1)->text().toDouble() : -1;
    }
    /// How many pixels of a plot have about this colour.
    int pixelsOf(const char* plot, const QColor& color)
    {
        const QImage image =
            part(plot)->findChild<QWidget*>(QStringLiteral("QwtPlotCanvas"))->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                count += std::abs(pixel.red() - color.red()) < 40 &&
                         std::abs(pixel.green() - color.green()) < 40 &&
                         std::abs(pixel.blue() - color.blue()) < 40;
            }
        }
        return count;
    }

    QStringList takeBoxes() { return m_boxes.take(); }

private:
    QWindow* handle() { return window().windowHandle(); }
    QPoint inWindow(const QWidget* widget, QPoint place) { return widget->mapTo(&window(), place); }
    QPoint middleOf(const QWidget* widget) { return inWindow(widget, widget->rect().center()); }

    MessageBoxes m_boxes;
    HostSession m_host;
};
