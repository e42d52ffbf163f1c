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
    People people() override
    {
        People everybody;
        QSet<QString> known;
        add(evolutionPeople(serviceLimit), everybody, known);
        add(vCardPeople(qEnvironmentVariable("HOME") + QStringLiteral("/.contacts")), everybody,
            known);
        return everybody;
    }

private:
    static void add(People found, People &everybody, QSet<QString> &known)
    {
        for (Person &person : found.people) {
            const qsizetype before = known.size();
            known.insert(person.uid);
            if (known.size() > before)
                everybody.people.push_back(std::move(person));
        }
        if (found.unreadable)
            everybody.unreadable = std::move(found.unreadable);
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
