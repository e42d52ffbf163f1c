#include "util/TextFile.h"

#include "platform/files/FileManager.h"
#include "util/Log.h"

#include <QStringDecoder>

#include <cerrno>

namespace {

QString decoded(const QByteArray &bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8),
                           QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() && !marked ? QString::fromLatin1(bytes) : text;
}

} // namespace

FileResult<QString> TextFile::read(const QString &path, quint64 limit)
{
    const auto bytes = files().readFile(path, limit);
    if (bytes)
        return decoded(*bytes);
    if (bytes.error().number == EFBIG)
        qCWarning(lcUtil).noquote()
            << "Can't read" << path << "which is longer than" << limit << "bytes";
    else if (!bytes.error().isMissing())
        qCWarning(lcUtil).noquote() << "Can't read" << path;
    return bytes.error();
}
