// Takes over the handlers of the six scene-graph error classes, and gives them back.
#pragma once

#include <xsg/errors/SoErrorHandler.h>

#include <array>

class SavedErrorHandlers
{
public:
    // Saves what is there, then installs the callback on all six.
    SavedErrorHandlers(SoErrorCB* callback, void* data);
    SavedErrorHandlers(const SavedErrorHandlers&) = delete;
    SavedErrorHandlers& operator=(const SavedErrorHandlers&) = delete;
    // Puts back what was saved; returns when the callback runs on no other thread any more.
    ~SavedErrorHandlers();

private:
    struct Handler {
        SoErrorCB* callback;
        void* data;
    };
    std::array<Handler, 6> m_saved;
};
