#pragma once

#include "platform/files/FileError.h"

#include <QByteArray>
#include <QDateTime>

#include <cstdint>
#include <string_view>
#include <variant>

/// One scalar of a list: a string (UTF-8, valid only during the call), a boolean, an integer (as an
/// unsigned one only above the signed range), a real, a date in UTC, or data.
using PropertyListScalar = std::variant<std::string_view, bool, std::int64_t, std::uint64_t, double,
                                        QDateTime, QByteArray>;

/// Receives a list piece by piece, in file order. Strings are UTF-8.
class PropertyListHandler
{
public:
    virtual ~PropertyListHandler() = default;

    /// The next value of the open dictionary stands under this key. False skips the value with
    /// everything in it: nothing of it is kept or reported.
    virtual bool key(std::string_view name) = 0;

    virtual void beginDictionary() = 0;
    virtual void endDictionary() = 0;
    virtual void beginArray() = 0;
    virtual void endArray() = 0;
    virtual void scalar(const PropertyListScalar &value) = 0;
};

/// Reads a list as a stream: memory stays flat whatever the file's size, as long as the handler
/// keeps little. XML is parsed as it is read; a binary list is read whole first. Any thread.
///
/// What the handler was told before an error was found in the file came from the part that was
/// well-formed. The error's operation is Read where the file is missing or can't be read, and Parse
/// where it is longer than `limit` bytes, a binary list that unfolds to more, or no property list;
/// the text of the last then begins with "line N: " where it is an XML text's.
FileResult<> readPropertyList(const QString &path, quint64 limit, PropertyListHandler &handler);
