#pragma once

#include "windowdriver.h"

#include <QLabel>

/// What the status line says, without the places where its lines may end.
inline QString statusText(const WindowDriver &window)
{
    return window.find<QLabel>("label_Status")->text().remove('\n').remove(QChar(0x200B));
}
