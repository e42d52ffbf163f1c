#include "protocol/ServedMethods.h"

namespace {

void describe(RemoteMethod &remote, const Protocol::Method &method)
{
    remote.name = method.key();
    for (const Protocol::Argument &argument : method.in) {
        if (argument.type.isEmpty())
            break;
        remote.in.append(argument.type.toString());
        remote.inNames.append(argument.name.toString());
    }
    remote.out = method.out.toString();
    remote.oneway = method.mode == Protocol::Mode::Oneway;
}

} // namespace

void ServedMethods::bind(const Protocol::Method &method, Answer answer)
{
    m_bound[&method].call = std::move(answer);
}

void ServedMethods::bindLate(const Protocol::Method &method, decltype(RemoteMethod::begin) begin)
{
    m_bound[&method].begin = std::move(begin);
}

std::vector<RemoteMethod> ServedMethods::take(std::span<const Protocol::Method *const> table)
{
    std::vector<RemoteMethod> methods;
    for (const Protocol::Method *method : table) {
        auto bound = m_bound.extract(method);
        if (bound.empty())
            qFatal("the protocol's method %ls is bound to nothing", qUtf16Printable(method->key()));
        describe(bound.mapped(), *method);
        methods.push_back(std::move(bound.mapped()));
    }
    if (!m_bound.empty())
        qFatal("%ls is none of the protocol's methods",
               qUtf16Printable(m_bound.begin()->first->key()));
    return methods;
}
