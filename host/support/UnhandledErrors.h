// SPDX-License-Identifier: MIT
#pragma once

namespace scopix
{

/// While one lives, what the scene graph posts and nobody else handles is printed on standard error as the
/// host's own messages are, in the user's language, in place of the library's lines in English. Handlers that
/// an application has set stay its own. GUI thread only.
class UnhandledErrors
{
public:
    UnhandledErrors();
    UnhandledErrors(const UnhandledErrors&) = delete;
    UnhandledErrors& operator=(const UnhandledErrors&) = delete;
    ~UnhandledErrors();

    /// While one lives, somebody else prints all that is posted.
    class Held
    {
    public:
        Held();
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;
        ~Held();
    };
};

} // namespace scopix
