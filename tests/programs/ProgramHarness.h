#pragma once

#include "support/MusicLibraryFile.h"
#include "support/TestSupport.h"

#include <QProcess>

#include <memory>

/// The real helper and the real command on the test program's own session bus, in a folder with a
/// home and a folder of volumes of their own. No two at the same time: they would share the
/// helper's bus name.
class ProgramHarness
{
public:
    ProgramHarness();
    ~ProgramHarness();

    static QString helperBusName();
    /// A file of the helper's resources.
    static QString resource(const QString &name);

    /// An environment variable of the programs that are started from here on.
    void set(const QString &variable, const QString &value)
    {
        m_environment.insert(variable, value);
    }
    /// Starts the helper and waits until it is reached.
    void startHelper(const QStringList &options = {QStringLiteral("--volumes-folder"),
                                                   QStringLiteral("volumes")});
    /// Asks the helper to quit and returns its exit status; -1 when it crashed or never went.
    int stopHelper();
    bool helperLives() const { return m_helper.state() == QProcess::Running; }
    QProcess &helper() { return m_helper; }

    struct Outcome
    {
        int status = -1;
        QString output; ///< standard output and error
    };
    /// What bash makes of the command, in the folder: "home" is the home, a folder in "volumes" is
    /// a mounted stick, "MEMORYSTICK" is one that waits to be put there, programs in "bin" go
    /// before others, and $HELPER is the helper's process.
    Outcome shell(const QString &command);
    /// Starts it and leaves it running.
    std::unique_ptr<QProcess> start(const QString &command);

    QString path(const QString &relative) const { return m_folder / relative; }
    /// A file in the user's music with a track of it in the library; all are in "Road Trip".
    void addTrack(const QString &name, const QByteArray &contents);

private:
    TemporaryFolder m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_helper;
    MusicLibraryFile m_library;
    QList<int> m_tracks;
};
