// SPDX-License-Identifier: MIT
#include "commands/PostedNotes.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

namespace scopix
{

namespace
{

template <class Act>
void forEachClass(Act act)
{
    act(&SoError::setHandlerCallback, &SoError::getHandlerCallback, &SoError::getHandlerData);
    act(&SoReadError::setHandlerCallback, &SoReadError::getHandlerCallback, &SoReadError::getHandlerData);
    act(&SoGLError::setHandlerCallback, &SoGLError::getHandlerCallback, &SoGLError::getHandlerData);
    act(&SoMemoryError::setHandlerCallback, &SoMemoryError::getHandlerCallback,
        &SoMemoryError::getHandlerData);
    act(&SoDebugError::setHandlerCallback, &SoDebugError::getHandlerCallback, &SoDebugError::getHandlerData);
}

} // namespace

PostedNotes::PostedNotes(std::vector<std::string>& notes)
    : m_notes(notes)
{
    forEachClass([this](auto set, auto callback, auto data) {
        m_before.push_back({callback(), data()});
        set(keep, this);
    });
}

PostedNotes::~PostedNotes()
{
    std::size_t at = 0;
    forEachClass([&](auto set, auto, auto) {
        set(m_before[at].callback, m_before[at].data);
        ++at;
    });
}

void PostedNotes::keep(const SoError* error, void* self)
{
    auto* notes = static_cast<PostedNotes*>(self);
    const std::lock_guard lock(notes->m_mutex);
    notes->m_notes.push_back(error->getDebugString().str());
}

} // namespace scopix
