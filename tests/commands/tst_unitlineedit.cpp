#include "commands/unitlineedit.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QtTest>

class TestUnitLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void unitIsAFlatButtonAtTheRightEnd();
    void settingAUnitMakesRoom();
    void theSameUnitAgainChangesNothing();
    void anEmptyUnitChangesNothing();
    void anotherUnitTakesItsOwnRoom();
    void typedTextStaysClearOfTheUnit();
};

namespace {

QPushButton *unitButton(const UnitLineEdit &edit)
{
    return edit.findChild<QPushButton *>();
}

} // namespace

void TestUnitLineEdit::unitIsAFlatButtonAtTheRightEnd()
{
    const UnitLineEdit edit;
    const QPushButton *button = unitButton(edit);
    QCOMPARE(edit.findChildren<QPushButton *>().size(), 1);
    QVERIFY(button->isFlat());
    QCOMPARE(button->styleSheet(),
             QString("background:transparent;Color:#888888;font-family:Arial;font-size: 16px;"
                     "font-weight: normal;border:none;"));
    auto *layout = qobject_cast<QBoxLayout *>(edit.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->count(), 2);
    QVERIFY(layout->itemAt(0)->spacerItem() != nullptr);
    QCOMPARE(layout->itemAt(1)->widget(), button);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 13, 0));
}

void TestUnitLineEdit::settingAUnitMakesRoom()
{
    UnitLineEdit edit;
    edit.setUnit("ms");
    const int width = edit.fontMetrics().horizontalAdvance("ms");
    QCOMPARE(unitButton(edit)->text(), QString("ms"));
    QCOMPARE(unitButton(edit)->minimumWidth(), width);
    QCOMPARE(unitButton(edit)->maximumWidth(), width);
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 13 + width, 0));
}

void TestUnitLineEdit::theSameUnitAgainChangesNothing()
{
    UnitLineEdit edit;
    edit.setUnit("ms");
    unitButton(edit)->setFixedWidth(1);
    edit.setTextMargins(1, 2, 3, 4);
    edit.setUnit("ms");
    QCOMPARE(unitButton(edit)->maximumWidth(), 1);
    QCOMPARE(edit.textMargins(), QMargins(1, 2, 3, 4));
}

void TestUnitLineEdit::anEmptyUnitChangesNothing()
{
    UnitLineEdit edit;
    edit.setUnit("ms");
    const QMargins margins = edit.textMargins();
    edit.setUnit(QString());
    QCOMPARE(edit.unit(), QString("ms"));
    QCOMPARE(edit.textMargins(), margins);
}

void TestUnitLineEdit::anotherUnitTakesItsOwnRoom()
{
    UnitLineEdit edit;
    edit.setUnit("ms");
    edit.setUnit("minutes");
    const int width = edit.fontMetrics().horizontalAdvance("minutes");
    QCOMPARE(unitButton(edit)->maximumWidth(), width);
    QCOMPARE(edit.textMargins().right(), 13 + width);
}

void TestUnitLineEdit::typedTextStaysClearOfTheUnit()
{
    UnitLineEdit edit;
    edit.setUnit("ms");
    edit.resize(120, 36);
    edit.show();
    QTest::keyClicks(&edit, QString("1234567890").repeated(5));
    edit.grab(); // painting scrolls the text
    const QRect cursor = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QVERIFY(cursor.center().x() <= unitButton(edit)->geometry().left());
}

QTEST_MAIN(TestUnitLineEdit)
#include "tst_unitlineedit.moc"
