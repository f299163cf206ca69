#pragma once

class QString;

/// Tells that a link did not open; the link's name is the box's title.
void showOpenFail(const QString &linkName);

/// Asks whether changed commands are to be saved; true for yes.
bool askToSaveCommands();
