#include "platform/people/AddressBook.h"

#include "platform/core/Log.h"
#include "platform/files/FileManager.h"
#include "platform/people/own/EvolutionAddressBook.h"
#include "platform/people/own/VCardAddressBook.h"

#include <QSet>

#include <atomic>
#include <utility>

namespace {

constexpr quint64 maximumImageBytes = 64ULL << 20;
constexpr std::chrono::seconds serviceLimit{10};

/// The desktop's persons and those of the vCard files.
class DesktopAddressBook : public AddressBook
{
public:
    std::vector<Person> people() override
    {
        std::vector<Person> people;
        QSet<QString> known;
        add(evolutionPeople(serviceLimit), people, known);
        add(vCardPeople(qEnvironmentVariable("HOME") + QStringLiteral("/.contacts")), people,
            known);
        return people;
    }

private:
    static void add(std::vector<Person> found, std::vector<Person> &people, QSet<QString> &known)
    {
        for (Person &person : found) {
            const qsizetype before = known.size();
            known.insert(person.uid);
            if (known.size() > before)
                people.push_back(std::move(person));
        }
    }
};

std::atomic<AddressBook *> replacement = nullptr;

} // namespace

QByteArray PersonImage::data() const
{
    if (file.isEmpty())
        return bytes;
    const auto contents = FileManager::defaultManager().readFile(file, maximumImageBytes);
    if (!contents)
        qCWarning(lcPlatform).noquote()
            << "A contact's picture can't be read, or is larger than 64 MiB:" << file;
    return contents.valueOr(QByteArray());
}

AddressBook &AddressBook::sharedAddressBook()
{
    static DesktopAddressBook real;
    AddressBook *const other = replacement;
    return other ? *other : real;
}

void AddressBook::setSharedAddressBook(AddressBook *book)
{
    replacement = book;
}
