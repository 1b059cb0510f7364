// Runs code of others that ends the whole program where its assertions fail, and survives that.
#pragma once

#include <functional>

namespace scopix
{

// False when `work` called abort() on this thread. What it had in hand then is lost: it neither unwinds nor frees,
// so it should hold nothing that others wait for. Exceptions pass.
bool survivesAbort(const std::function<void()>& work);

} // namespace scopix
