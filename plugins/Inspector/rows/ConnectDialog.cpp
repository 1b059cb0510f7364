// SPDX-License-Identifier: MIT
#include "rows/ConnectDialog.h"

#include "fields/FieldText.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <unordered_set>

namespace inspector
{

namespace
{

constexpr std::size_t MostNodes = 20000;
constexpr int MostShown = 300;

} // namespace

ConnectDialog::ConnectDialog(const SoField& follower, QWidget* parent)
    : QDialog(parent)
    , m_filter(new QLineEdit)
    , m_list(new QListWidget)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Connect %1").arg(SpxText::toQString(follower.getName())));
    setObjectName(QStringLiteral("connectDialog"));
    m_filter->setPlaceholderText(tr("Node, field or type"));
    m_filter->setAccessibleName(tr("Filter"));
    m_list->setAccessibleName(tr("Fields that it can follow"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list);
    layout->addWidget(m_buttons);
    connect(m_filter, &QLineEdit::textChanged, this, &ConnectDialog::fill);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_buttons->button(QDialogButtonBox::Ok)->setEnabled(row >= 0); });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    findCandidates(follower);
    fill({});
    resize(420, 380);
}

SoField* ConnectDialog::chosen() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? m_candidates[item->data(Qt::UserRole).toUInt()].field.get() : nullptr;
}

void ConnectDialog::findCandidates(const SoField& follower)
{
    const SpxSceneServices* scene = SpxSceneServices::getInstance();
    std::vector<SoNode*> waiting;
    if (scene && scene->getSceneRoot())
        waiting.push_back(scene->getSceneRoot());
    std::unordered_set<const SoNode*> seen(waiting.begin(), waiting.end());
    while (!waiting.empty()) {
        SoNode* node = waiting.back();
        waiting.pop_back();
        addFieldsOf(*node, follower);
        const SoGroup* group = node->asGroup();
        if (!group)
            continue;
        for (auto child = group->getChildren().rbegin(); child != group->getChildren().rend(); ++child) {
            if (seen.size() < MostNodes && seen.insert(*child).second)
                waiting.push_back(*child);
        }
    }
}

void ConnectDialog::addFieldsOf(const SoFieldContainer& node, const SoField& follower)
{
    const SoFieldData* fields = node.getFieldData();
    for (int i = 0; i < fields->getNumFields(); ++i) {
        SoField* field = fields->getField(&node, i);
        if (field == &follower || !follower.canConvertFrom(*field))
            continue;
        m_candidates.push_back(
            {nodeLabel(node) + QLatin1Char('.') + SpxText::toQString(field->getName()) +
                 QStringLiteral("  (%1)").arg(SpxText::toQString(field->getTypeId().getName())),
             field});
    }
}

void ConnectDialog::fill(const QString& words)
{
    m_list->clear();
    for (std::size_t i = 0; i < m_candidates.size() && m_list->count() < MostShown; ++i) {
        if (!m_candidates[i].text.contains(words, Qt::CaseInsensitive))
            continue;
        auto* item = new QListWidgetItem(m_candidates[i].text, m_list);
        item->setData(Qt::UserRole, uint(i));
    }
    m_list->setCurrentRow(m_list->count() > 0 ? 0 : -1);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_list->count() > 0);
}

} // namespace inspector
