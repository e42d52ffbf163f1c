#include "window/ListKeeper.h"

#include <QElapsedTimer>

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto quietTime = 200ms; // after the last change, before it is sent
constexpr auto longestSlice = 8ms;

QSet<QString> toSet(const QStringList &identifiers)
{
    return {identifiers.begin(), identifiers.end()};
}

} // namespace

ListKeeper::ListKeeper(HelperCalls helper, const Protocol::List &list, RowModel *model,
                       QObject *parent)
    : QObject(parent)
    , m_helper(std::move(helper))
    , m_list(list)
    , m_model(model)
{
    m_sending.setSingleShot(true);
    m_sending.setInterval(quietTime);
    connect(&m_sending, &QTimer::timeout, this, &ListKeeper::sendSelection);
    connect(&m_slices, &QTimer::timeout, this, &ListKeeper::parseSlice);
    connect(model, &RowModel::selectionEdited, this, [this] {
        m_isStale = m_isAsking || m_slices.isActive();
        m_sending.start();
    });
}

void ListKeeper::setAmendment(Amend amend)
{
    m_amend = std::move(amend);
}

void ListKeeper::reload()
{
    if (m_sending.isActive())
        return; // it is asked after the selection has been sent
    if (m_isAsking) {
        m_isStale = true;
        return;
    }
    m_isAsking = true;
    m_isStale = false;
    m_helper.ask(m_list.items, {}, this, [this](const QVariant &answer) { answered(answer); });
}

void ListKeeper::sendSelection()
{
    m_sent = m_model->checkedIdentifiers();
    m_helper.tell(m_list.select, {*m_sent});
    m_slices.stop();
    reload();
}

void ListKeeper::answered(const QVariant &answer)
{
    m_isAsking = false;
    if (m_sending.isActive())
        return;
    if (m_isStale) {
        reload();
        return;
    }
    if (!answer.isValid()) {
        Q_EMIT failed();
        return;
    }
    m_given = answer.toList();
    begin();
}

void ListKeeper::amend()
{
    if (m_given && !m_isAsking && !m_sending.isActive())
        begin();
}

void ListKeeper::begin()
{
    m_unparsed = m_amend ? m_amend(*m_given) : *m_given;
    m_rows.clear();
    m_rows.reserve(m_unparsed.size());
    m_slices.start(0ms);
}

// Taking the answer from the bus, each slice and showing the rows have a turn of the event loop
// each.
void ListKeeper::parseSlice()
{
    if (m_rows.size() == m_unparsed.size()) {
        finish();
        return;
    }
    QElapsedTimer since;
    since.start();
    while (m_rows.size() < m_unparsed.size() && since.elapsed() < longestSlice.count())
        m_rows.append(ListRows::fromMap(m_unparsed[m_rows.size()].toMap()));
}

void ListKeeper::finish()
{
    m_slices.stop();
    m_unparsed.clear();
    if (std::exchange(m_isStale, false))
        return; // the user was quicker
    QList<ListRow> rows = std::exchange(m_rows, {});
    ListRows::arrange(rows);
    m_model->setRows(rows);
    const auto sent = std::exchange(m_sent, std::nullopt);
    Q_EMIT read();
    if (sent && m_list.rowsTellSelection && toSet(*sent) != toSet(m_model->checkedIdentifiers()))
        Q_EMIT notTaken();
}
