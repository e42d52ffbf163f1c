#include "platform/people/own/VCardPerson.h"

#include "platform/people/own/VCardValues.h"

#include <QUrl>

#include <libebook-contacts/libebook-contacts.h>

namespace {

bool isNamed(EVCardAttribute *attribute, const char *name)
{
    return g_ascii_strcasecmp(e_vcard_attribute_get_name(attribute), name) == 0;
}

ContactLabel phoneLabel(const VCardValues &property)
{
    if (property.is("FAX")) {
        if (property.is("HOME"))
            return ContactLabel::HomeFax;
        return property.is("WORK") ? ContactLabel::WorkFax : ContactLabel::Other;
    }
    if (property.is("PAGER"))
        return ContactLabel::Pager;
    if (property.is("CELL"))
        return ContactLabel::Mobile;
    if (property.is("MAIN"))
        return ContactLabel::Main;
    if (property.is("WORK"))
        return ContactLabel::Work;
    return property.is("HOME") ? ContactLabel::Home : ContactLabel::Other;
}

ContactLabel labelOf(const VCardValues &property)
{
    if (property.is("WORK"))
        return ContactLabel::Work;
    return property.is("HOME") ? ContactLabel::Home : ContactLabel::Other;
}

void setIfAny(std::optional<QString> &place, const QString &text)
{
    if (!place && !text.isEmpty())
        place = text;
}

QString withoutScheme(const QString &text, QStringView scheme)
{
    return text.startsWith(scheme, Qt::CaseInsensitive) ? text.mid(scheme.size()) : text;
}

/// Collects one card's properties in their order.
class PersonReader
{
public:
    void read(EVCardAttribute *attribute)
    {
        struct Reading
        {
            const char *name;
            void (PersonReader::*read)(const VCardValues &);
        };
        static constexpr Reading readings[] = {
            {EVC_UID, &PersonReader::readUid},
            {EVC_N, &PersonReader::readName},
            {EVC_FN, &PersonReader::readFormattedName},
            {EVC_ORG, &PersonReader::readOrganization},
            {EVC_TEL, &PersonReader::readPhone},
            {EVC_EMAIL, &PersonReader::readEmail},
            {EVC_X_AIM, &PersonReader::readMessaging<MessagingService::Aim>},
            {EVC_X_ICQ, &PersonReader::readMessaging<MessagingService::Icq>},
            {EVC_X_JABBER, &PersonReader::readMessaging<MessagingService::Jabber>},
            {EVC_X_MSN, &PersonReader::readMessaging<MessagingService::Msn>},
            {EVC_X_YAHOO, &PersonReader::readMessaging<MessagingService::Yahoo>},
            {"IMPP", &PersonReader::readMessagingUri},
            {EVC_ADR, &PersonReader::readAddress},
            {EVC_NOTE, &PersonReader::readNote},
            {EVC_PHOTO, &PersonReader::readPhoto},
            {"KIND", &PersonReader::readKind},
            {"X-ADDRESSBOOKSERVER-KIND", &PersonReader::readKind},
            {EVC_X_LIST, &PersonReader::readList},
        };
        for (const Reading &reading : readings) {
            if (isNamed(attribute, reading.name))
                (this->*reading.read)(VCardValues(attribute));
        }
    }

    std::optional<Person> finish()
    {
        if (m_isGroup)
            return std::nullopt;
        if (!m_person.firstName && !m_person.lastName)
            takeFormattedName();
        return std::move(m_person);
    }

private:
    void readUid(const VCardValues &property)
    {
        if (m_person.uid.isEmpty())
            m_person.uid = property.text();
    }

    void readName(const VCardValues &property)
    {
        setIfAny(m_person.lastName, property.component(0));
        setIfAny(m_person.firstName, property.component(1));
    }

    void readFormattedName(const VCardValues &property)
    {
        setIfAny(m_formattedName, property.text());
    }

    void readOrganization(const VCardValues &property)
    {
        setIfAny(m_person.organization, property.component(0));
    }

    void readPhone(const VCardValues &property)
    {
        const QString number = withoutScheme(property.text(), u"tel:");
        if (number.isEmpty())
            return;
        if (property.rank() < m_bestPhone) {
            m_bestPhone = property.rank();
            m_person.primaryPhone = m_person.phones.size();
        }
        m_person.phones.push_back({phoneLabel(property), number});
    }

    void readEmail(const VCardValues &property)
    {
        const QString address = withoutScheme(property.text(), u"mailto:");
        if (!address.isEmpty())
            m_person.emails.push_back({labelOf(property), address});
    }

