#pragma once

#include "commands/commandrow.h"
#include "expectations/expectation.h"
#include "expectations/filesettings.h"

#include <QByteArray>
#include <QVector>

/// A row of a command file, with what it has to be answered with.
struct TestRow
{
    /// Among the rows of the file, from 1, as the window counts them.
    int number = 0;
    /// Its line in the file, from 1.
    int line = 0;
    CommandRow row;
    Expectation expectation;
};

/// What is wrong in a file, and where.
struct FileFault
{
    int line = 0;
    LineFault fault;
};

/// A command file, read for a test run.
struct TestFile
{
    QString name;
    FileSettings settings;
    QVector<TestRow> rows;
    QVector<FileFault> faults;
};

/// Reads the bytes of a command file. Expectations count where a line "//@ tarnwick-run 1" stands
/// in front of the first row; otherwise they are comments like any other.
TestFile readTestFile(const QString &name, const QByteArray &bytes);

/// What is wrong, as a compiler would say it: "list.txt:12:8: ...".
QString faultText(const QString &fileName, const FileFault &fault);
