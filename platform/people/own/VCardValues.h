#pragma once

#include <QByteArrayList>
#include <QString>

#include <limits>

// libebook's own names; its headers stay in the .cpp files.
typedef struct _EVCardAttribute EVCardAttribute;
typedef struct _EVCardAttributeParam EVCardAttributeParam;

/// What libebook has read of one property: its values, its types and its rank among those of its
/// name.
class VCardValues
{
public:
    static constexpr int notPreferred = std::numeric_limits<int>::max();

    explicit VCardValues(EVCardAttribute *attribute);

    /// `type` in upper case.
    bool is(const char *type) const { return m_types.contains(type); }
    int rank() const { return m_rank; }               ///< the lower the more preferred
    const QByteArray &kind() const { return m_kind; } ///< of the value: "URI", "URL" or empty

    /// What an unescaped semicolon split is one text all the same.
    QByteArray bytes() const { return m_values.join(';'); }
    QString text() const { return QString::fromUtf8(bytes()).trimmed(); }
    QString component(qsizetype index) const
    {
        return QString::fromUtf8(m_values.value(index)).trimmed();
    }

private:
    void addParameter(EVCardAttributeParam *parameter);
    void addType(const QByteArray &type);
    void setRank(const QByteArray &value);

    QByteArrayList m_values;
    QByteArrayList m_types; // upper case
    QByteArray m_kind;
    int m_rank = notPreferred;
};
