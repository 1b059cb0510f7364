// SPDX-License-Identifier: MIT
#include "viewport/ClipBar.h"

#include "viewport/SceneView.h"

#include <xsg/actions/SoBoundingBoxAction.h>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QSlider>
#include <QToolButton>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int Steps = 1000;
constexpr int Margin = 8;

// How far the box reaches along the direction.
std::pair<float, float> extentOf(const SbBox3f& box, const SbVec3f& direction)
{
    float low = 0;
    float high = 0;
    for (int i = 0; i < 3; ++i) {
        const auto [a, b] = std::minmax({box.getMin()[i] * direction[i], box.getMax()[i] * direction[i]});
        low += a;
        high += b;
    }
    return {low, high};
}

} // namespace

ClipBar::ClipBar(SceneView& view)
    : QFrame(&view)
    , m_view(view)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_place(new QLabel(this))
{
    setObjectName(QStringLiteral("clipBar"));
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_NoMousePropagation); // what is clicked here is not clicked in the view
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 3, 6, 3);
    auto* axes = new QButtonGroup(this);
    const std::pair<QString, QString> choices[] = {{tr("X"), tr("Cut across the x axis")},
                                                   {tr("Y"), tr("Cut across the y axis")},
                                                   {tr("Z"), tr("Cut across the z axis")},
                                                   {tr("View"), tr("Cut across the line of sight")}};
    for (int i = 0; i < 4; ++i) {
        m_axes[i] = addButton(choices[i].first, choices[i].second, "clipAxis");
        m_axes[i]->setCheckable(true);
        axes->addButton(m_axes[i]);
        connect(m_axes[i], &QToolButton::clicked, this, [this, i] { chooseAxis(i); });
    }
    m_axes[0]->setChecked(true);
    m_slider->setObjectName(QStringLiteral("clipSlider"));
    m_slider->setAccessibleName(tr("Where the plane cuts"));
    m_slider->setRange(0, Steps);
    m_slider->setPageStep(Steps / 20);
    m_slider->setValue(Steps / 2);
    row->addWidget(m_slider, 1);
    m_place->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0.000000")));
    row->addWidget(m_place);
    m_flip = addButton(tr("Flip"), tr("Show the other side"), "clipFlip");
    m_flip->setCheckable(true);
    QToolButton* close = addButton(tr("Close"), tr("Show the whole scene again"), "clipClose");
    connect(m_slider, &QSlider::valueChanged, this, &ClipBar::cut);
    connect(m_flip, &QToolButton::toggled, this, &ClipBar::cut);
    connect(close, &QToolButton::clicked, this, [this] { setOpen(false); });
    view.installEventFilter(this);
    hide();
}

QToolButton* ClipBar::addButton(const QString& text, const QString& tip, const char* name)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    layout()->addWidget(button);
    return button;
}

void ClipBar::setOpen(bool open)
{
    if (open == isVisibleTo(&m_view))
        return;
    setVisible(open);
    if (open) {
        place();
        raise();
        cut();
        m_slider->setFocus();
    } else {
        m_view.setClipPlane(std::nullopt);
        m_view.setFocus();
        emit closed();
    }
}

void ClipBar::chooseAxis(int axis)
{
    SbVec3f normal;
    if (axis < 3)
        normal[axis] = 1;
    else
        normal = m_view.getCamera().getDirection();
    m_normal = normal;
    cut();
}

void ClipBar::cut()
{
    if (!isVisibleTo(&m_view))
        return;
    const SbBox3f box = m_view.getScene() ? SoBoundingBoxAction().getBox(m_view.getScene()) : SbBox3f();
    const auto [low, high] = box.isEmpty() ? std::pair(0.0F, 0.0F) : extentOf(box, m_normal);
    const float at = low + (high - low) * static_cast<float>(m_slider->value()) / Steps;
    m_place->setText(QLocale::c().toString(static_cast<double>(at), 'g', 4));
    const float side = m_flip->isChecked() ? 1.0F : -1.0F;
    m_view.setClipPlane(SbPlane(m_normal * side, at * side));
}

void ClipBar::place()
{
    const int height = sizeHint().height();
    setGeometry(Margin, m_view.height() - height - Margin, std::max(0, m_view.width() - 2 * Margin), height);
}

bool ClipBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_view && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void ClipBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        setOpen(false);
    else
        QFrame::keyPressEvent(event);
}

} // namespace scopix
