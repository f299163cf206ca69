#pragma once

#include "log/logcolumns.h"
#include "log/logrecord.h"

#include <QVector>

#include <array>

/// The texts of a record's columns, from No. to CRC.
using LogTexts = std::array<QString, LogColumn::Rest>;

/// The texts that stand for a record in a file: a frame's bytes cut into its fields; in the Data
/// column stray bytes as they are, or what happened, with the link's name in place of a number.
LogTexts textsOf(const LogRecord &record);

/// The same as the window shows them: what happened in its language.
LogTexts shownTextsOf(const LogRecord &record);

/// The texts for a file of each of the records.
QVector<LogTexts> textsOf(const QVector<LogRecord> &records);
