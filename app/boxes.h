#pragma once

class QString;

/// Tells that a link did not open; the link's name is the box's title.
void showOpenFail(const QString &linkName);

/// What is to be done with commands that were changed and not saved.
enum class UnsavedCommands { Save, Discard, Keep };

/// Asks that before other commands take their place. Closing the box keeps them.
UnsavedCommands askAboutUnsavedCommands();

/// Asks whether changed commands are to be saved; true for yes.
bool askToSaveCommands();
