#include "platform/Localized.h"

#include <QCoreApplication>

QString localized(const char *englishText)
{
    return QCoreApplication::translate("", englishText);
}
