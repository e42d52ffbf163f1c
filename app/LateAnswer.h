#pragma once

#include <QObject>
#include <QVariant>

#include <functional>
#include <vector>

/// A question whose answer is read from files, which may take long: answered by a worker, so that
/// the main thread goes on. Who asks while it is being answered shares the next answer, which is
/// read from what is there then. A quit doesn't wait for it. Main thread.
class LateAnswer : public QObject
{
    Q_OBJECT
public:
    using Ask = std::function<QVariant()>;
    using Tell = std::function<void(const QVariant &)>;

    /// `question` gives, on the main thread, what a worker is then to ask, one at a time.
    explicit LateAnswer(std::function<Ask()> question)
        : m_question(std::move(question))
    {
    }

    /// `tell` is called once, on any thread and after this call.
    void tell(Tell tell);

private:
    void begin();
    void finish();

    const std::function<Ask()> m_question;
    bool m_isAsked = false;
    std::vector<Tell> m_waiting; // for the next answer
};
