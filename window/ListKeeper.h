#pragma once

#include "window/HelperCalls.h"
#include "window/RowModel.h"

#include <QTimer>

#include <functional>
#include <optional>

/// Keeps a model as the helper's list of a kind is, and the helper's selection as the user makes
/// the model's. Rows are read in slices, so that a long list holds up nothing. Main thread.
class ListKeeper : public QObject
{
    Q_OBJECT
public:
    /// The model outlives it.
    ListKeeper(HelperCalls helper, const Protocol::List &list, RowModel *model,
               QObject *parent = nullptr);

    /// What is made of the helper's rows before they are shown.
    using Amend = std::function<QVariantList(QVariantList)>;
    void setAmendment(Amend amend);

    /// Asks for the rows. What the user changes meanwhile stays, and reaches the helper first.
    void reload();
    /// Shows the rows that were read last as the amendment now makes them.
    void amend();

    /// Whether the rows have been read once.
    bool isKnown() const { return m_given.has_value(); }

Q_SIGNALS:
    /// The rows have been read.
    void read();
    /// The rows can't be asked for.
    void failed();
    /// The helper did not take the selection as it was sent; the model shows what it has now.
    void notTaken();

private:
    void sendSelection();
    void answered(const QVariant &answer);
    void begin();
    void parseSlice();
    void finish();

    const HelperCalls m_helper;
    const Protocol::List &m_list;
    RowModel *const m_model;
    Amend m_amend;
    QTimer m_sending; // single shot, from a change to its sending
    QTimer m_slices;
    bool m_isAsking = false;
    bool m_isStale = false;              // what is under way is older than the model
    std::optional<QVariantList> m_given; // the helper's last answer
    std::optional<QStringList> m_sent;   // to be compared with the next answer
    QVariantList m_unparsed;
    QList<ListRow> m_rows;
};
