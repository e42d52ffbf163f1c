#pragma once

#include "window/FileGroups.h"

#include <QDialog>

class HelperConnection;
class QLabel;

/// How the last sync ended, what it left out and what it kept. Read once. Main thread.
class ReportDialog : public QDialog
{
    Q_OBJECT
public:
    /// The connection outlives it.
    explicit ReportDialog(HelperConnection &helper, QWidget *parent = nullptr);

private:
    void showSummary(const QVariantMap &summary);
    void readPage(uint first);
    void take(const QVariantList &rows);

    HelperConnection &m_helper;
    FileGroups m_files;
    QLabel *m_outcome;
    QLabel *m_when;
    QLabel *m_kept;
};
