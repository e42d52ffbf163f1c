#include "platform/lists/PropertyListReader.h"

#include "platform/lists/own/PropertyListParts.h"

using namespace PropertyListParts;

QString PropertyListParts::tooDeepText()
{
    return QStringLiteral("nested deeper than %1").arg(depthLimit);
}

FileResult<> readPropertyList(const QString &path, quint64 limit, PropertyListHandler &handler)
{
    FileResult<OpenFile> open = OpenFile::forReading(path);
    if (!open)
        return open.error();
    ListFile file(std::move(*open));
    if (files().status(path).size > limit)
        return file.tooLong(limit);
    const QByteArray magic = QByteArrayLiteral("bplist0");
    const FileResult<QByteArray> start = file.start(magic.size());
    if (!start)
        return start.error();
    if (start->isEmpty())
        return file.damage(QStringLiteral("the file is empty"));
    return *start == magic ? readBinary(file, limit, handler) : readXml(file, limit, handler);
}
