#include "window/SavesBody.h"

#include "frontend/HelperConnection.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/PathComponents.h"
#include "util/TextFormat.h"
#include "window/ListPane.h"
#include "window/RowView.h"
#include "window/Sign.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr uint mostPlanned = 1000; // in one answer; more saves than that are on no stick

/// A backup as a row whose name is its date.
ListRow backupRow(const QVariantMap &given)
{
    QVariantMap row{{QStringLiteral("identifier"), given.value(QStringLiteral("identifier"))},
                    {QStringLiteral("name"), given.value(QStringLiteral("date"))},
                    {QStringLiteral("description"), given.value(QStringLiteral("description"))}};
    return ListRows::fromMap(row);
}

} // namespace

SavesBody::SavesBody(HelperConnection *helper, QWidget *parent)
    : ListBody(helper, QStringLiteral("Backup"), parent)
    , m_backups({localized("Kept on"), localized("Game save")}, false)
    , m_shownBackups(&m_backups)
{
    addBelow(makeHistory());
    pane().view().setAccessibleDescription(
        localized("The backups of the chosen game save are listed below."));
    keeper().setAmendment([this](const QVariantList &rows) { return withStick(rows); });
    FrontEndObject &frontEnd = helper->frontEnd();
    connect(&frontEnd, &FrontEndObject::planIsReady, this, &SavesBody::askStick);
    connect(&frontEnd, &FrontEndObject::pspDidUnmount, this, [this] { stickIsRead({}); });
    connect(&frontEnd, &FrontEndObject::syncDidFinish, this, &SavesBody::reload);
    connect(&keeper(), &ListKeeper::read, this, [this] {
        m_group->setVisible(rows().rowCount() > 0);
        askHistory();
    });
    connect(pane().view().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SavesBody::askHistory);
}

QWidget *SavesBody::makeHistory()
{
    m_group = new QGroupBox(localized("Backups"));
    m_history = new RowView;
    m_history->show(&m_shownBackups);
    m_history->setSelectionMode(QAbstractItemView::SingleSelection);
    m_history->setAccessibleName(localized("Backups"));
    m_history->setAccessibleDescription(localized("Of the game save that is selected above."));
    auto *const layout = new QHBoxLayout(m_group);
    layout->addWidget(m_history, 1);
    layout->addWidget(makeButtons());
    m_group->setMaximumHeight(fontMetrics().height() * 11);
    pane().view().setMinimumHeight(fontMetrics().height() * 9);
    connect(m_history->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SavesBody::updateButtons);
    m_group->hide();
    updateButtons();
    return m_group;
}

QWidget *SavesBody::makeButtons()
{
    auto *const bar = new QWidget;
    auto *const layout = new QVBoxLayout(bar);
    layout->setContentsMargins({});
    m_restore = new QPushButton(localized("Restore..."));
    m_restore->setAccessibleDescription(localized("Puts the selected backup back on the PSP."));
    m_delete = new QPushButton(localized("Delete..."));
    m_delete->setAccessibleDescription(localized("Moves the selected backup to the Trash."));
    m_deleteAll = new QPushButton(localized("Delete All..."));
    m_deleteAll->setAccessibleDescription(
        localized("Moves all backups of the game save to the Trash."));
    for (QPushButton *const button : {m_restore, m_delete, m_deleteAll})
        layout->addWidget(button);
    layout->addStretch();
    connect(m_restore, &QPushButton::clicked, this, &SavesBody::restore);
    connect(m_delete, &QPushButton::clicked, this, [this] {
        const ListRow *backup = selectedBackup();
        remove(backup->identifier,
               filled(localized("Move the backup of “%@” from %@ to the Trash?"),
                      {selectedSave()->name, backup->name}));
    });
    connect(m_deleteAll, &QPushButton::clicked, this, [this] {
        remove(m_shownSave, filled(localized("Move all backups of “%@” to the Trash (%@)?"),
                                   {selectedSave()->name, QString::number(m_backups.rowCount())}));
    });
    return bar;
}

// --- The saves

void SavesBody::reload()
{
    ListBody::reload();
    askStick();
}

void SavesBody::askStick()
{
    helper().ask(Protocol::planItems, {QStringLiteral("Backup"), 0U, mostPlanned}, this,
                 [this](const QVariant &answer) { stickIsRead(answer.toList()); });
}

void SavesBody::stickIsRead(const QVariantList &planned)
{
    QStringList saves;
    for (const QVariant &each : planned) {
        const QVariantMap row = each.toMap();
        if (Rows::text(row, u"action") == u"copy")
            saves.append(PathComponents::lastOf(Rows::text(row, u"source")));
    }
    if (saves == m_onStick)
        return;
    m_onStick = saves;
    keeper().amend();
}

