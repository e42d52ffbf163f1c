#pragma once

#include "window/ListBody.h"

#include <QTimer>

class QPushButton;

/// The movies: those in the library, and those on their way there. Main thread.
class MoviesBody : public ListBody
{
    Q_OBJECT
public:
    explicit MoviesBody(HelperConnection *helper, QWidget *parent = nullptr);

    void addFiles(const QStringList &paths) override;

private:
    QWidget *makeButtons();
    void chooseFiles();
    void removeSelected();
    void remove(const QList<ListRow> &movies);
    void undo(const QList<ListRow> &movies);
    void putBack(const QStringList &folders, const QStringList &selected);
    void select(const QStringList &identifiers);
    void rename(const ListRow &row, const QString &title);
    void updateButtons();
    void askProgress();

    QPushButton *m_rename = nullptr;
    QPushButton *m_remove = nullptr;
    QTimer m_progress;
    QStringList m_toSelect; ///< identifiers of what was put back, once they are there again
};
