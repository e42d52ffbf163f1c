#pragma once

#include "platform/lists/PropertyListReader.h"

#include <functional>
#include <utility>
#include <vector>

/// Reads the known parts of a large list, and passes over all else: its reader says which places
/// the list has and what happens there. A value of another kind than its place's is passed over
/// with everything in it.
class PropertyListOutline : private PropertyListHandler
{
public:
    /// A place where values may stand, with everything below it. What is called there is called in
    /// file order, on the reading thread.
    class Place
    {
    public:
        using Keys = std::vector<std::pair<std::string_view, Place>>;
        using Called = std::function<void()>;

        /// A dictionary with these keys; all others are skipped. `begin` is called before what is
        /// in it.
        static Place dictionary(Keys keys, Called begin = {});
        /// A dictionary of one kind of entry under keys of the list's own; only the values of those
        /// that are wanted are read.
        static Place table(Place entry, std::function<bool(std::string_view key)> wants);
        static Place array(Place entry);
        /// Any scalar.
        static Place scalar(std::function<void(const PropertyListScalar &)> take);
        /// A scalar of one type; one of another is passed over.
        template <typename Type, typename Take>
        static Place value(Take take)
        {
            return scalar([take](const PropertyListScalar &scalar) {
                if (const Type *value = std::get_if<Type>(&scalar))
                    take(*value);
            });
        }
        /// Whatever stands there is skipped; that it is there is what counts.
        static Place presence(Called seen);

    private:
        friend class PropertyListOutline;
        enum class Kind { Dictionary, Array, Scalar, Presence };

        explicit Place(Kind kind)
            : m_kind(kind)
        {
        }
        const Place *under(std::string_view key) const;

        Kind m_kind;
        Keys m_keys;
        std::vector<Place> m_entry; // at most one: of a table or an array
        std::function<bool(std::string_view)> m_wants;
        std::function<void(const PropertyListScalar &)> m_take;
        Called m_begin;
    };

    /// The root of a list is a dictionary or a table.
    explicit PropertyListOutline(Place root)
        : m_root(std::move(root))
    {
    }
    PropertyListOutline(const PropertyListOutline &) = delete;
    PropertyListOutline &operator=(const PropertyListOutline &) = delete;

    /// Reads a list, once. Errors are those of readPropertyList(), and Parse where the root is no
    /// dictionary.
    FileResult<> read(const QString &path, quint64 limit);

private:
    bool key(std::string_view name) override;
    void beginDictionary() override { begin(Place::Kind::Dictionary); }
    void endDictionary() override { m_open.pop_back(); }
    void beginArray() override { begin(Place::Kind::Array); }
    void endArray() override { m_open.pop_back(); }
    void scalar(const PropertyListScalar &value) override;

    const Place *placeOfValue() const;
    void begin(Place::Kind kind);

    const Place m_root;
    std::vector<const Place *> m_open;      // null for one that is passed over
    const Place *m_placeUnderKey = nullptr; // of the key read last
    bool m_rootFits = false;
};
