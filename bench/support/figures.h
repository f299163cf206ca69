#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QVector>

#include <functional>

/// What this process has used so far.
struct Usage
{
    double processorSeconds = 0;
    double residentMiB = 0;
    double peakMiB = 0;

    static Usage now();
};

/// The value below which the given share (0 to 1) of the values lies; there must be some.
double percentile(QVector<double> values, double share);
double median(const QVector<double> &values);

/// The time since the timer was started.
double secondsSince(const QElapsedTimer &timer);
double millisecondsSince(const QElapsedTimer &timer);

/// Seconds that the work takes: the median of several runs.
double medianSeconds(const std::function<void()> &work, int runs = 5);

/// Prints what the figures below it are about.
void printHeading(const QString &text);

/// Prints a line: what was measured, the value with its unit, and what is aimed at.
void printFigure(const QString &what, double value, const QString &unit, const QString &aim = {});
