#pragma once

#include <QTreeView>

/// Shows a RowFilter: the space bar checks or unchecks all that is selected, and what is at its top
/// stays there when the rows are read anew. Main thread.
class RowView : public QTreeView
{
    Q_OBJECT
public:
    explicit RowView(QWidget *parent = nullptr);

    /// To be called once, after setModel() is not to be called any more.
    void show(QAbstractItemModel *model);
    /// Makes the columns as wide as what is in sight of them, until the user has done it.
    void fitColumns();
    /// Rows of the model's source that are selected, in the order in which they are shown.
    QList<int> selectedRows() const;
    void keepTop();
    void restoreTop();

Q_SIGNALS:
    void toggleWanted();
    void removalWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPersistentModelIndex m_top;
    bool m_isFitting = false;
    bool m_isTouched = false; // the user has made columns wider or narrower
};
