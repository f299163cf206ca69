#include "cellbench.h"

#include "widgets/tableitems.h"

#include <QtTest>

CellBench::CellBench()
{
    window.window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window.window())) {
        qFatal("the window does not become active");
    }
}

QString CellBench::text(int row, int column) const
{
    return cellText(*table(), row, column);
}

QLineEdit *CellBench::edit(int row, int column) const
{
    table()->setCurrentCell(row, column);
    table()->editItem(table()->item(row, column));
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

QTableWidgetItem *CellBench::editedItem() const
{
    const bool isEditor = qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr &&
                          table()->isAncestorOf(QApplication::focusWidget());
    QTableWidgetItem *item = table()->currentItem();
    return isEditor && table()->isPersistentEditorOpen(item) ? item : nullptr;
}

void CellBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void CellBench::type(const char *keys)
{
    QTest::keyClicks(QApplication::focusWidget(), keys);
}
