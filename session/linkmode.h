#pragma once

/// The link that a session uses; the numbers are those of the settings file and of the tabs.
enum class LinkMode { Uart = 0, Hid = 1 };
