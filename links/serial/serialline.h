#pragma once

#include <QString>

struct SerialSettings;

/// How a port is opened, without its name: "115200 8N1".
QString describeLine(const SerialSettings &settings);
