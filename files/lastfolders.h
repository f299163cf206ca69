#pragma once

#include <QByteArray>
#include <QString>

/// The folder of a file: its name up to and including the last "/". Empty when there is none or
/// when the folder is longer than 1024 characters.
QString folderOf(const QString &fileName);

/// The record of the folders last used: two lines of UTF-8 behind a byte-order mark, the last load
/// folder and the last save folder. See docs/deliberate.md, Unread record.
///
/// These give the record with one folder replaced and the other one kept. The given bytes are the
/// record so far, in UTF-8 or GBK; empty when there is none.
QByteArray recordWithLoadFolder(const QByteArray &record, const QString &folder);
QByteArray recordWithSaveFolder(const QByteArray &record, const QString &folder);

/// Renew the record, "lastCommand_path.ini" in the data folder. Where that is not possible, nothing
/// happens.
void recordLoadFolder(const QString &dataFolder, const QString &folder);
void recordSaveFolder(const QString &dataFolder, const QString &folder);
