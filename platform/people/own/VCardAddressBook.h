#pragma once

#include "platform/people/AddressBook.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// The persons of all "*.vcf" files in the folder and the folders in it, in byte order of paths and
/// in each file's order; names with a leading dot are passed over. A UID may occur in several. A
/// missing folder holds nobody. A file that can't be read, that is larger than 64 MiB, that holds
/// no card or that is cut off is named in the system log. Any thread.
std::vector<Person> vCardPeople(const QString &folder);

/// The cards of a file's text, each from BEGIN to END with one property a line, in UTF-8. Accepts
/// UTF-16 with a byte order mark, any line ends, lines that were folded without their blank, and
/// cards without an end, which then reach to the next card; `isCutOff` (may be null) tells whether
/// the last one lacked its end.
std::vector<QByteArray> cardsOf(const QByteArray &text, bool *isCutOff = nullptr);
