#pragma once

namespace Ui {
class Dialog;
}

/// Gives the window its keys: Ctrl+O and Ctrl+S press the buttons that load and save the commands,
/// as long as these are enabled; F6 and Ctrl+Tab lead out of the tables, with Shift backwards, and
/// Tab out of the message log. The form must be set up.
void addWindowKeys(const Ui::Dialog &form);
