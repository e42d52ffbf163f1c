#pragma once

#include "platform/files/FileError.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

/// What kind of phone, address and so on an entry of a card is. Phones have all of these,
/// everything else only the first three.
enum class ContactLabel { Other, Work, Home, Mobile, Main, HomeFax, WorkFax, Pager };

/// The services of instant messaging, in the order of Person::instantMessaging.
enum class MessagingService { Aim, Icq, Jabber, Msn, Yahoo };
inline constexpr size_t messagingServices = 5;

template <typename Value>
struct Labelled
{
    ContactLabel label = ContactLabel::Other;
    Value value;
};

/// Each part is empty where the card doesn't have it.
struct PostalAddress
{
    QString street;
    QString city;
    QString state;
    QString zip;
    QString country;
};

/// A person's picture: its bytes, in any image format, or the local file that holds them.
struct PersonImage
{
    QByteArray bytes;
    QString file; ///< absolute; empty where the bytes are at hand

    /// The image's bytes; none where there is no picture. A file is read here: one that is missing,
    /// or larger than 64 MiB, is named in the system log and counts as no picture. Any thread.
    QByteArray data() const;
};

/// One person of the address book, as plain values. What a card doesn't have, or has empty, is
/// absent.
struct Person
{
    QString uid; ///< never empty, the same in every run
    std::optional<QString> firstName;
    std::optional<QString> lastName;
    std::optional<QString> organization;
    std::optional<QString> note;
    PersonImage image;
    std::vector<Labelled<QString>> phones;
    size_t primaryPhone = 0; ///< index into phones; 0 also where there are none
    std::vector<Labelled<QString>> emails;
    std::array<std::vector<Labelled<QString>>, messagingServices> instantMessaging;
    std::vector<Labelled<PostalAddress>> addresses;
};

struct People
{
    std::vector<Person> people; ///< in the book's order, each UID once
    /// Why somebody may be missing: a part of the book is there, and could not be read. The path is
    /// a file's, or the name of the desktop's book, empty for all of them.
    std::optional<FileError> unreadable = {};
};

/// The user's address book. Every call may come from any thread; none throws.
class AddressBook
{
public:
    virtual ~AddressBook() = default;

    /// The process's address book: the desktop's, followed by the cards of "~/.contacts", unless a
    /// test has put another in its place.
    static AddressBook &sharedAddressBook();

    /// For tests: replaces the shared address book (not owned); nullptr restores the real one.
    static void setSharedAddressBook(AddressBook *book);

    /// Everybody in the book. Read anew in every call, which takes up to ten seconds where the
    /// desktop's service hangs; what could not be read is said in the system log and left out.
    virtual People people() = 0;
};
