#include "windowdriver.h"

#include "widgets/tableitems.h"

#include <QLayout>
#include <QtTest>

WindowDriver::WindowDriver()
{
    m_window.show();
}

void WindowDriver::call(const char *slot)
{
    QVERIFY2(QMetaObject::invokeMethod(&m_window, slot), slot);
}

void WindowDriver::click(const char *buttonName)
{
    QTest::mouseClick(button(buttonName), Qt::LeftButton);
}

void WindowDriver::clickSend(int row)
{
    QTest::mouseClick(commands()->cellWidget(row, CommandColumn::Send), Qt::LeftButton);
}

void WindowDriver::listPorts()
{
    call("Timer1_Out_Event");
}

void WindowDriver::sendCurrentRow()
{
    clickSend(commands()->currentRow());
}

void WindowDriver::open(const TestPort &port)
{
    QComboBox *ports = combo("comboBox_Comm");
    ports->addItem(port.path());
    ports->setCurrentIndex(ports->count() - 1);
    click("pushButton_OpenCom");
}

void WindowDriver::setRow(int row, const QString &cmd, const QString &addr, const QString &data)
{
    commands()->setCurrentCell(row, CommandColumn::Cmd);
    commands()->item(row, CommandColumn::Cmd)->setText(cmd);
    commands()->item(row, CommandColumn::Addr)->setText(addr);
    commands()->item(row, CommandColumn::Data)->setText(data);
}

void WindowDriver::checkRow(int row, bool checked)
{
    const QWidget *cell = commands()->cellWidget(row, CommandColumn::Select);
    auto *box = qobject_cast<QCheckBox *>(cell->layout()->itemAt(0)->widget());
    if (box->isChecked() != checked) {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(14, box->height() / 2));
    }
    QCOMPARE(box->isChecked(), checked);
}

QStringList WindowDriver::message(int row) const
{
    constexpr int columns = 7;
    QStringList texts;
    for (int column = 0; column < columns; ++column) {
        texts.append(cellText(*messages(), row, column));
    }
    return texts;
}

int WindowDriver::messageCount() const
{
    int count = 0;
    while (!cellText(*messages(), count, 0).isEmpty()) {
        ++count;
    }
    return count;
}

bool isOfTheForm(const QWidget *widget)
{
    return !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_");
}
