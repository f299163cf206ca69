#pragma once

#include "expectations/expectation.h"
#include "expectations/filesettings.h"

#include <QByteArray>

/// An expectation that a line of a command file states.
struct Directive
{
    /// The reply to the row above, or another one that will do; a further frame; one that must not
    /// come.
    enum class Kind { Reply, Further, Forbidden };

    Kind kind = Kind::Reply;
    ExpectedFrame frame;
};

/// Reads a line "//? 03 0010 ?? **  within 200  a remark", without its line end. The pattern ends
/// at two blanks or a tab, and so does the time, which is in ms.
Parsed<Directive> parseDirective(const QByteArray &line);

/// Reads a line "//@ tarnwick-run 1 crc=on start=5AA5", without its line end. Two blanks or a tab
/// begin a remark.
Parsed<FileSettings> parseRunLine(const QByteArray &line);
