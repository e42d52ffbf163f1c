#pragma once

#include <QJsonObject>
#include <QString>

/// What the command line writes: lines in the locale's encoding, flushed at once, with blanks in
/// the place of control characters other than line feeds.
namespace Output {

/// A line on the standard output.
void print(const QString &line);

/// "caravel: <text>" on the standard error.
void error(const QString &text);

/// A line on the standard error.
void printError(const QString &line);

/// Text as it stands, without a line feed of its own, such as the control sequences of a progress
/// display.
void raw(const QString &text);

/// A JSON document on one line, control characters as their escapes: what is read from it is exact.
void json(const QJsonObject &object);
void json(const QJsonArray &array);

bool isTerminal();
/// Columns of the terminal on the standard output; 80 where it doesn't tell.
int terminalWidth();

/// The text on one line without control characters, so that no file's name can steer a terminal.
QString printable(QString text);

/// Columns that the text takes on a terminal.
int columns(const QString &text);

/// "yes" or "no".
QString yesNo(bool value);

} // namespace Output
