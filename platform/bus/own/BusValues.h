#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// Values as they travel on the bus and as the rest of the system sees them. For this folder's own
/// use: it is the only one that knows the bus's types.
namespace BusValues {

/// A value from the bus in plain Qt types: dictionaries as QVariantMap (numbers as keys in
/// decimal), lists of strings as QStringList, other lists and structures as QVariantList, paths and
/// signatures as QString, variants unwrapped, at every depth. A descriptor that was sent along
/// becomes an invalid variant.
QVariant toPlain(const QVariant &value);
QVariantList toPlain(const QVariantList &values);

/// Whether RemoteMethod names the signature.
bool isType(const QString &signature);

/// The value in the exact type of a signature that RemoteMethod names, ready to be sent. A value
/// that can't be converted becomes that type's empty value; in a dictionary or list it is left out.
QVariant toBus(const QVariant &value, const QString &signature);

/// The value in the type that its own Qt type stands for.
QVariant toBus(const QVariant &value);
QVariantList toBus(const QVariantList &values);

} // namespace BusValues