QVariantList SavesBody::withStick(const QVariantList &kept) const
{
    QSet<QString> onStick(m_onStick.begin(), m_onStick.end());
    QVariantList rows;
    for (const QVariant &each : kept) {
        QVariantMap row = each.toMap();
        if (onStick.remove(Rows::text(row, u"identifier")))
            row.insert(QStringLiteral("notKept"), true);
        rows.append(row);
    }
    for (const QString &save : m_onStick) {
        if (onStick.contains(save))
            rows.append(QVariantMap{{QStringLiteral("identifier"), save},
                                    {QStringLiteral("icon"), QStringLiteral("Backup")},
                                    {QStringLiteral("notKept"), true}});
    }
    return rows;
}

// --- The history of one

const ListRow *SavesBody::selectedSave()
{
    const QList<int> selected = pane().view().selectedRows();
    return selected.size() == 1 ? &rows().at(selected.first()) : nullptr;
}

const ListRow *SavesBody::selectedBackup()
{
    const QList<int> selected = m_history->selectedRows();
    return selected.size() == 1 ? &m_backups.at(selected.first()) : nullptr;
}

void SavesBody::askHistory()
{
    const ListRow *const save = selectedSave();
    m_shownSave = save ? save->identifier : QString();
    m_group->setTitle(
        save ? filled(localized("Backups of %@"), {save->name}).replace(u'&', QStringLiteral("&&"))
             : localized("Backups"));
    if (!save) {
        m_backups.setRows({});
        updateButtons();
        return;
    }
    const auto show = [this, asked = m_shownSave](const QVariant &answer) {
        if (asked != m_shownSave)
            return;
        QList<ListRow> backups;
        for (const QVariant &each : answer.toList())
            backups.prepend(backupRow(each.toMap()));
        ListRows::arrange(backups);
        m_backups.setRows(backups);
        updateButtons();
    };
    helper().ask(Protocol::backupSubItemsForIdentifier, {m_shownSave}, this, show);
}

void SavesBody::updateButtons()
{
    const bool isChosen = selectedBackup();
    m_restore->setEnabled(isChosen);
    m_delete->setEnabled(isChosen);
    m_deleteAll->setEnabled(m_backups.rowCount() > 0);
}

void SavesBody::confirm(const QString &question, const QString &consequence, const QString &button,
                        const std::function<void()> &action)
{
    auto *const box = new QMessageBox(QMessageBox::NoIcon, window()->windowTitle(), question,
                                      QMessageBox::NoButton, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIconPixmap(Signs::question.picture(*box, 2.5));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(consequence);
    QPushButton *const yes = box->addButton(button, QMessageBox::AcceptRole);
    yes->setAccessibleDescription(consequence);
    QPushButton *const no = box->addButton(localized("Cancel"), QMessageBox::RejectRole);
    no->setAccessibleDescription(localized("Changes nothing."));
    box->setDefaultButton(no);
    connect(yes, &QPushButton::clicked, this, action);
    box->open();
}

void SavesBody::restore()
{
    const ListRow *const backup = selectedBackup();
    const auto restore = [this, identifier = backup->identifier] {
        say(localized("The game save is being put back on the PSP..."));
        // What goes wrong comes as an alert, before the answer.
        auto *const alerts = new QObject(this);
        auto isDone = std::make_shared<bool>(true);
        connect(&helper().frontEnd(), &FrontEndObject::alert, alerts,
                [isDone] { *isDone = false; });
        helper().ask(Protocol::restoreBackupWithIdentifier, {identifier}, alerts,
                     [this, alerts, isDone](const QVariant &) {
                         say(*isDone ? localized("The game save is on the PSP.")
                                     : localized("The game save has not been put back."));
                         alerts->deleteLater();
                         reload();
                     });
    };
    confirm(filled(localized("Put the backup of “%@” from %@ back on the PSP?"),
                   {selectedSave()->name, backup->name}),
            localized("The game save that is on the PSP now is kept as the newest backup, and then "
                      "replaced."),
            localized("Restore"), restore);
}

void SavesBody::remove(const QString &identifier, const QString &question)
{
    confirm(question,
            localized("It is no longer in this list then. The PSP's own game save stays as it "
                      "is."),
            localized("Move to Trash"), [this, identifier] {
                helper().ask(Protocol::deleteBackupWithIdentifier, {identifier}, this,
                             [this](const QVariant &) { reload(); });
            });
}
