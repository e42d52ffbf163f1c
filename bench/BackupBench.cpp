// The list of 300 game saves with 20 backups each, against finding the newest PARAM.SFO of each and
// reading it.

#include "app/Catalogue.h"
#include "app/SelectionLists.h"
#include "modules/saves/CVSyncBackup.h"
#include "support/PSFFile.h"
#include "support/SyncHarness.h"
#include "util/PSFParser.h"

#include <QFile>

#include <benchmark/benchmark.h>

namespace {

constexpr int saves = 300;
constexpr int backupsOfEach = 20;

QString saveName(int number)
{
    return QStringLiteral("ULUS%1DATA00").arg(10000 + number);
}

QString backupName(int number)
{
    return QString::number(1'700'000'000 + 86'400 * number);
}

struct History
{
    SyncHarness harness;

    History()
    {
        PSFFile parameters;
        // As consoles write them: a few kilobytes, most of them a block of bytes.
        parameters.add("SAVEDATA_PARAMS", 0, QByteArray(128, '\1'));
        parameters.add("SAVEDATA_DETAIL", 2,
                       QByteArray("Chapter 7: the lighthouse").leftJustified(1024, '\0'));
        parameters.add("SAVEDATA_FILE_LIST", 0, QByteArray(3168, '\0'));
        parameters.add("SAVEDATA_TITLE", 2, QByteArray("Slot 1").leftJustified(128, '\0'));
        parameters.add("TITLE", 2, QByteArray("Some Game").leftJustified(128, '\0'));
        const QByteArray contents = parameters.contents();
        for (int save = 0; save < saves; ++save)
            for (int backup = 0; backup < backupsOfEach; ++backup)
                writeFile(parametersOf(saveName(save) + u'/' + backupName(backup)), contents);
    }

    static QString parametersOf(const QString &backup)
    {
        return CVSyncBackup::folderOf(backup) + QStringLiteral("/PARAM.SFO");
    }
};

void backupItems(benchmark::State &state)
{
    History history;
    const ModuleCatalogue kinds = catalogue(history.harness.clock);
    const SelectionLists lists(kinds, history.harness.manager, history.harness.clock);
    qsizetype rows = 0;
    for (auto _ : state)
        rows = lists.backupItems().size();
    if (rows != saves)
        state.SkipWithError("not every save was listed");
}

void bareReading(benchmark::State &state)
{
    const History history;
    int read = 0;
    for (auto _ : state) {
        read = 0;
        for (const QString &save : CVSyncBackup::availableIdentifiers()) {
            const QString newest = CVSyncBackup::availableSubIdentifiersForIdentifier(save).last();
            read += PSFParser::dictionaryWithPSFFile(History::parametersOf(save + u'/' + newest))
                        .has_value();
        }
    }
    if (read != saves)
        state.SkipWithError("not every file was read");
}

BENCHMARK(backupItems)->Name("300 game saves/backupItems")->Unit(benchmark::kMillisecond);
BENCHMARK(bareReading)
    ->Name("300 game saves/peer: finding and reading PARAM.SFO")
    ->Unit(benchmark::kMillisecond);

} // namespace
