#include "window/FirstStartDialog.h"

#include "frontend/HelperConnection.h"
#include "frontend/Preferences.h"
#include "frontend/Rows.h"
#include "platform/core/Localized.h"
#include "util/Settings.h"
#include "util/TextFormat.h"
#include "window/KindTexts.h"
#include "window/Kinds.h"
#include "window/Words.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace {

struct KindSource
{
    QStringView kind;
    QStringView setting;
};

constexpr KindSource kindSources[] = {
    {u"Music", u"musicSource"},
    {u"Photos", u"photosSource"},
    {u"Bookmarks", u"bookmarkSource"},
};

bool isFound(const QVariantMap &row)
{
    return row.value(QStringLiteral("found")).toBool();
}

QString sourceText(const QVariantMap &row)
{
    const QString title = sourceTitle(row);
    const int entries = row.value(QStringLiteral("entries")).toInt();
    if (entries == 1)
        return filled(localized("%@ (1 entry)"), {title});
    return entries < 0 ? title
                       : filled(localized("%@ (%@ entries)"), {title, QLocale().toString(entries)});
}

/// The one that is chosen where it is there, else the one that holds most.
QVariantMap best(const QVariantList &rows)
{
    QVariantMap best;
    for (const QVariant &each : rows) {
        QVariantMap row = each.toMap();
        if (row.value(QStringLiteral("chosen")).toBool() && isFound(row))
            return row;
        const QString entries = QStringLiteral("entries");
        if (isFound(row) &&
            (best.isEmpty() || row.value(entries).toInt() > best.value(entries).toInt()))
            best = row;
    }
    return best;
}

} // namespace

FirstStartDialog::FirstStartDialog(HelperConnection &helper, QWidget *parent)
    : QDialog(parent)
    , m_kinds(new QVBoxLayout)
{
    setWindowTitle(localized("Welcome to Caravel"));
    auto *what = Words::label(localized(
        "Caravel copies what you select in the next window to the PSP's Memory Stick, and "
        "removes there, from the folders of music, photos and movies, what is not selected "
        "any more. Files that it did not place itself are first copied to this computer, "
        "and your media on this computer are only read."));
    QLabel *welcome = Words::label(windowTitle());
    welcome->setFont(Words::heading(font()));
    QLabel *where = Words::label(localized("Where are your media?"));
    where->setFont(Words::bold(font()));
    // The toolkit's own texts are not installed everywhere.
    auto *buttons = new QDialogButtonBox;
    QPushButton *begin = buttons->addButton(localized("Begin"), QDialogButtonBox::AcceptRole);
    begin->setDefault(true);
    begin->setAccessibleDescription(localized("Takes these sources and shows their lists."));
    buttons->addButton(localized("Cancel"), QDialogButtonBox::RejectRole)
        ->setAccessibleDescription(localized("Changes nothing."));
    auto *inside = new QWidget;
    inside->setLayout(m_kinds);
    auto *scroll = new QScrollArea;
    scroll->setWidget(inside);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(column->spacing() * 3 / 2);
    column->addWidget(welcome);
    column->addWidget(what);
    column->addWidget(where);
    column->addWidget(scroll, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &FirstStartDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(Words::dialogSize(*this));
    helper.ask(Protocol::sources, {}, this,
               [this](const QVariant &value) { showSources(value.toList()); });
}

bool FirstStartDialog::isNeeded()
{
    return !Settings::lastSync() && std::ranges::none_of(allKinds(), [](const Kind &kind) {
        return Settings::selection(kind.saveName.toString()).has_value();
    });
}

void FirstStartDialog::showSources(const QVariantList &rows)
{
    for (const KindSource &each : kindSources) {
        QVariantList ofKind;
        std::ranges::copy_if(rows, std::back_inserter(ofKind), [&](const QVariant &row) {
            return Rows::text(row.toMap(), u"kind") == each.kind;
        });
        addKind(each.kind.toString(), ofKind);
        if (!m_choices.isEmpty())
            m_choices.last().setting = each.setting.toString();
    }
    m_kinds->addStretch();
}

void FirstStartDialog::addKind(const QString &kind, const QVariantList &rows)
{
    const Kind *known = kindOf(kind);
    auto *box = new QGroupBox(known ? known->title() : kind);
    auto *column = new QVBoxLayout(box);
    auto *group = new QButtonGroup(box);
    const QVariantMap chosen = best(rows);
    QStringList missing;
    for (const QVariant &each : rows) {
        const QVariantMap row = each.toMap();
        if (!isFound(row)) {
            missing.append(sourceTitle(row));
            continue;
        }
        auto *button = new QRadioButton(sourceText(row).replace(u'&', QStringLiteral("&&")));
        const QString place = Rows::line(Rows::text(row, u"place"));
        button->setToolTip(place.toHtmlEscaped());
        button->setAccessibleDescription(place);
        button->setChecked(row == chosen);
        group->addButton(button, row.value(QStringLiteral("value")).toInt());
        column->addWidget(button);
    }
    if (!missing.isEmpty())
        column->addWidget(
            Words::label(filled(localized("Not found: %@"), {missing.join(QStringLiteral(", "))})));
    m_kinds->addWidget(box);
    m_choices.append(Choice{{}, group});
}

void FirstStartDialog::accept()
{
    for (const Choice &choice : std::as_const(m_choices)) {
        if (choice.sources->checkedId() >= 0)
            Preferences::setLater(choice.setting, static_cast<qint64>(choice.sources->checkedId()),
                                  parent(), [](bool) {});
    }
    QDialog::accept();
}
