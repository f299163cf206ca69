#include "widgets/elidinglabel.h"

#include <QtTest>

class TestElidingLabel : public QObject
{
    Q_OBJECT

private slots:
    void asksForNoWidth();
    void aShortTextIsShownWhole();
    void ofALongTextBothEndsAreShown();
};

namespace {

const QString longText = "a-rather-long-name-of-a-command-list.txt*";

QImage look(QLabel &label, const QString &text)
{
    label.setText(text);
    label.resize(120, 24);
    return label.grab().toImage();
}

} // namespace

void TestElidingLabel::asksForNoWidth()
{
    ElidingLabel label;
    label.setText(longText);
    QCOMPARE(label.minimumSizeHint().width(), 0);
    QVERIFY(label.minimumSizeHint().height() >= label.fontMetrics().height());
}

void TestElidingLabel::aShortTextIsShownWhole()
{
    ElidingLabel label;
    QLabel usual;
    QCOMPARE(look(label, "pump.txt"), look(usual, "pump.txt"));
}

void TestElidingLabel::ofALongTextBothEndsAreShown()
{
    ElidingLabel label;
    QLabel usual;
    const QImage shown = look(label, longText);
    const QString elided = label.fontMetrics().elidedText(longText, Qt::ElideMiddle, 120);
    QVERIFY(elided.startsWith('a') && elided.endsWith('*') && elided.size() < longText.size());
    QCOMPARE(shown, look(usual, elided));
    QCOMPARE(label.text(), longText);
}

QTEST_MAIN(TestElidingLabel)
#include "tst_elidinglabel.moc"
