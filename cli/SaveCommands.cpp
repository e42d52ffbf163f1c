#include "cli/SaveCommands.h"

#include "cli/Follower.h"
#include "cli/MeantRow.h"
#include "cli/Output.h"
#include "frontend/Rows.h"

#include <QJsonArray>

#include <algorithm>
#include <iostream>
#include <string>
#include <unistd.h>

namespace {

QVariantList backupsOf(HelperClient &helper, const QString &save)
{
    return helper.ask(Protocol::backupSubItemsForIdentifier, {save}).toList();
}

QVariantMap meantSave(HelperClient &helper, const QString &id)
{
    return meantRow(helper, Protocol::backupItems, id, QStringLiteral("game save"),
                    QStringLiteral("saves"));
}

bool isBackup(HelperClient &helper, const QString &id)
{
    const QVariantList backups = backupsOf(helper, id.section(u'/', 0, 0));
    return std::any_of(backups.begin(), backups.end(), [&](const QVariant &each) {
        return Rows::text(each.toMap(), u"identifier") == id;
    });
}

ExitStatus refuse(const QString &text)
{
    Output::error(text);
    return Refused;
}

ExitStatus refuseBackup(const QString &id)
{
    return refuse(QStringLiteral("there is no backup %1 (nothing was changed); "
                                 "caravel saves %2 shows those there are")
                      .arg(Output::printable(id), Output::printable(id.section(u'/', 0, 0))));
}

ExitStatus refuseDuringSync()
{
    return refuse(QStringLiteral("Can't restore or delete backups during a sync."));
}

void printBackups(const QVariantList &backups)
{
    int idWidth = 0;
    int dateWidth = 0;
    for (const QVariant &each : backups) {
        idWidth = std::max(idWidth, Output::columns(Rows::text(each.toMap(), u"identifier")));
        dateWidth = std::max(dateWidth, Output::columns(Rows::text(each.toMap(), u"date")));
    }
    const auto padded = [](const QString &text, int width) {
        return text + QString(std::max(0, width - Output::columns(text)) + 2, u' ');
    };
    for (auto each = backups.rbegin(); each != backups.rend(); ++each) {
        const QVariantMap row = each->toMap();
        const QString line = padded(Output::printable(Rows::text(row, u"identifier")), idWidth) +
                             padded(Rows::text(row, u"date"), dateWidth) +
                             Output::printable(Rows::text(row, u"description"));
        Output::print(line.trimmed());
    }
}

/// Restores while it is connected, since what goes wrong comes as an alert.
class RestoreFollower : public Follower
{
public:
    RestoreFollower(Session &session, QString backup)
        : Follower(session)
        , m_backup(std::move(backup))
    {
    }

protected:
    void begin() override { helper().ask(Protocol::restoreBackupWithIdentifier, {m_backup}); }
    void stateRead(const HelperState & /*state*/) override
    {
        // An alert came before the answers, and lies in front of this.
        QTimer::singleShot(0, this, [this] { finish(m_status); });
    }
    void alert(const QString &title, const QString &message, int style) override
    {
        Follower::alert(title, message, style);
        m_status = Refused;
    }

private:
    const QString m_backup;
    ExitStatus m_status = Done;
};

bool isConfirmed(const QString &question)
{
    Output::raw(question + QStringLiteral(" [y/N] "));
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y" || answer == "yes";
}

ExitStatus confirm(Session &session, const QString &id)
{
    if (::isatty(STDIN_FILENO) == 0)
        return refuse(QStringLiteral("say --yes to delete %1 without being asked (nothing was "
                                     "deleted)")
                          .arg(Output::printable(id)));
    const qsizetype count = id.contains(u'/') ? 1 : backupsOf(session.helper(), id).size();
    if (session.failed())
        return session.report();
    const QString what =
        count == 1 ? QStringLiteral("one backup") : QStringLiteral("all %1 backups").arg(count);
    return isConfirmed(QStringLiteral("Move %1 of %2 to the Trash?")
                           .arg(what, Output::printable(id.section(u'/', 0, 0))))
               ? Done
               : refuse(QStringLiteral("nothing was deleted"));
}

} // namespace

ExitStatus runSaves(const QString &save, bool json)
{
    Session session;
    HelperClient &helper = session.helper();
    const QVariantMap row = meantSave(helper, save);
    const QVariantList backups =
        row.isEmpty() ? QVariantList() : backupsOf(helper, Rows::text(row, u"identifier"));
    if (helper.failed())
        return session.report();
    if (row.isEmpty())
        return Refused;
    if (json)
        Output::json(QJsonArray::fromVariantList(backups));
    else
        printBackups(backups);
    return Done;
}

ExitStatus runRestoreSave(const QString &backup)
{
    Session session(Session::Stay::UntilItQuits);
    HelperClient &helper = session.helper();
    const bool isThere = isBackup(helper, backup);
    const HelperState state = helper.state();
    if (helper.failed())
        return session.report();
    if (!isThere)
        return refuseBackup(backup);
    if (state.syncing)
        return refuseDuringSync();
    if (!state.mounted)
        return refuse(QStringLiteral("No PSP is connected."));
    return RestoreFollower(session, backup).run();
}

ExitStatus runDeleteSave(const QString &id, bool isSure)
{
    Session session;
    HelperClient &helper = session.helper();
    QString named = id;
    if (!isBackup(helper, id)) {
        if (id.contains(u'/') && !helper.failed())
            return refuseBackup(id);
        named = Rows::text(meantSave(helper, id), u"identifier");
    }
    const bool syncing = helper.state().syncing;
    if (helper.failed())
        return session.report();
    if (named.isEmpty())
        return Refused;
    if (syncing)
        return refuseDuringSync();
    if (const ExitStatus answer = isSure ? Done : confirm(session, named); answer != Done)
        return answer;
    helper.ask(Protocol::deleteBackupWithIdentifier, {named});
    const bool isLeft =
        named.contains(u'/') ? isBackup(helper, named) : !backupsOf(helper, named).isEmpty();
    if (isLeft && !helper.failed())
        return refuse(QStringLiteral("%1 could not be deleted; the helper's log and the system "
                                     "log say why")
                          .arg(Output::printable(named)));
    return session.report();
}
