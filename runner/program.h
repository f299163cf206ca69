#pragma once

class QStringList;

/// Does what the command line asks for, and returns what the program ends with. The program's name
/// is the first argument.
int runProgram(const QStringList &arguments);
