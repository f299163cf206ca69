#pragma once

#include "log/logcolumns.h"
#include "log/logrecord.h"

#include <QVector>

#include <array>

/// The texts of a record's columns, from No. to CRC.
using LogTexts = std::array<QString, LogColumn::Rest>;

/// The texts that stand for a record: a frame's bytes cut into its fields; in the Data column stray
/// bytes as they are, or what happened, with the link's name in place of a number.
LogTexts textsOf(const LogRecord &record);

/// The same for each of the records.
QVector<LogTexts> textsOf(const QVector<LogRecord> &records);
