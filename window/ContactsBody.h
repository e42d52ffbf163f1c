#pragma once

#include "window/PageBody.h"

class SettingEditor;

/// The contacts, of which all or none are synced. Main thread.
class ContactsBody : public PageBody
{
    Q_OBJECT
public:
    explicit ContactsBody(QWidget *parent = nullptr);

    void reload() override;
    QString summary() const override;

private:
    SettingEditor *m_switch;
};
