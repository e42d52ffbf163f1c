#pragma once

#include "support/TestSupport.h"

#include <QAccessible>

/// Who sits before the windows of this program: what is seen is what assistive programs are told,
/// what is done is done with keys and by pressing what is shown.
namespace WindowUser {

/// All that is in sight; before a dialog nothing else.
QList<QAccessibleInterface *> shown();
/// What begins with that name and can be used; null where there is none.
QAccessibleInterface *find(QAccessible::Role role, const QString &name);

/// Whether the text comes into sight.
bool sees(const QString &text);
/// The names of all that is in sight.
std::string screen();
/// Controls in sight without a name or a description for who doesn't see them.
std::string nameless();

void press(const QString &button);
/// Presses keys where the cursor is, and tells the name of where it is then.
std::string type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Goes to the row of that name in a list, and types the keys there.
void inList(const QString &list, const QString &row, const QString &keys = {});
/// Presses a key in a list.
void inList(const QString &list, Qt::Key key);

/// Writes what is in front into "<name>.png" of the folder.
void picture(const QString &folder, const QString &name);

} // namespace WindowUser
