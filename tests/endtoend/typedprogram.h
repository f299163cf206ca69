#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

/// The program as it is installed, in a folder of the caller's, with a typist in front of it. It is
/// killed at the end if it still runs.
class TypedProgram : public QProcess
{
public:
    /// Copies the program into the folder, unless it is there. The typist does "text" or
    /// "text|button", or nothing.
    TypedProgram(const QString &folder, const QString &typing);
    ~TypedProgram() override;
    Q_DISABLE_COPY(TypedProgram)

    /// Changes a variable of the environment it is started in.
    void setVariable(const QString &name, const QString &value);
    void removeVariable(const QString &name);

    /// Starts the program; returns whether the typist has done all there was to do.
    bool startAndType();

    /// What could be read in the window first: on the button of the "loop", or as "status".
    QByteArray text(const QByteArray &place) const;

private:
    QByteArray m_told;
};
