#pragma once

#include <QString>
#include <QStringList>

/// The format with its "%@" places replaced by the values, in order; what a value itself holds is
/// left alone, and places without a value stay.
QString filled(const QString &format, const QStringList &values);
