#include "platform/files/own/LateClosing.h"

#include "platform/core/MainThread.h"
#include "platform/files/own/MountInfo.h"

#include <QFile>

#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace {

constexpr int mostAtOnce = 16;

QString openPath(int descriptor)
{
    return QStringLiteral("/proc/self/fd/%1").arg(descriptor);
}

class Closings
{
public:
    void add(int descriptor)
    {
        {
            std::unique_lock lock(m_mutex);
            m_ended.wait(lock, [this] { return m_underWay < mostAtOnce; });
            ++m_underWay;
        }
        if (!Workers::start([this, descriptor] { close(descriptor); }))
            close(descriptor);
    }

    std::vector<FileError> finish()
    {
        std::unique_lock lock(m_mutex);
        m_ended.wait(lock, [this] { return m_underWay == 0; });
        return std::exchange(m_errors, {});
    }

private:
    void close(int descriptor)
    {
        const QString path = QFile::symLinkTarget(openPath(descriptor));
        const int error = ::close(descriptor) == 0 || errno == EINTR ? 0 : errno;
        const std::scoped_lock lock(m_mutex);
        if (error != 0)
            m_errors.push_back(FileError::of(FileError::Operation::Write, path, error));
        --m_underWay;
        m_ended.notify_all();
    }

    std::mutex m_mutex; // of all that follows
    std::condition_variable m_ended;
    int m_underWay = 0;
    std::vector<FileError> m_errors;
};

Closings &closings()
{
    static auto *all = new Closings; // never destroyed: workers may outlast the statics
    return *all;
}

} // namespace

bool LateClosing::isWorthwhile(int descriptor)
{
    struct statfs fileSystem;
    return ::fstatfs(descriptor, &fileSystem) == 0 && fileSystem.f_type == MSDOS_SUPER_MAGIC &&
           MountInfo::optionsOf(openPath(descriptor)).contains("flush");
}

void LateClosing::close(int descriptor)
{
    closings().add(descriptor);
}

std::vector<FileError> LateClosing::finish()
{
    return closings().finish();
}
