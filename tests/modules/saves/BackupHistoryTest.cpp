// Random histories of game saves, held against a model of what must be kept.

#include "modules/saves/CVSyncBackup.h"

#include "support/SyncHarness.h"
#include "util/Settings.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace {

using Contents = std::map<QString, QByteArray>;             // of a save, by relative path
using Histories = std::map<QString, std::vector<Contents>>; // of all saves, oldest first

Contents contentsOf(const QString &folder)
{
    Contents contents;
    for (const QString &path : treeOf(folder)) {
        if (!path.endsWith(u'/'))
            contents[path] = readFile(folder + u'/' + path);
    }
    return contents;
}

class RandomHistory
{
public:
    explicit RandomHistory(unsigned seed)
        : m_random(seed)
    {
        m_harness.mountStick();
    }

    void step()
    {
        switch (number(9)) {
        case 0:
            m_harness.clock.current = m_harness.clock.current.addSecs(number(7200) - 1800);
            break;
        case 1:
            m_choice = number(5);
            Settings::backupsToKeep.set(m_choice);
            break;
        case 2:
            restore();
            break;
        case 3:
            if (number(4) == 0)
                remove();
            break;
        default:
            for (int i = number(3); i >= 0; --i)
                change();
            sync();
        }
    }

    void compare()
    {
        Histories found;
        for (const QString &save : CVSyncBackup::availableIdentifiers())
            for (const QString &name : backups(save))
                found[save].push_back(contentsOf(CVSyncBackup::folderOf(save + u'/' + name)));
        ASSERT_EQ(found, m_model);
        for (const auto &[save, contents] : m_stick)
            ASSERT_EQ(contentsOf(place(save)), contents);
    }

private:
    int number(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    QString place(const QString &save) const
    {
        return m_harness.stick(QStringLiteral("PSP/SAVEDATA/") + save);
    }
    static QStringList backups(const QString &save)
    {
        return CVSyncBackup::availableSubIdentifiersForIdentifier(save);
    }

    /// One byte of one file, or a file that comes or goes.
    void change()
    {
        const QString save = QStringLiteral("SAVE%1").arg(number(3));
        const QString file = QStringList{QStringLiteral("DATA.BIN"), QStringLiteral("ICON0.PNG"),
                                         QStringLiteral("a/b/DEEP")}
                                 .at(number(3));
        Contents &contents = m_stick[save];
        QByteArray &bytes = contents[file];
        if (bytes.isEmpty())
            bytes = QByteArray(1 + number(3000), 'x');
        else if (number(6) > 0 || contents.size() == 1)
            ++bytes.data()[number(static_cast<int>(bytes.size()))];
        else
            contents.erase(file);
        if (contents.contains(file))
            writeFile(place(save) + u'/' + file, contents[file]);
        else
            QFile::remove(place(save) + u'/' + file);
    }

    void sync()
    {
        constexpr size_t kept[] = {SIZE_MAX, 9, 24, 49, SIZE_MAX};
        std::map<QString, bool> hasChanged;
        for (const auto &[save, contents] : m_stick)
            hasChanged[save] = !m_model.contains(save) || m_model[save].back() != contents;
        for (auto &[save, history] : m_model) {
            while (history.size() > kept[m_choice])
                history.erase(history.begin());
        }
        for (const auto &[save, contents] : m_stick) {
            if (hasChanged[save])
                m_model[save].push_back(contents);
        }
        ASSERT_TRUE(m_harness.run());
    }

    void restore()
    {
        if (m_model.empty())
            return;
        const QString save = std::next(m_model.begin(), number(int(m_model.size())))->first;
        std::vector<Contents> &history = m_model[save];
        const int which = number(int(history.size()));
        ASSERT_EQ(CVSyncBackup::restoreBackupWithIdentifier(save + u'/' + backups(save)[which],
                                                            m_harness.stick(), m_harness.clock),
                  CVSyncBackup::Restored::Done);
        const Contents wanted = history[size_t(which)];
        if (m_stick[save] != wanted)
            history.push_back(m_stick[save]);
        m_stick[save] = wanted;
    }

    void remove()
    {
        if (m_model.empty())
            return;
        const QString save = m_model.begin()->first;
        std::vector<Contents> &history = m_model[save];
        const int which = number(int(history.size()));
        const bool isAll = number(3) == 0 || history.size() == 1;
        const QString name = isAll ? save : save + u'/' + backups(save)[which];
        ASSERT_TRUE(CVSyncBackup::deleteBackupWithIdentifier(name));
        history.erase(history.begin() + which);
        if (isAll)
            m_model.erase(save);
    }

    std::mt19937 m_random;
    SyncHarness m_harness{{CVSyncBackup::kind(m_harness.clock)}};
    std::map<QString, Contents> m_stick;
    Histories m_model;
    int m_choice = 2;
};

} // namespace

TEST(BackupHistory, KeepsExactlyWhatTheRulesName)
{
    for (unsigned seed = 1; seed <= 2; ++seed) {
        RandomHistory history(seed);
        for (int step = 0; step < 150; ++step) {
            history.step();
            history.compare();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << ", step " << step;
        }
    }
}
