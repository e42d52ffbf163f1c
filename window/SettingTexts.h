#pragma once

#include <QList>
#include <QString>
#include <QStringView>
#include <QVariant>

/// What the window says of the settings, in the order in which it shows them.
namespace SettingTexts {

/// One of the values of a setting that takes no other.
struct Choice
{
    qint64 value;
    const char *name;
};

struct Text
{
    const char *page; ///< title of the page that shows it
    QStringView key;
    const char *title;
    const char *meaning;
    QList<Choice> choices = {};
};

const QList<Text> &all();
/// Of the setting of that name, which is one of them.
const Text &of(QStringView key);

/// The user's language's form of a text of these.
QString shown(const char *text);

/// A value of the setting in words.
QString valueText(const Text &text, const QVariant &value);

} // namespace SettingTexts
