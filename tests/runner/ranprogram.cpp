#include "ranprogram.h"

#include <QFile>

Ran endOf(QProcess &process)
{
    if (process.state() != QProcess::NotRunning && !process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    }
    const bool isGood = process.exitStatus() == QProcess::NormalExit;
    return {isGood ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

Ran ranOther(const QString &program, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    return endOf(process);
}

Ran ran(const QStringList &arguments, const QByteArray &input)
{
    return ranOther(QStringLiteral(TARNWICK_RUN), arguments, input);
}

QString ListFolder::file(const QByteArray &text, const QString &name) const
{
    QFile file(path(name));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return path(name);
}

QByteArray ListFolder::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

PublicProgram::PublicProgram(const QString &program)
{
    QFile::copy(program, path());
    openToEverybody(path());
    openToEverybody(m_folder.path("."));
}

bool openToEverybody(const QString &path)
{
    return QFile::setPermissions(path, QFile::Permissions(0x7777));
}
