#pragma once

class QWidget;

/// Where a window stood when it was last closed, kept in the desktop's own place for such things.
/// Main thread.
namespace WindowPlace {

void store(const QWidget &window);
/// A fitting place where none is kept.
void restore(QWidget &window);

} // namespace WindowPlace
