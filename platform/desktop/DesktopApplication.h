#pragma once

#include <QCoreApplication>

#include <memory>

/// The application object of a program that lives in the desktop's tray: on the desktop's display,
/// or without one where none can be reached. It goes on when its last window is closed, and keeps
/// out of the desktop's record of what to start again. First of all, on the main thread.
std::unique_ptr<QCoreApplication> makeDesktopApplication(int &argc, char **argv);
