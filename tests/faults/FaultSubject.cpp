// What the helper does with a stick, once, in a place that exists: `fault_subject PLACE WHAT`,
// where WHAT is "sync", "restore" (the save GAME's oldest backup) or "store" (a converted movie
// into the library). Waits for nothing and talks to nobody. Prints the user's log, and a line
// "alert: title" for each alert.

#include "modules/movies/CVSyncMovies.h"
#include "modules/saves/CVSyncBackup.h"
#include "platform/people/own/VCardAddressBook.h"
#include "support/HelperHarness.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

/// A disk of a fixed size, so that what is recorded of it is the same in each run; full from the
/// first write that finds no room.
class FixedSpace : public FileManager
{
public:
    std::optional<VolumeSpace> volumeSpace(const QString & /*path*/) const override
    {
        return VolumeSpace{1ULL << 30, m_isFull ? 0 : 1ULL << 29};
    }
    int createForWriting(const QString &path, Existing existing) override
    {
        return static_cast<int>(noting(FileManager::createForWriting(path, existing)));
    }
    qint64 write(int descriptor, const void *buffer, size_t count) override
    {
        return noting(FileManager::write(descriptor, buffer, count));
    }

private:
    qint64 noting(qint64 result)
    {
        if (result < 0 && errno == ENOSPC)
            m_isFull = true;
        return result;
    }

    std::atomic<bool> m_isFull = false;
};

class CardFolder : public AddressBook
{
public:
    People people() override
    {
        return vCardPeople(qEnvironmentVariable("HOME") + QStringLiteral("/.contacts"));
    }
};

int sync(HelperHarness &harness)
{
    const bool completed = harness.sync();
    HelperHarness::settle();
    std::fputs(harness.helper->logger().log().toLocal8Bit().constData(), stdout);
    for (const QString &title : harness.alerts.titles)
        std::printf("alert: %s\n", title.toLocal8Bit().constData());
    return completed ? 0 : 1;
}

int restore(const HelperHarness &harness)
{
    const QString save = QStringLiteral("GAME");
    const auto restored = CVSyncBackup::restoreBackupWithIdentifier(
        save + u'/' + CVSyncBackup::availableSubIdentifiersForIdentifier(save).value(0),
        harness.stick(), harness.clock);
    return restored == CVSyncBackup::Restored::Done ? 0 : 1;
}

int store()
{
    return CVSyncMovies::moveConvertedMovieNamed(QStringLiteral("New Film")).identifier ? 0 : 1;
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
    HelperHarness harness(arguments.value(1));
    harness.volumes.mount(harness.stick());
    if (arguments.value(2) == u"restore")
        return restore(harness);
    return arguments.value(2) == u"store" ? store() : sync(harness);
}
