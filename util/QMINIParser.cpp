#include "util/QMINIParser.h"

#include "util/StringTools.h"
#include "util/TextFile.h"

#include <QStringBuilder>
#include <QStringTokenizer>

FileResult<QHash<QString, QString>> QMINIParser::parseINI(const QString &path)
{
    const FileResult<QString> text = TextFile::read(path);
    if (!text)
        return text.error();
    QHash<QString, QString> values;
    QStringView section;
    for (const QStringView line : qTokenize(*text, u'\n')) {
        if (StringTools::isLike(line, u"\\[*\\]")) {
            section = line.mid(1).chopped(1);
        } else if (const qsizetype equals = line.indexOf(u'='); equals >= 0) {
            const QString name = section % u'-' % line.left(equals);
            values.insert(name, line.mid(equals + 1).toString());
        }
    }
    return values;
}
