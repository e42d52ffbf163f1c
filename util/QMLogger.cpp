#include "util/QMLogger.h"

#include "platform/core/MainThread.h"
#include "util/Log.h"
#include "util/Settings.h"
#include "util/TextFormat.h"

#include <QDateTime>
#include <QLocale>

namespace {

// Month names and day halves are English in every locale, so that logs can be compared.
QString timeStamp()
{
    return QLocale::c().toString(QDateTime::currentDateTime(),
                                 QStringLiteral("MMM dd hh:mm:ss AP"));
}

} // namespace

void QMLogger::log(const QString &message)
{
    if (Settings::useDetailedLogging())
        qCInfo(lcUtil).noquote() << message;
    const QString line = timeStamp() + QStringLiteral(" : ") + message + u'\n';
    m_log += line;
    if (m_delegate)
        performOnMainThread(
            nullptr, [this, line] { m_delegate->logChanged(line); }, CallMode::Wait);
}

void QMLogger::log(const QString &format, const QString &value)
{
    log(filled(format, {value}));
}

void QMLogger::clear()
{
    m_log.clear();
    log(QStringLiteral("Log was cleared."));
}
