#include "files/overwriting.h"
#include "restrictions.h"

#include <QFileInfo>
#include <QtTest>

class TestOverwriting : public QObject
{
    Q_OBJECT

private slots:
    void hugeFilesAreRefused();
};

void TestOverwriting::hugeFilesAreRefused()
{
    const ClosedFolder folder({});
    const qint64 size = qint64(65) * 1024 * 1024;
    QVERIFY(QFile::resize(folder.filePath(), size));
    QVERIFY(!overwriteFile(folder.filePath(), "a", {}));
    QCOMPARE(QFileInfo(folder.filePath()).size(), size);
}

QTEST_GUILESS_MAIN(TestOverwriting)
#include "tst_overwriting.moc"
