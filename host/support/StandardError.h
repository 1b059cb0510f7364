// SPDX-License-Identifier: MIT
#pragma once

class QString;
class SoError;

namespace scopix
{

/// One line, after the program's name. From any thread.
void printOnStandardError(const QString& text);

/// The same of what the scene graph has posted, in the user's language. From any thread.
void printPosted(const SoError& error);
/// Whether this was the last that was printed so: asked once, by whoever would say it a second time.
bool takeLastPosted(const QString& text);

} // namespace scopix
