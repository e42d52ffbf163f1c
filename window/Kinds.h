#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

#include <span>

/// The kinds of media in the order in which the window shows them.
struct Kind
{
    QStringView saveName; ///< as the protocol names it
    const char *titleKey; ///< see title()
    QRgb rgb;             ///< of its picture and of its part of the capacity bar

    /// For the user.
    QString title() const;
    QIcon picture() const;
    QColor colour() const { return QColor(rgb); }
};

std::span<const Kind> allKinds();
/// Null for a save name that is none of them.
const Kind *kindOf(QStringView saveName);
