#include "DropboxHome.h"

#include "platform/MainThread.h"
#include "util/Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

void execute(const QString &program, const QStringList &arguments)
{
    if (QProcess::execute(program, arguments) != 0)
        qFatal("%s failed", qPrintable(program));
}

} // namespace

DropboxHome::DropboxHome(const Shape &shape)
    : m_shape(shape)
    , m_defaults(QStringLiteral("org.caravel.Caravel"), m_folder / QStringLiteral("preferences"))
{
    qputenv("HOME", (m_folder / QStringLiteral("home")).toUtf8());
    UserDefaults::setStandard(&m_defaults);
    m_defaults.registerDefaults(Preferences::registeredDefaults());
    m_defaults.setObject(QStringLiteral("syncOnMount"), false);
    m_defaults.setObject(QStringLiteral("firmwareVersion"), 0);
    fill(shape);
    QDir().mkpath(volume());
    if (shape.image > 0)
        mountImage(shape.image);
    emptyStick();
    m_helper = std::make_unique<CaravelHelperController>(CaravelHelperController::Services{
        m_volumes, m_notifications, m_clock, m_statusBar, m_alerts, m_sounds,
        Bundle(m_folder / QStringLiteral("Caravel/Contents/Helpers/CaravelHelper"))});
    m_volumes.mount(volume());
}

DropboxHome::~DropboxHome()
{
    settle();
    m_helper.reset();
    UserDefaults::setStandard(nullptr);
    if (m_shape.image > 0)
        execute(QStringLiteral("umount"), {volume()});
}

void DropboxHome::fill(const Shape &shape) const
{
    for (int i = 0; i < shape.files; ++i) {
        const QString folder =
            sources() + QStringLiteral("/Some Album %1").arg(i / shape.perFolder);
        if (i % shape.perFolder == 0)
            QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/105. A Song %1.mp3").arg(i));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(QByteArray(shape.bytes, static_cast<char>(i))) != shape.bytes)
            qFatal("can't write %s", qPrintable(file.fileName()));
    }
}

void DropboxHome::mountImage(qint64 bytes) const
{
    const QString image = m_folder / QStringLiteral("image");
    QFile file(image);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(bytes))
        qFatal("can't write %s", qPrintable(image));
    file.close();
    execute(QStringLiteral("mkfs.ext4"), {QStringLiteral("-q"), QStringLiteral("-F"), image});
    execute(QStringLiteral("mount"),
            {QStringLiteral("-o"), QStringLiteral("loop"), image, volume()});
}

void DropboxHome::emptyStick() const
{
    QDir(volume() + QStringLiteral("/PSP")).removeRecursively();
    QDir(volume() + QStringLiteral("/.caravel")).removeRecursively();
    QDir().mkpath(music());
    if (!QFile(volume() + QStringLiteral("/MEMSTICK.IND")).open(QIODevice::WriteOnly))
        qFatal("can't write the stick");
}

void DropboxHome::select(bool everything)
{
    m_defaults.setObject(QStringLiteral("syncDropboxes"), everything);
}

void DropboxHome::sync()
{
    m_sounds.played.clear();
    m_helper->syncManager().sync();
    while (m_sounds.played.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (m_helper->status().statusText() == u"Sync Cancelled")
            qFatal("the run did not complete");
    }
}

void DropboxHome::settle() const
{
    if (!Workers::serveUntilFinished(std::chrono::minutes(1)))
        qFatal("the estimate does not end");
}
