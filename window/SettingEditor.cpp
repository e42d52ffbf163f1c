#include "window/SettingEditor.h"

#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "util/TextFormat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

using SettingTexts::shown;

namespace {

QLabel *smallLabel(const QString &text)
{
    auto *const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    label->setFont(font);
    return label;
}

} // namespace

SettingEditor::SettingEditor(QStringView key, Form form, QWidget *parent)
    : QWidget(parent)
    , m_text(SettingTexts::of(key))
    , m_key(*Preferences::find(key.toString()))
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins({});
    m_layout->setSpacing(2);
    if (m_key.defaultValue.typeId() == QMetaType::Bool)
        add(makeCheckBox());
    else if (!m_text.choices.isEmpty())
        add(makeChoice());
    else if (m_key.defaultValue.typeId() == QMetaType::QString)
        add(makeText());
    else
        add(makeNumber());
    if (form == Form::Full)
        addLabels();
    refresh();
}

// A check box says itself what it is; the others have their title before them.
void SettingEditor::add(QWidget *control)
{
    setFocusProxy(control);
    control->setAccessibleName(shown(m_text.title));
    control->setAccessibleDescription(shown(m_text.meaning));
    const bool isCheckBox = qobject_cast<QCheckBox *>(control);
    if (isCheckBox) {
        m_layout->addWidget(control);
        return;
    }
    auto *const title = new QLabel(shown(m_text.title));
    title->setBuddy(control);
    m_layout->addWidget(title);
    if (m_key.name == Settings::caravelFolder.name)
        m_layout->addWidget(makeFolder(control));
    else
        m_layout->addWidget(control, 0, Qt::AlignLeading);
}

QWidget *SettingEditor::makeCheckBox()
{
    auto *const box = new QCheckBox(shown(m_text.title));
    connect(box, &QCheckBox::clicked, this, [this](bool checked) { write(checked); });
    m_show = [box](const QVariant &value) {
        box->setChecked(value.toBool());
    };
    return box;
}

QWidget *SettingEditor::makeChoice()
{
    auto *const box = new QComboBox;
    for (const SettingTexts::Choice &choice : m_text.choices)
        box->addItem(shown(choice.name), choice.value);
    connect(box, &QComboBox::activated, this,
            [this, box](int index) { write(box->itemData(index).toInt()); });
    m_show = [this, box](const QVariant &value) {
        // Other versions may have stored what has no name here.
        if (box->findData(value.toLongLong()) < 0)
            box->addItem(SettingTexts::valueText(m_text, value), value.toLongLong());
        box->setCurrentIndex(box->findData(value.toLongLong()));
    };
    return box;
}

QWidget *SettingEditor::makeNumber()
{
    auto *const box = new QSpinBox;
    box->setRange(static_cast<int>(m_key.range.least), static_cast<int>(m_key.range.most));
    box->setSingleStep(10);
    box->setSuffix(QStringLiteral(" %"));
    box->setKeyboardTracking(false);
    connect(box, &QSpinBox::valueChanged, this, [this](int value) { write(value); });
    m_show = [box](const QVariant &value) {
        const QSignalBlocker blocker(box);
        box->setValue(value.toInt());
    };
    return box;
}

QWidget *SettingEditor::makeText()
{
    auto *const edit = new QLineEdit;
    edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * 40);
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        if (edit->text() != m_key.value().toString())
            write(edit->text());
    });
    m_show = [edit](const QVariant &value) {
        if (!edit->hasFocus() || !edit->isModified()) // nobody is typing
            edit->setText(value.toString());
    };
    return edit;
}

QWidget *SettingEditor::makeFolder(QWidget *edit)
{
    auto *const row = new QWidget;
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    auto *const choose = new QPushButton(localized("Choose..."));
    choose->setAccessibleDescription(shown(m_text.title));
    choose->setAutoDefault(false); // Enter in the field means the field
    layout->addWidget(edit, 1);
    layout->addWidget(choose);
    connect(choose, &QPushButton::clicked, this, [this] {
        auto *const dialog = new QFileDialog(this, shown(m_text.title));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        connect(dialog, &QFileDialog::fileSelected, this,
                [this](const QString &folder) { write(folder); });
        dialog->open();
    });
    return row;
}

void SettingEditor::addLabels()
{
    m_layout->addWidget(smallLabel(shown(m_text.meaning)));
    m_note = smallLabel({});
    m_layout->addWidget(m_note);
    setNote({});
}

void SettingEditor::setNote(const QString &text)
{
    if (!m_note)
        return;
    const QString standard = SettingTexts::valueText(m_text, m_key.defaultValue);
    m_note->setText(text.isEmpty() ? filled(localized("Default: %@"), {standard}) : text);
}

void SettingEditor::refresh()
{
    m_show(m_key.value());
}

void SettingEditor::restoreDefault()
{
    if (!Preferences::isDefault(m_key))
        write(m_key.defaultValue);
}

void SettingEditor::write(const QVariant &value)
{
    if (!Preferences::valueIn(value.toString(), m_key)) {
        setNote(localized("This must be a full path, or one that begins with \"~/\"."));
        return;
    }
    setNote({});
    Preferences::setLater(m_key.name, value, this, [this](bool isWritten) {
        if (isWritten)
            Q_EMIT written();
        else
            setNote(localized("The preferences can't be written."));
    });
    refresh();
}
