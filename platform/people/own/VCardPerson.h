#pragma once

#include "platform/people/AddressBook.h"

#include <optional>

typedef struct _EVCard EVCard; // libebook's own name; its headers stay in the .cpp files

/// The person that a card describes, with an empty UID where the card has none; nothing for a card
/// of a group. For the .cpp files of this folder, on the thread that owns the card.
std::optional<Person> personOf(EVCard *card);
