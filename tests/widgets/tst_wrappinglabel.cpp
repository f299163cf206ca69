#include "widgets/wrappinglabel.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

class TestWrappingLabel : public QObject
{
    Q_OBJECT

private slots:
    void breaksAreOfferedWhereThereAreNone_data();
    void breaksAreOfferedWhereThereAreNone();
    void aLongTextDoesntPushTheWindowOpen();
    void whatDoesntFitIsInTheTip();
};

void TestWrappingLabel::breaksAreOfferedWhereThereAreNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("broken");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("short words") << "one two three"
                                 << "one two three";
    QTest::newRow("path") << "/home/user/list"
                          << "/home/user/list";
    QTest::newRow("as long as may be") << "a 12345678"
                                       << "a 12345678";
    QTest::newRow("longer") << "a 123456789 b" << QString::fromUtf8("a 12345678\u200B9 b");
    QTest::newRow("much longer") << QString("x").repeated(17)
                                 << QString::fromUtf8("xxxxxxxx\u200Bxxxxxxxx\u200Bx");
}

void TestWrappingLabel::breaksAreOfferedWhereThereAreNone()
{
    QFETCH(QString, text);
    QTEST(withLineBreaks(text, 8), "broken");
}

void TestWrappingLabel::aLongTextDoesntPushTheWindowOpen()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *label = new WrappingLabel;
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    layout->addWidget(label);
    window.resize(200, 60);
    window.show();
    const QSize least = layout->totalMinimumSize();
    label->setText(QString("many words ").repeated(100));
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), QSize(200, 60));
    QCOMPARE(layout->totalMinimumSize(), least);
}

void TestWrappingLabel::whatDoesntFitIsInTheTip()
{
    WrappingLabel label;
    label.setWordWrap(true);
    label.resize(200, 60);
    label.show();
    QHelpEvent event(QEvent::ToolTip, {9, 9}, label.mapToGlobal({9, 9}));
    label.setText("short");
    QCoreApplication::sendEvent(&label, &event);
    QCOMPARE(QToolTip::text(), QString());
    const QString text = QString("many words ").repeated(100);
    label.setText(text);
    QCoreApplication::sendEvent(&label, &event);
    QCOMPARE(QToolTip::text(), text);
}

QTEST_MAIN(TestWrappingLabel)
#include "tst_wrappinglabel.moc"
