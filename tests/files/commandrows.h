#pragma once

#include "commands/commandrow.h"

#include <QMetaType>

Q_DECLARE_METATYPE(CommandRow)
