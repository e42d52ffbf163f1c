#pragma once

#include "frontend/QMIconTransformer.h"

#include <QCache>
#include <QIcon>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QStringList>

#include <utility>
#include <vector>

/// The icons of rows, read by a worker while the list is already shown. Main thread.
class Icons : public QObject
{
    Q_OBJECT
public:
    /// Icons of files are made no larger than that, in device-independent pixels.
    Icons(const QString &resourcePath, QSize size, QObject *parent = nullptr);

    QSize size() const { return m_size; }
    void setDevicePixelRatio(qreal ratio) { m_ratio = ratio; }

    /// A blank of that size until ready() comes, and a plain stand-in for a picture that can't be
    /// read.
    QIcon icon(const QString &name);

Q_SIGNALS:
    /// icon() has another answer for that name.
    void ready(const QString &name);

private:
    void read();
    void adopt(const std::vector<std::pair<QString, QImage>> &images);
    QIcon blank() const;

    const QMIconTransformer m_transformer;
    const QSize m_size;
    qreal m_ratio = 1;
    QCache<QString, QIcon> m_icons;
    QStringList m_wanted;
    QSet<QString> m_asked; // wanted, or with the worker
    bool m_isReading = false;
};
