// SPDX-License-Identifier: MIT
#include "EdFontFitting.h"

#include <QEvent>
#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

namespace
{

class FontFollower : public QObject
{
public:
    FontFollower(QWidget* widget, std::function<void()> measure)
        : QObject(widget)
        , m_measure(std::move(measure))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::FontChange)
            m_measure();
        return false;
    }

private:
    std::function<void()> m_measure;
};

} // namespace

void followFont(QWidget* widget, std::function<void()> measure)
{
    measure();
    new FontFollower(widget, std::move(measure));
}

void setHeightFitted(QWidget* widget, int least, int frame)
{
    followFont(widget,
               [=] { widget->setFixedHeight(std::max(least, widget->fontMetrics().height() + frame)); });
}

void setRoomFor(QWidget* line, const char* text)
{
    constexpr int FrameAndMargins = 10;
    followFont(line, [=] {
        line->setMinimumWidth(line->fontMetrics().horizontalAdvance(QLatin1String(text)) + FrameAndMargins);
    });
}
