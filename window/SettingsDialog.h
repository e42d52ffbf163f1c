#pragma once

#include <QDialog>

class HelperConnection;
class QTabWidget;
class SettingEditor;

/// All settings that mean something here, on a page each for what they concern. A change holds at
/// once. Main thread.
class SettingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SettingsDialog(HelperConnection *helper, QWidget *parent = nullptr);

Q_SIGNALS:
    /// One has been changed here, and the helper told.
    void changed();

private:
    QWidget *makePage(const char *title);
    void refresh();
    void restoreDefaults();

    QTabWidget *m_pages;
    QList<SettingEditor *> m_editors;
};
