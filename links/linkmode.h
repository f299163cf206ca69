#pragma once

/// The kind of link that is used; the numbers are those of the settings file and of the tabs.
enum class LinkMode { Uart = 0, Hid = 1 };
