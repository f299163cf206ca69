#include "app/windowform.h"

#include "app/lightlook.h"
#include "app/scrollablewindow.h"
#include "app/styles.h"
#include "ui_dialog.h"
#include "version.h"

/// The images live in a static library, so nothing but this brings them in.
static void initImages()
{
    Q_INIT_RESOURCE(tarnwick);
}

std::unique_ptr<Ui::Dialog> fillWindow(QDialog &window)
{
    initImages();
    window.setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    window.setWindowTitle(QLatin1String(windowTitleText));
    new LightLook(window);
    window.setStyleSheet(windowStyle());
    auto form = std::make_unique<Ui::Dialog>();
    form->setupUi(&window);
    makeScrollable(window);
    return form;
}
