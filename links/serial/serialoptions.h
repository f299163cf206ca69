#pragma once

#include <QSerialPort>
#include <QStringList>

/// The choices of the serial tab, in the order of the boxes. Stored settings hold the places, so
/// the order never changes.
namespace SerialOptions {

constexpr int customBaudRate = 0;
constexpr int defaultBaudRate = 5;
constexpr int defaultDataBits = 3;
constexpr int highestBaudRate = 1382400;

QStringList baudRates();
QStringList dataBits();
QStringList parities();
/// Two stop bits stand before one and a half.
/// See docs/deliberate.md, Stop bits.
QStringList stopBits();

/// The setting at a place of its box; any place outside the box stands for the default.
QSerialPort::DataBits dataBitsAt(int index);
QSerialPort::Parity parityAt(int index);
QSerialPort::StopBits stopBitsAt(int index);

} // namespace SerialOptions
