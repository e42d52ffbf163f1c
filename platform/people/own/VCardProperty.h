#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// One property of a card as it is written, "NAME;PARAMETERS:VALUE" without line ends, in bytes of
/// an ASCII-like encoding. Pure; any thread.
namespace VCardProperty {

/// Whether a line can be a property's first one: a name, then parameters or the value.
bool isBegunBy(QByteArrayView line);

bool isNamed(QByteArrayView property, QByteArrayView name);

/// Whether the value is in quoted-printable.
bool isQuotedPrintable(QByteArrayView property);

/// Whether libebook can take the property: it appends each of its parameters and values to a list
/// whose end it looks for every time.
bool isReasonable(QByteArrayView property);

/// The property with texts that libebook reads right. One that isn't in UTF-8 is in what its
/// CHARSET parameter says, else (or where nobody knows that charset) in Latin-1.
QByteArray inUtf8(const QByteArray &property);

} // namespace VCardProperty
