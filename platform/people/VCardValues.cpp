#include "platform/people/own/VCardValues.h"

#include <libebook-contacts/libebook-contacts.h>

VCardValues::VCardValues(EVCardAttribute *attribute)
{
    for (GList *each = e_vcard_attribute_get_values_decoded(attribute); each; each = each->next) {
        const auto *value = static_cast<const GString *>(each->data);
        m_values.append(QByteArray(value->str, static_cast<qsizetype>(value->len)));
    }
    for (GList *each = e_vcard_attribute_get_params(attribute); each; each = each->next)
        addParameter(static_cast<EVCardAttributeParam *>(each->data));
}

void VCardValues::addParameter(EVCardAttributeParam *parameter)
{
    const QByteArray name = QByteArray(e_vcard_attribute_param_get_name(parameter)).toUpper();
    GList *each = e_vcard_attribute_param_get_values(parameter);
    if (!each)
        addType(name);
    for (; each; each = each->next) {
        const QByteArray value = QByteArray(static_cast<const char *>(each->data)).toUpper();
        if (name == "PREF")
            setRank(value);
        else if (name == "VALUE")
            m_kind = value;
        else if (name == "TYPE")
            for (const QByteArray &type : value.split(','))
                addType(type.trimmed());
    }
}

void VCardValues::addType(const QByteArray &type)
{
    m_types.append(type);
    if (type == "PREF")
        m_rank = 0;
}

void VCardValues::setRank(const QByteArray &value)
{
    bool isNumber = false;
    const int rank = value.toInt(&isNumber);
    if (isNumber)
        m_rank = rank;
}
