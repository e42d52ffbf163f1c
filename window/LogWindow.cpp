#include "window/LogWindow.h"

LogWindow::LogWindow(HelperConnection *, QWidget *parent)
    : QWidget(parent, Qt::Window)
{
}
