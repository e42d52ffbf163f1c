#include "window/WindowUser.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSet>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr std::chrono::seconds patience(20);

QList<QWidget *> inFront()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        return {dialog};
    QList<QWidget *> windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget *each) { return !each->isVisible() || !each->isWindow(); });
    // One that belongs to another stands before it.
    std::ranges::stable_sort(windows, {},
                             [](const QWidget *each) { return !!each->parentWidget(); });
    return windows;
}

void key(QWidget *widget, int key, const QString &text = {})
{
    for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &event);
    }
}

QAccessibleInterface *rowOf(const QString &list, const QString &row)
{
    for (QAccessibleInterface *each : WindowUser::shown()) {
        if (each->role() != QAccessible::ColumnHeader &&
            each->text(QAccessible::Name).startsWith(row) && each->parent() &&
            each->parent()->text(QAccessible::Name) == list)
            return each;
    }
    return nullptr;
}

/// The list's widget, once the row is there.
QWidget *listWith(const QString &list, const QString &row)
{
    EXPECT_TRUE(waitFor([&] { return rowOf(list, row); }, patience))
        << list.toStdString() << " has no " << row.toStdString() << " in:\n"
        << WindowUser::screen();
    const QAccessibleInterface *found = rowOf(list, row);
    return found ? qobject_cast<QWidget *>(found->parent()->object()) : nullptr;
}

} // namespace

QList<QAccessibleInterface *> WindowUser::shown()
{
    QList<QAccessibleInterface *> all;
    for (QWidget *window : inFront())
        all.append(QAccessible::queryAccessibleInterface(window));
    for (qsizetype i = 0; i < all.size(); ++i) {
        for (int child = 0; child < all[i]->childCount(); ++child) {
            QAccessibleInterface *each = all[i]->child(child);
            if (each && !each->state().invisible)
                all.append(each);
        }
    }
    return all;
}

QAccessibleInterface *WindowUser::find(QAccessible::Role role, const QString &name)
{
    for (QAccessibleInterface *each : shown()) {
        if (each->role() == role && each->text(QAccessible::Name).startsWith(name) &&
            !each->state().disabled)
            return each;
    }
    return nullptr;
}

bool WindowUser::sees(const QString &text)
{
    const auto tells = [&text](const QAccessibleInterface *each) {
        return each->text(QAccessible::Name).contains(text) ||
               each->text(QAccessible::Description).contains(text);
    };
    return waitFor([&] { return std::ranges::any_of(shown(), tells); }, patience);
}

std::string WindowUser::screen()
{
    QStringList texts;
    for (const QAccessibleInterface *each : shown())
        texts.append(each->text(QAccessible::Name));
    texts.removeAll(QString());
    return joined(texts).substr(0, 3000);
}

std::string WindowUser::nameless()
{
    static const QSet<QAccessible::Role> controls{
        QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::SpinBox,
        QAccessible::List,     QAccessible::Tree,         QAccessible::Table,
        QAccessible::PageTab,  QAccessible::ProgressBar,  QAccessible::Dialog};
    QStringList found;
    for (const QAccessibleInterface *each : shown()) {
        const QString name = each->text(QAccessible::Name);
        const bool isWhole =
            each->role() == QAccessible::Dialog || each->role() == QAccessible::PageTab;
        const bool isTold =
            !name.isEmpty() && (isWhole || !each->text(QAccessible::Description).isEmpty());
        if (controls.contains(each->role()) && !isTold)
            found.append(u"%1 \"%2\""_s.arg(int(each->role())).arg(name));
    }
    return joined(found);
}

std::string WindowUser::type(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    inFront().last()->activateWindow(); // as a desktop does where a dialog was closed
    EXPECT_TRUE(waitFor([] { return QGuiApplication::focusWindow(); }, patience));
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
    QApplication::processEvents();
    const QWidget *cursor = QApplication::focusWidget();
    return cursor ? QAccessible::queryAccessibleInterface(const_cast<QWidget *>(cursor))
                        ->text(QAccessible::Name)
                        .toStdString()
                  : "";
}

void WindowUser::press(const QString &button)
{
    EXPECT_EQ(nameless(), "");
    ASSERT_TRUE(waitFor([&] { return find(QAccessible::Button, button); }, patience))
        << button.toStdString() << " in:\n"
        << screen();
    find(QAccessible::Button, button)
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
}

void WindowUser::inList(const QString &list, const QString &row, const QString &keys)
{
    QWidget *widget = listWith(list, row);
    ASSERT_TRUE(widget);
    for (const QChar letter : row + keys)
        key(widget, letter.toUpper().unicode(), letter);
}

void WindowUser::inList(const QString &list, Qt::Key pressed)
{
    QWidget *widget = listWith(list, {});
    ASSERT_TRUE(widget);
    key(widget, pressed);
}

void WindowUser::picture(const QString &folder, const QString &name)
{
    QApplication::processEvents();
    inFront().last()->grab().save(folder + u'/' + name + u".png"_s);
}
