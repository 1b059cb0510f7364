// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace scopix::live
{

/// Calls into an adapter, whose exceptions end here: `failed` gets their text, which may be
/// empty, and its result is the result.
template <class Function, class Failed>
auto guarded(Function&& function, Failed&& failed) -> decltype(function())
{
    try {
        return function();
    } catch (const std::exception& error) {
        return failed(std::string(error.what()));
    } catch (...) {
        return failed(std::string());
    }
}

template <class Function>
void guarded(Function&& function)
{
    guarded(std::forward<Function>(function), [](const std::string&) {});
}

} // namespace scopix::live
