// Days of sticks that come and go, in seconds: the clock is the test's own.

#include "support/ListModule.h"
#include "support/SyncHarness.h"

#include <QFile>

#include <gtest/gtest.h>

#include <malloc.h>

namespace {

qint64 residentBytes()
{
    ::malloc_trim(0);
    return readFile(QStringLiteral("/proc/self/statm")).split(' ').value(1).toLongLong() * 4096;
}

} // namespace

TEST(Soak, MountsAndSyncsLeaveNoMemoryBehind)
{
    constexpr int rounds = 600;
    constexpr int warmingUp = 100;
    const TemporaryFolder sources;
    std::vector<CVSyncItem> wanted;
    ListModule::Wishes wishes{[&wanted] { return wanted; }, QStringLiteral("/PSP/MUSIC")};
    SyncHarness harness{ModuleFactory{.music = ListModule::maker(QStringLiteral("Music"), wishes)}};
    harness.mountStick();
    for (int i = 0; i < 30; ++i) {
        const QString name = QStringLiteral("%1.mp3").arg(i);
        writeFile(sources / name, QByteArray(i, 'x'));
        wanted.emplace_back(sources / name, harness.stick(QStringLiteral("PSP/MUSIC/") + name),
                            name);
    }
    qint64 early = 0;
    for (int round = 0; round < rounds; ++round) {
        ASSERT_TRUE(harness.run());
        harness.volumes.unmount(harness.stick());
        QFile::remove(harness.stick(QStringLiteral("PSP/MUSIC/%1.mp3").arg(round % 30)));
        harness.clock.current = harness.clock.current.addSecs(600);
        harness.volumes.mount(harness.stick());
        harness.manager.refreshSyncBytesEstimate();
        harness.settle();
        if (round == warmingUp)
            early = residentBytes();
    }
    EXPECT_TRUE(harness.delegate.errors.empty());
    const qint64 growth = residentBytes() - early;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(growth, 512 << 10) << "bytes in " << rounds - warmingUp << " rounds";
#endif
    std::printf("%lld bytes more after %d rounds than after %d\n", static_cast<long long>(growth),
                rounds, warmingUp);
}
