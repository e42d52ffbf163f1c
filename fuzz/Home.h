#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// For the fuzzers, one per process: a home in $TMPDIR, so that a reader of files meets the input
/// in the place where it looks. No program of the user's is heard or called, and nothing is logged.
class Home
{
public:
    static Home &instance()
    {
        static Home home;
        return home;
    }

    QString path() const { return m_folder.path() + QStringLiteral("/home"); }
    QString operator/(const QString &relative) const { return path() + u'/' + relative; }

    /// Puts the input in the place of the file at the path below the home, and gives its full path.
    QString write(const QString &relative, const QByteArray &contents) const
    {
        const QString full = *this / relative;
        QDir().mkpath(full.section(u'/', 0, -2));
        QFile file(full);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(contents) != contents.size()) {
            std::fprintf(stderr, "can't write %s\n", qPrintable(full));
            std::abort();
        }
        return full;
    }

private:
    Home()
        : m_folder(QDir::tempPath() + QStringLiteral("/home-XXXXXX"))
    {
        QDir().mkpath(path());
        qputenv("HOME", path().toUtf8());
        for (const char *variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            qunsetenv(variable);
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }

    // libFuzzer leaves through exit(), where this goes too.
    QTemporaryDir m_folder;
};

inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// A promise of the code's; a broken one is a fault like any other.
inline void promise(bool kept, const char *what)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