    template <MessagingService service>
    void readMessaging(const VCardValues &property)
    {
        addMessaging(service, labelOf(property), property.text());
    }

    void readMessagingUri(const VCardValues &property)
    {
        static constexpr std::pair<QStringView, MessagingService> schemes[] = {
            {u"aim", MessagingService::Aim},     {u"icq", MessagingService::Icq},
            {u"xmpp", MessagingService::Jabber}, {u"jabber", MessagingService::Jabber},
            {u"msn", MessagingService::Msn},     {u"msnim", MessagingService::Msn},
            {u"yahoo", MessagingService::Yahoo}, {u"ymsgr", MessagingService::Yahoo},
        };
        const QString uri = property.text();
        for (const auto &[scheme, service] : schemes) {
            if (uri.section(u':', 0, 0).compare(scheme, Qt::CaseInsensitive) == 0)
                addMessaging(service, labelOf(property),
                             QUrl::fromPercentEncoding(uri.mid(scheme.size() + 1).toUtf8()));
        }
    }

    /// Many programs write the same name in both forms, so it counts once.
    void addMessaging(MessagingService service, ContactLabel label, const QString &name)
    {
        auto &names = m_person.instantMessaging.at(static_cast<size_t>(service));
        bool isKnown = name.isEmpty();
        for (const Labelled<QString> &known : names)
            isKnown = isKnown || known.value == name;
        if (!isKnown)
            names.push_back({label, name});
    }

    void readAddress(const VCardValues &property)
    {
        const PostalAddress address{property.component(2), property.component(3),
                                    property.component(4), property.component(5),
                                    property.component(6)};
        const QString all =
            address.street + address.city + address.state + address.zip + address.country;
        // Whoever lives where he works is at home first.
        const ContactLabel label = property.is("HOME") ? ContactLabel::Home : labelOf(property);
        if (!all.isEmpty())
            m_person.addresses.push_back({label, address});
    }

    void readNote(const VCardValues &property)
    {
        const QString note = QString::fromUtf8(property.bytes());
        if (!note.trimmed().isEmpty())
            setIfAny(m_person.note, note);
    }

    /// A picture on another machine is none: nothing is fetched.
    void readPhoto(const VCardValues &property)
    {
        PersonImage &image = m_person.image;
        if (!image.bytes.isEmpty() || !image.file.isEmpty())
            return;
        const QByteArray bytes = property.bytes();
        if (bytes.startsWith("data:"))
            image.bytes = dataOf(bytes);
        else if (bytes.startsWith("file:"))
            image.file = QUrl(QString::fromUtf8(bytes)).toLocalFile();
        else if (property.kind() != "URI" && property.kind() != "URL" &&
                 !bytes.startsWith("http:") && !bytes.startsWith("https:"))
            image.bytes = bytes;
    }

    /// "data:image/jpeg;base64,...".
    static QByteArray dataOf(const QByteArray &uri)
    {
        const qsizetype comma = uri.indexOf(',');
        if (comma < 0)
            return {};
        const QByteArray data = uri.mid(comma + 1);
        return uri.first(comma).toLower().endsWith(";base64")
                   ? QByteArray::fromBase64(QByteArray::fromPercentEncoding(data))
                   : QByteArray::fromPercentEncoding(data);
    }

    void readKind(const VCardValues &property)
    {
        m_isGroup = m_isGroup || property.text().compare(u"group", Qt::CaseInsensitive) == 0;
    }

    void readList(const VCardValues &property)
    {
        m_isGroup = m_isGroup || property.text().compare(u"true", Qt::CaseInsensitive) == 0;
    }

    /// A card may tell the name as one text only, as companies' do. Its last word is the last name.
    void takeFormattedName()
    {
        if (!m_formattedName || m_formattedName == m_person.organization)
            return;
        const qsizetype blank = m_formattedName->lastIndexOf(u' ');
        setIfAny(m_person.firstName, blank < 0 ? *m_formattedName : m_formattedName->first(blank));
        if (blank >= 0)
            setIfAny(m_person.lastName, m_formattedName->mid(blank + 1));
    }

    Person m_person;
    std::optional<QString> m_formattedName;
    int m_bestPhone = VCardValues::notPreferred;
    bool m_isGroup = false;
};

} // namespace

std::optional<Person> personOf(EVCard *card)
{
    PersonReader reader;
    for (GList *each = e_vcard_get_attributes(card); each; each = each->next)
        reader.read(static_cast<EVCardAttribute *>(each->data));
    return reader.finish();
}
