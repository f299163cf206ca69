#include "rowbench.h"

#include <QContextMenuEvent>
#include <QtTest>

RowBench::RowBench()
{
    window.window().resize(1024, 1000);
    const QSignalBlocker blocker(table());
    for (int row = 0; row < table()->rowCount(); ++row) {
        table()->item(row, CommandColumn::Description)->setText(QString::number(row));
    }
}

QAction *RowBench::entry(const QString &text)
{
    for (QAction *action : window.window().findChildren<QAction *>()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

QString RowBench::order() const
{
    QString all;
    for (int row = 0; row < table()->rowCount(); ++row) {
        const QString text = table()->item(row, CommandColumn::Description)->text();
        all.append(text.isEmpty() ? "-" : text.left(1));
    }
    return all;
}

void RowBench::rightClick(int row, int column) const
{
    const QModelIndex index = table()->model()->index(row, column);
    table()->scrollTo(index);
    QWidget *target = table()->viewport();
    QPoint position = table()->visualRect(index).center();
    while (QWidget *child = target->childAt(position)) {
        position = child->mapFrom(target, position);
        target = child;
    }
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, target->mapToGlobal(position));
    QCoreApplication::sendEvent(target, &event);
}

void RowBench::turnWheel() const
{
    const QPoint position(100, 100);
    const QPoint global = table()->viewport()->mapToGlobal(position);
    QWheelEvent event(position, global, {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // Only events from outside go on from the table to the window.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(table()->viewport(), &event);
}

QStringList cmdEntries()
{
    return {"10", "03", "42"};
}
