#include "runner/program.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    return runProgram(QCoreApplication::arguments());
}
