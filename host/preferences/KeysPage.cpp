// SPDX-License-Identifier: MIT
#include "preferences/KeysPage.h"

#include "acts/KeyBindings.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace scopix
{

namespace
{

constexpr int ActRole = Qt::UserRole;

} // namespace

KeysPage::KeysPage(KeyBindings& keys, QWidget* parent)
    : QWidget(parent)
    , m_keys(keys)
    , m_filter(new QLineEdit)
    , m_list(new QTreeWidget)
    , m_key(new QKeySequenceEdit)
    , m_set(new QPushButton(tr("&Set")))
    , m_clear(new QPushButton(tr("C&lear")))
    , m_reset(new QPushButton(tr("As S&hipped")))
    , m_note(new QLabel)
{
    auto* preset = new QComboBox;
    preset->setObjectName(QStringLiteral("keyPreset"));
    preset->setAccessibleName(tr("All keys as in"));
    preset->addItem(tr("All keys as in…"));
    preset->addItems(KeyBindings::presets());
    m_filter->setPlaceholderText(tr("Find an act or a key"));
    m_filter->setAccessibleName(tr("Find an act or a key"));
    m_filter->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("keyList"));
    m_list->setAccessibleName(tr("Acts and their keys"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({tr("Act"), tr("Key")});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_key->setAccessibleName(tr("Another key"));
    m_key->setObjectName(QStringLiteral("newKey"));
    m_note->setWordWrap(true);
    auto* top = new QHBoxLayout;
    top->addWidget(m_filter, 1);
    top->addWidget(preset);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_key, 1);
    for (QPushButton* button : {m_set, m_clear, m_reset})
        bottom->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_list, 1);
    column->addLayout(bottom);
    column->addWidget(m_note);
    connect(m_filter, &QLineEdit::textChanged, this, &KeysPage::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &KeysPage::choose);
    connect(m_key, &QKeySequenceEdit::keySequenceChanged, this, &KeysPage::choose);
    connect(m_set, &QPushButton::clicked, this, &KeysPage::apply);
    connect(m_clear, &QPushButton::clicked, this, [this] { report(m_keys.set(*current(), {})); });
    connect(m_reset, &QPushButton::clicked, this, [this] { report(m_keys.reset(*current())); });
    connect(preset, qOverload<int>(&QComboBox::activated), this, [this, preset](int index) {
        if (index > 0)
            report(m_keys.usePreset(preset->itemText(index)));
        preset->setCurrentIndex(0);
    });
    fill();
}

void KeysPage::fill()
{
    for (const MenuAct& act : m_keys.acts()) {
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(0, act.place + QStringLiteral(" ▸ ") + act.text);
        item->setData(0, ActRole, QVariant::fromValue<QObject*>(act.action));
    }
    showKeys();
    m_list->setCurrentItem(m_list->topLevelItem(0));
}

QAction* KeysPage::current() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item ? static_cast<QAction*>(item->data(0, ActRole).value<QObject*>()) : nullptr;
}

void KeysPage::showKeys()
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = m_list->topLevelItem(row);
        const auto* act = static_cast<QAction*>(item->data(0, ActRole).value<QObject*>());
        item->setText(1, QKeySequence::listToString(act->shortcuts(), QKeySequence::NativeText));
        QFont font = m_list->font();
        font.setBold(!m_keys.isShipped(*act));
        item->setFont(1, font);
    }
}

void KeysPage::choose()
{
    const QAction* act = current();
    const QKeySequence key = m_key->keySequence();
    m_set->setEnabled(act && !key.isEmpty());
    m_clear->setEnabled(act && !act->shortcut().isEmpty());
    m_reset->setEnabled(act && !m_keys.isShipped(*act));
    const QAction* rival = act ? m_keys.rival(*act, key) : nullptr;
    m_note->setText(rival
                        ? tr("“%1” has this key, and loses it when you set it.").arg(plainText(rival->text()))
                        : QString());
}

void KeysPage::apply()
{
    const QString problem = m_keys.set(*current(), m_key->keySequence());
    m_key->clear();
    report(problem);
}

void KeysPage::report(const QString& problem)
{
    showKeys();
    choose();
    if (!problem.isEmpty())
        emit failed(problem);
}

void KeysPage::filter(const QString& text)
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = m_list->topLevelItem(row);
        item->setHidden(!item->text(0).contains(text, Qt::CaseInsensitive) &&
                        !item->text(1).contains(text, Qt::CaseInsensitive));
    }
}

} // namespace scopix
