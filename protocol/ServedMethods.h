#pragma once

#include "platform/bus/NamedConnection.h"
#include "protocol/Protocol.h"

#include <map>
#include <span>
#include <vector>

/// Binds what one end does to the protocol's methods.
class ServedMethods
{
public:
    using Answer = std::function<QVariant(const RemoteRequest &)>;

    /// A question without arguments.
    template <typename Ask>
    void answer(const Protocol::Method &method, Ask ask)
    {
        bind(method, [ask](const RemoteRequest &) { return QVariant::fromValue(ask()); });
    }

    /// A method without an answer.
    template <typename Perform>
    void perform(const Protocol::Method &method, Perform perform)
    {
        bind(method, [perform](const RemoteRequest &request) {
            perform(request);
            return QVariant();
        });
    }

    void bind(const Protocol::Method &method, Answer answer);
    /// One that is answered later, see RemoteMethod::begin.
    void bindLate(const Protocol::Method &method, decltype(RemoteMethod::begin) begin);

    /// The table's methods in its order. Each must be bound and nothing else: what is forgotten
    /// ends the process here, with its name.
    std::vector<RemoteMethod> take(std::span<const Protocol::Method *const> table);

private:
    std::map<const Protocol::Method *, RemoteMethod> m_bound;
};
