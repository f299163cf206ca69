#include "app/recentfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>

namespace {

/// A name may have any character in it; none may break the line or stand for a key.
QString plainMenuText(const QString &name)
{
    QString plain;
    for (const uint character : name.toUcs4()) {
        plain += QChar::isPrint(character) ? QString::fromUcs4(&character, 1) : QStringLiteral("?");
    }
    return plain.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

QStringList withRecentFile(const QStringList &files, const QString &path)
{
    QStringList all = files;
    all.removeAll(path);
    all.prepend(path);
    return all.mid(0, mostRecentFiles);
}

QString recentFileText(int place, const QString &path)
{
    const QFileInfo file(path);
    return QStringLiteral("&%1  %2   (%3)")
        .arg((place + 1) % mostRecentFiles)
        .arg(plainMenuText(file.fileName()), plainMenuText(QDir::toNativeSeparators(file.path())));
}

RecentFiles::RecentFiles(QPushButton &loadButton, QObject *parent)
    : QObject(parent)
    , m_button(loadButton)
    , m_menu(&loadButton)
{
    const auto *key =
        new QShortcut(QKeySequence(int(Qt::CTRL) + int(Qt::Key_R)), m_button.window());
    connect(key, &QShortcut::activated, this, &RecentFiles::showMenu);
}

void RecentFiles::note(const QString &path)
{
    m_files = withRecentFile(m_files, path);
    emit changed(m_files);
}

void RecentFiles::showMenu()
{
    if (!m_button.isEnabled()) {
        return;
    }
    fillMenu();
    m_menu.popup(m_button.mapToGlobal(QPoint(0, m_button.height())));
    for (QAction *action : m_menu.actions()) {
        if (action->isEnabled()) {
            m_menu.setActiveAction(action);
            return;
        }
    }
}

void RecentFiles::fillMenu()
{
    m_menu.clear();
    for (int place = 0; place < m_files.size(); ++place) {
        const QString path = m_files.at(place);
        const bool isThere = QFileInfo(path).isFile();
        const QString text = recentFileText(place, path);
        QAction *action = m_menu.addAction(isThere ? text : tr("%1: gone").arg(text));
        action->setEnabled(isThere);
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    if (m_files.isEmpty()) {
        m_menu.addAction(tr("No file was loaded or saved yet"))->setEnabled(false);
    }
}
