#pragma once

#include <QString>

/// Told of each new line of the log, with its time stamp and line feed, on the main thread.
class QMLoggerDelegate
{
public:
    virtual ~QMLoggerDelegate() = default;
    virtual void logChanged(const QString &line) = 0;
};

/// The log that the user sees: a growing text of lines "Nov 16 05:03:23 PM : message", kept in
/// memory until it is cleared. Written on the main thread.
class QMLogger
{
public:
    /// Not owned; must outlive the logger or be reset to nullptr.
    void setDelegate(QMLoggerDelegate *delegate) { m_delegate = delegate; }
    QMLoggerDelegate *delegate() const { return m_delegate; }

    QString log() const { return m_log; }

    /// Appends the message, verbatim, as one line and tells the delegate. With detailed logging on
    /// the message also goes to the system log.
    void log(const QString &message);

    /// The same with the first "%@" of the format replaced by the value.
    void log(const QString &format, const QString &value);

    /// Empties the log but for the line "Log was cleared.".
    void clear();

private:
    QString m_log;
    QMLoggerDelegate *m_delegate = nullptr;
};
