#include "app/LateAnswer.h"

#include "platform/core/MainThread.h"

#include <utility>

void LateAnswer::tell(Tell tell)
{
    m_waiting.push_back(std::move(tell));
    if (!m_isAsked)
        begin();
}

void LateAnswer::begin()
{
    m_isAsked = true;
    const auto work = [this, ask = m_question(), told = std::exchange(m_waiting, {})] {
        const QVariant answer = ask();
        for (const Tell &tell : told)
            tell(answer);
        performOnMainThread(
            this, [this] { finish(); }, CallMode::DontWait);
    };
    if (!Workers::start(work, Workers::AtQuit::Leave))
        work();
}

void LateAnswer::finish()
{
    m_isAsked = false;
    if (!m_waiting.empty())
        begin();
}
