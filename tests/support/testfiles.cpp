#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QtTest>

QString inTree(const QString &path)
{
    return QStringLiteral(TARNWICK_TREE "/") + path;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QByteArray textIn(const QString &path)
{
    return contentOf(path).replace("\r\n", "\n");
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
}
