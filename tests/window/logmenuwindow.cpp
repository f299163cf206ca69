#include "logmenuwindow.h"

#include "hexbytes.h"

#include <QContextMenuEvent>
#include <QtTest>

LogMenuWindow::LogMenuWindow()
{
    window().resize(1120, 760);
    becomeActive();
}

void LogMenuWindow::becomeActive()
{
    window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window()));
}

void LogMenuWindow::addRecords() const
{
    records().appendSent(hex("5AA5 08 03 1000 000001 840A"), true);
    records().appendReceived(hex("5AA5 06 42 1000 4F4B0D"), false);
    records().appendStray(hex("FF"));
    records().appendEvent("HID", "Insert x");
}

void LogMenuWindow::select(const QVector<int> &rows) const
{
    log()->clearSelection();
    for (const int row : rows) {
        log()->setCurrentCell(row, 0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    log()->setFocus();
}

void LogMenuWindow::rightClick(int row) const
{
    const QPoint place = log()->visualRect(log()->model()->index(row, 5)).center();
    QTest::mouseClick(log()->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, log()->viewport()->mapToGlobal(place));
    const int before = menus->menuCount();
    QCoreApplication::sendEvent(log()->viewport(), &event);
    QTRY_COMPARE(menus->menuCount(), before + 1);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

QStringList LogMenuWindow::enabledEntries(int row)
{
    QStringList enabled;
    const auto connection = QObject::connect(&*menus, &MenuUser::shown, [&enabled](QMenu *menu) {
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator()) {
                enabled.append(action->text());
            }
        }
    });
    menus->choose({});
    rightClick(row);
    QObject::disconnect(connection);
    return enabled;
}
