#include "platform/desktop/Alerts.h"

#include <QApplication>
#include <QHash>
#include <QMessageBox>
#include <QPointer>
#include <QTextDocument>

#include <utility>

namespace {

QMessageBox::Icon icon(AlertStyle style)
{
    switch (style) {
    case AlertStyle::Warning:
        return QMessageBox::Warning;
    case AlertStyle::Informational:
        return QMessageBox::Information;
    case AlertStyle::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::Warning;
}

class AlertWindows : public Alerts
{
public:
    ~AlertWindows() override
    {
        for (const auto &window : m_windows)
            delete window;
    }

    void show(const QString &title, const QString &message, AlertStyle style) override
    {
        QPointer<QMessageBox> &window = m_windows[{title, message}];
        if (!window)
            window = newWindow(title);
        // The box asks for no text format here: it would take what looks like markup for it.
        window->setInformativeText(Qt::convertFromPlainText(message));
        window->setIcon(icon(style));
        window->show();
        window->raise();
        window->activateWindow();
    }

    void notify(const QString &title, const QString &message) override
    {
        m_notifications->notify(title, message);
    }

private:
    static QMessageBox *newWindow(const QString &title)
    {
        auto *window = new QMessageBox;
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowTitle(QStringLiteral("Caravel"));
        window->setTextFormat(Qt::PlainText);
        window->setText(title);
        window->setModal(false);
        return window;
    }

    // By title and message; null once closed
    QHash<std::pair<QString, QString>, QPointer<QMessageBox>> m_windows;
    const std::unique_ptr<Alerts> m_notifications = makeAlertNotifications();
};

} // namespace

std::unique_ptr<Alerts> makeAlertWindows()
{
    return std::make_unique<AlertWindows>();
}

std::unique_ptr<Alerts> makeAlerts()
{
    const bool hasDisplay = QGuiApplication::platformName() != u"offscreen" &&
                            QGuiApplication::platformName() != u"minimal";
    return hasDisplay ? makeAlertWindows() : makeAlertNotifications();
}
