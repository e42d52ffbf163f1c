#pragma once

#include "window/Capacity.h"

#include <QWidget>

class QLabel;

/// The stick's capacity as one bar, with its parts named below it. Main thread.
class CapacityBar : public QWidget
{
    Q_OBJECT
public:
    explicit CapacityBar(QWidget *parent = nullptr);

    void setCapacity(const Capacity &capacity);

private:
    class Bar;
    void nameParts();

    Capacity m_capacity;
    Bar *m_bar;
    QLabel *m_names;
};
