#pragma once

#include <QByteArray>
#include <QVector>

/// Cuts a block of frames into the data bytes of HID reports of `size` bytes each, in order; the
/// last one is filled with zeros. A block that is a whole number of reports long gets no further
/// report.
QVector<QByteArray> splitIntoReports(const QByteArray &block, int size);
