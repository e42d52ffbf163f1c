#pragma once

#include <QStringList>
#include <QWidget>

/// What the page of one kind of media holds. Main thread.
class PageBody : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    virtual void reload() = 0;
    /// See KindPage.
    virtual QString summary() const = 0;
    virtual void focusSearch() {}
    virtual void addFiles(const QStringList & /*paths*/) {}

Q_SIGNALS:
    void changed();
};
