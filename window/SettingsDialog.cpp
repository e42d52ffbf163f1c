#include "window/SettingsDialog.h"

SettingsDialog::SettingsDialog(HelperConnection *, QWidget *parent)
    : QDialog(parent)
{
}
