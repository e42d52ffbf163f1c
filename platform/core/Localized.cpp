#include "platform/core/Localized.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

void install(const QString &catalogue, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(), catalogue, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

QString localized(const char *englishText)
{
    return QCoreApplication::translate("", englishText);
}

void installTranslations(const QString &folder)
{
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("caravel"), folder);
}

bool isLocalizedForm(const QString &text, const char *englishText, const QString &folder)
{
    if (text == QString::fromUtf8(englishText))
        return true;
    const QDir catalogues(folder, QStringLiteral("caravel_*.qm"));
    for (const QString &file : catalogues.entryList(QDir::Files)) {
        QTranslator translator;
        if (!text.isEmpty() && translator.load(file, folder) &&
            text == translator.translate("", englishText))
            return true;
    }
    return false;
}
