#pragma once

#include "support/MusicLibraryFile.h"
#include "support/TestSupport.h"

#include <QProcess>

#include <memory>

/// The real helper and the real command on the test program's own session bus, with a home and a
/// folder of volumes of their own. No two at the same time: they would share the helper's bus name.
class ProgramHarness
{
public:
    ProgramHarness();
    ~ProgramHarness();

    static QString helperBusName();
    /// A file of the helper's resources.
    static QString resource(const QString &name);

    /// What LC_ALL says to the programs started from here on.
    void setLanguage(const QString &locale) { m_language = locale; }
    /// Starts the helper and waits until it is reached; on the folder of volumes unless `onMounts`.
    void startHelper(bool onMounts = false);
    /// Starts a second helper beside it, which is gone with the object.
    std::unique_ptr<QProcess> startAnotherHelper();
    /// Asks the helper to quit and returns its exit status; -1 when it crashed or never went.
    int stopHelper();
    bool helperLives() const { return m_helper.state() == QProcess::Running; }
    QProcess &helper() { return m_helper; }
    QString helperOutput();

    struct Outcome
    {
        int status = -1;
        QString output; ///< standard output and error
    };
    /// Runs `caravel` to its end.
    Outcome caravel(const QStringList &arguments);
    /// Starts `caravel` and leaves it running.
    std::unique_ptr<QProcess> start(const QStringList &arguments);

    QString home(const QString &relative) const
    {
        return m_folder / (QStringLiteral("home/") + relative);
    }
    QString stick(const QString &relative = {}) const;
    /// A stick as a PSP formats it, in the folder of volumes.
    void insertStick() const;
    /// A stick that no PSP has formatted.
    void insertUnformattedStick(const QString &name) const;
    /// Lets the next eject fail.
    void refuseEject() const;
    /// A file in the user's music with a track of it in the library; all tracks are in "Road Trip".
    void addTrack(const QString &name, const QByteArray &contents);
    void writeLibrary();
    QString log();

private:
    QProcessEnvironment environment() const;
    QStringList volumesOption() const;
    std::unique_ptr<QProcess> startProgram(const QString &program, const QStringList &arguments);

    TemporaryFolder m_folder;
    QString m_language = QStringLiteral("C.UTF-8");
    QProcess m_helper;
    MusicLibraryFile m_library;
    QList<int> m_tracks;
};
