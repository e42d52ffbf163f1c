#pragma once

#include "platform/people/AddressBook.h"

#include <chrono>

/// The persons of every enabled book of the desktop's address book service, book by book; a UID may
/// occur in several. Returns after the limit at the latest, with what has arrived by then. A
/// service that is missing, too slow or gone in the middle is said in the system log; a missing one
/// has nothing that could not be read. Any thread.
People evolutionPeople(std::chrono::milliseconds limit);
