#include "cli/Output.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#include <cwchar>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// No name and no text of another process's is to steer a terminal.
QString harmless(QString text)
{
    for (QChar &c : text) {
        if (c != u'\n' && c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text;
}

// The library escapes the first 32 control characters alone.
QString escaped(const QJsonDocument &document)
{
    QString text = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    for (char16_t c = 0x7f; c <= 0x9f; ++c)
        text.replace(QChar(c), QStringLiteral("\\u%1").arg(ushort(c), 4, 16, QLatin1Char('0')));
    return text;
}

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void Output::print(const QString &line)
{
    write(stdout, harmless(line) + u'\n');
}

void Output::error(const QString &text)
{
    printError(QStringLiteral("caravel: ") + text);
}

void Output::printError(const QString &line)
{
    write(stderr, harmless(line) + u'\n');
}

void Output::raw(const QString &text)
{
    write(stdout, text);
}

void Output::json(const QJsonObject &object)
{
    print(escaped(QJsonDocument(object)));
}

void Output::json(const QJsonArray &array)
{
    print(escaped(QJsonDocument(array)));
}

bool Output::isTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1;
}

int Output::terminalWidth()
{
    winsize size = {};
    const bool known = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 80;
}

QString Output::printable(QString text)
{
    for (QChar &c : text) {
        if (c == u'\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return harmless(text);
}

int Output::columns(const QString &text)
{
    int width = 0;
    for (const char32_t c : text.toStdU32String()) {
        const int one = ::wcwidth(static_cast<wchar_t>(c));
        width += one < 0 ? 1 : one;
    }
    return width;
}

QString Output::yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}
