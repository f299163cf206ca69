#include "commands/cellfault.h"
#include "commands/commandcolumns.h"

#include <QtTest>

namespace Column = CommandColumn;

class TestCellFault : public QObject
{
    Q_OBJECT

private slots:
    void faults_data();
    void faults();
};

void TestCellFault::faults_data()
{
    QTest::addColumn<QString>("cmd");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isFaulty");

    QTest::newRow("CMD") << "5A"
                         << "5A" << int(Column::Cmd) << false;
    QTest::newRow("half a CMD") << "5"
                                << "5" << int(Column::Cmd) << true;
    QTest::newRow("CMD of no digits") << "+"
                                      << "+" << int(Column::Cmd) << true;
    QTest::newRow("blank CMD") << "  "
                               << "  " << int(Column::Cmd) << false;
    QTest::newRow("address") << "5A"
                             << "0010" << int(Column::Addr) << false;
    QTest::newRow("blank address") << "5A"
                                   << "    " << int(Column::Addr) << false;
    QTest::newRow("three digits of an address") << "5A"
                                                << "001" << int(Column::Addr) << true;
    QTest::newRow("data") << "5A"
                          << "01 02 /x" << int(Column::Data) << false;
    QTest::newRow("odd data") << "5A"
                              << "0 10" << int(Column::Data) << true;
    QTest::newRow("no digits") << "5A"
                               << "0z" << int(Column::Data) << true;
    QTest::newRow("description") << "5A"
                                 << "xyz" << int(Column::Description) << false;
    QTest::newRow("CRC") << "5A"
                         << "xyz" << int(Column::Crc) << false;
    QTest::newRow("marker") << "++"
                            << "++" << int(Column::Cmd) << false;
    QTest::newRow("delay") << "++"
                           << "100" << int(Column::Data) << false;
    QTest::newRow("delay filled up") << "++"
                                     << "500 " << int(Column::Data) << false;
    QTest::newRow("delay of no number") << "++"
                                        << "1F" << int(Column::Data) << true;
    QTest::newRow("negative delay") << "++"
                                    << "-5" << int(Column::Data) << true;
    QTest::newRow("address of a delay") << "++"
                                        << "1" << int(Column::Addr) << false;
}

void TestCellFault::faults()
{
    QFETCH(QString, cmd);
    QFETCH(QString, text);
    QFETCH(int, column);
    CommandRow row;
    row.cmd = cmd;
    QString &cell = column == Column::Cmd    ? row.cmd
                    : column == Column::Addr ? row.addr
                    : column == Column::Data ? row.data
                    : column == Column::Crc  ? row.crc
                                             : row.description;
    cell = text;
    QTEST(!cellFault(row, column).isEmpty(), "isFaulty");
}

QTEST_APPLESS_MAIN(TestCellFault)
#include "tst_cellfault.moc"
