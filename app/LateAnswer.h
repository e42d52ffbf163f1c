#pragma once

#include <QObject>
#include <QVariant>

#include <functional>
#include <vector>

/// A question whose answer is read from files, which may take long: asked on a worker, so that the
/// main thread goes on. Who asks while it is being answered shares the next answer, which is read
/// from what is there then. A quit doesn't wait for it. Main thread.
class LateAnswer : public QObject
{
    Q_OBJECT
public:
    using Ask = std::function<QVariant()>;
    using Tell = std::function<void(const QVariant &)>;

    /// `ask` is called on any thread, by one at a time.
    explicit LateAnswer(Ask ask)
        : m_ask(std::move(ask))
    {
    }

    /// `tell` is called once, on the main thread and after this call.
    void tell(Tell tell);

private:
    void begin();
    void finish(const QVariant &answer);

    const Ask m_ask;
    std::vector<Tell> m_told;    // by the answer that is being read; empty: none is
    std::vector<Tell> m_waiting; // for the next one
};
