#pragma once

/// A process that quits waits for this to go, as for a worker that is started so: for a while in
/// which a worker that is otherwise left has something that it must remove. Any thread.
class AwaitedAtQuit
{
public:
    AwaitedAtQuit();
    ~AwaitedAtQuit();
    AwaitedAtQuit(const AwaitedAtQuit &) = delete;
    AwaitedAtQuit &operator=(const AwaitedAtQuit &) = delete;
};
