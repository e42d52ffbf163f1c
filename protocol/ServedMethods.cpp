#include "protocol/ServedMethods.h"

namespace {

RemoteMethod remoteMethod(const Protocol::Method &method, ServedMethods::Answer answer)
{
    RemoteMethod remote;
    remote.name = method.key();
    for (const Protocol::Argument &argument : method.in) {
        if (argument.type.isEmpty())
            break;
        remote.in.append(argument.type.toString());
        remote.inNames.append(argument.name.toString());
    }
    remote.out = method.out.toString();
    remote.oneway = method.mode == Protocol::Mode::Oneway;
    remote.call = std::move(answer);
    return remote;
}

} // namespace

void ServedMethods::bind(const Protocol::Method &method, Answer answer)
{
    m_answers[&method] = std::move(answer);
}

std::vector<RemoteMethod> ServedMethods::take(std::span<const Protocol::Method *const> table)
{
    std::vector<RemoteMethod> methods;
    for (const Protocol::Method *method : table) {
        auto bound = m_answers.extract(method);
        if (bound.empty())
            qFatal("the protocol's method %ls is bound to nothing", qUtf16Printable(method->key()));
        methods.push_back(remoteMethod(*method, std::move(bound.mapped())));
    }
    if (!m_answers.empty())
        qFatal("%ls is none of the protocol's methods",
               qUtf16Printable(m_answers.begin()->first->key()));
    return methods;
}
