#pragma once

#include "windowdriver.h"

/// A window with an open port, two checked rows and a checked delay row between them.
class LoopWindow : public WindowDriver
{
public:
    LoopWindow(const QString &interval, const QString &cycleDelay, const QString &delay)
    {
        open(port);
        edit("lineEdit_StepValue")->setText(interval);
        edit("lineEdit_CycleTime")->setText(cycleDelay);
        setRow(0, "03", "0000", "0001");
        setRow(1, "++", "", delay);
        setRow(2, "42", "0002", "0202");
        for (const int row : {0, 1, 2}) {
            checkRow(row);
        }
    }

    QString loopCaption() const { return button("pushButton_Start_Loop")->text(); }

    TestPort port;
};

inline const QByteArray firstFrame = QByteArray::fromHex("5AA5050300000001");
inline const QByteArray secondFrame = QByteArray::fromHex("5AA5054200020202");
