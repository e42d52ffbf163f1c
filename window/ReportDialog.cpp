#include "window/ReportDialog.h"

#include "frontend/HelperConnection.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/PathComponents.h"
#include "util/TextFormat.h"
#include "window/FileGroupsView.h"
#include "window/PlanTexts.h"
#include "window/Words.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

QString timeText(const QVariant &seconds)
{
    const auto time = QDateTime::fromMSecsSinceEpoch(qRound64(seconds.toDouble() * 1000));
    return QLocale().toString(time, QLocale::ShortFormat);
}

} // namespace

ReportDialog::ReportDialog(HelperConnection &helper, QWidget *parent)
    : QDialog(parent)
    , m_helper(helper)
    , m_outcome(Words::label())
    , m_when(Words::label())
    , m_kept(Words::label())
{
    setWindowTitle(localized("The Last Sync"));
    auto *files = new FileGroupsView(m_files);
    files->setAccessibleName(localized("Files that were left out or kept"));
    m_outcome->setFont(Words::heading(font()));
    auto *buttons = Words::closeButtons();
    auto *column = new QVBoxLayout(this);
    for (QWidget *each : {m_outcome, m_when, m_kept})
        column->addWidget(each);
    column->addWidget(files, 1);
    column->addWidget(buttons);
    m_kept->hide();
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(Words::dialogSize(*this));
    m_helper.ask(Protocol::lastRunSummary, {}, this,
                 [this](const QVariant &value) { showSummary(value.toMap()); });
    readPage(0);
}

void ReportDialog::showSummary(const QVariantMap &summary)
{
    m_outcome->setText(PlanTexts::outcome(summary));
    m_when->setHidden(summary.isEmpty());
    const QString volume = Rows::line(PathComponents::lastOf(Rows::text(summary, u"volume")));
    const QVariant started = summary.value(QStringLiteral("started"));
    const QVariant ended = summary.value(QStringLiteral("ended"));
    m_when->setText(
        ended.isValid()
            ? filled(localized("%@, from %@ to %@"), {volume, timeText(started), timeText(ended)})
            : filled(localized("%@, from %@"), {volume, timeText(started)}));
}

void ReportDialog::readPage(uint first)
{
    constexpr uint rowsAtOnce = 1000;
    m_helper.ask(Protocol::lastRunItems, {first, rowsAtOnce}, this,
                 [this, first](const QVariant &value) {
                     const QVariantList rows = value.toList();
                     take(rows);
                     if (!rows.isEmpty())
                         readPage(first + static_cast<uint>(rows.size()));
                 });
}

void ReportDialog::take(const QVariantList &rows)
{
    for (const QVariant &each : rows) {
        const QVariantMap item = each.toMap();
        m_files.add(PlanTexts::reportGroupOf(item), PlanTexts::rowOf(item));
        const QString folder = PlanTexts::keptFolder(item);
        if (folder.isEmpty())
            continue;
        m_kept->setText(filled(localized("The copies lie in %@. What should go back to the "
                                         "Memory Stick belongs in a dropbox."),
                               {folder}));
        m_kept->show();
    }
}
