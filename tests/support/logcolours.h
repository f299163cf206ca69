#pragma once

#include "log/logitems.h"

#include <QMetaType>

Q_DECLARE_METATYPE(LogItems::Colour)
