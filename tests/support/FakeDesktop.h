#pragma once

#include "platform/desktop/Alerts.h"
#include "platform/desktop/Sounds.h"
#include "platform/tray/Menu.h"
#include "platform/tray/StatusItem.h"

#include <QStringList>

/// A tray that writes down what its item is told, as "image/alternate image".
class FakeStatusBar : public StatusBar
{
public:
    QStringList images;
    QString toolTip;
    int items = 0; ///< that exist now
    bool enabled = false;
    bool isShown = true; ///< by a tray
    const Menu *menu = nullptr;

    std::unique_ptr<StatusItem> makeStatusItem() override { return std::make_unique<Item>(*this); }

private:
    class Item : public StatusItem
    {
    public:
        explicit Item(FakeStatusBar &bar)
            : m_bar(bar)
        {
            ++m_bar.items;
            m_bar.enabled = false;
        }
        ~Item() override { --m_bar.items; }
        void setImage(const QString &name) override { m_image = name; }
        void setToolTip(const QString &text) override { m_bar.toolTip = text; }
        void setAlternateImage(const QString &name) override
        {
            m_bar.images.append(m_image + u'/' + name);
        }
        void setMenu(Menu *shown) override { m_bar.menu = shown; }
        void setEnabled(bool isEnabled) override { m_bar.enabled = isEnabled; }
        bool isShown() const override { return m_bar.isShown; }

    private:
        FakeStatusBar &m_bar;
        QString m_image;
    };
};

class FakeAlerts : public Alerts
{
public:
    QStringList titles;
    QString message; ///< the last one's
    void show(const QString &title, const QString &text, AlertStyle) override
    {
        titles.append(title);
        message = text;
    }
    void notify(const QString &, const QString &) override {}
};

class FakeSounds : public Sounds
{
public:
    QStringList played;
    void play(const QString &name) override { played.append(name); }
};
