#pragma once

#include "fuzz/Home.h"

#include <gio/gio.h>

#include <functional>
#include <vector>

/// What can be called at an object of this process.
struct CalledMethod
{
    const char *path;
    const char *interface;
    QByteArray name;
    QByteArray in;  ///< signatures, one behind the other
    QByteArray out; ///< the same
};

/// This process's session bus, played by the process itself: calls reach QtDBus as bytes on its
/// socket. One per process, and made before anything asks for the session bus. Main thread.
class BusCalls
{
public:
    BusCalls();

    /// Makes the calls that the lines are, as "syncNow ({'title': <5>},)", with the arguments in
    /// GVariant's text form: any type can be written in it. Those that fit the method's types have
    /// to be answered with its type of answer, and all others refused. Lines that are none of that
    /// are passed over, but an empty one calls `rest`. ">" before a name: in the other byte order;
    /// "!": without an answer.
    void make(const QByteArray &lines, const std::vector<CalledMethod> &methods,
              const std::function<void()> &rest = {});

private:
    void makeOne(const QByteArray &line, const std::vector<CalledMethod> &methods);
    GDBusMessage *answerTo(GDBusMessage *call);
    GDBusConnection *m_peer = nullptr;
};
