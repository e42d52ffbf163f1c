#pragma once

#include <QString>

#include <cstdint>
#include <string_view>

/// Why a list could not be read.
struct PropertyListError
{
    QString text; ///< empty: no error
    int line = 0; ///< of the XML text, counted from 1; 0 where lines have no meaning
    /// The file could not be read, which says nothing of what it holds.
    bool isOfDisk = false;

    explicit operator bool() const { return !text.isEmpty(); }

    /// For the log: "PATH:LINE: TEXT", without the line where there is none.
    QString in(const QString &path) const;
};

enum class PropertyListType { String, Integer, Real, Boolean, Date, Data };

/// One scalar of a list as its reader met it. The text is UTF-8 and valid only during the call; of
/// a boolean it is "true" or "false", of data the base64 text, of a date ISO 8601.
struct PropertyListScalar
{
    PropertyListType type;
    std::string_view text;

    /// The integer, or nothing useful (0) when the type is another or the text is no number that
    /// fits; `ok` tells.
    std::int64_t toInteger(bool *ok = nullptr) const;
    /// The same for what only an unsigned number holds.
    std::uint64_t toUnsigned(bool *ok = nullptr) const;
    /// The real, with "nan" and "infinity" as such; 0 where the type is another.
    double toReal() const;
};

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
/// well-formed. False with an empty error: no file is there. False with an error: the file can't be
/// read, is longer than `limit` bytes, or is no property list.
bool readPropertyList(const QString &path, quint64 limit, PropertyListHandler &handler,
                      PropertyListError *error);
