#include "ProgramHarness.h"

#include "platform/bus/NamedConnection.h"
#include "platform/bus/RemoteObject.h"
#include "platform/lists/Bundle.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

Bundle helperBundle()
{
    return Bundle(QDir::cleanPath(QStringLiteral(CARAVEL_HELPER "/../../..")));
}

} // namespace

QString ProgramHarness::helperBusName()
{
    return NamedConnection::busName(QStringLiteral("CaravelHelper ") + helperBundle().version());
}

QString ProgramHarness::resource(const QString &name)
{
    return helperBundle().resourcePath() + u'/' + name;
}

ProgramHarness::ProgramHarness()
{
    for (const char *name : {"home", "volumes", "bin"})
        QDir().mkpath(m_folder / QString::fromLatin1(name));
    writeFile(m_folder / QStringLiteral("MEMORYSTICK/MEMSTICK.IND"), {});
    writeFile(m_folder / QStringLiteral("MEMORYSTICK/PSP/MUSIC/Old/stale.mp3"), "stale");
    writeFile(m_folder / QStringLiteral("MEMORYSTICK/PSP/GAME/mine.pbp"), "mine");
    for (const char *name : {"CARAVEL_VOLUMES", "DISPLAY", "WAYLAND_DISPLAY", "LANGUAGE"})
        m_environment.remove(QString::fromLatin1(name));
    set(QStringLiteral("HOME"), m_folder / QStringLiteral("home"));
    set(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    set(QStringLiteral("PULSE_SERVER"), QStringLiteral("/nowhere"));
    set(QStringLiteral("RESOURCES"), helperBundle().resourcePath());
    set(QStringLiteral("PATH"), (m_folder / QStringLiteral("bin:")) +
                                    QFileInfo(QStringLiteral(CARAVEL_COMMAND)).path() + u':' +
                                    QFileInfo(QStringLiteral(CARAVEL_HELPER)).path() + u':' +
                                    m_environment.value(QStringLiteral("PATH")));
    m_helper.setProcessChannelMode(QProcess::MergedChannels);
}

ProgramHarness::~ProgramHarness()
{
    if (helperLives()) {
        m_helper.kill();
        m_helper.waitForFinished();
    }
}

void ProgramHarness::startHelper(const QStringList &options)
{
    RemoteObject helper(helperBusName(), {}, {});
    const auto ended = [this] {
        return m_helper.state() == QProcess::NotRunning;
    };
    ASSERT_TRUE(waitFor([&] { return ended() && !helper.isAvailable(); })) << "one is there";
    m_helper.setProcessEnvironment(m_environment);
    m_helper.setWorkingDirectory(m_folder.path());
    m_helper.start(QStringLiteral(CARAVEL_HELPER), options);
    ASSERT_TRUE(waitFor([&] { return helper.isAvailable() || ended(); }));
    ASSERT_TRUE(helperLives()) << m_helper.readAll().constData();
    set(QStringLiteral("HELPER"), QString::number(m_helper.processId()));
}

int ProgramHarness::stopHelper()
{
    m_helper.terminate();
    const bool gone = waitFor([this] { return m_helper.state() == QProcess::NotRunning; });
    return gone && m_helper.exitStatus() == QProcess::NormalExit ? m_helper.exitCode() : -1;
}

std::unique_ptr<QProcess> ProgramHarness::start(const QString &command)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setWorkingDirectory(m_folder.path());
    process->start(QStringLiteral("bash"), {QStringLiteral("-o"), QStringLiteral("pipefail"),
                                            QStringLiteral("-c"), command});
    process->waitForStarted();
    return process;
}

ProgramHarness::Outcome ProgramHarness::shell(const QString &command)
{
    const auto process = start(command);
    if (!waitFor([&] { return process->state() == QProcess::NotRunning; })) {
        process->kill();
        process->waitForFinished();
        return {-1, QStringLiteral("hangs: ") + QString::fromUtf8(process->readAll())};
    }
    return {process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1,
            QString::fromUtf8(process->readAll())};
}

void ProgramHarness::addTrack(const QString &name, const QByteArray &contents)
{
    m_tracks.append(static_cast<int>(m_tracks.size()) + 1);
    const QString file = path(QStringLiteral("home/Music/%1.mp3").arg(m_tracks.size()));
    writeFile(file, contents);
    m_library.addFile(m_tracks.last(), file,
                      MusicLibraryFile::string("Name", name) +
                          MusicLibraryFile::string("Album", QStringLiteral("Record")));
    MusicLibraryFile whole = m_library;
    whole.addPlaylist(QStringLiteral("Road Trip"), m_tracks);
    whole.addPlaylist(QStringLiteral("Quiet"), m_tracks.mid(1));
    writeFile(path(QStringLiteral("home/Music/iTunes/iTunes Music Library.xml")), whole.contents());
}
