#pragma once

#include "codec/valuekind.h"

#include <QMetaType>

Q_DECLARE_METATYPE(NumberKind)
Q_DECLARE_METATYPE(StringEncoding)
Q_DECLARE_METATYPE(ValueKind)
