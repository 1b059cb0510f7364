// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

namespace scopix
{

/// The ends of the program that ask nobody. One exists at a time; GUI thread only.
///
/// - SIGTERM, SIGHUP and SIGINT: ends the event loop as if the user had quit, without a question. A second
///   signal ends the program at once. One that the program was started with as ignored stays so.
/// - The session manager is about to end the session.
/// - The toolkit calls exit(), as it does when it has lost its display.
///
/// Each time, `keep` is called first, and is told whether widgets may still be used.
class EndOfSession : public QObject
{
public:
    enum class Widgets { Usable, Lost };
    using Keep = std::function<void(Widgets)>;

    /// Needs a QApplication.
    explicit EndOfSession(Keep keep);
    ~EndOfSession() override;

    /// The end of main(): where a signal ended the program, dies of it, so that who sent it sees that.
    static int endWith(int status);

private:
    static void keepAtExit();
    void signalled();

    Keep m_keep;
};

} // namespace scopix
