#include "fuzz/Home.h"
#include "platform/people/ContactPicture.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString mark = QStringLiteral("mark");
    const QByteArray input = bytesOf(data, size);
    ContactPicture::carriesMark(input, mark);
    const ContactPicture::Rendered rendered = ContactPicture::render(input, mark);
    promise(ContactPicture::carriesMark(rendered.jpeg, mark) == rendered.problem.isEmpty(),
            "a picture carries its mark, a grey one none");
    return 0;
}
