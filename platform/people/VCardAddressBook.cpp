#include "platform/people/own/VCardAddressBook.h"

#include "platform/core/Log.h"
#include "platform/core/own/Glib.h"
#include "platform/files/FileManager.h"
#include "platform/people/own/VCardPerson.h"
#include "platform/people/own/VCardText.h"

#include <QCryptographicHash>

#include <libebook-contacts/libebook-contacts.h>
#include <utility>

namespace {

constexpr quint64 maximumFileBytes = 64ULL << 20;

/// A card without a UID gets one from its contents.
std::optional<Person> personIn(const QByteArray &text)
{
    const Glib::Ref card(e_vcard_new_from_string(text.constData()));
    auto person = personOf(card.get());
    if (person && person->uid.isEmpty())
        person->uid =
            QStringLiteral("card-") +
            QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex());
    return person;
}

void addFile(const QString &path, People &everybody)
{
    const auto text = FileManager::defaultManager().readFile(path, maximumFileBytes);
    if (!text) {
        qCWarning(lcPlatform).noquote()
            << "The contacts file can't be read, or is larger than 64 MiB:" << path;
        everybody.unreadable = text.error();
        return;
    }
    const auto [cards, isCutOff] = VCardText::cardsOf(*text);
    if (cards.empty())
        qCWarning(lcPlatform).noquote() << "The contacts file holds no card:" << path;
    else if (isCutOff)
        qCWarning(lcPlatform).noquote() << "The last card of the contacts file is cut off:" << path;
    if (cards.empty() || isCutOff)
        everybody.unreadable = FileError{FileError::Operation::Parse, path, 0,
                                         QStringLiteral("a card is missing or cut off")};
    for (const QByteArray &card : cards) {
        if (auto person = personIn(card))
            everybody.people.push_back(std::move(*person));
    }
}

bool isCardFile(const FolderEntry &entry)
{
    return !entry.isFolder && entry.path.endsWith(u".vcf", Qt::CaseInsensitive) &&
           !entry.path.startsWith(u'.') && !entry.path.contains(u"/.");
}

} // namespace

People vCardPeople(const QString &folder)
{
    People everybody;
    const FileManager &files = FileManager::defaultManager();
    if (!files.exists(folder))
        return everybody;
    for (const FolderEntry &entry : files.subpaths(folder)) {
        if (isCardFile(entry))
            addFile(folder + u'/' + entry.path, everybody);
    }
    return everybody;
}
