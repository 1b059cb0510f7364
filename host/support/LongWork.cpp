// SPDX-License-Identifier: MIT
#include "support/LongWork.h"

#include "support/ProgressDialog.h"

#include <QCoreApplication>

#include <utility>

namespace scopix
{

namespace
{

constexpr int PieceMs = 30; // until events are looked at again
constexpr int Steps = 1000; // of the bar

thread_local LongWork* current = nullptr;

} // namespace

LongWork::LongWork(QWidget& window, const QString& what)
    : m_window(window)
    , m_what(what)
{
    m_sinceBegin.start();
    m_sinceLook.start();
    current = this;
}

LongWork::~LongWork()
{
    current = nullptr;
    if (m_dialog)
        m_dialog->end();
    delete m_dialog;
}

bool LongWork::run(QWidget* window, const QString& what, const std::function<void()>& work)
{
    if (!window || current) {
        work();
        return true;
    }
    const LongWork self(*window, what);
    try {
        work();
    } catch (const Cancelled&) {
        return false;
    }
    return true;
}

void LongWork::goOn(double part)
{
    if (current && current->m_dialog && current->m_dialog->wasCanceled())
        throw Cancelled();
    if (current && current->m_sinceLook.hasExpired(PieceMs) &&
        current->m_sinceBegin.hasExpired(ProgressDialog::PatienceMs))
        current->look(part);
}

void LongWork::look(double part)
{
    if (!m_dialog)
        openDialog();
    if (part >= 0) {
        m_dialog->setMaximum(Steps);
        m_dialog->setValue(qBound(0, int(part * Steps), Steps - 1));
    }
    // What runs from the event loop is no part of this work.
    LongWork* const self = std::exchange(current, nullptr);
    QCoreApplication::processEvents();
    current = self;
    m_sinceLook.restart();
    if (!m_dialog || m_dialog->wasCanceled())
        throw Cancelled();
}

void LongWork::openDialog()
{
    m_dialog = new ProgressDialog(m_what, QStringLiteral("workProgress"), m_window);
    m_dialog->show();
}

} // namespace scopix
