#pragma once

#include "expectations/directive.h"
#include "expectations/expectation.h"
#include "expectations/filesettings.h"

#include <QString>

/// What the lines that a row carries expect as its answer.
struct RowExpectation
{
    FileSettings settings;
    Expectation expectation;
};

/// Reads the lines of a row: "//@ tarnwick-run 1", then its expectations. A line that can't be read
/// expects nothing.
RowExpectation rowExpectationOf(const QString &lines);

/// Adds what a line states to what the lines above it did. Returns whether it fits there: a further
/// frame needs a first one.
bool addDirective(const Directive &directive, Expectation &expectation);
