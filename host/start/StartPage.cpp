// SPDX-License-Identifier: MIT
#include "start/StartPage.h"

#include "start/FileGallery.h"
#include "start/FilePictures.h"
#include "support/SharedFiles.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

namespace scopix
{

namespace
{

constexpr int Margin = 18;
constexpr int Gap = 8;

struct Sample {
    const char* file;
    const char* title;
};

constexpr Sample Samples[] = {
    {"scenes/showcase.xsg", QT_TRANSLATE_NOOP("scopix::StartPage", "Every kind of node")},
    {"models/lighthouse.glb", QT_TRANSLATE_NOOP("scopix::StartPage", "A lighthouse by the sea")},
    {"models/crate.gltf", QT_TRANSLATE_NOOP("scopix::StartPage", "A crate with a picture on it")},
    {"models/knot.stl", QT_TRANSLATE_NOOP("scopix::StartPage", "A knot, for printing")},
    {"models/rainbow.ply", QT_TRANSLATE_NOOP("scopix::StartPage", "A colour at each vertex")},
};

QLabel* makeHeading(const QString& text, int larger)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSize(font.pointSize() + larger);
    font.setBold(true);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

} // namespace

StartPage::StartPage(QWidget& view)
    : QFrame(&view)
    , m_view(view)
    , m_parts(new QBoxLayout(QBoxLayout::LeftToRight))
    , m_acts(new QVBoxLayout)
    , m_recent(new FileGallery(tr("Recent files")))
    , m_samples(new FileGallery(tr("Samples")))
    , m_noneYet(new QLabel(tr("What you open appears here. Files can be dropped anywhere in the window.")))
{
    setObjectName(QStringLiteral("startPage"));
    setAccessibleName(tr("Start page"));
    setAutoFillBackground(true);
    m_noneYet->setWordWrap(true);
    auto* content = new QWidget;
    content->setLayout(m_parts);
    m_parts->setContentsMargins(Margin, Margin, Margin, Margin);
    m_parts->setSpacing(2 * Margin);
    m_parts->addWidget(makeActs(), 1);
    m_parts->addWidget(makeFiles(), 4);
    auto* scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    for (FileGallery* gallery : {m_recent, m_samples})
        connect(gallery, &FileGallery::chosen, this, &StartPage::chosen);
    addSamples();
    view.installEventFilter(this);
    hide();
}

QWidget* StartPage::makeActs()
{
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeHeading(tr("Begin"), 3));
    m_acts->setSpacing(Gap);
    column->addLayout(m_acts);
    column->addStretch();
    auto* closeButton = new QPushButton(tr("&Look Around in the Welcome Scene"));
    closeButton->setObjectName(QStringLiteral("closeStart"));
    connect(closeButton, &QPushButton::clicked, this, &StartPage::close);
    column->addWidget(closeButton);
    return side;
}

QWidget* StartPage::makeFiles()
{
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeHeading(tr("Recent files"), 3));
    column->addWidget(m_noneYet);
    column->addWidget(m_recent);
    column->addSpacing(Margin);
    column->addWidget(makeHeading(tr("Samples"), 3));
    column->addWidget(m_samples);
    column->addStretch();
    return side;
}

QStringList StartPage::samples()
{
    QStringList files;
    for (const Sample& sample : Samples)
        files += sharedFile(QLatin1String(sample.file));
    files.removeAll({});
    return files;
}

void StartPage::addSamples()
{
    for (const Sample& sample : Samples) {
        const QString file = sharedFile(QLatin1String(sample.file));
        const QString picture =
            sharedFile(QStringLiteral("pictures/%1.png").arg(QFileInfo(file).completeBaseName()));
        if (!file.isEmpty())
            m_samples->add(file, tr(sample.title), QImage(picture));
    }
}

void StartPage::addAct(QAction& act)
{
    auto* button = new QPushButton(act.icon(), act.text());
    button->setToolTip(act.toolTip());
    button->setEnabled(act.isEnabled());
    connect(&act, &QAction::changed, button, [button, &act] { button->setEnabled(act.isEnabled()); });
    connect(button, &QPushButton::clicked, &act, &QAction::trigger);
    m_acts->addWidget(button);
}

void StartPage::setRecent(const QStringList& files)
{
    const FilePictures pictures;
    m_recent->clear();
    for (const QString& file : files)
        m_recent->add(file, QFileInfo(file).fileName(), pictures.find(file));
    m_recent->setVisible(!files.isEmpty());
    m_noneYet->setVisible(files.isEmpty());
}

void StartPage::open()
{
    cover();
    show();
    if (m_acts->count() > 0)
        m_acts->itemAt(0)->widget()->setFocus();
}

void StartPage::close()
{
    hide();
    m_view.setFocus();
}

void StartPage::cover()
{
    setGeometry(m_view.rect());
    // Where the files would be out of sight at the right, they go below.
    const int acts = m_parts->itemAt(0)->minimumSize().width();
    const bool fits = width() >= acts + m_samples->gridSize().width() + 6 * Margin;
    m_parts->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    raise();
}

bool StartPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_view && event->type() == QEvent::Resize)
        cover();
    return QFrame::eventFilter(watched, event);
}

void StartPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QFrame::keyPressEvent(event);
}

} // namespace scopix
