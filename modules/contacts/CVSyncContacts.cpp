#include "modules/contacts/CVSyncContacts.h"

#include "modules/contacts/own/ContactsPage.h"
#include "platform/core/Localized.h"
#include "platform/files/OpenFile.h"
#include "platform/people/ContactPicture.h"
#include "sync/Log.h"
#include "util/Folders.h"
#include "util/QMMD5Hasher.h"
#include "util/Settings.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <tuple>

namespace {

constexpr quint64 maximumStagedBytes = 1 << 20; // of a picture; it has a few thousand

QString staged(const QString &name)
{
    return Folders::support() + u'/' + name;
}

void sayNotWritten(const FileError &error)
{
    qCWarning(lcModules).noquote().nospace() << "Can't write " << error.path << ": " << error.text;
}

/// In place: a picture that is cut off is told by its missing end, and made anew.
void writePicture(const QString &path, const QByteArray &bytes)
{
    auto file = OpenFile::forWriting(path, FileManager::Existing::Truncate);
    if (!file) {
        sayNotWritten(file.error());
        return;
    }
    const auto written = file->write(bytes.constData(), static_cast<size_t>(bytes.size()));
    const auto closed = file->close();
    if (!written || !closed)
        sayNotWritten(written ? closed.error() : written.error());
}

void stagePicture(const QByteArray &image, const QString &path, const QString &person)
{
    const QString mark = QMMD5Hasher::hashFromBytes(image);
    const auto before = files().readFile(path, maximumStagedBytes);
    if (before && ContactPicture::carriesMark(*before, mark))
        return;
    const ContactPicture::Rendered rendered = ContactPicture::render(image, mark);
    if (!rendered.problem.isEmpty())
        qCWarning(lcModules).noquote().nospace() << "The picture of the contact \"" << person
                                                 << "\" can't be shown: " << rendered.problem;
    if (!before || *before != rendered.jpeg)
        writePicture(path, rendered.jpeg);
}

void stagePage(const ContactsPage &page, const QString &path)
{
    if (const auto written = files().writeAtomically(path, page.html().toUtf8()); !written)
        sayNotWritten(written.error());
}

/// By first name, then organization; nobody's name comes first.
std::vector<Person> sorted(std::vector<Person> people)
{
    std::ranges::stable_sort(people, [](const Person &first, const Person &second) {
        return std::tie(first.firstName, first.organization) <
               std::tie(second.firstName, second.organization);
    });
    return people;
}

} // namespace

CVSyncContacts::CVSyncContacts(const QString &volume)
    : CVSyncModule(volume, saveName())
{
}

ModuleKind CVSyncContacts::kind()
{
    return {.saveName = saveName(),
            .make = [](const QString &volume) { return std::make_unique<CVSyncContacts>(volume); },
            .takesPart =
                [] {
                    return Settings::firmwareVersion() > 0;
                }};
}

QString CVSyncContacts::saveName()
{
    return QStringLiteral("Contacts");
}

People CVSyncContacts::availableIdentifiers()
{
    return AddressBook::sharedAddressBook().people();
}

QString CVSyncContacts::moduleName() const
{
    return QStringLiteral("Contacts");
}

QString CVSyncContacts::rootSyncFolder() const
{
    return pspVolume() + QStringLiteral("/Caravel/Contacts");
}

bool CVSyncContacts::shouldClearUnsyncedFiles() const
{
    return true;
}

std::vector<CVSyncItem> CVSyncContacts::itemsToSync()
{
    std::vector<CVSyncItem> items;
    ContactsPage page;
    People found = availableIdentifiers();
    if (found.unreadable)
        noteUnreadableLibrary(*found.unreadable);
    for (const Person &person : sorted(std::move(found.people))) {
        const auto name = ContactsPage::displayName(person);
        if (!name || shouldStop())
            continue;
        const QString hash = QMMD5Hasher::hashFromString(person.uid);
        QString picture;
        if (const QByteArray image = person.image.data(); !image.isEmpty()) {
            picture = hash + QStringLiteral(".JPG");
            stagePicture(image, staged(picture), *name);
            items.emplace_back(staged(picture), rootSyncFolder() + u'/' + picture,
                               localized("Syncing Contact Icons..."));
        }
        page.add(person, *name, hash, picture);
    }
    const QString path = staged(QStringLiteral("contacts_index.html"));
    stagePage(page, path);
    items.emplace_back(path, rootSyncFolder() + QStringLiteral("/index.html"),
                       localized("Syncing Contact Index..."));
    return items;
}
