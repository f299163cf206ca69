#include "app/helpkey.h"

#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

/// Stands in for the browser: it takes every file that is to be opened.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

class TestHelpKey : public QObject
{
    Q_OBJECT

private slots:
    void opensTheGuide();
    void opensItFromAFieldToo();
    void withoutAGuideSaysWhereItWouldBe();
};

namespace {

/// The folder of an installed program, with the guide beside it.
QString installIn(const QTemporaryDir &root)
{
    QDir(root.path()).mkpath("bin");
    QDir(root.path()).mkpath("share/doc/tarnwick/guide");
    QFile page(root.filePath("share/doc/tarnwick/guide/index.html"));
    page.open(QIODevice::WriteOnly);
    return root.filePath("bin");
}

} // namespace

void TestHelpKey::opensTheGuide()
{
    const QTemporaryDir root;
    Browser browser;
    QWidget window;
    HelpKey key(window, installIn(root));
    QSignalSpy notices(&key, &HelpKey::notice);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    const QString page = root.filePath("share/doc/tarnwick/guide/index.html");
    QCOMPARE(browser.opened, {QUrl::fromLocalFile(page)});
    QVERIFY(notices.isEmpty());
}

void TestHelpKey::opensItFromAFieldToo()
{
    const QTemporaryDir root;
    Browser browser;
    QWidget window;
    QLineEdit field(&window);
    const HelpKey key(window, installIn(root));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_F1);
    QCOMPARE(browser.opened.size(), 1);
}

void TestHelpKey::withoutAGuideSaysWhereItWouldBe()
{
    const QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkpath("a/b/bin"));
    Browser browser;
    QWidget window;
    HelpKey key(window, root.filePath("a/b/bin"));
    QSignalSpy notices(&key, &HelpKey::notice);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    QVERIFY(browser.opened.isEmpty());
    QCOMPARE(notices.size(), 1);
    const QString place = root.filePath("a/b/share/doc/tarnwick/guide/index.html");
    QVERIFY(notices.first().first().toString().contains(QDir::toNativeSeparators(place)));
}

QTEST_MAIN(TestHelpKey)
#include "tst_helpkey.moc"
