#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QDialogButtonBox;
class QLabel;
class QWidget;

/// How the window sets its texts. Main thread.
namespace Words {

/// A label whose text is shown as it is, markup too, in as many lines as it needs.
QLabel *label(const QString &text = {});

QFont bold(QFont font);
/// Of what heads a window or a dialog.
QFont heading(QFont font);

/// With "Close", to which others can be added.
QDialogButtonBox *closeButtons();

/// Of a dialog that holds a list, by the size of its letters.
QSize dialogSize(const QWidget &dialog);

} // namespace Words
