#pragma once

#include <QString>

#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

/// What could not be done, with what, and why: the one way in which operations on files, and
/// readers of files, fail.
struct FileError
{
    enum class Operation {
        Copy,
        Create,
        Write,
        Read, ///< from the disk, which says nothing of what the file holds
        Move,
        Remove,
        FollowLink, ///< a link on the stick, which is never followed
        Parse,      ///< what was read is not what the file should hold
        Lock,
    };

    Operation operation = Operation::Read;
    QString path;   ///< absolute; of a folder's entry, the entry's
    int number = 0; ///< the system's (errno); 0 where it gave none
    QString text;   ///< the system's own words, or what is wrong with the contents; may be empty

    /// With the system's words for the number.
    static FileError of(Operation operation, const QString &path, int number);

    /// Whether there was nothing at the path.
    bool isMissing() const;

    /// What could not be done: "Couldn't create". English, as logs are.
    QString what() const;

    /// For logs: "Couldn't create: PATH (TEXT)", without the text where there is none.
    QString description() const;
};

/// A value, or why there is none. FileResult<> is for what has no value to give.
template <typename Value = std::monostate>
class [[nodiscard]] FileResult
{
public:
    FileResult() requires std::is_same_v<Value, std::monostate>
    = default;
    FileResult(Value value)
        : m_outcome(std::in_place_index<0>, std::move(value))
    {
    }
    FileResult(FileError error)
        : m_outcome(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_outcome.index() == 0; }

    /// Only where there is one.
    const Value &operator*() const & { return *std::get_if<0>(&m_outcome); }
    Value &operator*() & { return *std::get_if<0>(&m_outcome); }
    Value &&operator*() && { return std::move(*std::get_if<0>(&m_outcome)); }
    const Value *operator->() const { return std::get_if<0>(&m_outcome); }
    Value *operator->() { return std::get_if<0>(&m_outcome); }
    Value valueOr(Value other) const & { return *this ? **this : std::move(other); }
    Value valueOr(Value other) && { return *this ? std::move(**this) : std::move(other); }

    /// Only where there is no value.
    const FileError &error() const { return *std::get_if<1>(&m_outcome); }

private:
    std::variant<Value, FileError> m_outcome;
};
