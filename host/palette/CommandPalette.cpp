// SPDX-License-Identifier: MIT
#include "palette/CommandPalette.h"

#include "palette/PaletteDelegate.h"
#include "palette/PaletteModel.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTimer>
#include <QVBoxLayout>

namespace scopix
{

namespace
{

constexpr int WidthInCharacters = 80;
constexpr int HeightInLines = 24;
constexpr int Top = 40;

} // namespace

CommandPalette::CommandPalette(QWidget& window)
    : QDialog(&window, Qt::Dialog | Qt::FramelessWindowHint)
    , m_window(window)
    , m_model(new PaletteModel(this))
    , m_line(new QLineEdit)
    , m_list(new QListView)
    , m_nothing(new QLabel(tr("Nothing is called so.")))
{
    setObjectName(QStringLiteral("palette"));
    setWindowTitle(tr("Find Anything"));
    m_line->setObjectName(QStringLiteral("paletteLine"));
    m_line->setPlaceholderText(tr("An act, node, field or setting"));
    m_line->setAccessibleName(tr("An act, node, field or setting"));
    m_line->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("paletteList"));
    m_list->setAccessibleName(tr("What was found"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new PaletteDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFocusProxy(m_line);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->hide();
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_line);
    column->addWidget(m_list, 1);
    column->addWidget(m_nothing, 1);
    connect(m_line, &QLineEdit::textChanged, this, &CommandPalette::type);
    connect(m_line, &QLineEdit::returnPressed, this, &CommandPalette::run);
    connect(m_list, &QListView::clicked, this, &CommandPalette::run);
    connect(m_model, &QAbstractItemModel::modelReset, this, &CommandPalette::showFirst);
}

CommandPalette::~CommandPalette() = default;

void CommandPalette::addSource(PaletteSource source)
{
    m_sources.push_back(std::move(source));
}

void CommandPalette::open()
{
    std::vector<PaletteEntry> entries;
    for (const PaletteSource& source : m_sources)
        for (PaletteEntry& entry : source())
            entries.push_back(std::move(entry));
    m_line->clear();
    m_model->setTyped({});
    m_model->setEntries(std::move(entries));
    place();
    show();
    activateWindow();
    m_line->setFocus();
}

void CommandPalette::setFound(std::vector<PaletteEntry> found)
{
    m_model->setFound(std::move(found));
}

void CommandPalette::place()
{
    const QWidget& window = overWindow();
    const QSize wanted(fontMetrics().averageCharWidth() * WidthInCharacters,
                       fontMetrics().lineSpacing() * HeightInLines);
    resize(wanted.boundedTo(window.size()));
    const QPoint corner = window.mapToGlobal({(window.width() - width()) / 2, 0});
    const int room = std::max(0, window.height() - height());
    move(corner + QPoint(0, std::min(Top, room)));
}

void CommandPalette::type(const QString& text)
{
    m_model->setFound({});
    m_model->setTyped(text);
    emit typed(text);
}

void CommandPalette::showFirst()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_list->setVisible(!isEmpty);
    m_nothing->setVisible(isEmpty);
    m_list->setCurrentIndex(m_model->index(0));
}

// From the event loop, when the palette has gone: what is done may open a dialog, or ask for the focus.
void CommandPalette::run()
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid() || !m_model->entry(current.row()).isEnabled)
        return;
    const std::function<void()> act = m_model->entry(current.row()).run;
    hide();
    overWindow().activateWindow();
    QTimer::singleShot(0, &m_window, act);
}

bool CommandPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
            QCoreApplication::sendEvent(m_list->viewport()->parentWidget(), event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

// What was found may hold nodes of the scene.
void CommandPalette::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    m_line->clear();
    m_model->setEntries({});
}

void CommandPalette::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible())
        hide();
}

} // namespace scopix
