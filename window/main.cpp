#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "platform/core/Localized.h"
#include "window/MainWindow.h"

#include <QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    installTranslations(HelperProcess::bundle().resourcePath() + QStringLiteral("/translations"));
    HelperConnection helper;
    helper.frontEnd().setIsOpen(true);
    MainWindow window(&helper);
    window.show();
    helper.search();
    return QApplication::exec();
}
