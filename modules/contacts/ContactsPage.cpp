#include "modules/contacts/own/ContactsPage.h"

#include "util/TextFormat.h"

namespace {

const QString header = QStringLiteral(
    "<html><head><title>Caravel Contacts</title><style>body { font-family: Arial; }\n"
    ".name { font-size: 16px; }\n"
    ".label { font-size: 11px; font-weight: bold; width: 100px; color: gray; text-align: right; }\n"
    ".data { font-size: 11px; }\n"
    ".no-icon { border: 1px solid #eaeaea; width: 64px; height: 64px; margin-left: 35px; }\n"
    "div.card { width: 450px; margin: 10px; border: 1px solid #eaeaea; padding: 5px; }\n"
    "table.card { width: 100%; }</style></head><body><table width=\"100%\">");

const QString spacer = QStringLiteral("<tr><td colspan=\"2\"><br></td></tr>");

constexpr QStringView services[messagingServices] = {u"AIM", u"ICQ", u"Jabber", u"MSN", u"Yahoo"};

QString word(ContactLabel label)
{
    static constexpr QStringView words[] = {u"other", u"work",     u"home",     u"mobile",
                                            u"main",  u"home fax", u"work fax", u"pager"};
    return words[static_cast<size_t>(label)].toString();
}

/// Where a name is missing, other programs have written this.
QString shownName(const std::optional<QString> &name)
{
    return name == QStringLiteral("(null)") ? QString() : name.value_or(QString());
}

QString row(const QString &label, const QString &value)
{
    return filled(QStringLiteral("<tr><td class=\"label\">%@</td><td class=\"data\">%@</td></tr>"),
                  {label, value});
}

QString rows(const std::vector<Labelled<QString>> &entries)
{
    QString text = entries.empty() ? QString() : spacer;
    for (const Labelled<QString> &entry : entries)
        text += row(word(entry.label), entry.value);
    return text;
}

QString messagingRows(const Person &person)
{
    QString text;
    for (size_t service = 0; service < messagingServices; ++service) {
        for (const Labelled<QString> &entry : person.instantMessaging.at(service))
            text += row(word(entry.label),
                        entry.value + QStringLiteral(" (") + services[service].toString() + u')');
    }
    return text.isEmpty() ? text : spacer + text;
}

QString addressRows(const std::vector<Labelled<PostalAddress>> &addresses)
{
    QString text = addresses.empty() ? QString() : spacer;
    for (const auto &[label, address] : addresses) {
        const QString lines =
            filled(QStringLiteral("%@<br>%@ %@ %@<br>%@"),
                   {address.street, address.city, address.state, address.zip, address.country});
        text += filled(QStringLiteral("<tr><td class=\"label\" valign=\"top\">%@</td>"
                                      "<td class=\"data\">%@</td></tr>"),
                       {word(label), lines});
    }
    return text;
}

QString noteRow(const std::optional<QString> &note)
{
    if (!note)
        return {};
    return filled(QStringLiteral("<tr><td colspan=\"2\"><hr noshade></td></tr>"
                                 "<tr><td class=\"label\" valign=\"top\">Note:</td>"
                                 "<td class=\"data\">%@</td></tr>"),
                  {QString(*note).replace(u'\n', QStringLiteral("<br>"))});
}

QString cardHead(const Person &person, const QString &name, const QString &hash,
                 const QString &picture)
{
    const QString cell = picture.isEmpty() ? QStringLiteral("<div class=\"no-icon\"></div>")
                                           : filled(QStringLiteral("<img src=\"%@\">"), {picture});
    return filled(
        QStringLiteral("<a name=\"%@\" href=\"#\"></a><div class=\"card\"><table class=\"card\">"
                       "<tr><td class=\"label\" valign=\"top\">%@</td>"
                       "<td valign=\"top\" class=\"name\"><b>%@</b><br>"
                       "<span class=\"data\">%@</span></td></tr>"),
        {hash, cell, name, person.organization.value_or(QString())});
}

} // namespace

std::optional<QString> ContactsPage::displayName(const Person &person)
{
    const QString first = shownName(person.firstName);
    const QString last = shownName(person.lastName);
    if (first.isEmpty() && last.isEmpty())
        return person.organization;
    return first + u' ' + last;
}

void ContactsPage::add(const Person &person, const QString &displayName, const QString &hash,
                       const QString &picture)
{
    const QString phone = person.primaryPhone < person.phones.size()
                              ? person.phones[person.primaryPhone].value
                              : QString();
    m_index += filled(QStringLiteral("<tr><td><a href=\"#%@\">%@</a></td>"
                                     "<td align=\"right\">%@</td></tr>"),
                      {hash, displayName, phone});
    m_cards += cardHead(person, displayName, hash, picture) + rows(person.phones) +
               rows(person.emails) + messagingRows(person) + addressRows(person.addresses) +
               noteRow(person.note) + QStringLiteral("</table></div>");
}

QString ContactsPage::html() const
{
    return header + m_index + QStringLiteral("</table>") + m_cards +
           QStringLiteral("</body></html>");
}
