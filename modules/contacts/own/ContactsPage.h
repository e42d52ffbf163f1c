#pragma once

#include "platform/people/AddressBook.h"

#include <QString>

/// The one page that shows all contacts: an index of names and phones, then a card for each. The
/// PSP's browser gets the values as they stand, markup in them included.
class ContactsPage
{
public:
    /// The name that a person goes by; none for one who can't be shown.
    static std::optional<QString> displayName(const Person &person);

    /// Appends a person. The hash is the anchor's name; `picture` is the picture's file name beside
    /// the page, empty where there is none.
    void add(const Person &person, const QString &displayName, const QString &hash,
             const QString &picture);

    QString html() const;

private:
    QString m_index;
    QString m_cards;
};
