// SPDX-License-Identifier: MIT
#include "support/LongWork.h"

#include "support/OwnEvents.h"
#include "support/ProgressDialog.h"

#include <xsg/nodes/base/SoNode.h>

#include <QCoreApplication>

#include <optional>
#include <utility>

namespace scopix
{

namespace
{

constexpr int Steps = 1000; // of the bar

int patienceMs = ProgressDialog::PatienceMs;
int pieceMs = 30; // until events are looked at again

thread_local LongWork* current = nullptr;

struct SceneChanged {
};

/// Gives a variable another value for a while.
template <class Value>
class Meanwhile
{
public:
    Meanwhile(Value& variable, Value value)
        : m_variable(variable)
        , m_before(std::exchange(variable, value))
    {
    }
    ~Meanwhile() { m_variable = m_before; }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

private:
    Value& m_variable;
    const Value m_before;
};

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

bool LongWork::runStill(QWidget* window, const QString& what, SoNode* scene,
                        const std::function<void()>& work)
{
    return run(window, what, [&] {
        if (!current)
            return work();
        const SoRef<SoNode> kept(scene);
        try {
            const Meanwhile<const SoNode*> still(current->m_still, scene);
            return work();
        } catch (const SceneChanged&) { // below
        }
        const Meanwhile<LongWork*> nothingServed(current, nullptr);
        work();
    });
}

void LongWork::setPatience(int dialogMs, int eachMs)
{
    patienceMs = dialogMs;
    pieceMs = eachMs;
}

void LongWork::goOn(double part)
{
    if (current && current->m_dialog && current->m_dialog->wasCanceled())
        throw Cancelled();
    if (current && current->m_sinceLook.hasExpired(pieceMs) && current->m_sinceBegin.hasExpired(patienceMs))
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
    const std::uint32_t changes = m_still ? m_still->getChangeCount() : 0;
    serve();
    m_sinceLook.restart();
    if (m_still && m_still->getChangeCount() != changes)
        throw SceneChanged();
    if (!m_dialog || m_dialog->wasCanceled())
        throw Cancelled();
}

// What runs from the event loop is no part of this work.
void LongWork::serve()
{
    const Meanwhile<LongWork*> outside(current, nullptr);
    std::optional<OwnEvents> own;
    if (m_still)
        own.emplace(*m_dialog);
    QCoreApplication::processEvents();
}

void LongWork::openDialog()
{
    m_dialog = new ProgressDialog(m_what, QStringLiteral("workProgress"), m_window);
    if (m_still)
        m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->show();
}

} // namespace scopix
