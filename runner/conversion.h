#pragma once

#include "runner/exitcode.h"

#include <QString>

/// The outcome of a conversion; the text says what is wrong or worth knowing.
struct Conversion
{
    ExitCode code = ExitCode::Good;
    QString words;
};

/// Writes a recording to another file: as CSV where its name ends in ".csv", otherwise as a
/// recording of the form that its name asks for.
Conversion convertRecording(const QString &from, const QString &to);
