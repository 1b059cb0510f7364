// SPDX-License-Identifier: MIT
#include "start/Tour.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int Margin = 12;
constexpr int WidthInCharacters = 46;

void emphasize(QWidget& widget)
{
    QFont font = widget.font();
    font.setBold(true);
    widget.setFont(font);
}

QLabel* makeText()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

Tour::Tour(QWidget& window, std::vector<Step> steps)
    : QFrame(&window)
    , m_window(window)
    , m_steps(std::move(steps))
    , m_number(makeText())
    , m_title(makeText())
    , m_text(makeText())
    , m_back(new QPushButton(tr("&Back")))
    , m_next(new QPushButton)
{
    setObjectName(QStringLiteral("tour"));
    setAccessibleName(tr("Tour"));
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(2);
    setAutoFillBackground(true);
    emphasize(*m_title);
    m_number->setWordWrap(false);
    auto* stop = new QPushButton(tr("&End the Tour"));
    stop->setObjectName(QStringLiteral("endTour"));
    m_next->setObjectName(QStringLiteral("nextStep"));
    connect(m_back, &QPushButton::clicked, this, [this] { show(m_current - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { show(m_current + 1); });
    connect(stop, &QPushButton::clicked, this, &Tour::end);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_number, 1);
    for (QPushButton* button : {m_back, m_next, stop})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->addWidget(m_title);
    column->addWidget(m_text);
    column->addLayout(buttons);
    window.installEventFilter(this);
    hide();
}

void Tour::begin()
{
    show(0);
    m_next->setFocus();
}

void Tour::show(int step)
{
    if (step >= int(m_steps.size()))
        return end();
    m_current = step;
    const Step& shown = m_steps[std::size_t(step)];
    m_number->setText(tr("%1 of %2").arg(step + 1).arg(m_steps.size()));
    m_title->setText(shown.title);
    m_text->setText(shown.text);
    m_back->setEnabled(step > 0);
    m_next->setText(step + 1 == int(m_steps.size()) ? tr("&Finish") : tr("&Next"));
    setAccessibleDescription(shown.title + QLatin1Char('\n') + shown.text);
    place();
    QFrame::show();
}

void Tour::done(int step)
{
    if (step == current())
        show(step + 1);
}

void Tour::end()
{
    hide();
    m_window.setFocus();
}

// Beside what it is about, where there is room, and never beyond the window.
void Tour::place()
{
    const int width = std::min(fontMetrics().averageCharWidth() * WidthInCharacters, m_window.width());
    resize(width, std::max(heightForWidth(width), sizeHint().height()));
    const QWidget* about = m_steps[std::size_t(m_current)].place();
    const QRect target = about && about->isVisible() ? QRect(about->mapTo(&m_window, QPoint()), about->size())
                                                     : m_window.rect();
    const int right = m_window.width() - target.right() - 1;
    int x = target.center().x() - width / 2;
    int y = target.top() + Margin;
    if (target != m_window.rect() && std::max(right, target.left()) >= width + Margin)
        x = right >= target.left() ? target.right() + Margin : target.left() - width - Margin;
    else if (target.height() < height())
        y = target.bottom() + Margin;
    move(std::clamp(x, 0, std::max(0, m_window.width() - width)),
         std::clamp(y, 0, std::max(0, m_window.height() - height())));
    raise();
}

bool Tour::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}

void Tour::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        end();
    else
        QFrame::keyPressEvent(event);
}

} // namespace scopix
