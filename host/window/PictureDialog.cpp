// SPDX-License-Identifier: MIT
#include "window/PictureDialog.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

namespace scopix
{

namespace
{

constexpr int UsualCount = 36;

} // namespace

PictureDialog::PictureDialog(const QSize& viewSize, bool isTurntable, QWidget* parent)
    : QDialog(parent)
    , m_isTurntable(isTurntable)
{
    setObjectName(QStringLiteral("pictureDialog"));
    setWindowTitle(isTurntable ? tr("Save Turntable") : tr("Save Picture"));
    const SettingsFile settings(UserSettings::windowFile());
    const QSize size = settings.value(QStringLiteral("pictureSize")).toSize();
    const QSize offered = size.isEmpty() ? viewSize : size;
    const int count = settings.value(QStringLiteral("pictureCount")).toInt();
    m_width = addNumber("pictureWidth", PictureOrder::LongestSide, offered.width());
    m_height = addNumber("pictureHeight", PictureOrder::LongestSide, offered.height());
    m_count = addNumber("pictureCount", PictureOrder::MostPictures, count > 1 ? count : UsualCount);
    m_count->setMinimum(2);
    m_count->setVisible(isTurntable);
    m_transparent = new QCheckBox(tr("&Transparent ground"), this);
    m_transparent->setObjectName(QStringLiteral("pictureTransparent"));
    m_transparent->setChecked(settings.value(QStringLiteral("pictureTransparent")).toBool());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Save…"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Width in pixels:"), m_width);
    form->addRow(tr("&Height in pixels:"), m_height);
    if (isTurntable)
        form->addRow(tr("&Pictures of one turn:"), m_count);
    form->addRow(m_transparent);
    form->addRow(buttons);
    m_width->selectAll();
}

QSpinBox* PictureDialog::addNumber(const char* name, int most, int value)
{
    auto* number = new QSpinBox(this);
    number->setObjectName(QLatin1String(name));
    number->setRange(1, most);
    number->setValue(value);
    return number;
}

PictureOrder PictureDialog::getOrder() const
{
    PictureOrder order;
    order.size = QSize(m_width->value(), m_height->value());
    order.isTransparent = m_transparent->isChecked();
    order.count = m_isTurntable ? m_count->value() : 1;
    return order;
}

void PictureDialog::accept()
{
    const PictureOrder order = getOrder();
    const QString problem = order.findSizeProblem();
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), problem);
        return;
    }
    // That they are not remembered is no reason not to go on.
    SettingsFile(UserSettings::windowFile()).change([&](QSettings& settings) {
        settings.setValue(QStringLiteral("pictureSize"), order.size);
        settings.setValue(QStringLiteral("pictureTransparent"), order.isTransparent);
        if (m_isTurntable)
            settings.setValue(QStringLiteral("pictureCount"), order.count);
    });
    QDialog::accept();
}

} // namespace scopix
