#include "typedprogram.h"

#include <QFile>
#include <QProcessEnvironment>

TypedProgram::TypedProgram(const QString &folder, const QString &typing)
{
    const QString copy = folder + "/tarnwick";
    QFile::copy(TARNWICK_PROGRAM, copy);
    setProgram(copy);
    setProcessChannelMode(QProcess::ForwardedErrorChannel);
    setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    setVariable("QT_PLUGIN_PATH", TYPIST_PLUGINS);
    setVariable("QT_QPA_GENERIC_PLUGINS", "typist:" + typing);
}

TypedProgram::~TypedProgram()
{
    kill();
    waitForFinished();
}

void TypedProgram::setVariable(const QString &name, const QString &value)
{
    QProcessEnvironment environment = processEnvironment();
    environment.insert(name, value);
    setProcessEnvironment(environment);
}

void TypedProgram::removeVariable(const QString &name)
{
    QProcessEnvironment environment = processEnvironment();
    environment.remove(name);
    setProcessEnvironment(environment);
}

bool TypedProgram::startAndType()
{
    start();
    while (!m_told.endsWith("done\n")) {
        if (!waitForReadyRead()) {
            return false;
        }
        m_told += readAllStandardOutput();
    }
    return true;
}

QByteArray TypedProgram::text(const QByteArray &place) const
{
    for (const QByteArray &line : m_told.split('\n')) {
        if (line.startsWith(place + ": ")) {
            return line.mid(place.size() + 2);
        }
    }
    return {};
}
