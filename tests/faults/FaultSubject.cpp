// What the helper does with a stick, once, in a place that exists: `fault_subject PLACE WHAT`,
// where WHAT is "sync", "restore" (the save GAME's oldest backup) or "store" (a converted movie
// into the library). Waits for nothing and talks to nobody. Prints one line per event of the run.

#include "modules/CVSyncBackup.h"
#include "modules/CVSyncBookmarks.h"
#include "modules/CVSyncContacts.h"
#include "modules/CVSyncMovies.h"
#include "modules/CVSyncMusic.h"
#include "modules/CVSyncPhotos.h"
#include "platform/VCardAddressBook.h"
#include "support/SyncHarness.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

/// A disk of a fixed size, so that what is recorded of it is the same in each run.
class FixedSpace : public FileManager
{
public:
    std::optional<VolumeSpace> volumeSpace(const QString & /*path*/) const override
    {
        return VolumeSpace{1ULL << 30, 1ULL << 29};
    }
};

class CardFolder : public AddressBook
{
public:
    std::vector<Person> people() override
    {
        return vCardPeople(qEnvironmentVariable("HOME") + QStringLiteral("/.contacts"));
    }
};

template <typename Module>
std::unique_ptr<CVSyncModule> make(CVSyncModuleDelegate *delegate)
{
    return std::make_unique<Module>(delegate);
}

int sync(SyncHarness &harness)
{
    const bool completed = harness.run();
    for (const QString &event : harness.delegate.steps())
        std::puts(event.toLocal8Bit().constData());
    harness.defaults.synchronize();
    return completed ? 0 : 1;
}

int restore(const SyncHarness &harness)
{
    const QString save = QStringLiteral("GAME");
    const auto restored = CVSyncBackup::restoreBackupWithIdentifier(
        save + u'/' + CVSyncBackup::availableSubIdentifiersForIdentifier(save).value(0),
        harness.stick(), harness.clock);
    return restored == CVSyncBackup::Restored::Done ? 0 : 1;
}

int store()
{
    return CVSyncMovies::moveConvertedMovieNamed(QStringLiteral("New Film")) ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    FixedSpace files;
    FileManager::setDefaultManager(&files);
    CardFolder book;
    AddressBook::setSharedAddressBook(&book);
    SyncHarness *place = nullptr;
    ModuleFactory modules{make<CVSyncMusic>,
                          make<CVSyncPhotos>,
                          make<CVSyncMovies>,
                          [&place](CVSyncModuleDelegate *delegate) {
                              return std::make_unique<CVSyncBackup>(delegate, place->clock);
                          },
                          make<CVSyncBookmarks>,
                          make<CVSyncContacts>};
    SyncHarness harness(std::move(modules), arguments.value(1));
    place = &harness;
    harness.volumes.mount(harness.stick());
    if (arguments.value(2) == u"restore")
        return restore(harness);
    return arguments.value(2) == u"store" ? store() : sync(harness);
}
