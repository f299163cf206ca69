#include "filedialoguser.h"

#include <QApplication>
#include <QEvent>

#include <utility>

FileDialogUser::FileDialogUser(QString path)
    : m_path(std::move(path))
{
    // A system's own dialogs are no widgets.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    qApp->installEventFilter(this);
}

FileDialogUser::~FileDialogUser()
{
    qApp->removeEventFilter(this);
}

bool FileDialogUser::eventFilter(QObject *object, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QFileDialog *>(object) : nullptr;
    if (dialog != nullptr) {
        QMetaObject::invokeMethod(
            dialog, [this, dialog] { use(dialog); }, Qt::QueuedConnection);
    }
    return false;
}

void FileDialogUser::use(QFileDialog *dialog)
{
    ++m_dialogCount;
    m_look = {dialog->windowTitle(), dialog->directory().absolutePath(), dialog->nameFilters(),
              dialog->parentWidget(), dialog->acceptMode()};
    emit shown(dialog);
    if (m_path.isEmpty()) {
        dialog->reject();
        return;
    }
    dialog->selectFile(m_path);
    QMetaObject::invokeMethod(dialog, "accept");
}
