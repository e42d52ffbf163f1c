#include "ProgramHarness.h"

#include "platform/bus/NamedConnection.h"
#include "platform/bus/RemoteObject.h"
#include "platform/lists/Bundle.h"

#include <QDir>

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
    QDir().mkpath(m_folder / QStringLiteral("home"));
    QDir().mkpath(m_folder / QStringLiteral("volumes"));
    m_helper.setProcessChannelMode(QProcess::MergedChannels);
}

ProgramHarness::~ProgramHarness()
{
    if (helperLives()) {
        m_helper.kill();
        m_helper.waitForFinished();
    }
}

QProcessEnvironment ProgramHarness::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_folder / QStringLiteral("home"));
    environment.insert(QStringLiteral("LC_ALL"), m_language);
    for (const char *name : {"CARAVEL_VOLUMES", "DISPLAY", "WAYLAND_DISPLAY", "LANGUAGE"})
        environment.remove(QString::fromLatin1(name));
    return environment;
}

void ProgramHarness::startHelper(bool onMounts)
{
    RemoteObject helper(helperBusName(), QStringLiteral("/CaravelHelper"),
                        QStringLiteral("org.caravel.CaravelHelperProtocol"));
    ASSERT_TRUE(waitFor([&] { return !helper.isAvailable(); })) << "an earlier helper has not gone";
    m_helper.setProcessEnvironment(environment());
    m_helper.start(QStringLiteral(CARAVEL_HELPER), onMounts ? QStringList() : volumesOption());
    ASSERT_TRUE(
        waitFor([&] { return helper.isAvailable() || m_helper.state() == QProcess::NotRunning; }));
    ASSERT_TRUE(helperLives()) << qPrintable(helperOutput());
}

QStringList ProgramHarness::volumesOption() const
{
    return {QStringLiteral("--volumes-folder"), m_folder / QStringLiteral("volumes")};
}

std::unique_ptr<QProcess> ProgramHarness::startAnotherHelper()
{
    return startProgram(QStringLiteral(CARAVEL_HELPER), volumesOption());
}

int ProgramHarness::stopHelper()
{
    m_helper.terminate();
    const bool gone = waitFor([this] { return m_helper.state() == QProcess::NotRunning; });
    return gone && m_helper.exitStatus() == QProcess::NormalExit ? m_helper.exitCode() : -1;
}

QString ProgramHarness::helperOutput()
{
    return QString::fromUtf8(m_helper.readAll());
}

std::unique_ptr<QProcess> ProgramHarness::start(const QStringList &arguments)
{
    return startProgram(QStringLiteral(CARAVEL_COMMAND), arguments);
}

std::unique_ptr<QProcess> ProgramHarness::startProgram(const QString &program,
                                                       const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment());
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(program, arguments);
    process->waitForStarted();
    return process;
}

ProgramHarness::Outcome ProgramHarness::caravel(const QStringList &arguments)
{
    const auto process = start(arguments);
    if (!waitFor([&] { return process->state() == QProcess::NotRunning; })) {
        process->kill();
        process->waitForFinished();
        return {-1, QStringLiteral("hangs: ") + QString::fromUtf8(process->readAll())};
    }
    return {process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1,
            QString::fromUtf8(process->readAll())};
}

QString ProgramHarness::stick(const QString &relative) const
{
    const QString path = m_folder / QStringLiteral("volumes/MEMORYSTICK");
    return relative.isEmpty() ? path : path + u'/' + relative;
}

void ProgramHarness::insertStick() const
{
    // Made whole before it is mounted.
    const QString aside = m_folder / QStringLiteral("stick");
    writeFile(aside + QStringLiteral("/MEMSTICK.IND"), {});
    writeFile(aside + QStringLiteral("/PSP/MUSIC/Old/stale.mp3"), "stale");
    writeFile(aside + QStringLiteral("/PSP/GAME/mine.pbp"), "mine");
    ASSERT_TRUE(QDir().rename(aside, stick()));
}

void ProgramHarness::insertUnformattedStick(const QString &name) const
{
    const QString aside = m_folder / QStringLiteral("unformatted");
    writeFile(aside + QStringLiteral("/MEMSTICK.IND"), {});
    ASSERT_TRUE(QDir().rename(aside, m_folder / QStringLiteral("volumes/") + name));
}

void ProgramHarness::refuseEject() const
{
    // The place that an ejected volume goes to is taken.
    QDir().mkpath(m_folder / QStringLiteral("volumes/.ejected/MEMORYSTICK"));
}

void ProgramHarness::addTrack(const QString &name, const QByteArray &contents)
{
    const int id = static_cast<int>(m_tracks.size()) + 1;
    const QString path = home(QStringLiteral("Music/%1.mp3").arg(id));
    writeFile(path, contents);
    m_library.addFile(id, path,
                      MusicLibraryFile::string("Name", name) +
                          MusicLibraryFile::string("Album", QStringLiteral("Record")));
    m_tracks.append(id);
}

void ProgramHarness::writeLibrary()
{
    m_library.addPlaylist(QStringLiteral("Road Trip"), m_tracks);
    writeFile(home(QStringLiteral("Music/iTunes/iTunes Music Library.xml")), m_library.contents());
}

QString ProgramHarness::log()
{
    return caravel({QStringLiteral("log")}).output;
}
