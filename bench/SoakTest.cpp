// Days of sticks that come and go, in seconds: the clock is the test's own.

#include "platform/people/AddressBook.h"
#include "support/HelperHarness.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <malloc.h>

namespace {

/// The desktop's own service has a test of its own.
class NoAddressBook : public AddressBook
{
    People people() override { return {}; }
};

/// The memory of this process that is in use and in place.
qint64 residentBytes()
{
    ::malloc_trim(0);
    return readFile(u"/proc/self/statm"_s).split(' ').value(1).toLongLong() * 4096;
}

} // namespace

TEST(Soak, MountsAndSyncsLeaveNoMemoryBehind)
{
    constexpr int rounds = 600;
    constexpr int warmingUp = 100;
    NoAddressBook nobody;
    AddressBook::setSharedAddressBook(&nobody);
    const TemporaryFolder place;
    for (int i = 0; i < 30; ++i)
        writeFile(place / QStringLiteral("home/Documents/Caravel/Dropboxes/Music/%1.mp3").arg(i),
                  QByteArray(i, 'x'));
    QDir().mkpath(place / QStringLiteral("home/Library/Application Support/Caravel"));
    HelperHarness harness(place.path());
    for (const char *path : {"/MEMSTICK.IND", "/PSP/SAVEDATA/GAME/DATA.BIN", "/.caravel/mark"})
        writeFile(harness.stick() + QLatin1String(path), {});
    qint64 early = 0;
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(harness.stick() + QStringLiteral("/PSP/MUSIC/%1.mp3").arg(round % 30));
        harness.sounds.played.clear();
        harness.volumes.mount(harness.stick()); // and synced by itself
        HelperHarness::settle();
        ASSERT_EQ(harness.sounds.played.size(), 1) << round;
        harness.volumes.unmount(harness.stick());
        harness.clock.current = harness.clock.current.addSecs(600);
        harness.helper->logger().clear(); // as the user does; it grows until then
        if (round == warmingUp)
            early = residentBytes();
    }
    AddressBook::setSharedAddressBook(nullptr);
    EXPECT_TRUE(harness.alerts.titles.isEmpty());
    const qint64 growth = residentBytes() - early;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(growth, 512 << 10) << "bytes in " << rounds - warmingUp << " rounds";
#endif
    std::printf("%lld bytes more after %d rounds than after %d\n", static_cast<long long>(growth),
                rounds, warmingUp);
}
