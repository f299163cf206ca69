#include "commands/addrdelegate.h"
#include "commands/datadelegate.h"

#include <QLineEdit>
#include <QRegExpValidator>
#include <QTableWidget>
#include <QtTest>

class TestDelegates : public QObject
{
    Q_OBJECT

private slots:
    void addressEditorTakesFourHexDigits();
    void dataEditorIsTheUsualOne();
    void addressSignalsComeInOrder_data();
    void addressSignalsComeInOrder();
    void dataSignalsComeInOrder_data();
    void dataSignalsComeInOrder();
    void cursorPositionIsKept();
    void otherObjectsAreLeftAlone();
};

namespace {

/// Writes down what a delegate emits.
template<typename Delegate>
QStringList signalsOf(Delegate &delegate, QEvent &event, bool *consumed)
{
    QStringList names;
    QLineEdit editor;
    QObject::connect(&delegate, &Delegate::commitData, &editor, [&] { names.append("commit"); });
    QObject::connect(&delegate, &Delegate::closeEditor, &editor,
                     [&](QWidget * /*editor*/, QAbstractItemDelegate::EndEditHint hint) {
                         names.append("close " + QString::number(hint));
                     });
    QObject::connect(&delegate, &Delegate::enterdata, &editor, [&] { names.append("enter"); });
    if constexpr (std::is_same_v<Delegate, AddrDelegate>) {
        QObject::connect(&delegate, &AddrDelegate::AfterCommitData, &editor,
                         [&] { names.append("after"); });
    }
    *consumed = delegate.eventFilter(&editor, &event);
    return names;
}

using EventPointer = QSharedPointer<QEvent>;

EventPointer keyPress(Qt::Key key)
{
    return EventPointer(new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
}

EventPointer focusOut()
{
    return EventPointer(new QFocusEvent(QEvent::FocusOut));
}

} // namespace

Q_DECLARE_METATYPE(EventPointer)

void TestDelegates::addressEditorTakesFourHexDigits()
{
    const AddrDelegate delegate;
    QWidget parent;
    QWidget *widget = delegate.createEditor(&parent, {}, {});
    QCOMPARE(widget->parentWidget(), &parent);
    auto *editor = qobject_cast<QLineEdit *>(widget);
    QVERIFY(editor != nullptr);
    const auto *validator = qobject_cast<const QRegExpValidator *>(editor->validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->regExp(), QRegExp("[A-Fa-f0-9]{4}", Qt::CaseSensitive, QRegExp::RegExp));
    QTest::keyClicks(editor, "1gG-b xF23");
    QCOMPARE(editor->text(), QString("1bF2"));
}

void TestDelegates::dataEditorIsTheUsualOne()
{
    QTableWidget table(1, 1);
    table.setItem(0, 0, new QTableWidgetItem("00 01"));
    const DataDelegate delegate;
    auto *editor = qobject_cast<QLineEdit *>(
        delegate.createEditor(table.viewport(), {}, table.model()->index(0, 0)));
    QVERIFY(editor != nullptr && editor->validator() == nullptr);
}

void TestDelegates::addressSignalsComeInOrder_data()
{
    QTest::addColumn<EventPointer>("event");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("consumed");

    const QStringList entered{"commit", "commit", "commit", "after", "enter", "close 0"};
    QTest::newRow("Return") << keyPress(Qt::Key_Return) << entered << true;
    QTest::newRow("Enter") << keyPress(Qt::Key_Enter) << entered << true;
    QTest::newRow("focus out") << focusOut() << QStringList{"commit", "commit", "after", "close 0"}
                               << true;
    QTest::newRow("digit") << keyPress(Qt::Key_1) << QStringList{"commit", "commit"} << false;
    QTest::newRow("Tab") << keyPress(Qt::Key_Tab)
                         << QStringList{"commit", "commit", "after", "commit", "close 1"} << true;
    QTest::newRow("Backtab") << keyPress(Qt::Key_Backtab)
                             << QStringList{"commit", "commit", "after", "commit", "close 2"}
                             << true;
    QTest::newRow("Escape") << keyPress(Qt::Key_Escape)
                            << QStringList{"commit", "commit", "close 4"} << true;
    QTest::newRow("key up") << EventPointer(new QKeyEvent(QEvent::KeyRelease, Qt::Key_Return,
                                                          Qt::NoModifier))
                            << QStringList{"commit"} << false;
    QTest::newRow("any other") << EventPointer(new QEvent(QEvent::User)) << QStringList{"commit"}
                               << false;
}

void TestDelegates::addressSignalsComeInOrder()
{
    QFETCH(EventPointer, event);
    QFETCH(bool, consumed);
    AddrDelegate delegate;
    bool wasConsumed = false;
    QTEST(signalsOf(delegate, *event, &wasConsumed), "names");
    QCOMPARE(wasConsumed, consumed);
}

void TestDelegates::dataSignalsComeInOrder_data()
{
    QTest::addColumn<EventPointer>("event");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("consumed");

    const QStringList entered{"commit", "commit", "close 0", "enter"};
    QTest::newRow("Return") << keyPress(Qt::Key_Return) << entered << true;
    QTest::newRow("Enter") << keyPress(Qt::Key_Enter) << entered << true;
    QTest::newRow("focus out") << focusOut() << QStringList{"commit", "commit", "close 0"} << true;
    QTest::newRow("digit") << keyPress(Qt::Key_1) << QStringList{"commit", "commit"} << false;
    QTest::newRow("any other") << EventPointer(new QEvent(QEvent::User)) << QStringList{"commit"}
                               << false;
}

void TestDelegates::dataSignalsComeInOrder()
{
    QFETCH(EventPointer, event);
    QFETCH(bool, consumed);
    DataDelegate delegate;
    bool wasConsumed = false;
    QTEST(signalsOf(delegate, *event, &wasConsumed), "names");
    QCOMPARE(wasConsumed, consumed);
}

void TestDelegates::cursorPositionIsKept()
{
    AddrDelegate addr;
    DataDelegate data;
    for (CellEditorDelegate *delegate :
         {static_cast<CellEditorDelegate *>(&addr), static_cast<CellEditorDelegate *>(&data)}) {
        QLineEdit editor("1234");
        editor.setCursorPosition(3);
        QEvent event(QEvent::User);
        delegate->eventFilter(&editor, &event);
        QCOMPARE(editor.property("cursorPos"), QVariant(3));
    }
}

void TestDelegates::otherObjectsAreLeftAlone()
{
    AddrDelegate delegate;
    QSignalSpy committed(&delegate, &AddrDelegate::commitData);
    QEvent event(QEvent::User);
    QVERIFY(!delegate.eventFilter(&delegate, &event));
    QVERIFY(!delegate.eventFilter(nullptr, &event));
    QCOMPARE(committed.count(), 0);
}

QTEST_MAIN(TestDelegates)
#include "tst_delegates.moc"
