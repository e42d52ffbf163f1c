#include "platform/lists/Bundle.h"

#include "platform/lists/PropertyList.h"

#include <QDir>
#include <QFile>

namespace {

FileResult<QVariantMap> infoOf(const QString &bundle)
{
    return PropertyList::readDictionary(bundle + QStringLiteral("/Contents/Info.plist"));
}

QString ownExecutable()
{
    QString path = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    // The kernel adds this once an upgrade has put another file in the executable's place.
    const QString replaced = QStringLiteral(" (deleted)");
    if (path.endsWith(replaced) && !QFile::exists(path))
        path.chop(replaced.size());
    return path;
}

} // namespace

Bundle::Bundle(QString path)
    : m_path(QDir::cleanPath(QDir().absoluteFilePath(path)))
{
}

Bundle Bundle::main()
{
    static const QString path = ownExecutable() + QStringLiteral("/../../..");
    return Bundle(path);
}

bool Bundle::exists() const
{
    return bool(infoOf(m_path));
}

QString Bundle::resourcePath() const
{
    return m_path + QStringLiteral("/Contents/Resources");
}

QString Bundle::infoString(const QString &key) const
{
    const QVariant value = infoOf(m_path).valueOr({}).value(key);
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toString();
    default:
        return {};
    }
}

QString Bundle::version() const
{
    return infoString(QStringLiteral("CFBundleVersion"));
}

QString Bundle::versionLine(const QString &program) const
{
    return QStringLiteral("%1 %2 (build %3)")
        .arg(program, infoString(QStringLiteral("CFBundleShortVersionString")), version());
}

QString Bundle::executable() const
{
    const QString name = infoString(QStringLiteral("CFBundleExecutable"));
    const bool isName = !name.isEmpty() && !name.contains(u'/') && name != u"." && name != u"..";
    return isName ? m_path + QStringLiteral("/Contents/bin/") + name : QString();
}
