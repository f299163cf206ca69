#include "dialog.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Nothing here is drawn with OpenGL; looking for it would load a driver larger than the
    // program.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    }
    const QApplication application(argc, argv);
    Dialog dialog;
    dialog.show();
    return QApplication::exec();
}
