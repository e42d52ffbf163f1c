#include "app/LateAnswer.h"

#include "platform/core/MainThread.h"

#include <utility>

void LateAnswer::tell(Tell tell)
{
    m_waiting.push_back(std::move(tell));
    if (m_told.empty())
        begin();
}

void LateAnswer::begin()
{
    m_told = std::exchange(m_waiting, {});
    const auto work = [this] {
        performOnMainThread(
            this, [this, answer = m_ask()] { finish(answer); }, CallMode::DontWait);
    };
    if (!Workers::start(work, Workers::AtQuit::Leave))
        work();
}

void LateAnswer::finish(const QVariant &answer)
{
    for (const Tell &tell : std::exchange(m_told, {}))
        tell(answer);
    if (!m_waiting.empty())
        begin();
}
