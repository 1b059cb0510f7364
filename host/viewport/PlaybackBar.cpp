// SPDX-License-Identifier: MIT
#include "viewport/PlaybackBar.h"

#include "viewport/Playback.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr int Margin = 8;
constexpr int StepsPerSecond = 1000;
constexpr int MostSteps = 1 << 30;
constexpr float Speeds[] = {0.1F, 0.25F, 0.5F, 1, 2, 4, -1};

int toStep(double seconds)
{
    const double steps = std::round(seconds * StepsPerSecond);
    return steps > 0 ? static_cast<int>(std::min(steps, double(MostSteps))) : 0;
}

QString secondsText(double seconds)
{
    return QLocale::c().toString(seconds, 'f', 2);
}

} // namespace

PlaybackBar::PlaybackBar(Playback& playback, QWidget& view)
    : QFrame(&view)
    , m_playback(playback)
    , m_view(view)
    , m_clips(new QComboBox)
    , m_slider(new QSlider(Qt::Horizontal))
    , m_time(new QLabel)
    , m_speed(new QComboBox)
{
    setObjectName(QStringLiteral("playbackBar"));
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_NoMousePropagation); // what is clicked here is not clicked in the view
    m_clips->setObjectName(QStringLiteral("playbackClips"));
    m_clips->setAccessibleName(tr("Clip"));
    m_clips->setToolTip(tr("Which clip is played"));
    m_clips->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_clips->setMinimumContentsLength(10);
    m_slider->setObjectName(QStringLiteral("playbackTime"));
    m_slider->setAccessibleName(tr("Time in the clip"));
    m_time->setObjectName(QStringLiteral("playbackSeconds"));
    m_speed->setObjectName(QStringLiteral("playbackSpeed"));
    m_speed->setAccessibleName(tr("Speed"));
    m_speed->setToolTip(tr("How fast it is played; below 0 backwards"));
    for (const float speed : Speeds)
        m_speed->addItem(tr("%1 ×").arg(QLocale::c().toString(static_cast<double>(speed))), speed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 3, 6, 3);
    row->addWidget(m_clips);
    row->addWidget(m_slider, 1);
    row->addWidget(m_time);
    row->addWidget(m_speed);
    connect(m_clips, QOverload<int>::of(&QComboBox::activated), &playback, &Playback::choose);
    connect(m_slider, &QSlider::valueChanged, &playback,
            [&playback](int step) { playback.goTo(static_cast<double>(step) / StepsPerSecond); });
    connect(m_speed, QOverload<int>::of(&QComboBox::activated), this, &PlaybackBar::chooseSpeed);
    connect(&playback, &Playback::clipsChanged, this, &PlaybackBar::listClips);
    connect(&playback, &Playback::changed, this, &PlaybackBar::showState);
    view.installEventFilter(this);
    hide();
}

QToolButton* PlaybackBar::makeButton(QAction& action)
{
    auto* button = new QToolButton;
    button->setObjectName(action.objectName() + QStringLiteral("Button"));
    button->setDefaultAction(&action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys of the view to the view
    return button;
}

void PlaybackBar::addAct(QAction& action)
{
    auto* row = static_cast<QHBoxLayout*>(layout());
    row->insertWidget(row->indexOf(m_slider), makeButton(action));
}

void PlaybackBar::addLastAct(QAction& action)
{
    layout()->addWidget(makeButton(action));
}

void PlaybackBar::listClips()
{
    const QStringList names = m_playback.getChoices();
    m_clips->clear();
    m_clips->addItems(names);
    m_clips->setVisible(names.size() > 1);
    setVisible(m_playback.hasClips());
    showState();
    place();
}

void PlaybackBar::showState()
{
    if (!m_playback.hasClips())
        return;
    const double now = m_playback.getTime();
    const double end = m_playback.getDuration();
    const QSignalBlocker quiet(m_slider);
    m_clips->setCurrentIndex(m_playback.getChoice());
    m_slider->setRange(0, toStep(end));
    m_slider->setPageStep(std::max(1, toStep(end) / 10));
    m_slider->setSingleStep(std::max(1, toStep(end) / 100));
    if (!m_slider->isSliderDown())
        m_slider->setValue(toStep(now));
    const QString widest = tr("%1 / %2 s").arg(secondsText(end), secondsText(end));
    m_time->setMinimumWidth(m_time->fontMetrics().horizontalAdvance(widest));
    m_time->setText(tr("%1 / %2 s").arg(secondsText(now), secondsText(end)));
    m_speed->setCurrentIndex(m_speed->findData(m_playback.getSpeed()));
}

void PlaybackBar::chooseSpeed(int place)
{
    m_playback.setSpeed(m_speed->itemData(place).toFloat());
}

// Above the bar that cuts the scene, where that is open.
void PlaybackBar::place()
{
    int bottom = m_view.height() - Margin;
    for (const QWidget* other :
         m_view.findChildren<QFrame*>(QStringLiteral("clipBar"), Qt::FindDirectChildrenOnly)) {
        if (other->isVisibleTo(&m_view))
            bottom = std::min(bottom, other->y() - Margin / 2);
    }
    const int height = sizeHint().height();
    setGeometry(Margin, bottom - height, std::max(0, m_view.width() - 2 * Margin), height);
    raise();
}

bool PlaybackBar::eventFilter(QObject* watched, QEvent* event)
{
    const bool mayMove = event->type() == QEvent::Resize || event->type() == QEvent::ChildAdded ||
                         event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent ||
                         event->type() == QEvent::Move;
    if (watched == &m_view && event->type() == QEvent::ChildPolished) {
        auto* child = static_cast<QChildEvent*>(event)->child();
        if (child->objectName() == QLatin1String("clipBar"))
            child->installEventFilter(this);
    }
    if (mayMove && !isHidden())
        place();
    return QFrame::eventFilter(watched, event);
}

} // namespace scopix
