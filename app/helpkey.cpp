#include "app/helpkey.h"

#include "files/guidepage.h"

#include <QDesktopServices>
#include <QDir>
#include <QShortcut>
#include <QUrl>

#include <utility>

HelpKey::HelpKey(QWidget &window, QString applicationFolder, QObject *parent)
    : QObject(parent)
    , m_applicationFolder(std::move(applicationFolder))
{
    auto *shortcut = new QShortcut(Qt::Key_F1, &window);
    connect(shortcut, &QShortcut::activated, this, &HelpKey::openGuide);
}

void HelpKey::openGuide()
{
    const QString page = guidePage(m_applicationFolder);
    if (page.isEmpty()) {
        emit notice(tr("The guide is not installed. It would be here: %1")
                        .arg(QDir::toNativeSeparators(installedGuidePage(m_applicationFolder))));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        emit notice(
            tr("Nothing here opens the guide. It is here: %1").arg(QDir::toNativeSeparators(page)));
    }
}
