// SPDX-License-Identifier: MIT
#include "window/ReloadBar.h"

#include "window/SceneFiles.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace scopix
{

namespace
{

constexpr int Margin = 6;

} // namespace

ReloadBar::ReloadBar(SceneFiles& files, QWidget& view)
    : QFrame(&view)
    , m_files(files)
    , m_view(view)
    , m_text(new QLabel)
{
    setObjectName(QStringLiteral("reloadBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto* reload = new QPushButton(tr("&Reload"));
    reload->setObjectName(QStringLiteral("reload"));
    connect(reload, &QPushButton::clicked, &files, &SceneFiles::reload);
    auto* compare = new QPushButton(tr("&Compare"));
    compare->setObjectName(QStringLiteral("compare"));
    connect(compare, &QPushButton::clicked, this, &ReloadBar::compareRequested);
    auto* ignore = new QPushButton(tr("&Ignore"));
    ignore->setObjectName(QStringLiteral("ignore"));
    connect(ignore, &QPushButton::clicked, this, &ReloadBar::dismiss);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Margin, Margin, Margin, Margin);
    row->addWidget(m_text, 1);
    row->addWidget(reload);
    row->addWidget(compare);
    row->addWidget(ignore);
    hide();
    view.installEventFilter(this);
    connect(&files.getScenes(), &OpenScenes::stateChanged, this, &ReloadBar::update);
}

void ReloadBar::update()
{
    const SceneDocument& document = m_files.getDocument();
    const bool isChanged = document.getFileState() == SceneDocument::FileState::Changed;
    if (m_dismissed == &document && !isChanged)
        m_dismissed = nullptr;
    m_text->setText(tr("Another program has changed “%1”.").arg(document.getTitle()));
    setVisible(isChanged && m_dismissed != &document && !document.isModified());
    place();
}

void ReloadBar::dismiss()
{
    m_dismissed = &m_files.getDocument();
    update();
}

bool ReloadBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_view && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void ReloadBar::place()
{
    const int height = hasHeightForWidth() ? heightForWidth(m_view.width()) : sizeHint().height();
    setGeometry(0, 0, m_view.width(), height);
    raise();
}

} // namespace scopix
