#pragma once

#include "window/SettingTexts.h"

#include <QWidget>

#include <functional>

class QLabel;
class QVBoxLayout;
namespace Settings {
struct Key;
}

/// One setting with the widget that fits it, its meaning and its default. What the user makes of it
/// is written at once. Main thread.
class SettingEditor : public QWidget
{
    Q_OBJECT
public:
    enum class Form {
        Full,  ///< with its meaning and its default
        Short, ///< the widget alone
    };
    /// Of the setting of that name, which is one of SettingTexts.
    explicit SettingEditor(QStringView key, Form form = Form::Full, QWidget *parent = nullptr);

    /// Shows the stored value.
    void refresh();
    void restoreDefault();

Q_SIGNALS:
    /// Written, and the helper told.
    void written();

private:
    void add(QWidget *control);
    QWidget *makeCheckBox();
    QWidget *makeChoice();
    QWidget *makeNumber();
    QWidget *makeText();
    QWidget *makeFolder(QWidget *edit);
    void addLabels();
    void write(const QVariant &value);
    void setNote(const QString &text);

    const SettingTexts::Text &m_text;
    const Settings::Key &m_key;
    QVBoxLayout *m_layout;
    QLabel *m_note = nullptr;
    std::function<void(const QVariant &)> m_show; ///< in the widget
};
