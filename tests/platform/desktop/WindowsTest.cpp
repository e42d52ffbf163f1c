// What shows windows or makes sounds; on a display that nobody sees.

#include "platform/desktop/Alerts.h"
#include "platform/desktop/Sounds.h"
#include "support/RunTests.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QList<QMessageBox *> windows()
{
    QList<QMessageBox *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible())
            found.append(box);
    }
    return found;
}

} // namespace

TEST(AlertWindows, ShowOneEachAndBlockNothing)
{
    const auto alerts = makeAlertWindows();
    const QString full = QStringLiteral("Memory stick full!");
    for (const auto style : {AlertStyle::Critical, AlertStyle::Warning})
        alerts->show(full, QStringLiteral("<b>first</b>"), style);
    ASSERT_EQ(windows().size(), 1);
    QMessageBox *box = windows().first();
    EXPECT_EQ(box->text(), full);
    EXPECT_TRUE(box->informativeText().contains(QStringLiteral("&lt;b&gt;first&lt;/b&gt;")));
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_FALSE(box->isModal());
    box->button(QMessageBox::Ok)->click();
    ASSERT_TRUE(waitFor([] { return windows().isEmpty(); }));
    for (const char *message : {"<b>first</b>", "of another movie"})
        alerts->show(full, QString::fromLatin1(message), AlertStyle::Informational);
    EXPECT_EQ(windows().size(), 2) << "again, once it was closed";
}

TEST(Sounds, SayWhatTheyCantPlay)
{
    const TemporaryFolder folder;
    const auto sounds = makeSounds(folder.path());
    SystemLogCapture log;
    sounds->play(QStringLiteral("Missing"));
    EXPECT_TRUE(waitFor([&] { return log.contains(QStringLiteral("the sound Missing")); }));
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return runTests<QApplication>(argc, argv);
}
