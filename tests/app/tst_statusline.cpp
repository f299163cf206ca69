#include "app/statusline.h"
#include "widgets/wrappinglabel.h"

#include <QTextDocumentFragment>
#include <QVBoxLayout>
#include <QtTest>

class TestStatusLine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyLabelSaysTheSame();
    void whatIsOpenStaysWhatWasToldGoes();
    void textsArePlain_data();
    void textsArePlain();
    void anOfferIsAcceptedByMouse();
    void anOfferIsAcceptedByKey();
    void anOfferOutlivesWhatIsTold();
    void anOfferCanBeWithdrawn();
    void whoIsToldMayOfferAgain();
    void onlyALinkIsAStopOfTheTabKey();

private:
    QString shown() const;
    bool hasLink() const { return m_first->text().contains("<a "); }

    std::unique_ptr<QWidget> m_window;
    WrappingLabel *m_first = nullptr;
    WrappingLabel *m_second = nullptr;
    std::unique_ptr<StatusLine> m_status;
};

void TestStatusLine::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(240, 300);
    auto *layout = new QVBoxLayout(m_window.get());
    m_first = new WrappingLabel;
    m_second = new WrappingLabel;
    for (WrappingLabel *label : {m_first, m_second}) {
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    m_status = std::make_unique<StatusLine>(QList<QLabel *>{m_first, m_second});
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

/// What a reader sees, without the places for line breaks.
QString TestStatusLine::shown() const
{
    QString text = m_first->text();
    if (m_first->textFormat() == Qt::RichText) {
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    }
    return text.remove(QChar(0x200B));
}

void TestStatusLine::everyLabelSaysTheSame()
{
    m_status->tell("done");
    QCOMPARE(m_first->text(), QString("done"));
    QCOMPARE(m_second->text(), QString("done"));
    m_status->tell({});
    QCOMPARE(m_first->text(), QString());
    QCOMPARE(m_second->text(), QString());
}

void TestStatusLine::whatIsOpenStaysWhatWasToldGoes()
{
    m_status->tell("failed");
    m_status->showLink("ttyUSB0 115200 8N1");
    QCOMPARE(shown(), QString("ttyUSB0 115200 8N1"));
    m_status->tell("one");
    m_status->tell("two");
    QCOMPARE(shown(), QString("ttyUSB0 115200 8N1\n\ntwo"));
    m_status->showLink({});
    QCOMPARE(shown(), QString("two"));
    m_status->tell({});
    QCOMPARE(shown(), QString());
}

void TestStatusLine::textsArePlain_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("markup") << "<b>a & b</b>";
    QTest::newRow("entity") << "&lt;";
    QTest::newRow("lines") << "one\ntwo";
    QTest::newRow("long name") << "/" + QString("x").repeated(200);
}

void TestStatusLine::textsArePlain()
{
    QFETCH(QString, text);
    m_status->tell(text);
    QCOMPARE(shown(), text);
    m_status->offer(text, text);
    QCOMPARE(shown(), text + "\n\n" + text + " " + text);
}

void TestStatusLine::anOfferIsAcceptedByMouse()
{
    const QSignalSpy accepted(m_status.get(), &StatusLine::accepted);
    m_status->offer("", "Open");
    QVERIFY(hasLink());
    QTest::mouseClick(m_second, Qt::LeftButton, {}, {12, 6});
    QTRY_COMPARE(accepted.size(), 1);
    QVERIFY(!hasLink());
    QCOMPARE(shown(), QString());
    QTest::mouseClick(m_second, Qt::LeftButton, {}, {12, 6});
    QCoreApplication::processEvents();
    QCOMPARE(accepted.size(), 1);
}

void TestStatusLine::anOfferIsAcceptedByKey()
{
    const QSignalSpy accepted(m_status.get(), &StatusLine::accepted);
    m_status->tell("told");
    m_status->offer("A list was not saved.", "Open");
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    QCOMPARE(m_window->focusWidget(), m_first);
    QTest::keyClick(m_first, Qt::Key_Return);
    QTRY_COMPARE(accepted.size(), 1);
    QCOMPARE(shown(), QString("told"));
}

void TestStatusLine::anOfferOutlivesWhatIsTold()
{
    m_status->offer("A list was not saved.", "Open");
    m_status->tell("told");
    m_status->showLink("COM3");
    QCOMPARE(shown(), QString("COM3\n\nA list was not saved. Open"));
    QVERIFY(hasLink());
}

void TestStatusLine::anOfferCanBeWithdrawn()
{
    m_status->tell("told");
    m_status->offer("A list was not saved.", "Open");
    m_status->withdrawOffer();
    QCOMPARE(shown(), QString("told"));
    QVERIFY(!hasLink());
}

void TestStatusLine::whoIsToldMayOfferAgain()
{
    const QSignalSpy accepted(m_status.get(), &StatusLine::accepted);
    const auto again = connect(m_status.get(), &StatusLine::accepted, this,
                               [this] { m_status->offer("two", "Open"); });
    m_status->offer("one", "Open");
    emit m_first->linkActivated("#");
    QTRY_COMPARE(shown(), QString("two Open"));
    QVERIFY(hasLink());
    disconnect(again);
    emit m_first->linkActivated("#");
    QTRY_COMPARE(accepted.size(), 2);
    QVERIFY(!hasLink());
}

void TestStatusLine::onlyALinkIsAStopOfTheTabKey()
{
    m_status->tell("told");
    QVERIFY((m_first->focusPolicy() & Qt::TabFocus) == 0);
    QVERIFY((m_first->textInteractionFlags() & Qt::TextSelectableByMouse) != 0);
    m_status->offer("A list was not saved.", "Open");
    QVERIFY((m_first->focusPolicy() & Qt::TabFocus) != 0);
    QVERIFY((m_first->textInteractionFlags() & Qt::TextSelectableByMouse) != 0);
    m_status->withdrawOffer();
    QVERIFY((m_first->focusPolicy() & Qt::TabFocus) == 0);
}

QTEST_MAIN(TestStatusLine)
#include "tst_statusline.moc"
