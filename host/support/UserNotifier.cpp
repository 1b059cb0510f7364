// SPDX-License-Identifier: MIT
#include "support/UserNotifier.h"

#include "support/PostedErrors.h"
#include "support/Printable.h"
#include "support/StandardError.h"

#include <xsg/errors/SoDebugError.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocumentFragment>

namespace scopix
{

namespace
{

QString plain(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString textOf(const QMessageBox& box)
{
    QStringList parts{plain(box.text())};
    if (!box.informativeText().isEmpty())
        parts += plain(box.informativeText());
    return parts.join(QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

// The button that closes the box and changes nothing.
QAbstractButton* wayOut(const QMessageBox& box)
{
    if (box.escapeButton())
        return box.escapeButton();
    const QList<QAbstractButton*> buttons = box.buttons();
    for (const auto role : {QMessageBox::RejectRole, QMessageBox::NoRole}) {
        for (QAbstractButton* button : buttons) {
            if (box.buttonRole(button) == role)
                return button;
        }
    }
    return buttons.size() == 1 ? buttons.first() : box.defaultButton();
}

void dismiss(QMessageBox& box)
{
    if (QAbstractButton* button = wayOut(box))
        button->click();
    else
        box.done(-1);
}

} // namespace

UserNotifier::UserNotifier(QObject* parent)
    : QObject(parent)
{
}

UserNotifier::~UserNotifier()
{
    delete m_box;
}

void UserNotifier::setAttended(bool attended)
{
    if (m_attended == attended)
        return;
    m_attended = attended;
    if (attended)
        qApp->removeEventFilter(this);
    else
        qApp->installEventFilter(this);
}

void UserNotifier::setPrintsPostedErrors(bool on)
{
    m_postedErrors.reset();
    if (on)
        m_postedErrors = std::make_unique<PostedErrors>();
}

void UserNotifier::error(const QString& sentence)
{
    const QString shown = printable(sentence);
    ++m_errorCount;
    print(shown);
    emit told(shown);
    if (m_attended)
        showInBox(shown);
}

void UserNotifier::info(const QString& sentence)
{
    emit told(printable(sentence));
}

void UserNotifier::note(const QString& about, const QString& sentence)
{
    SoDebugError::postWarning(printable(about).toUtf8().constData(), printable(sentence).toStdString());
}

// The scene graph may just have posted the same.
void UserNotifier::print(const QString& sentence)
{
    if (!takeLastPosted(sentence))
        printOnStandardError(sentence);
}

// One box collects all errors until the user closes it.
void UserNotifier::showInBox(const QString& sentence)
{
    if (m_box && m_box->isVisible()) {
        m_box->setText(m_box->text() + QLatin1Char('\n') + sentence);
        return;
    }
    delete m_box;
    m_box = new QMessageBox(QMessageBox::Warning, QApplication::applicationDisplayName(), sentence,
                            QMessageBox::Ok, m_window);
    m_box->setTextFormat(Qt::PlainText);
    m_box->open();
}

bool UserNotifier::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (auto* box = qobject_cast<QMessageBox*>(watched)) {
        print(printable(textOf(*box)));
        QMetaObject::invokeMethod(
            box, [box] { dismiss(*box); }, Qt::QueuedConnection);
    }
    return false;
}

} // namespace scopix
