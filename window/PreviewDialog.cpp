#include "window/PreviewDialog.h"

#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "window/FileGroupsView.h"
#include "window/PlanTexts.h"
#include "window/Planner.h"
#include "window/StickWatch.h"
#include "window/Words.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PreviewDialog::PreviewDialog(Planner &planner, const StickWatch &watch, QWidget *parent)
    : QDialog(parent)
    , m_planner(planner)
    , m_watch(watch)
    , m_totals(Words::label())
    , m_strangers(Words::label())
    , m_sync(new QPushButton(localized("Sync Now")))
{
    setWindowTitle(localized("What a Sync Would Do"));
    auto *files = new FileGroupsView(m_files);
    files->setAccessibleName(localized("Files that a sync would change"));
    m_sync->setAccessibleDescription(
        localized("Brings the Memory Stick up to date with your selection"));
    m_strangers->setFont(Words::bold(font()));
    auto *buttons = Words::closeButtons();
    buttons->addButton(m_sync, QDialogButtonBox::AcceptRole);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_totals);
    column->addWidget(m_strangers);
    column->addWidget(files, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_sync, &QPushButton::clicked, this, [this] {
        accept();
        Q_EMIT syncWanted();
    });
    connect(&planner, &Planner::changed, this, &PreviewDialog::showPlan);
    connect(&watch, &StickWatch::changed, this, &PreviewDialog::updateState);
    resize(Words::dialogSize(*this));
    files->setFocus();
    showPlan();
}

void PreviewDialog::showPlan()
{
    updateState();
    m_files.clear();
    if (!m_planner.summary().isEmpty() && !m_planner.isPlanning())
        readItems();
}

void PreviewDialog::readItems()
{
    for (const QVariant &each : m_planner.summary().value(QStringLiteral("kinds")).toList()) {
        const QString kind = Rows::text(each.toMap(), u"name");
        m_planner.readItems(kind, this, [this, kind](const QVariantList &rows) {
            for (const QVariant &row : rows) {
                const QVariantMap item = row.toMap();
                if (const auto group = PlanTexts::groupOf(kind, item))
                    m_files.add(*group, PlanTexts::rowOf(item));
            }
        });
    }
}

void PreviewDialog::updateState()
{
    const QVariantMap &plan = m_planner.summary();
    m_sync->setEnabled(!plan.isEmpty() && m_watch.canSync());
    m_strangers->setText(PlanTexts::strangers(plan));
    m_strangers->setHidden(m_strangers->text().isEmpty());
    if (!m_watch.state().mounted)
        m_totals->setText(localized("No PSP is connected."));
    else if (m_watch.state().syncing)
        m_totals->setText(localized("A sync is running."));
    else if (m_planner.isPlanning())
        m_totals->setText(localized("Working out what a sync would do..."));
    else if (plan.isEmpty())
        m_totals->setText(localized("The Memory Stick could not be looked at."));
    else
        m_totals->setText(PlanTexts::totals(plan) + u' ' + PlanTexts::tooMuch(plan));
}
