// The contacts page of 10,000 cards without pictures, and of 1,000 with pictures that are new or as
// they were in the last run.

#include "Workbench.h"
#include "modules/contacts/CVSyncContacts.h"
#include "platform/people/ContactPicture.h"
#include "platform/people/own/VCardAddressBook.h"
#include "support/SyncHarness.h"

#include <QBuffer>
#include <QDir>
#include <QImage>

#include <benchmark/benchmark.h>

#include <map>

namespace {

/// The cards of one folder, read anew each time, and nobody else.
class CardFolder : public AddressBook
{
public:
    CardFolder() { setSharedAddressBook(this); }
    ~CardFolder() override { setSharedAddressBook(nullptr); }
    People people() override { return vCardPeople(folder.path()); }

    Workbench folder;
};

QByteArray cardOf(int number, const QByteArray &photo)
{
    const QByteArray n = QByteArray::number(number);
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:card-" + n + "\r\nN:Family" + n + ";Given" + n +
           ";;;\r\nFN:Given" + n + " Family" + n + "\r\nORG:Company " +
           QByteArray::number(number % 97) + "\r\nTEL;TYPE=CELL:+49 170 " + n +
           "\r\nTEL;TYPE=WORK,PREF:+49 30 " + n + "\r\nEMAIL;TYPE=HOME:given" + n +
           "@example.org\r\nADR;TYPE=HOME:;;" + n +
           " High Street;Town;State;12345;Country\r\nNOTE:Met at the harbour\\, in " + n + ".\r\n" +
           (photo.isEmpty() ? QByteArray() : "PHOTO;ENCODING=b;TYPE=JPEG:" + photo + "\r\n") +
           "END:VCARD\r\n";
}

/// A photo of 400 by 300 pixels, no two alike.
QByteArray photoOf(int number)
{
    QImage image(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * y + number, x + number, y));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    return bytes.toBase64();
}

enum class Pictures { None, New, Known };

int countOf(Pictures pictures)
{
    return pictures == Pictures::None ? 10000 : 1000;
}

/// Made once: the benchmarks come back in any order.
const QByteArray &cards(Pictures pictures)
{
    static std::map<bool, QByteArray> made;
    const auto [place, isNew] = made.try_emplace(pictures == Pictures::None);
    for (int i = 0; isNew && i < countOf(pictures); ++i)
        place->second += cardOf(i, pictures == Pictures::None ? QByteArray() : photoOf(i));
    return place->second;
}

void itemsToSync(benchmark::State &state, Pictures pictures)
{
    CardFolder book;
    writeFile(book.folder / QStringLiteral("all.vcf"), cards(pictures));
    SyncHarness harness;
    const QDir support(harness.home(QStringLiteral("Library/Application Support/Caravel")));
    support.mkpath(QStringLiteral("."));
    size_t items = CVSyncContacts(harness.stick()).itemsToSync().size();
    for (auto _ : state) {
        if (pictures == Pictures::New) {
            state.PauseTiming();
            for (const QString &name : support.entryList(QDir::Files))
                QFile::remove(support.filePath(name));
            state.ResumeTiming();
        }
        items = CVSyncContacts(harness.stick()).itemsToSync().size();
    }
    if (items != (pictures == Pictures::None ? 1U : 1U + size_t(countOf(pictures))))
        state.SkipWithError("not everybody was found");
}

/// What reading the cards takes by itself.
void readCards(benchmark::State &state, Pictures pictures)
{
    CardFolder book;
    writeFile(book.folder / QStringLiteral("all.vcf"), cards(pictures));
    size_t people = 0;
    for (auto _ : state)
        people = book.people().people.size();
    if (people != size_t(countOf(pictures)))
        state.SkipWithError("not everybody was found");
}

/// What drawing the pictures takes by itself.
void renderPictures(benchmark::State &state)
{
    CardFolder book;
    writeFile(book.folder / QStringLiteral("all.vcf"), cards(Pictures::New));
    const std::vector<Person> people = book.people().people;
    for (auto _ : state)
        for (const Person &person : people)
            benchmark::DoNotOptimize(ContactPicture::render(person.image.bytes, person.uid));
}

BENCHMARK_CAPTURE(itemsToSync, none, Pictures::None)
    ->Name("10,000 contacts/itemsToSync")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readCards, none, Pictures::None)
    ->Name("10,000 contacts/peer: reading the cards alone")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(itemsToSync, new, Pictures::New)
    ->Name("1,000 new contact pictures/itemsToSync")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(renderPictures)
    ->Name("1,000 new contact pictures/peer: drawing them alone")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(itemsToSync, known, Pictures::Known)
    ->Name("1,000 known contact pictures/itemsToSync")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readCards, known, Pictures::Known)
    ->Name("1,000 known contact pictures/peer: reading the cards alone")
    ->Unit(benchmark::kMillisecond);

} // namespace
