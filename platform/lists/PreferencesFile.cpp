#include "platform/lists/own/PreferencesFile.h"

#include "platform/lists/PropertyList.h"

namespace {

const QString asideSuffix = QStringLiteral(".unreadable");

bool makeFolder(const QString &path)
{
    if (files().status(path).isFolder())
        return true;
    const QString parent = path.left(path.lastIndexOf(u'/'));
    if (parent.isEmpty() || !makeFolder(parent))
        return false;
    // Another process may have been faster.
    return files().createFolder(path) || files().status(path).isFolder();
}

} // namespace

PreferencesFile::PreferencesFile(const QString &folder, const QString &domain)
    : m_folder(folder)
    , m_path(folder + u'/' + domain + QStringLiteral(".plist"))
    , m_lockPath(folder + QStringLiteral("/.") + domain + QStringLiteral(".lock"))
{
}

PreferencesContents PreferencesFile::read() const
{
    using State = PreferencesContents::State;
    const FileResult<QVariantMap> values = PropertyList::readDictionary(m_path);
    if (values)
        return {State::Read, *values};
    const FileError &error = values.error();
    if (error.isMissing())
        return {State::Absent, {}, error};
    const bool isDamaged = error.operation == FileError::Operation::Parse;
    return {isDamaged ? State::Damaged : State::NoAccess, {}, error};
}

FileResult<FileLock> PreferencesFile::lock(std::chrono::milliseconds limit) const
{
    using Operation = FileError::Operation;
    if (!makeFolder(m_folder))
        return FileError{Operation::Create, m_folder, 0, QStringLiteral("can't create the folder")};
    return files().lock(m_lockPath, limit);
}

FileResult<> PreferencesFile::write(const QVariantMap &values) const
{
    return PropertyList::writeAtomically(values, m_path);
}

std::optional<QString> PreferencesFile::setAside() const
{
    QString aside = m_path + asideSuffix;
    for (int number = 2; files().linkStatus(aside).exists(); ++number)
        aside = m_path + asideSuffix + u'.' + QString::number(number);
    return files().move(m_path, aside, nullptr) ? std::optional(aside) : std::nullopt;
}

bool PreferencesFile::wasSetAside() const
{
    return files().linkStatus(m_path + asideSuffix).exists();
}
