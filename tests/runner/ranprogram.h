#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// What came of a program that has ended.
struct Ran
{
    /// -1 where it has not ended in good order.
    int code = -1;
    QByteArray out;
    QByteArray error;
};

/// Runs the test runner to its end.
Ran ran(const QStringList &arguments, const QByteArray &input = {});

/// The same for any other program.
Ran ranOther(const QString &program, const QStringList &arguments, const QByteArray &input = {});

/// Waits for a started program to end.
Ran endOf(QProcess &process);

/// A folder with command files for a test.
class ListFolder
{
public:
    /// Writes a file and returns its path.
    QString file(const QByteArray &text, const QString &name = QStringLiteral("list.txt")) const;
    QByteArray content(const QString &name) const;
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// A copy of a program where everybody may run it.
class PublicProgram
{
public:
    explicit PublicProgram(const QString &program);

    QString path() const { return m_folder.path("program"); }
    /// What else stands beside it.
    const ListFolder &folder() const { return m_folder; }

private:
    ListFolder m_folder;
};

/// Lets everybody read, change and run a file or folder.
bool openToEverybody(const QString &path);
