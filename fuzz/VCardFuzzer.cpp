#include "fuzz/Home.h"
#include "platform/people/own/VCardAddressBook.h"
#include "platform/people/own/VCardText.h"

#include <glib.h>

namespace {

void ignore(const gchar *, GLogLevelFlags, const gchar *, gpointer) {}

} // namespace

// libebook loses a text of its own where a property is damaged; only whole stacks tell.
extern "C" const char *__asan_default_options()
{
    return "fast_unwind_on_malloc=0:malloc_context_size=12";
}

extern "C" const char *__lsan_default_suppressions()
{
    return "leak:e_vcard_get_attributes\n";
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    g_log_set_default_handler(ignore, nullptr); // libebook speaks up about every bad property
    const QByteArray input = bytesOf(data, size);
    const std::vector<QByteArray> cards = VCardText::cardsOf(input).cards;
    for (const QByteArray &card : cards)
        promise(card.left(5).toUpper() == "BEGIN", "a card goes from its beginning");
    const Home &home = Home::instance();
    home.write(QStringLiteral(".contacts/cards.vcf"), input);
    const std::vector<Person> people = vCardPeople(home / QStringLiteral(".contacts")).people;
    promise(people.size() <= cards.size(), "a card is one person at most");
    for (const Person &person : people) {
        promise(!person.uid.isEmpty(), "everybody has a UID");
        promise(person.primaryPhone == 0 || person.primaryPhone < person.phones.size(),
                "the primary phone is one of the phones");
        for (const auto &text : {person.firstName, person.lastName, person.organization})
            promise(!text || !text->isEmpty(), "what is empty is absent");
    }
    return 0;
}
