#pragma once

#include <QDialog>

class HelperConnection;

/// All settings. Main thread.
class SettingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit SettingsDialog(HelperConnection *helper, QWidget *parent = nullptr);
};
