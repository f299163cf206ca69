#include "messageboxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

#include <utility>

MessageBoxes::MessageBoxes()
{
    qApp->installEventFilter(this);
}

MessageBoxes::~MessageBoxes()
{
    qApp->removeEventFilter(this);
}

QStringList MessageBoxes::takeTexts()
{
    return std::exchange(m_texts, {});
}

bool MessageBoxes::eventFilter(QObject *object, QEvent *event)
{
    auto *box = event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(object) : nullptr;
    if (box != nullptr) {
        m_texts.append(box->text());
        m_titles.append(box->windowTitle());
        QMetaObject::invokeMethod(
            box,
            [this, box] {
                emit shown(box->text());
                QAbstractButton *answer = box->button(m_answer);
                (answer != nullptr ? answer : box->buttons().constFirst())->click();
            },
            Qt::QueuedConnection);
    }
    return false;
}
