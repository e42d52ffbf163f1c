#include "window/SettingsDialog.h"

#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "window/SettingEditor.h"
#include "window/Words.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

SettingsDialog::SettingsDialog(HelperConnection * /*helper*/, QWidget *parent)
    : QDialog(parent)
    , m_pages(new QTabWidget)
{
    Preferences::begin();
    setWindowTitle(localized("Settings"));
    const char *last = nullptr;
    for (const SettingTexts::Text &text : SettingTexts::all()) {
        if (text.page != last)
            m_pages->addTab(makePage(text.page), SettingTexts::shown(text.page));
        last = text.page;
    }
    m_pages->setUsesScrollButtons(false); // all titles are in sight
    auto *const buttons = Words::closeButtons();
    QPushButton *const restore =
        buttons->addButton(localized("Restore Defaults"), QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    restore->setAutoDefault(false);
    restore->setAccessibleDescription(localized("Those of the page that is shown."));
    connect(restore, &QPushButton::clicked, this, &SettingsDialog::restoreDefaults);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 40);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_pages);
    layout->addWidget(buttons);
    Preferences::observe(this, [this] { refresh(); });
}

QWidget *SettingsDialog::makePage(const char *title)
{
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    layout->setSpacing(14);
    for (const SettingTexts::Text &text : SettingTexts::all()) {
        if (text.page != title)
            continue;
        auto *const editor = new SettingEditor(text.key);
        connect(editor, &SettingEditor::written, this, &SettingsDialog::changed);
        layout->addWidget(editor);
        m_editors.append(editor);
    }
    layout->addStretch();
    auto *const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

void SettingsDialog::refresh()
{
    for (SettingEditor *const editor : std::as_const(m_editors))
        editor->refresh();
}

void SettingsDialog::restoreDefaults()
{
    for (SettingEditor *const editor : std::as_const(m_editors)) {
        if (m_pages->currentWidget()->isAncestorOf(editor))
            editor->restoreDefault();
    }
}
