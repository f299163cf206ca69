#include "app/dialog.h"
#include "app/translation.h"
#include "system/endsignals.h"

#include <QApplication>

namespace {

/// Enough to write what is to be kept; then the system ends the program.
constexpr int windowPatienceSeconds = 10;

/// Whoever ends the program, or the session, can't wait for answers to questions.
void endWithoutQuestions(const EndSignals &endSignals, Dialog &dialog)
{
    QObject::connect(&endSignals, &EndSignals::arrived, &dialog, [&dialog] {
        dialog.end();
        QCoreApplication::exit();
    });
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &dialog,
                     [&dialog] { dialog.keepForNextStart(); });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // A screen that asks for one and a half gets that, not twice the size.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // Nothing here is drawn with OpenGL; looking for it would load a driver larger than the
    // program.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    }
    const QApplication application(argc, argv);
    const Translation translation(systemTranslation());
    const EndSignals endSignals(windowPatienceSeconds);
    Dialog dialog;
    endWithoutQuestions(endSignals, dialog);
    dialog.show();
    return QApplication::exec();
}
