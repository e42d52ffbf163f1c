#include "window/WindowPlace.h"

#include <QSettings>
#include <QWidget>

namespace {

const QString geometryKey = QStringLiteral("geometry");

QSettings places()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("caravel"),
                     QStringLiteral("window"));
}

} // namespace

void WindowPlace::store(const QWidget &window)
{
    places().setValue(geometryKey, window.saveGeometry());
}

void WindowPlace::restore(QWidget &window)
{
    const int letter = window.fontMetrics().averageCharWidth();
    window.resize(150 * letter, 110 * letter);
    window.restoreGeometry(places().value(geometryKey).toByteArray());
}
