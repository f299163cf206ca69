#include "app/filedrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QWidget>
#include <QWindow>

DroppedFile commandFileAmong(const QList<QUrl> &dropped)
{
    if (dropped.size() != 1) {
        return {{},
                FileDrop::tr("Of %1 files that were dropped, none was loaded: drop one.")
                    .arg(dropped.size())};
    }
    const QUrl &url = dropped.first();
    const QFileInfo file(url.toLocalFile());
    if (!url.isLocalFile()) {
        return {{},
                FileDrop::tr("Not loaded, as it is no file of this computer: %1")
                    .arg(url.toDisplayString())};
    }
    if (file.suffix().compare(QLatin1String("txt"), Qt::CaseInsensitive) != 0) {
        return {{}, FileDrop::tr("Not loaded, as it is no .txt file: %1").arg(file.fileName())};
    }
    return {file.filePath(), {}};
}

FileDrop::FileDrop(QWidget &window)
    : QObject(&window)
    , m_window(window)
{
    m_window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        // It hears of a drop before the widget under the mouse does.
        if (object == &m_window && m_window.windowHandle() != nullptr) {
            m_window.windowHandle()->installEventFilter(this);
        }
        return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return take(*static_cast<QDropEvent *>(event));
    default:
        return false;
    }
}

bool FileDrop::take(QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.isEmpty() || QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    // A file is read, never moved away.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    if (event.type() == QEvent::Drop) {
        QMetaObject::invokeMethod(
            this, [this, urls] { emit dropped(urls); }, Qt::QueuedConnection);
    }
    return true;
}
