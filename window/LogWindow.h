#pragma once

#include "window/LogModel.h"

#include <QTimer>
#include <QWidget>

class HelperConnection;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeView;

/// The helper's log in a window of its own. Main thread.
class LogWindow : public QWidget
{
    Q_OBJECT
public:
    explicit LogWindow(HelperConnection *helper, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeTop();
    QWidget *makeBottom();
    void makeView();
    void reload();
    void takeSlice();
    void add(const QStringList &lines);
    void search(bool backwards, int offset);
    void copy() const;
    void clear();

    HelperConnection *const m_helper;
    LogModel m_model;
    QString m_unread; ///< what is left of the helper's log while it is taken in
    qsizetype m_readTo = 0;
    QStringList m_new; ///< lines that have come meanwhile
    bool m_isReading = false;
    QTimer m_slices;
    QLineEdit *m_search;
    QLabel *m_found;
    QTreeView *m_view;
    QCheckBox *m_follow;
};
