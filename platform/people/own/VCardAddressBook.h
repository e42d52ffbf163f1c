#pragma once

#include "platform/people/AddressBook.h"

#include <QString>

/// The persons of all "*.vcf" files in the folder and the folders in it, in byte order of paths and
/// in each file's order; names with a leading dot are passed over. A UID may occur in several. A
/// missing folder holds nobody. A file that can't be read, that is larger than 64 MiB, that holds
/// no card or that is cut off is named in the system log. Any thread.
People vCardPeople(const QString &folder);
